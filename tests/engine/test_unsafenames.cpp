// The one rule for stored names that would climb out of a destination, the names such entries
// are shown under, and the texts that tell the user about them.
#include "core/codepage.h"
#include "core/confinement.h"
#include "engine/grammar.h"
#include "engine/namecheck.h"
#include "engine/unsafenames.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace quovara;

namespace {

struct Row {
    const char* name;
    bool unsafe;
};

} // namespace

TEST(IsUnsafeEntryName, EveryNameThatClimbsOutOfAFolderIsUnsafe) {
    // Stored names the real engine made, and how it wrote them when extracting.
    const Row rows[] = {
        {"..\\..\\evil.txt", true},           // -pr with a "..\" argument: the grandparent
        {"a\\..\\..\\stage\\evil.txt", true}, // climbs out after going in
        {"bs\\..\\..\\evil.txt", true},       // a Linux name holding backslashes
        {"C:\\evil.txt", true},               // -pf: a drive
        {"Z:\\tmp\\evil.txt", true},
        {"\\tmp\\evil.txt", true}, // a leading separator: the root of the drive
        {"/tmp/evil.txt", true},
        {"Z:..\\..\\evil.txt", true},
        {"C:evil.txt", true}, // a drive without its root, or a name Windows cannot hold
        {"a\\b:c.txt", true}, // ":" in any part
        {"..", true},
        {"a\\..", true},
        {"a/../b", true},
    };
    for (const Row& r : rows)
        EXPECT_EQ(IsUnsafeEntryName(QString::fromUtf8(r.name)), r.unsafe) << r.name;
}

TEST(IsUnsafeEntryName, OrdinaryNamesAreSafe) {
    const char* safe[] = {
        "good.txt",
        "sub\\inner.txt",
        "a..b.txt",
        "...",
        "a\\...\\b",
        ".hidden",
        "a\\.\\b.txt",
        "..a",
        "a..",
        "folder.\\x",
        "read me.txt",
        "Łódź.txt",
        "Привет\\мир.txt",
        "日本語\\ファイル.txt",
        "表ソ.txt",
        "予定表\\図表.txt",
        "📦.txt",
        "a b\\c d",
    };
    for (const char* name : safe)
        EXPECT_FALSE(IsUnsafeEntryName(QString::fromUtf8(name))) << name;
    EXPECT_FALSE(IsUnsafeEntryName(QString()));
}

TEST(IsUnsafeEntryName, WorksOnDecodedNamesSoAShiftJisSecondByte5CIsNoSeparator) {
    // "表ソ.txt" in code page 932: 95 5C 83 5C 2E 74 78 74; as bytes it holds two "\".
    const QByteArray bytes("\x95\x5C\x83\x5C.txt");
    ASSERT_EQ(bytes.count('\\'), 2);
    const QString decoded =
        DecodeEngineText(bytes.constData(), bytes.size(), EngineCodec::ForCodePage(932));
    EXPECT_EQ(decoded, QString::fromUtf8("表ソ.txt"));
    EXPECT_FALSE(IsUnsafeEntryName(decoded));
    // The same letters around ".." are still found.
    EXPECT_TRUE(IsUnsafeEntryName(QString::fromUtf8("表\\..\\..\\ソ.txt")));
}

TEST(IsUnsafeEntryName, TheTestSeamSwitchesTheCheckOff) {
    SetUnsafeNameCheckForTesting(false);
    EXPECT_FALSE(IsUnsafeEntryName("..\\..\\evil.txt"));
    SetUnsafeNameCheckForTesting(true);
    EXPECT_TRUE(IsUnsafeEntryName("..\\..\\evil.txt"));
}

TEST(UnsafeShownName, ReadsLikeTheStoredNameButIsOneSafePart) {
    EXPECT_EQ(UnsafeShownName("..\\..\\evil1.txt"), QString::fromUtf8("..∖..∖evil1.txt"));
    EXPECT_EQ(UnsafeShownName("C:\\evil3.txt"), QString::fromUtf8("C꞉∖evil3.txt"));
    EXPECT_EQ(UnsafeShownName("/tmp/x"), QString::fromUtf8("∖tmp∖x"));
    EXPECT_EQ(UnsafeShownName(".."), QString::fromUtf8("..∖"));
    for (const char* name : {"..\\..\\evil1.txt", "C:\\evil3.txt", "\\tmp\\x", "..", "a:b"}) {
        const QString shown = UnsafeShownName(QString::fromUtf8(name));
        EXPECT_FALSE(shown.contains('\\') || shown.contains('/') || shown.contains(':')) << name;
        EXPECT_NE(shown, "..");
        EXPECT_FALSE(IsUnsafeEntryName(shown)) << name;
    }
}

