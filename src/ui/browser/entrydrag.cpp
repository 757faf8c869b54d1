#include "entrydrag.h"

#include "core/logging.h"

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
    if (!urls_) {
        // A target that asks again while the progress window runs (its event loop lets it)
        // gets nothing this time rather than a second extraction.
        if (extracting_) {
            qCDebug(lcFiles) << "the dragged entries were asked for again while being extracted";
            return QVariant();
        }
        extracting_ = true;
        urls_ = extract_ ? extract_() : QList<QUrl>();
        extracting_ = false;
    }
    if (urls_->isEmpty())
        return QVariant();
    QVariantList list;
    for (const QUrl& url : *urls_)
        list << url;
    return list;
}

} // namespace quovara
