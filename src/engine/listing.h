// Listing an archive: the list JobScript, the engine's listing log (errors, entries, totals),
// the password prompt loop, and the mirror tree: an empty placeholder file for every entry,
// laid out in the ScratchFolder in the archive's own folder structure, so that the archive can
// be browsed as ordinary folders and files.
#pragma once

#include "entrydetails.h"
#include "mirroraliases.h"
#include "namecheck.h"
#include "versionswitch.h"

#include "core/codepage.h"
#include "core/places.h"

#include <QCoreApplication>
#include <QString>
#include <QStringList>
#include <atomic>
#include <memory>
#include <optional>

namespace quovara {

class Prompter;

enum class ListStatus { PasswordRequired = 0, Failed = 1, Opened = 2, EngineSwitched = 3 };

// The totals of a listing, as values and as the texts of the details group.
struct ArchiveTotals {
    QString fileCountText;
    QString normalSizeMB; // bytes / 1048576, rounded to 2 decimals, as text
    QString packedSizeMB;
    QString modeText;
    // Empty when the engine's ratio does not fit 16 bits: the ratio bar then keeps its value.
    std::optional<qint16> ratio;

    QString filesLabel() const {
        return QCoreApplication::translate("ArchiveTotals", "Files: %1").arg(fileCountText);
    }
    QString normalSizeLabel() const {
        return QCoreApplication::translate("ArchiveTotals", "Normal size: %1 MB").arg(normalSizeMB);
    }
    QString packedSizeLabel() const {
        return QCoreApplication::translate("ArchiveTotals", "Packed size: %1 MB").arg(packedSizeMB);
    }
    QString modeLabel() const {
        return QCoreApplication::translate("ArchiveTotals", "Mode: %1").arg(modeText);
    }
};

struct ArchiveListing {
    QString archivePath;
    QString password;
    ListStatus status = ListStatus::Failed;
    QString previousFolder;
};

// The 79 dashes that end the entries of a listing log.
QString ListingSeparator();

// Text before the last "\" (empty when there is none).
QString sGivePath(const QString& s);
// Text after the last "\"; the whole text when there is none or the only one is the first
// character ("\c.txt" stays "\c.txt").
QString sGiveFile(const QString& s);
// 1 when the text holds a drive ("*:\*"), 2 when it holds a separator ("*\*"), else 0.
int Tipo(const QString& s);

// Reads a log or console file written by the engine (code page 437) into lines.
QStringList ReadEngineLines(const QString& path, bool* opened = nullptr,
                            const EngineCodec& codec = EngineCodec::Cp437());

// The error message in the listing log's lines: the last "ERROR:" line's text (cut before its
// first "--"), or an engine version request, which ends the scan. Empty when there is none.
QString ScanListingErrors(const QStringList& lines);

// The stored name of an entry line as the mirror tree uses it: blanks trimmed, and "/" taken
// as the folder separator "\" (the engine treats both alike), so that a name is split into
// folders and file one way everywhere.
QString EntryName(const QString& line);

// The file count of the first totals line's field (columns 1-20): the number it starts with.
// "15 files" and "1 file" give "15" and "1".
QString FileCountText(const QString& field);

// Builds the mirror tree from the log's lines under `scratchFolder`. False when the log ends
// before the separator line or a folder or placeholder cannot be created; `problem` (when
// given) then says why in words for the user, and what was made is removed again, so that no
// partial tree is left. No entry name ("..", drives, leading separators, links) can make it
// create or touch anything outside `scratchFolder`.
bool BuildMirrorTree(const QStringList& lines, const QString& scratchFolder,
                     QString* problem = nullptr);

// One pass over a listing log, read in pieces: the error scan, the mirror tree and the totals
// together, with memory bounded by one line (at most 64 KiB of it) whatever the log's size.
// Line ends are CR LF, CR or LF.
struct ListingPass {
    bool opened = false;
    // As ScanListingErrors gives it for the whole log.
    QString error;
    // The separator was reached and every entry has its placeholder in the tree folder.
    bool treeComplete = false;
    // Why the tree is not complete, in words for the user.
    QString treeProblem;
    std::optional<ArchiveTotals> totals;
    qint64 lines = 0;
    // Entries shown under another name than stored (the file system could not hold theirs, or
    // they are unsafe).
    MirrorAliases aliases;
    // The stored names that would climb out of a destination (IsUnsafeEntryName), in the
    // listing's order; they are never extracted.
    QStringList unsafeNames;
    // How many entries the listing holds.
    qint64 entryCount = 0;
    // Every placed entry's details, under the path it is shown at; set once the separator is
    // reached.
    std::shared_ptr<const ArchiveDetails> details;
};
// With an empty `treeFolder` no tree is made: the pass only reads the names (for the unsafe
// ones), the details and the totals.
// `stop` (when given) is looked at between lines: once it is set, the pass ends, incomplete.
// `entries` (when given) counts the entries placed so far, for a progress display; both may be
// read from another thread than the one running the pass.
ListingPass ReadListingLog(const QString& logPath, const EngineCodec& codec,
                           const QString& treeFolder, const std::atomic<bool>* stop = nullptr,
                           std::atomic<qint64>* entries = nullptr);

// Empties `folder` at once without waiting for the deletion: its content is moved aside (a
// rename) and deleted in the background; the folder itself is made again, empty. False when it
// could not be emptied.
bool EmptyFolderQuickly(const QString& folder);

// True for a name that is listed as an archive: its extension is "uha" in lower case.
bool IsArchiveName(const QString& path);

// The message for an archive whose listing cannot be shown.
QString ListingFailedMessage(const QString& archive, const QString& problem);

// An error the engine reported, as the user is shown it: in English, as the engine wrote it,
// alone; in another language inside a sentence of that language that says the engine wrote it.
QString EngineErrorText(const QString& engineText);

// The totals of the log's lines; empty when the log has no separator and totals.
std::optional<ArchiveTotals> ReadTotals(const QStringList& lines);

class ArchiveLister {
public:
    ArchiveLister(Prompter& prompter, EngineSwitchState& engineSwitch);

