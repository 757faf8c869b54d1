#include "listing.h"

#include "core/codepage.h"
#include "core/enginelocale.h"
#include "core/jobscript.h"
#include "core/logging.h"
#include "core/prompter.h"
#include "core/runner.h"
#include "core/vbtext.h"
#include "engine/grammar.h"
#include "engine/mirrorwriter.h"
#include "engine/unsafenames.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <cstring>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quovara {

QString ListingSeparator() {
    return QString(79, QLatin1Char('-'));
}

QString sGivePath(const QString& s) {
    const int cut = s.lastIndexOf(QLatin1Char('\\'));
    return cut < 0 ? QString() : s.left(cut);
}

QString sGiveFile(const QString& s) {
    const int cut = s.lastIndexOf(QLatin1Char('\\'));
    // A separator at the first position counts as none: "\c.txt" stays whole.
    return cut <= 0 ? s : s.mid(cut + 1);
}

int Tipo(const QString& s) {
    if (Like(s, QStringLiteral("*:\\*")))
        return 1;
    if (Like(s, QStringLiteral("*\\*")))
        return 2;
    return 0;
}

QStringList ReadEngineLines(const QString& path, bool* opened, const EngineCodec& codec) {
    QFile file(path);
    const bool ok = file.open(QIODevice::ReadOnly);
    if (opened)
        *opened = ok;
    if (!ok)
        return {};
    // The real engine ends its log lines with CR LF; other tools may write LF or CR alone.
    return SplitAnyLineEnds(DecodeEngineText(file.readAll(), codec));
}

QString ScanListingErrors(const QStringList& lines) {
    QString message;
    for (const QString& line : lines) {
        if (!Like(line, QStringLiteral("ERROR:*")))
            continue;
        QString m = line.mid(6);
        if (Like(m, QStringLiteral("*--> use UHARC version*")))
            return m;
        if (Like(m, QStringLiteral("*-->*"))) {
            // Cut the message before its first "--".
            while (Like(m, QStringLiteral("*--*")))
                m.chop(1);
            if (Like(m, QStringLiteral("*-")))
                m.chop(1);
        }
        message = m;
    }
    return message;
}

QString EntryName(const QString& line) {
    return TrimBlanks(line).replace(QLatin1Char('/'), QLatin1Char('\\'));
}

QString FileCountText(const QString& field) {
    // The engine writes "<n> files", and "1 file" for one: the count is the number the
    // field starts with, whatever word follows it.
    const QString t = TrimBlanks(field);
    qsizetype n = 0;
    while (n < t.size() && t[n].unicode() >= '0' && t[n].unicode() <= '9')
        ++n;
    return t.left(n);
}

QString ListingFailedMessage(const QString& archive, const QString& problem) {
    return QCoreApplication::translate(
               "Listing",
               "Quovara cannot show the archive\n%1\nbecause %2.\nNothing of it is shown.")
        .arg(archive, problem);
}

QString EngineErrorText(const QString& engineText) {
    //: %1 is the engine's own error text, in English as the engine writes it, e.g. "Can't read
    //: from archive file / Unexpected end of file (maybe corrupt)". The English source shows
    //: it alone; a translation puts it after a sentence saying the engine reported it.
    return QCoreApplication::translate("EngineError", "%1").arg(engineText);
}

namespace {

constexpr qsizetype kLongestLine = 64 * 1024;
constexpr qint64 kChunk = 256 * 1024;

} // namespace

namespace {
// Takes whatever stands at `folder` out of the way at once: a link is removed (never what it
// points to), a folder is moved aside and deleted in the background.
bool ClearAway(const QString& folder) {
    if (QFileInfo(folder).isSymLink())
        return QFile::remove(folder);
    return MoveAsideAndDelete(folder);
}
} // namespace

bool EmptyFolderQuickly(const QString& folder) {
    if (!ClearAway(folder))
        return false;
    MirrorWriter fresh(folder);
    return fresh.rootOk();
}

