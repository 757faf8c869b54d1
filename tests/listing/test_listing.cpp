#include "../core/recording_prompter.h"
#include "../core/test_support.h"
#include "core/jobscript.h"
#include "core/places.h"
#include "engine/grammar.h"
#include "engine/listing.h"

#include <QDirIterator>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

QString sample(const char* name) {
    return QStringLiteral(QUOVARA_LISTING_DATA "/") + name;
}

QStringList sampleLines(const char* name) {
    return ReadEngineLines(sample(name));
}

// Every file below `root`, relative, sorted.
QStringList filesBelow(const QString& root) {
    QStringList out;
    QDirIterator it(root, QDir::Files | QDir::Hidden | QDir::System, QDirIterator::Subdirectories);
    while (it.hasNext())
        out << QDir(root).relativeFilePath(it.next());
    out.sort();
    return out;
}

} // namespace

TEST(NameSplitting, GivePath) {
    EXPECT_EQ(sGivePath("a\\b\\c.txt"), "a\\b");
    EXPECT_EQ(sGivePath("c.txt"), "");
    EXPECT_EQ(sGivePath("\\c.txt"), "");
    EXPECT_EQ(sGivePath("a\\"), "a");
    EXPECT_EQ(sGivePath(""), "");
}

TEST(NameSplitting, GiveFileKeepsALeadingSeparatorOnPurpose) {
    EXPECT_EQ(sGiveFile("a\\b\\c.txt"), "c.txt");
    EXPECT_EQ(sGiveFile("c.txt"), "c.txt");
    EXPECT_EQ(sGiveFile("\\c.txt"), "\\c.txt");
    EXPECT_EQ(sGiveFile("a\\"), "");
}

TEST(NameSplitting, Tipo) {
    EXPECT_EQ(Tipo("C:\\docs"), 1);
    EXPECT_EQ(Tipo("docs\\sub"), 2);
    EXPECT_EQ(Tipo("docs"), 0);
    EXPECT_EQ(Tipo(""), 0);
    EXPECT_EQ(Tipo("C:"), 0);
}

TEST(SplitEngineLines, CrAndCrLfEndLinesButALoneLfDoesNot) {
    EXPECT_EQ(SplitEngineLines("a\r\nb\rc\nd\r\n"), QStringList({"a", "b", "c\nd"}));
    EXPECT_EQ(SplitEngineLines("a\r\nunfinished"), QStringList({"a", "unfinished"}));
    EXPECT_EQ(SplitEngineLines("\r\n\r\n"), QStringList({"", ""}));
}

TEST(ListScript, PlainArchiveBytes) {
    const QByteArray bytes =
        JobScriptBytes(Preamble::List, ListCommandPieces("C:\\P", "C:\\T", "", "C:\\a b.uha",
                                                         PathStyle::windows()));
    EXPECT_EQ(bytes, QByteArray("cls\r\n@echo off\r\n\"C:\\P\\uharc.exe\" l -d2 -y+ "
                                "-lgC:\\T\\Corvana\\uharc.log \"C:\\a b.uha\""));
}

TEST(ListScript, ProtectedArchiveBytes) {
    const QByteArray bytes =
        JobScriptBytes(Preamble::List, ListCommandPieces("C:\\P", "C:\\T", "pw", "C:\\a.uha",
                                                         PathStyle::windows()));
    EXPECT_EQ(bytes, QByteArray("cls\r\n@echo off\r\n\"C:\\P\\uharc.exe\" l -d2 -y+ "
                                "-lgC:\\T\\Corvana\\uharc.log -pw\"pw\" \"C:\\a.uha\""));
}

TEST(ListScript, HostPathsAndAPasswordWithAQuoteUnescaped) {
    const QByteArray bytes = JobScriptBytes(
        Preamble::List, ListCommandPieces("/p", "/t", "a\"b", "/a.uha", PathStyle::host()));
    EXPECT_EQ(bytes, QByteArray("cls\r\n@echo off\r\n\"/p/uharc.exe\" l -d2 -y+ "
                                "-lg/t/Corvana/uharc.log -pw\"a\"b\" \"/a.uha\""));
}

