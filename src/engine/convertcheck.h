// Before a conversion writes anything, what the engine extracted is checked against the
// archive's listing: every listed file must be there, with the listed size and CRC-32, and
// nothing may be there that the listing does not have (empty folders aside, which the engine
// stores without listing them).
#pragma once

#include "entrydetails.h"

#include "core/codepage.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>
#include <vector>

namespace quovara {

// One file of the listing: its stored name ("a\b.txt") and its detail line.
struct ListedFile {
    QString name;
    EntryDetails details;
};

// The files of a listing log's lines, in the listing's order. A name listed more than once
// (also in another case: the engine's file names are not case-sensitive) keeps its last line,
// as extracting it leaves the last one. Empty when the lines hold no complete listing.
std::vector<ListedFile> ReadListedFiles(const QStringList& lines);

// The name of a listed file in the new archive and in the extracted tree: "/" between folders.
QString ConvertedEntryName(const QString& storedName);

struct StagingCheck {
    bool stopped = false;
    // Listed, not extracted.
    QStringList missing;
    // Extracted with another size or CRC-32: "name (size 10, listed 12)" and the like.
    QStringList mismatched;
    // Extracted, not listed.
    QStringList unlisted;
    // Folders that hold nothing, as the new archive names them ("a/empty").
    QStringList emptyFolders;
    quint64 bytes = 0; // the listed files' bytes

    bool ok() const {
        return !stopped && missing.isEmpty() && mismatched.isEmpty() && unlisted.isEmpty();
    }
    // What went wrong, naming the entries (at most a few of each kind); empty when ok().
    QString problem() const;
};

// Reads every extracted file under `staging` once. `progress` is told the bytes read so far;
// `stop` ends the check early (stopped). `names` is the code page the engine made the folders
// in (see EngineMadeCuts); none for an engine that writes UTF-8.
StagingCheck CheckStaging(const QString& staging, const std::vector<ListedFile>& files,
                          const std::atomic<bool>* stop = nullptr,
                          const std::function<void(quint64)>& progress = {},
                          const EngineCodec* names = nullptr);

// The folders the engine makes by mistake for a folder path in a double-byte code page: a
// letter whose second byte is 0x5C ("\", as "表" in code page 932) cuts the path there, so
// extracting "予定表\図表.txt" also makes an empty "予定". The paths cut before each such letter
// ("a/b" style); nothing for other code pages.
QStringList EngineMadeCuts(const QString& folderPath, const EngineCodec& names);

// The CRC-32 of a file's bytes and how many there were, read in pieces; false when it cannot
// be read.
bool FileCrc32(const QString& path, quint32* crc, quint64* size,
               const std::atomic<bool>* stop = nullptr,
               const std::function<void(quint64)>& progress = {});

} // namespace quovara