namespace {

// The one pass's rules, line by line: the error scan, the mirror tree (nine header lines, then
// an entry line and its detail line each, up to the separator) and the two totals lines.
class ListingLineReader {
public:
    ListingLineReader(ListingPass& pass, const QString& treeFolder,
                      std::atomic<qint64>* entries = nullptr)
        : pass_(pass), separator_(ListingSeparator()), entries_(entries) {
        if (treeFolder.isEmpty())
            return; // names only: no tree is made
        writer_.emplace(treeFolder);
        if (!writer_->rootOk())
            pass_.treeProblem =
                QCoreApplication::translate("Listing", "it cannot create the folder view %1")
                    .arg(treeFolder);
    }

    void reserveDetails(qsizetype entries) { details_->reserve(entries); }

    void take(const QString& text) {
        ++pass_.lines;
        if (!versionRequest_ && text.startsWith(QLatin1String("ERROR:"))) {
            const QString m = ScanListingErrors(QStringList{text});
            if (!m.isEmpty()) {
                pass_.error = m;
                versionRequest_ = Like(m, QStringLiteral("*--> use UHARC version*"));
            }
        }
        if (separatorSeen_) {
            if (totalsLines_.size() < 2)
                totalsLines_ << text;
            return;
        }
        if (pass_.lines <= 9)
            return;
        if ((pass_.lines - 10) % 2 != 0) {
            // The detail line of the entry just placed.
            if (!pendingShown_.isEmpty())
                details_->addLine(pendingShown_, text);
            pendingShown_.clear();
            return;
        }
        const QString name = EntryName(text);
        if (name == separator_) {
            separatorSeen_ = true;
            return;
        }
        // A log that holds an engine error lists nothing: its lines are no entries, and the
        // count of entries read stays honest (nothing is read while a password is asked for).
        if (pass_.treeProblem.isEmpty() && pass_.error.isEmpty()) {
            ++pass_.entryCount;
            if (writer_) {
                pendingShown_ = writer_->placeEntry(name);
                if (!writer_->failure().isEmpty())
                    pass_.treeProblem = writer_->failure();
            } else {
                // Names only: the details are kept under the stored name.
                pendingShown_ = name;
                if (IsUnsafeEntryName(name))
                    unsafe_ << name;
            }
            if (entries_)
                entries_->fetch_add(1, std::memory_order_relaxed);
        }
    }

    void finish() {
        // Known as far as the log goes, also when it is cut short.
        pass_.unsafeNames = writer_ ? writer_->unsafeNames() : unsafe_;
        if (!separatorSeen_) {
            qCDebug(lcListing) << "listing ends before its separator line";
            if (pass_.treeProblem.isEmpty())
                pass_.treeProblem =
                    QCoreApplication::translate("Listing", "the engine's listing is incomplete");
            return;
        }
        pass_.treeComplete = pass_.treeProblem.isEmpty();
        if (writer_)
            pass_.aliases = writer_->aliases();
        details_->finish();
        pass_.details = std::move(details_);
        QStringList tail(9);
        tail << separator_ << totalsLines_;
        pass_.totals = ReadTotals(tail);
    }

private:
    ListingPass& pass_;
    std::optional<MirrorWriter> writer_;
    // The unsafe names seen when no tree is made.
    QStringList unsafe_;
    const QString separator_;
    std::atomic<qint64>* entries_;
    std::shared_ptr<ArchiveDetails> details_ = std::make_shared<ArchiveDetails>();
    // Where the last entry line's entry is shown, until its detail line comes.
    QString pendingShown_;
    bool versionRequest_ = false;
    bool separatorSeen_ = false;
    QStringList totalsLines_;
};

} // namespace

bool BuildMirrorTree(const QStringList& lines, const QString& scratchFolder, QString* problem) {
    ListingPass pass;
    {
        ListingLineReader reader(pass, scratchFolder);
        for (const QString& line : lines)
            reader.take(line);
        reader.finish();
    }
    if (pass.treeComplete)
        return true;
    if (problem)
        *problem = pass.treeProblem;
    // No partial tree is ever shown.
    if (!QDir(scratchFolder).removeRecursively() || !QDir().mkdir(scratchFolder))
        qCDebug(lcListing) << "could not empty the mirror tree after a failure";
    return false;
}