TEST(UnsafeMessages, NameTheFirstFewAndCountTheRest) {
    EXPECT_EQ(UnsafeEntriesMessage("/home/u/x.uha", {"..\\..\\evil1.txt"}, 1),
              "The archive\n/home/u/x.uha\nholds 1 entry whose name would climb out of any "
              "folder it is extracted into. It is shown, but will never be extracted:\n\n"
              "..\\..\\evil1.txt");
    EXPECT_EQ(UnsafeEntriesMessage("/home/u/x.uha", {"..\\a", "C:\\b"}, 2),
              "The archive\n/home/u/x.uha\nholds 2 entries whose names would climb out of any "
              "folder they are extracted into. They are shown, but will never be extracted:\n\n"
              "..\\a\nC:\\b");
    const QStringList seven{"..\\1", "..\\2", "..\\3", "..\\4", "..\\5", "..\\6", "..\\7"};
    EXPECT_EQ(UnsafeNamesList(seven, 7),
              QString::fromUtf8("..\\1\n..\\2\n..\\3\n..\\4\n..\\5\n… and 2 more"));
    EXPECT_EQ(LeftOutMessage({"C:\\evil3.txt"}),
              "1 entry was not extracted: its name would place it outside the destination "
              "folder.\n\nC:\\evil3.txt");
    EXPECT_EQ(LeftOutMessage({"..\\a", "..\\b"}),
              "2 entries were not extracted: their names would place them outside the "
              "destination folder.\n\n..\\a\n..\\b");
    EXPECT_EQ(NothingSafeMessage({"..\\a"}),
              "Nothing was extracted: every entry of the archive has a name that would place it "
              "outside the destination folder.\n\n..\\a");
    EXPECT_EQ(UnsafeItemMessage("..\\..\\evil1.txt"),
              "The entry\n..\\..\\evil1.txt\nis not extracted: its name would place it outside "
              "the destination folder.");
}

TEST(LeftOutFits, ExclusionsMustFitOnTheEnginesCommandLine) {
    EXPECT_TRUE(LeftOutFits({}));
    EXPECT_TRUE(LeftOutFits(QStringList(1000, QString(16, 'x'))));
    EXPECT_FALSE(LeftOutFits(QStringList(2000, QString(16, 'x'))));
}

TEST(UnsafeNamesTaken, PatternsTakeAsTheEngineMatches) {
    const QStringList unsafe{"..\\..\\evil1.txt", "a\\..\\..\\stage\\evil.doc", "C:\\evil3.txt"};
    // No pattern: all of them would have been taken.
    EXPECT_EQ(UnsafeNamesTaken(unsafe, {}), unsafe);
    // A pattern without a folder matches the last part (the engine extracts "..\..\evil1.txt"
    // for the pattern "evil1.txt").
    EXPECT_EQ(UnsafeNamesTaken(unsafe, {"*.txt"}),
              QStringList({"..\\..\\evil1.txt", "C:\\evil3.txt"}));
    EXPECT_EQ(UnsafeNamesTaken(unsafe, {"EVIL1.TXT"}), QStringList({"..\\..\\evil1.txt"}));
    // A folder's pattern takes what lies below it.
    EXPECT_EQ(UnsafeNamesTaken(unsafe, {"a\\*.*"}), QStringList({"a\\..\\..\\stage\\evil.doc"}));
    EXPECT_EQ(UnsafeNamesTaken(unsafe, {"*.pdf", " "}), QStringList());
}

TEST(ExtractCommandPieces, UnsafeNamesAreExcludedOneByOneAfterTheUsersOwnExclusions) {
    ExtractOptions o;
    o.destination = "C:\\out";
    o.archive = "C:\\a.uha";
    o.excludeTicked = true;
    o.exclude = "*.bak";
    o.leftOut = {"..\\..\\evil1.txt", "C:\\evil3.txt"};
    EXPECT_EQ(CommandLine(ExtractCommandPieces(o, "C:\\Prog", "C:\\Temp", PathStyle::windows())),
              "\"C:\\Prog\\uharc.exe\" e -t\"C:\\out\" -o- \"C:\\a.uha\" !\"*.bak\" "
              "!\"..\\..\\evil1.txt\" !\"C:\\evil3.txt\" > C:\\Temp\\Corvana\\das.txt");
}

TEST(SingleItemCommandPieces, UnsafeNamesAreExcludedAfterTheItem) {
    EXPECT_EQ(
        CommandLine(SingleItemCommandPieces("C:\\Prog", "C:\\Temp", "", "C:\\a.uha", "evil1.txt",
                                            PathStyle::windows(), {"..\\..\\evil1.txt"})),
        "\"C:\\Prog\\UHARC.exe\" e  -o+ -t\"C:\\Temp\\Corvana\" -y+ \"C:\\a.uha\" "
        "\"evil1.txt\" !\"..\\..\\evil1.txt\"");
    // Without unsafe names the line is as it always was.
    EXPECT_EQ(CommandLine(SingleItemCommandPieces("C:\\Prog", "C:\\Temp", "", "C:\\a.uha",
                                                  "docs\\a.txt", PathStyle::windows())),
              "\"C:\\Prog\\UHARC.exe\" e  -o+ -t\"C:\\Temp\\Corvana\" -y+ \"C:\\a.uha\" "
              "\"docs\\a.txt\"");
}