TEST(ScanListingErrors, RealLogsOfTheEngine) {
    EXPECT_EQ(ScanListingErrors(sampleLines("list-alz3.log")), "");
    EXPECT_EQ(ScanListingErrors(sampleLines("list-ppm.log")), "");
    EXPECT_EQ(ScanListingErrors(sampleLines("list-missing-archive.log")),
              " Can't open archive file");
    // Cut before the first "--", with the blank before it.
    EXPECT_EQ(ScanListingErrors(sampleLines("list-password-required.log")),
              " Archive requires a password to access ");
}

TEST(ScanListingErrors, LastErrorWinsButAVersionRequestEndsTheScan) {
    EXPECT_EQ(ScanListingErrors({"ERROR: first", "x", "ERROR: second"}), " second");
    EXPECT_EQ(ScanListingErrors({"ERROR: old --> use UHARC version 0.4", "ERROR: later"}),
              " old --> use UHARC version 0.4");
    EXPECT_EQ(ScanListingErrors({"error: lower case", " ERROR: indented"}), "");
    EXPECT_EQ(ScanListingErrors({"ERROR: a -- b --> c"}), " a ");
}

TEST(ReadTotals, AlzBest) {
    const auto t = ReadTotals(sampleLines("list-alz3.log"));
    ASSERT_TRUE(t.has_value());
    EXPECT_EQ(t->filesLabel(), "Files: 8");
    EXPECT_EQ(t->normalSizeLabel(), "Normal size: 0.11 MB");
    EXPECT_EQ(t->packedSizeLabel(), "Packed size: 0.04 MB");
    EXPECT_EQ(t->modeLabel(), "Mode: ALZ Best");
    EXPECT_EQ(t->ratio, 35);
}

TEST(ReadTotals, OneFileArchiveCountsOne) {
    // The engine writes "1 file" (four letters) for an archive of one file.
    const auto t = ReadTotals(sampleLines("list-one-file.log"));
    ASSERT_TRUE(t.has_value());
    EXPECT_EQ(t->filesLabel(), "Files: 1");
    EXPECT_EQ(t->normalSizeMB, "0");
    EXPECT_EQ(t->modeText, "ALZ Normal");
    EXPECT_EQ(t->ratio, 183);
}

TEST(FileCountText, TheNumberAtTheStartOfTheField) {
    EXPECT_EQ(FileCountText("1 file              "), "1");
    EXPECT_EQ(FileCountText("8 files             "), "8");
    EXPECT_EQ(FileCountText("  123456 files      "), "123456");
    EXPECT_EQ(FileCountText("files"), "");
    EXPECT_EQ(FileCountText(""), "");
}

TEST(ReadTotals, ARatioThatDoesNotFitSixteenBitsIsLeftOut) {
    QStringList lines;
    for (int i = 0; i < 9; ++i)
        lines << "header";
    lines << QString(79, '-') << "1 file                                 6"
          << QString("%1").arg("11", 40) + " packed (ALZ:2-mode), ratio: 40000.0%";
    const auto t = ReadTotals(lines);
    ASSERT_TRUE(t.has_value());
    EXPECT_FALSE(t->ratio.has_value());
    EXPECT_EQ(t->fileCountText, "1");
}

TEST(ReadTotals, PpmReadsThreeCharactersAndTheRatioFromColumn67) {
    const auto t = ReadTotals(sampleLines("list-ppm.log"));
    ASSERT_TRUE(t.has_value());
    EXPECT_EQ(t->modeText, "PPM");
    EXPECT_EQ(t->ratio, 34);
}

