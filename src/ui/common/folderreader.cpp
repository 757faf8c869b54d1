#include "folderreader.h"

#include <QDir>
#include <QFileInfo>
#include <QFutureWatcher>
#include <QtConcurrent/QtConcurrentRun>

namespace quovara {

namespace {

FolderReaderFactory& Factory() {
    static FolderReaderFactory factory;
    return factory;
}

struct Listing {
    QStringList names;
    bool ok = false;
};

} // namespace

QStringList ListSubfolders(const QString& path, bool* ok) {
    const QDir dir(path);
    QStringList names;
    const bool readable = dir.exists() && dir.isReadable();
    if (readable)
        names = dir.entryList(QDir::AllDirs | QDir::NoDotAndDotDot | QDir::Drives, QDir::NoSort);
    if (ok)
        *ok = readable;
    return names;
}

void DiskFolderReader::read(const QString& path) {
    // The watcher belongs to the reader: when the reader goes first, the answer is dropped
    // and the pool's thread simply ends.
    auto* watcher = new QFutureWatcher<Listing>(this);
    connect(watcher, &QFutureWatcher<Listing>::finished, this, [this, watcher, path] {
        const Listing listing = watcher->result();
        watcher->deleteLater();
        emit folderRead(path, listing.names, listing.ok);
    });
    watcher->setFuture(QtConcurrent::run([path] {
        Listing listing;
        listing.names = ListSubfolders(path, &listing.ok);
        return listing;
    }));
}

void SetFolderReaderFactory(FolderReaderFactory factory) {
    Factory() = std::move(factory);
}

std::unique_ptr<FolderReader> MakeFolderReader() {
    if (Factory())
        return Factory()();
    return std::make_unique<DiskFolderReader>();
}

} // namespace quovara