ListingPass ReadListingLog(const QString& logPath, const EngineCodec& codec,
                           const QString& treeFolder, const std::atomic<bool>* stop,
                           std::atomic<qint64>* entries) {
    ListingPass pass;
    QFile file(logPath);
    if (!file.open(QIODevice::ReadOnly))
        return pass;
    pass.opened = true;
    ListingLineReader reader(pass, treeFolder, entries);
    reader.reserveDetails(ArchiveDetails::mostEntriesIn(file.size()));
    // A line begun in one chunk and ended in a later one; every other line is decoded straight
    // from the chunk it lies in.
    QByteArray carried;
    bool lastWasCr = false;
    auto takeLine = [&](const char* data, qsizetype size) {
        reader.take(DecodeEngineText(data, std::min(size, kLongestLine), codec));
    };
    auto carry = [&](const char* data, qsizetype size) {
        carried.append(data, std::min(size, kLongestLine - carried.size()));
    };

    // One buffer for every chunk: a new one each time would be mapped and faulted in again.
    QByteArray chunk(kChunk, Qt::Uninitialized);
    for (;;) {
        const qint64 got = file.read(chunk.data(), kChunk);
        if (got <= 0)
            break;
        if (stop && stop->load()) {
            pass.treeProblem = QCoreApplication::translate("Listing", "the reading was stopped");
            return pass;
        }
        const char* p = chunk.constData();
        const char* const end = p + got;
        if (lastWasCr && *p == '\n')
            ++p; // the LF of a CR LF cut by the chunk's edge
        lastWasCr = false;
        while (p < end) {
            const char* lineEnd =
                std::find_if(p, end, [](char c) { return c == '\r' || c == '\n'; });
            if (lineEnd == end) {
                carry(p, end - p);
                break;
            }
            if (carried.isEmpty()) {
                takeLine(p, lineEnd - p);
            } else {
                carry(p, lineEnd - p);
                takeLine(carried.constData(), carried.size());
                carried.truncate(0);
            }
            // CR LF, CR and LF each end a line.
            lastWasCr = *lineEnd == '\r';
            p = lineEnd + 1;
            if (lastWasCr && p < end) {
                if (*p == '\n')
                    ++p;
                lastWasCr = false;
            }
        }
    }
    if (file.error() != QFileDevice::NoError)
        qCDebug(lcListing) << "reading the listing log failed:" << file.errorString();
    if (!carried.isEmpty())
        takeLine(carried.constData(), carried.size());

    reader.finish();
    return pass;
}

std::optional<ArchiveTotals> ReadTotals(const QStringList& lines) {
    const QString separator = ListingSeparator();
    qsizetype i = 9;
    while (i < lines.size() && lines[i] != separator)
        ++i;
    if (i + 1 >= lines.size())
        return std::nullopt;
    const QString line1 = lines[i + 1];
    const QString line2 = i + 2 < lines.size() ? lines[i + 2] : QString();

    ArchiveTotals t;
    t.fileCountText = FileCountText(line1.left(20));
    auto mb = [](const QString& field) {
        return NumberText(RoundHalfEven(Val(TrimLeadingBlanks(field)) / 1048576.0, 2));
    };
    t.normalSizeMB = mb(line1.mid(20));
    t.packedSizeMB = mb(line2.left(40));

    QString field;
    QString ratioText;
    if (!line2.contains(QLatin1String("LZP")) && !line2.contains(QLatin1String("PPM"))) {
        field = line2.mid(49, 5);
        ratioText = line2.mid(68);
    } else {
        field = line2.mid(49, 3);
        ratioText = line2.mid(66);
    }
    if (field.contains(QLatin1Char('3')))
        t.modeText = QCoreApplication::translate("Methods", "ALZ Best");
    else if (field.contains(QLatin1Char('2')))
        t.modeText = QCoreApplication::translate("Methods", "ALZ Normal");
    else if (field.contains(QLatin1Char('1')))
        t.modeText = QCoreApplication::translate("Methods", "ALZ Fast");
    else
        t.modeText = field;
    ratioText.chop(1); // the per-cent sign
    if (const auto ratio = ToInt16(Val(ratioText)))
        t.ratio = *ratio;
    else
        qCDebug(lcListing) << "ratio out of range:" << ratioText;
    return t;
}