TEST(ReadTotals, MethodFieldAndRatioVariants) {
    const QString sep(79, '-');
    auto totals = [&](const QString& line2) {
        QStringList lines;
        for (int i = 0; i < 9; ++i)
            lines << "header";
        lines << sep << "12 files                 104857600" << line2;
        return ReadTotals(lines);
    };
    // Totals line 2: the packed size right-aligned to column 40, the method field at column 50.
    auto line = [](const char* packed, const char* rest) {
        return QString("%1").arg(packed, 40) + rest;
    };
    auto t = totals(line("52428800", " packed (ALZ:2-mode), ratio: 45%"));
    ASSERT_TRUE(t.has_value());
    EXPECT_EQ(t->fileCountText, "12");
    EXPECT_EQ(t->normalSizeMB, "100");
    EXPECT_EQ(t->packedSizeMB, "50");
    EXPECT_EQ(t->modeText, "ALZ Normal");
    EXPECT_EQ(t->ratio, 45); // a blank, 45 and a per-cent sign
    EXPECT_EQ(totals(line("12345", " packed (ALZ:1-mode), ratio: 50.5%"))->modeText, "ALZ Fast");
    EXPECT_EQ(totals(line("12345", " packed (ALZ:1-mode), ratio: 50.5%"))->ratio, 50);
    EXPECT_EQ(totals(line("12345", " packed (ALZ:0-mode), ratio: 100.0%"))->modeText, "ALZ:0");
    EXPECT_EQ(totals(line("12345", " packed (LZP-mode), ratio: 12.5%"))->modeText, "LZP");
    EXPECT_EQ(totals(line("12345", " packed (LZP-mode), ratio: 12.5%"))->ratio, 12);
    // A short line: empty fields read as 0.
    t = totals("");
    ASSERT_TRUE(t.has_value());
    EXPECT_EQ(t->packedSizeMB, "0");
    EXPECT_EQ(t->ratio, 0);
}

TEST(ReadTotals, NoSeparatorNoTotals) {
    EXPECT_FALSE(ReadTotals(sampleLines("list-truncated.log")).has_value());
    EXPECT_FALSE(ReadTotals(sampleLines("list-missing-archive.log")).has_value());
    EXPECT_FALSE(ReadTotals({}).has_value());
}

TEST(BuildMirrorTree, RealLogGivesOnePlaceholderPerEntry) {
    QTemporaryDir dir;
    ASSERT_TRUE(BuildMirrorTree(sampleLines("list-alz3.log"), dir.filePath("scratch")));
    EXPECT_EQ(
        filesBelow(dir.filePath("scratch")),
        QStringList({"folder/empty.txt", "folder/pattern.dat", "folder/random.bin",
                     "folder/read me with spaces.txt", "folder/readme.txt", "folder/sub/data.bin",
                     "folder/sub/deeper/deep.txt", "folder/sub/notes.txt"}));
    EXPECT_EQ(QFileInfo(dir.filePath("scratch/folder/readme.txt")).size(), 0);
}

TEST(BuildMirrorTree, AwkwardNamesStayInsideTheScratchFolder) {
    QTemporaryDir dir;
    QDir(dir.path()).mkdir("outside");
    const QString scratch = dir.filePath("outside/scratch");
    ASSERT_TRUE(BuildMirrorTree(sampleLines("list-awkward-names.log"), scratch));
    EXPECT_EQ(filesBelow(scratch),
              QStringList({"..\u2216..\u2216escape1.txt", "C\ua789\u2216docs\u2216a.txt",
                           "a\u2216..\u2216..\u2216escape4.txt", "caf\u00e9/r\u00e9sum\u00e9.txt",
                           "deep/double/x.txt", "folder/dup.txt",
                           "folder\u2216..\u2216..\u2216..\u2216escape2.txt", "root.txt",
                           "spaced/name with blanks.txt", "\u2216etc\u2216escape3.txt",
                           "\u2216lead.txt"}));
    // Nothing beside the scratch folder, and the separator artefact is gone.
    EXPECT_EQ(QDir(dir.filePath("outside")).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList({"scratch"}));
    EXPECT_FALSE(QFile::exists(scratch + "/" + QString(79, '-')));
}

