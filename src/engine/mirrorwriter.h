// Writes the mirror tree: folders and empty placeholder files strictly below one root.
// Components that could climb out ("", ".", ".."), drive prefixes and links are never followed.
// A name the file system cannot hold as it stands (longer than 255 bytes, or a file where a
// folder of that name stands, or the other way round) is given another name (AliasName), and
// the pair is recorded so that the entry keeps its stored name for the engine.
#pragma once

#include "mirroraliases.h"

#include <QByteArray>
#include <QHash>
#include <QSet>
#include <QString>
#include <QStringList>

namespace quovara {

class MirrorWriter {
public:
    explicit MirrorWriter(const QString& root);
    ~MirrorWriter();
    MirrorWriter(const MirrorWriter&) = delete;
    MirrorWriter& operator=(const MirrorWriter&) = delete;

    bool rootOk() const { return root_ok_; }
    // The first failure to create something, in words; empty while all went well.
    const QString& failure() const { return failure_; }
    // The names shown otherwise than stored.
    const MirrorAliases& aliases() const { return aliases_; }
    // The stored names of the entries placed so far whose names are unsafe (IsUnsafeEntryName),
    // in the order of the listing. Each is shown at the top of the tree under a safe name.
    const QStringList& unsafeNames() const { return unsafe_; }

    // Places the entry `name` (its stored name, "\" or "/" between folders): its folders, then
    // its placeholder. A drive and a drive's root are dropped. Returns the path the entry is
    // shown at, relative to the root with "\" between folders; empty when it was not placed.
    QString placeEntry(const QString& name);

    // Makes the folder path and returns its host path (empty when it cannot be made safely).
    // Entries of one folder follow each other in a listing: the last folder is remembered.
    QByteArray makeFolder(const QString& folder);
    // Writes an empty placeholder named `file` into `folder` (a path makeFolder gave) and
    // returns the name it was given (empty when none could be written).
    QString placeholder(const QByteArray& folder, const QString& file);

private:
    QString placeUnsafe(const QString& name);
    static bool usable(const QString& component);
    // 0 when `path` is a real folder now (made or found), else the error: EEXIST when something
    // else (a file, a link) stands there.
    int ensureDir(const QByteArray& path);
    void fail(int error);
    int folderHandle(const QByteArray& folder);
    void forgetLastFolder();

    QString root_;
    QString failure_;
    bool root_ok_ = false;
    QSet<QByteArray> known_;
    bool lastKnown_ = false;
    QString lastFolder_;
    QByteArray lastPath_;
    // The mirror path of the last folder, relative to the root, "\" between parts.
    QString lastShown_;
    QString lastStored_;
    // A renamed folder part: "<shown parent>\<stored part>" → its name in the tree.
    QHash<QString, QString> folderAliases_;
    MirrorAliases aliases_;
    QStringList unsafe_;
    int folderFd_ = -1;
};

} // namespace quovara
