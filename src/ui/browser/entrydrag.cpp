#include "entrydrag.h"

#include "core/logging.h"

#include <QEventLoop>

namespace quovara {

namespace {
const QString kUriList = QStringLiteral("text/uri-list");
} // namespace

EntryDragData::EntryDragData(Extractor extract) : extract_(std::move(extract)) {}

QStringList EntryDragData::formats() const {
    return {kUriList};
}

bool EntryDragData::hasFormat(const QString& mimeType) const {
    return mimeType == kUriList;
}

QVariant EntryDragData::retrieveData(const QString& mimeType, QMetaType type) const {
    Q_UNUSED(type);
    if (mimeType != kUriList)
        return QVariant();
    if (!urls_ && extracting_) {
        // Asked again while the extraction runs (a file manager asks while the pointer moves
        // and again on the drop; the progress window's event loop lets the second request in):
        // the answer waits for the same extraction, which ends in this loop.
        qCDebug(lcFiles) << "the dragged entries were asked for again while being extracted";
        QEventLoop wait;
        connect(this, &EntryDragData::delivered, &wait, &QEventLoop::quit);
        wait.exec();
    } else if (!urls_) {
        extracting_ = true;
        const QList<QUrl> urls =
            extract_ ? extract_([this](const QList<QUrl>& known) { deliver(known); })
                     : QList<QUrl>();
        extracting_ = false;
        if (!urls_)
            deliver(urls);
    }
    if (!urls_ || urls_->isEmpty())
        return QVariant();
    QVariantList list;
    for (const QUrl& url : *urls_)
        list << url;
    return list;
}

void EntryDragData::deliver(const QList<QUrl>& urls) const {
    if (urls_)
        return;
    urls_ = urls;
    emit const_cast<EntryDragData*>(this)->delivered();
}

} // namespace quovara