TEST(BuildMirrorTree, ALinkInsideTheScratchFolderIsNotFollowed) {
    QTemporaryDir dir;
    QTemporaryDir victim;
    const QString scratch = dir.filePath("scratch");
    QDir().mkpath(scratch);
    ASSERT_TRUE(QFile::link(victim.path(), scratch + "/folder"));
    ASSERT_TRUE(BuildMirrorTree(sampleLines("list-alz3.log"), scratch));
    EXPECT_TRUE(QDir(victim.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

TEST(BuildMirrorTree, ScratchFolderThatIsALinkIsRefused) {
    QTemporaryDir dir;
    QTemporaryDir victim;
    ASSERT_TRUE(QFile::link(victim.path(), dir.filePath("scratch")));
    EXPECT_FALSE(BuildMirrorTree(sampleLines("list-alz3.log"), dir.filePath("scratch")));
    EXPECT_TRUE(QDir(victim.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty());
}

TEST(BuildMirrorTree, LogEndingBeforeTheSeparatorFails) {
    QTemporaryDir dir;
    EXPECT_FALSE(BuildMirrorTree(sampleLines("list-truncated.log"), dir.filePath("s")));
    EXPECT_FALSE(BuildMirrorTree({}, dir.filePath("s")));
}

TEST(BuildMirrorTree, DriveEntriesAreShownAtTheTopUnderASafeName) {
    QTemporaryDir dir;
    QStringList lines;
    for (int i = 0; i < 9; ++i)
        lines << "";
    lines << "C:\\docs\\a.txt"
          << "detail"
          << "top.txt"
          << "detail"
          << "x\\same.txt"
          << "d"
          << "x\\same.txt"
          << "d" << QString(79, '-') << "1 files   0"
          << "";
    ASSERT_TRUE(BuildMirrorTree(lines, dir.filePath("s")));
    EXPECT_EQ(filesBelow(dir.filePath("s")),
              QStringList({"C\ua789\u2216docs\u2216a.txt", "top.txt", "x/same.txt"}));
}

TEST(BuildMirrorTree, AnEntryWithADriveLandsAtTheTopAndNoFolderIsNamedAfterTheDrive) {
    QTemporaryDir dir;
    QStringList lines(9);
    lines << "C:\\a.txt"
          << "d"
          << "D:\\sub\\b.txt"
          << "d" << QString(79, '-') << "2 files   0"
          << "";
    ASSERT_TRUE(BuildMirrorTree(lines, dir.filePath("s")));
    EXPECT_EQ(filesBelow(dir.filePath("s")),
              QStringList({"C\ua789\u2216a.txt", "D\ua789\u2216sub\u2216b.txt"}));
    EXPECT_FALSE(QFileInfo::exists(dir.filePath("s/C:")));
}

TEST(BuildMirrorTree, ASlashSeparatesFoldersLikeABackslash) {
    QTemporaryDir dir;
    QStringList lines(9);
    lines << "x\\a/b.txt"
          << "d"
          << "p/q/c.txt"
          << "d" << QString(79, '-') << "2 files   0"
          << "";
    ASSERT_TRUE(BuildMirrorTree(lines, dir.filePath("s")));
    EXPECT_EQ(filesBelow(dir.filePath("s")), QStringList({"p/q/c.txt", "x/a/b.txt"}));
    EXPECT_EQ(EntryName("x\\a/b.txt"), "x\\a\\b.txt");
}

TEST(BuildMirrorTree, OnlyBlanksAreTrimmedFromAnEntry) {
    // Byte 0xFF of code page 437 is U+00A0: part of the name, not a blank.
    QTemporaryDir dir;
    QStringList lines(9);
    lines << "  name\u00a0  "
          << "d"
          << "tab\t"
          << "d" << QString(79, '-') << "2 files 0"
          << "";
    ASSERT_TRUE(BuildMirrorTree(lines, dir.filePath("s")));
    EXPECT_EQ(filesBelow(dir.filePath("s")), QStringList({"name\u00a0", "tab\t"}));
}

TEST(BuildMirrorTree, AFolderViewThatCannotBeCreatedSaysWhy) {
    QTemporaryDir dir;
    // A file stands where the folder view's parent belongs: nothing can be created below it.
    QFile f(dir.filePath("blocked"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    QString problem;
    EXPECT_FALSE(
        BuildMirrorTree(sampleLines("list-alz3.log"), dir.filePath("blocked/scratch"), &problem));
    EXPECT_EQ(problem, "it cannot create the folder view " + dir.filePath("blocked/scratch"));
    EXPECT_EQ(ListingFailedMessage("/a/b.uha", problem),
              "Quovara cannot show the archive\n/a/b.uha\nbecause it cannot create the folder "
              "view " +
                  dir.filePath("blocked/scratch") + ".\nNothing of it is shown.");
}

TEST(EmptyFolderQuickly, TheFolderIsEmptyAtOnceAndTheOldTreeGoesInTheBackground) {
    QTemporaryDir dir;
    const QString folder = dir.filePath("Tessimo");
    QDir().mkpath(folder + "/a/b");
    QFile f(folder + "/a/b/c.txt");
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.close();
    ASSERT_TRUE(EmptyFolderQuickly(folder));
    EXPECT_TRUE(QFileInfo(folder).isDir());
    EXPECT_TRUE(QDir(folder).isEmpty());
    // The moved-aside tree disappears by itself.
    QElapsedTimer t;
    t.start();
    while (QDir(dir.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size() > 1 &&
           t.elapsed() < 5000)
        QThread::msleep(10);
    EXPECT_EQ(QDir(dir.path()).entryList(QDir::Dirs | QDir::NoDotAndDotDot),
              QStringList({"Tessimo"}));
}

TEST(ReadListingLog, OnePassGivesTheErrorTheTreeAndTheTotals) {
    QTemporaryDir dir;
    const ListingPass pass = ReadListingLog(QUOVARA_LISTING_DATA "/list-alz3.log",
                                            EngineCodec::Cp437(), dir.filePath("tree"));
    EXPECT_TRUE(pass.opened);
    EXPECT_TRUE(pass.error.isEmpty());
    EXPECT_TRUE(pass.treeComplete);
    EXPECT_EQ(filesBelow(dir.filePath("tree")).size(), 8);
    ASSERT_TRUE(pass.totals.has_value());
    const auto whole = ReadTotals(sampleLines("list-alz3.log"));
    ASSERT_TRUE(whole.has_value());
    EXPECT_EQ(pass.totals->fileCountText, whole->fileCountText);
    EXPECT_EQ(pass.totals->normalSizeMB, whole->normalSizeMB);
    EXPECT_EQ(pass.totals->packedSizeMB, whole->packedSizeMB);
    EXPECT_EQ(pass.totals->modeText, whole->modeText);
    EXPECT_EQ(pass.totals->ratio, whole->ratio);

    const ListingPass failed = ReadListingLog(QUOVARA_LISTING_DATA "/list-missing-archive.log",
                                              EngineCodec::Cp437(), dir.filePath("none"));
    EXPECT_EQ(failed.error, ScanListingErrors(sampleLines("list-missing-archive.log")));
    EXPECT_FALSE(failed.treeComplete);
}

TEST(ReadListingLog, AnEndlessLineIsCutAndDoesNotGrowTheMemory) {
    QTemporaryDir dir;
    const QString log = dir.filePath("long.log");
    {
        QFile f(log);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write("ERROR: ");
        const QByteArray block(1 << 20, 'x');
        for (int i = 0; i < 16; ++i)
            f.write(block);
    }
    const ListingPass pass = ReadListingLog(log, EngineCodec::Cp437(), dir.filePath("tree"));
    EXPECT_EQ(pass.lines, 1);
    EXPECT_EQ(pass.error.size(), 64 * 1024 - 6);
    EXPECT_FALSE(pass.treeComplete);
}

namespace {

// What a pass over a log gave, as text: lines read, error, tree, totals, and each entry's
// details, so that two passes compare in one assertion.
QStringList Summary(const ListingPass& pass, const QString& tree) {
    QStringList out{QString::number(pass.lines), pass.error,
                    pass.treeComplete ? QStringLiteral("complete") : pass.treeProblem};
    if (pass.totals)
        out << pass.totals->fileCountText << pass.totals->normalSizeMB << pass.totals->modeText;
    for (const QString& file : filesBelow(tree)) {
        QString path = file;
        path.replace(QLatin1Char('/'), QLatin1Char('\\'));
        const auto d = pass.details ? pass.details->entry(path) : std::nullopt;
        out << file + (d ? QStringLiteral(" %1 %2 %3 %4 %5")
                               .arg(d->size.value_or(0))
                               .arg(d->date.value_or(0))
                               .arg(d->time.value_or(0))
                               .arg(d->attributes, d->crcText())
                         : QStringLiteral(" no details"));
    }
    return out;
}

ListingPass ReadBytesAsLog(const QTemporaryDir& dir, const QByteArray& bytes, const QString& tree) {
    const QString log = dir.filePath("edge.log");
    QFile f(log);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        return ListingPass();
    f.close();
    return ReadListingLog(log, EngineCodec::Cp437(), tree);
}

} // namespace

TEST(ReadListingLog, LinesCutByTheEdgeOfARead) {
    // The log is read 256 KiB at a time. The first line of the header (read by no rule) is
    // padded so that the edge of the first read falls at each place that matters: between the
    // CR and the LF of every line end, just before and just after it, and in the middle of every
    // line. Every pass must give what the log gives read whole.
    QFile f(sample("list-alz3.log"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray body = f.readAll();
    ASSERT_TRUE(body.startsWith("\r\n"));
    QTemporaryDir dir;
    const QStringList whole = Summary(
        ReadListingLog(sample("list-alz3.log"), EngineCodec::Cp437(), dir.filePath("whole")),
        dir.filePath("whole"));
    ASSERT_EQ(whole.size(), 6 + 8) << whole.join('\n').toStdString();

    constexpr qsizetype kRead = 256 * 1024;
    std::vector<qsizetype> edges; // offsets into `body` where the first read is to end
    qsizetype lineStart = 0;
    for (qsizetype i = 0; i < body.size(); ++i) {
        if (body[i] != '\r')
            continue;
        edges.insert(edges.end(), {i, i + 1, i + 2, (lineStart + i) / 2});
        lineStart = i + 2;
    }
    int run = 0;
    for (const qsizetype edge : edges) {
        // "x" * pad, then the body: the read ends `edge` bytes into the body.
        const qsizetype pad = kRead - edge;
        ASSERT_GT(pad, 0);
        const QString tree = dir.filePath(QStringLiteral("tree%1").arg(run++));
        const QStringList got =
            Summary(ReadBytesAsLog(dir, QByteArray(pad, 'x') + body, tree), tree);
        EXPECT_EQ(got, whole) << "read ending " << edge << " bytes into the log";
    }
}

TEST(ReadListingLog, ALoneCrOrALoneLfEndsALineAsCrLfDoes) {
    QFile f(sample("list-alz3.log"));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly));
    const QByteArray body = f.readAll();
    QTemporaryDir dir;
    const QStringList whole =
        Summary(ReadBytesAsLog(dir, body, dir.filePath("crlf")), dir.filePath("crlf"));
    QByteArray lf = body;
    lf.replace("\r\n", "\n");
    EXPECT_EQ(Summary(ReadBytesAsLog(dir, lf, dir.filePath("lf")), dir.filePath("lf")), whole);
    QByteArray cr = body;
    cr.replace("\r\n", "\r");
    EXPECT_EQ(Summary(ReadBytesAsLog(dir, cr, dir.filePath("cr")), dir.filePath("cr")), whole);
    // The log ends with a rule line and an empty line. Without the empty line and the rule's
    // line end, the rule still counts as a line.
    ASSERT_TRUE(body.endsWith("=\r\n\r\n"));
    const QByteArray unended = body.chopped(4);
    QStringList expected = whole;
    expected[0] = QString::number(whole[0].toInt() - 1);
    EXPECT_EQ(Summary(ReadBytesAsLog(dir, unended, dir.filePath("open")), dir.filePath("open")),
              expected);
}