TEST(AddSourceProblem, ANameHoldingABackslashOrAColonIsRefusedByName) {
    QTemporaryDir dir;
    const QString root = dir.path();
    QDir().mkpath(root + "/ok/sub");
    QFile(root + "/ok/sub/plain.txt").open(QIODevice::WriteOnly);
    EXPECT_EQ(AddSourceProblem(root + "/ok", true), QString());
    QFile(root + "/ok/sub/..\\..\\x.txt").open(QIODevice::WriteOnly);
    const QString why = AddSourceProblem(root + "/ok", true);
    EXPECT_TRUE(why.startsWith("The name of\n" + root +
                               "/ok/sub/..\\..\\x.txt\nholds \"\\\" or "
                               "\":\""))
        << why.toStdString();
    EXPECT_TRUE(why.endsWith("Nothing was run; rename it first.")) << why.toStdString();
    // Without recursion only the folder's own files count.
    EXPECT_EQ(AddSourceProblem(root + "/ok", false), QString());
    QFile(root + "/a:b.txt").open(QIODevice::WriteOnly);
    EXPECT_FALSE(AddSourceProblem(root + "/a:b.txt", false).isEmpty());
}

TEST(StrayFolders, TheFoldersOfExcludedNamesThatDidNotStandAreRemovedWhenEmpty) {
    QTemporaryDir dir;
    const QString d = dir.path();
    QDir().mkpath(d + "/sub");
    const QStringList args{"uharc.exe",
                           "x",
                           "-tY:\\",
                           "a.uha",
                           "!*.bak",
                           "!a\\..\\..\\..\\stage\\x.txt",
                           "!sub\\deep\\y.txt",
                           "!C:\\drive\\z.txt",
                           "!..\\..\\top.txt"};
    // Followed from the destination as a drive's root: ".." stops there, a drive is dropped;
    // folders that stand already ("sub") and wildcard exclusions are left alone.
    const QStringList stray = StrayFoldersOfExclusions(args, d);
    EXPECT_EQ(stray, QStringList({d + "/a", d + "/stage", d + "/sub/deep", d + "/drive"}));
    // The engine made them; one got a file meanwhile and stays.
    for (const QString& f : stray)
        QDir().mkpath(f);
    QFile(d + "/stage/kept.txt").open(QIODevice::WriteOnly);
    RemoveStrayFolders(stray);
    EXPECT_FALSE(QFileInfo::exists(d + "/a"));
    EXPECT_FALSE(QFileInfo::exists(d + "/sub/deep"));
    EXPECT_FALSE(QFileInfo::exists(d + "/drive"));
    EXPECT_TRUE(QFileInfo::exists(d + "/stage/kept.txt"));
    EXPECT_TRUE(QFileInfo(d + "/sub").isDir());
}

TEST(AddSourceProblem, ANameInsideTheFolderThatTheEnginesCodePagesLackIsRefusedBeforeTheJob) {
    QTemporaryDir dir;
    const QString source = dir.path() + QString::fromUtf8("/Документы");
    QDir().mkpath(source + QString::fromUtf8("/Отчёты/Łódź"));
    auto touch = [](const QString& path) {
        QFile f(path);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    };
    touch(source + QString::fromUtf8("/Годовой.txt"));
    touch(source + QString::fromUtf8("/Отчёты/Łódź/plan.txt"));
    const EngineTextCodecs russian = WindowsEngineCodecs("ru_RU.UTF-8");
    // Not looked into without its sub-folders: everything at the top has Cyrillic names.
    EXPECT_EQ(AddSourceProblem(source, false, russian), QString());
    // With them, the Polish folder is named as the engine would read it, with its letters.
    EXPECT_TRUE(AddSourceProblem(source, true, russian)
                    .startsWith(QString::fromUtf8(
                        "The name\nДокументы\\Отчёты\\Łódź\nholds letters that the engine "
                        "cannot take under the locale ru_RU.UTF-8: \"Ł\" (LATIN CAPITAL LETTER L "
                        "WITH STROKE)")))
        << AddSourceProblem(source, true, russian).toStdString();
    // Under a Polish locale, the Cyrillic names are the ones refused.
    EXPECT_TRUE(AddSourceProblem(source, true, WindowsEngineCodecs("pl_PL.UTF-8"))
                    .startsWith(QString::fromUtf8("The name\nДокументы\\")));
    // An engine that runs natively takes every name.
    EXPECT_EQ(AddSourceProblem(source, true), QString());
    EXPECT_EQ(AddSourceProblem(source, true, EngineTextCodecs()), QString());
}