namespace {
// Where a new mirror tree is built until it is complete.
QString stagingFolder() {
    return ScratchFolder() + QStringLiteral(".new");
}
} // namespace

ArchiveLister::ArchiveLister(Prompter& prompter, EngineSwitchState& engineSwitch)
    : prompter_(&prompter), switch_(engineSwitch) {}

void ArchiveLister::Batch() {
    const QString log = WorkFile(names::ListLog);
    startError_.clear();
    pass_ = ListingPass();
    const QString script = WorkFile(names::ListScript);
    const CommandPieces pieces = ListCommandPieces(ProgramFolder(), TempRoot(), listing_.password,
                                                   listing_.archivePath, PathStyle::host());
    QString refused;
    bool written = false;
    RunBeside([&] {
        // The engine appends to its log: any old one goes, also an empty one or a link standing
        // in its place (removing a link never touches what it points to).
        if (QFileInfo(log).exists() || QFileInfo(log).isSymLink()) {
            if (!QFile::remove(log))
                qCDebug(lcListing) << "could not delete" << log;
        }
        written = WriteJobScript(script, Preamble::List, pieces, LastLine::NoLineEnd, &refused);
    });
    if (!written) {
        // Nothing runs: the user is told what is wrong (once, here), and the listing fails.
        prompter_->critical(refused);
        listing_.status = ListStatus::Failed;
        return;
    }
    if (cancelled_) {
        // Stopped while the script was written: the engine is not started at all.
        qCDebug(lcListing) << "listing stopped by the user before the list job";
        listing_.status = ListStatus::Failed;
        return;
    }
    if (!RunAndWait(script, 0, WorkFolder(), {}, &startError_))
        qCDebug(lcListing) << "list job not started:" << startError_;
    if (cancelled_) {
        qCDebug(lcListing) << "listing stopped by the user";
        listing_.status = ListStatus::Failed;
        return;
    }
    if (!QFileInfo::exists(log)) {
        // No log: the engine did not run. The listing fails without a message.
        listing_.status = ListStatus::Failed;
        return;
    }
    // The log is read once, in pieces: the error scan, the new mirror tree (built aside, so the
    // shown one stays until the new one is complete) and the totals in one pass.
    const QString staging = stagingFolder();
    // The pass runs beside the window's thread, which waits in an event loop: the window
    // stays live (it repaints, and Escape stops the reading) while the tree is made.
    stop_ = false;
    entries_ = 0;
    const EngineCodec codec = ActiveEngineCodec();
    RunBeside([&] {
        if (namesOnly_) {
            pass_ = ReadListingLog(log, codec, QString(), &stop_, &entries_);
            return;
        }
        if (!EmptyFolderQuickly(staging))
            qCDebug(lcListing) << "could not empty" << staging;
        const BackgroundDeletesHeld quiet;
        pass_ = ReadListingLog(log, codec, staging, &stop_, &entries_);
    });
    if (cancelled_) {
        qCDebug(lcListing) << "listing stopped by the user while the tree was made";
        discardStaging();
        listing_.status = ListStatus::Failed;
        return;
    }
    listing_.status = SpecificaErrore(Errore());
}

void ArchiveLister::discardStaging() {
    // A tree left unfinished can be big: it is moved aside at once and deleted in the
    // background, like any folder view that is no longer wanted.
    const QString staging = stagingFolder();
    bool gone = false;
    RunBeside([&] { gone = ClearAway(staging); });
    if (!gone)
        qCDebug(lcListing) << "could not delete" << staging;
}

QString ArchiveLister::Errore() const {
    return pass_.error;
}

ListStatus ArchiveLister::SpecificaErrore(const QString& message) {
    const QString log = WorkFile(names::ListLog);
    if (IsVersionRequest(message, switch_)) {
        if (!QFile::remove(log))
            qCDebug(lcListing) << "could not delete" << log;
        SwitchEngine(switch_, ProgramFolder(), message);
        return ListStatus::EngineSwitched;
    }
    const QString t = TrimBlanks(message);
    if (t == QLatin1String("Archive requires a password to access")) {
        if (!QFile::remove(log))
            qCDebug(lcListing) << "could not delete" << log;
        return ListStatus::PasswordRequired;
    }
    if (!t.isEmpty()) {
        prompter_->critical(EngineErrorText(t));
        return ListStatus::Failed;
    }
    return ListStatus::Opened;
}