    // Where messages and the password prompt go.
    void setPrompter(Prompter& prompter) { prompter_ = &prompter; }

    ArchiveListing& listing() { return listing_; }
    const ArchiveListing& listing() const { return listing_; }

    // Writes and runs the list script, then classifies the log.
    void Batch();
    // The error message of uharc.log, or empty.
    QString Errore() const;
    // Turns the message into a status; switches the engine for a version request, shows any
    // other error with the critical icon.
    ListStatus SpecificaErrore(const QString& message);
    // Lists the archive and builds the mirror tree, asking for the password until the engine
    // accepts one. Returns the status; EngineSwitched asks the caller to open the item again.
    ListStatus FileInArchivio(const QString& selectedPath);
    // The totals of the last successful listing; empty when it failed or switched the engine.
    std::optional<ArchiveTotals> Info() const;

    // The open-selected-item procedure for an archive: only a ".uha" extension in lower case is
    // listed (false otherwise: the caller hands the item to the desktop). Makes the
    // ScratchFolder, lists, and lists again with the other engine after a switch.
    bool OpenSelectedArchive(const QString& path);

    // Stops the listing under way (the user pressed Escape or closed the window): its job ends
    // at once, and the listing fails without a message.
    void Cancel();
    bool cancelled() const { return cancelled_; }

    // Entries placed in the mirror tree so far by the listing under way.
    qint64 entriesPlaced() const { return entries_.load(); }

    // What the last listing's one pass over its log found.
    const ListingPass& lastPass() const { return pass_; }

    // The names of the tree shown now that differ from their stored names.
    const MirrorAliases& shownAliases() const { return shownAliases_; }
    // The entries of the tree shown now: how many, and the unsafe ones.
    ArchiveNames shownNames() const { return {shownEntries_ >= 0, shownEntries_, shownUnsafe_}; }

    // A lister that reads names only: Batch() makes no tree (for an archive that is about to
    // be extracted without being shown).
    void setNamesOnly(bool namesOnly) { namesOnly_ = namesOnly; }
    // The details of the entries of the tree shown now (null before the first listing).
    std::shared_ptr<const ArchiveDetails> shownDetails() const { return shownDetails_; }

    // Why the last list job could not be started (empty when it started).
    QString startError() const { return startError_; }

private:
    // Moves the new tree being made aside, for deletion in the background.
    void discardStaging();

    Prompter* prompter_;
    EngineSwitchState& switch_;
    ArchiveListing listing_;
    QString startError_;
    ListingPass pass_;
    MirrorAliases shownAliases_;
    QStringList shownUnsafe_;
    qint64 shownEntries_ = -1;
    bool namesOnly_ = false;
    std::shared_ptr<const ArchiveDetails> shownDetails_;
    bool cancelled_ = false;
    std::atomic<bool> stop_{false};
    std::atomic<qint64> entries_{0};
};

} // namespace quovara
