#include "fileicons.h"

#include <QFileIconProvider>
#include <QFileInfo>
#include <QHash>
#include <QMimeDatabase>

namespace quovara {

namespace {

class ThemedIconProvider : public QFileIconProvider {
public:
    QIcon icon(IconType type) const override {
        if (type == Folder || type == Drive || type == Computer)
            return folderIcon();
        return fileIcon(QStringLiteral("text-x-generic"));
    }

    QIcon icon(const QFileInfo& info) const override {
        if (info.isDir())
            return folderIcon();
        if (info.suffix() == QLatin1String("uha")) {
            if (archive_.isNull())
                archive_ = QIcon::fromTheme(QStringLiteral("package-x-generic"),
                                            QIcon(QStringLiteral(":/icons/archive.svg")));
            return archive_;
        }
        const QMimeType mime = mimes_.mimeTypeForFile(info, QMimeDatabase::MatchExtension);
        return fileIcon(mime.iconName(), mime.genericIconName());
    }

private:
    // Every folder (and every archive) shares one icon: each new icon would draw its pictures
    // afresh and leave them in the program's picture cache under a key of its own, a few more
    // at every listing and every change of folder.
    QIcon folderIcon() const {
        if (folder_.isNull())
            folder_ = QIcon::fromTheme(QStringLiteral("folder"),
                                       QIcon(QStringLiteral(":/icons/folder.svg")));
        return folder_;
    }

    QIcon fileIcon(const QString& name, const QString& generic = QString()) const {
        const QString key = name + QLatin1Char('|') + generic;
        auto it = cache_.constFind(key);
        if (it != cache_.constEnd())
            return *it;
        QIcon icon = QIcon::fromTheme(name);
        if (icon.isNull() && !generic.isEmpty())
            icon = QIcon::fromTheme(generic);
        if (icon.isNull())
            icon = QIcon(QStringLiteral(":/icons/file.svg"));
        cache_.insert(key, icon);
        return icon;
    }

    QMimeDatabase mimes_;
    mutable QHash<QString, QIcon> cache_;
    mutable QIcon folder_;
    mutable QIcon archive_;
};

} // namespace

QAbstractFileIconProvider* SharedFileIconProvider() {
    static ThemedIconProvider provider;
    return &provider;
}

} // namespace quovara
