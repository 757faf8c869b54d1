// Reading the subfolders of a folder away from the window's thread, so that a slow disk or a
// network folder never freezes a folder tree. A tree asks with read() and gets the answer
// later through folderRead().
#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

namespace quovara {

class FolderReader : public QObject {
    Q_OBJECT
public:
    using QObject::QObject;
    // Starts reading the subfolders of `path`; folderRead() answers once, later, in the
    // reader's thread of creation.
    virtual void read(const QString& path) = 0;

signals:
    // The names of the subfolders of `path` (hidden ones left out); `ok` is false when the
    // folder could not be read (then `subfolders` is empty).
    void folderRead(const QString& path, const QStringList& subfolders, bool ok);
};

// The reader of the real file system: every folder is read on a thread of the global pool.
class DiskFolderReader : public FolderReader {
    Q_OBJECT
public:
    using FolderReader::FolderReader;
    void read(const QString& path) override;
};

// The names of the subfolders of `path` as the disk reader gives them (hidden ones left out,
// unsorted); `ok` tells whether the folder could be read.
QStringList ListSubfolders(const QString& path, bool* ok);

// Makes the reader of every folder tree made from now on (tests put a slow file system here);
// an empty function brings back the disk reader.
using FolderReaderFactory = std::function<std::unique_ptr<FolderReader>()>;
void SetFolderReaderFactory(FolderReaderFactory factory);
std::unique_ptr<FolderReader> MakeFolderReader();

} // namespace quovara