void ArchiveLister::Cancel() {
    cancelled_ = true;
    stop_ = true;
    StopWaitedJobs();
}

ListStatus ArchiveLister::FileInArchivio(const QString& selectedPath) {
    cancelled_ = false;
    for (;;) {
        RunBeside([] {
            QFile placeholder(WorkFile(names::Placeholder));
            if (!placeholder.open(QIODevice::WriteOnly | QIODevice::Truncate))
                qCDebug(lcListing) << "could not create" << placeholder.fileName();
        });

        listing_.archivePath = selectedPath;
        Batch();
        switch (listing_.status) {
        case ListStatus::PasswordRequired:
            // Only a right password leads out: an empty or cancelled answer lists again
            // without one and asks again.
            listing_.password =
                prompter_->askPassword(QCoreApplication::translate("Listing", "Insert Password"));
            continue;
        case ListStatus::EngineSwitched:
            return listing_.status;
        case ListStatus::Failed:
            listing_.password.clear();
            UndoEngineSwitch(switch_, ProgramFolder());
            return listing_.status;
        case ListStatus::Opened: {
            // One archive at a time: the new tree, complete, takes the place of the old one,
            // which is deleted in the background.
            const QString staging = stagingFolder();
            QString problem = pass_.treeProblem;
            if (problem.isEmpty() && !pass_.totals)
                problem =
                    QCoreApplication::translate("Listing", "the engine's listing is incomplete");
            if (problem.isEmpty()) {
                bool replaced = false;
                RunBeside([&] {
                    replaced =
                        ClearAway(ScratchFolder()) && QDir().rename(staging, ScratchFolder());
                });
                if (!replaced)
                    problem = QCoreApplication::translate(
                        "Listing", "it cannot replace the previous folder view");
                else {
                    shownAliases_ = pass_.aliases;
                    shownUnsafe_ = pass_.unsafeNames;
                    shownEntries_ = pass_.entryCount;
                    shownDetails_ = pass_.details;
                }
            }
            if (!problem.isEmpty()) {
                // No partial tree: the one shown before stays as it was.
                discardStaging();
                prompter_->critical(ListingFailedMessage(selectedPath, problem));
                listing_.status = ListStatus::Failed;
                listing_.password.clear();
                UndoEngineSwitch(switch_, ProgramFolder());
            } else {
                // Shown, but not every name as stored: the user is told, once. Entries whose
                // names would climb out of a folder are said apart from the shortened names.
                const QStringList& unsafe = pass_.unsafeNames;
                if (!unsafe.isEmpty())
                    prompter_->information(
                        UnsafeEntriesMessage(selectedPath, unsafe, unsafe.size()));
                const qsizetype renamed = shownAliases_.count() - unsafe.size();
                if (renamed > 0)
                    prompter_->information(AliasesMessage(selectedPath, renamed));
            }
            return listing_.status;
        }
        }
    }
}

bool IsArchiveName(const QString& path) {
    // The extension as the file system reports it: the text after the last dot of the name.
    return QFileInfo(path).suffix() == QLatin1String("uha");
}

bool ArchiveLister::OpenSelectedArchive(const QString& path) {
    if (!IsArchiveName(path))
        return false;
    for (;;) {
        MirrorWriter scratch(ScratchFolder());
        if (!scratch.rootOk())
            qCDebug(lcListing) << "could not make the scratch folder" << ScratchFolder();
        if (FileInArchivio(path) != ListStatus::EngineSwitched)
            return true;
        // The engine was switched: list the same archive again with the other version.
    }
}

std::optional<ArchiveTotals> ArchiveLister::Info() const {
    if (listing_.status == ListStatus::Failed || listing_.status == ListStatus::EngineSwitched)
        return std::nullopt;
    return pass_.totals;
}

} // namespace quovara
