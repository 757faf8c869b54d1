#include "core/jobscript.h"
#include "engine/grammar.h"

#include "printers.h"
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quovara;

namespace {

const QString P = QStringLiteral("C:\\P");
const QString T = QStringLiteral("C:\\T");
const PathStyle Win = PathStyle::windows();

QString addLine(const AddOptions& o) {
    MethodMemory methods;
    return CommandLine(AddCommandPieces(o, methods, P, T, Win));
}

QString extractLine(const ExtractOptions& o) {
    return CommandLine(ExtractCommandPieces(o, P, T, Win));
}

AddOptions folderSource() {
    AddOptions o;
    o.archive = QStringLiteral("C:\\Src.uha");
    o.sourceIsFolder = true;
    o.source = QStringLiteral("C:\\Src");
    return o;
}

ExtractOptions flatInto(const QString& destination) {
    ExtractOptions o;
    o.destination = destination;
    o.archive = QStringLiteral("C:\\x.uha");
    return o;
}

} // namespace

TEST(Grammar, FragmentTexts) {
    EXPECT_EQ(EngineFragment(P, Win), QStringLiteral("\"C:\\P\\uharc.exe\" "));
    EXPECT_EQ(QString(fragment::List), QStringLiteral(" l -d2 -y+ -lg"));
    EXPECT_EQ(QString(fragment::Test), QStringLiteral(" t -y+ "));
    EXPECT_EQ(QString(fragment::SingleItemExtract), QStringLiteral(" e  -o+ -t"));
    EXPECT_EQ(DictionarySizeFragment("4096"), QStringLiteral("-md4096 "));
    EXPECT_EQ(PasswordFragment("pw"), QStringLiteral("-pw\"pw\" "));
    EXPECT_EQ(TargetFragment("D:\\Out"), QStringLiteral("-t\"D:\\Out\""));
    EXPECT_EQ(AddArchiveFragment("C:\\a.uha"), QStringLiteral("\"C:\\a.uha\" "));
    EXPECT_EQ(ExtractArchiveFragment("C:\\a.uha"), QStringLiteral("\"C:\\a.uha\""));
    EXPECT_EQ(AddIncludeFragment("C:\\Src", "*.dll", Win), QStringLiteral("\"C:\\Src\\*.dll\" "));
    EXPECT_EQ(WholeFolderFragment("C:\\Src", Win), QStringLiteral("\"C:\\Src\\*.*\""));
    EXPECT_EQ(SingleFileFragment("C:\\a.txt"), QStringLiteral("\"C:\\a.txt\""));
    EXPECT_EQ(ExtractIncludeFragment("*.dll"), QStringLiteral(" \"*.dll\""));
    EXPECT_EQ(ExcludeFragment("*.bak"), QStringLiteral(" !\"*.bak\""));
    EXPECT_EQ(ListFileFragment("C:\\l.txt"), QStringLiteral(" @\"C:\\l.txt\""));
    EXPECT_EQ(RedirectFragment(T, Win), QStringLiteral(" > C:\\T\\Corvana\\das.txt"));
    EXPECT_EQ(RedirectFragment("/tmp", PathStyle{QLatin1Char('/')}),
              QStringLiteral(" > /tmp/Corvana/das.txt"));
}

TEST(Grammar, MethodTableByPosition) {
    const QStringList expected = {"-m0 ", "-m1 ", "-m2 ", "-m3 ", "-mx ", "-mz "};
    for (int i = 0; i < MethodCount; ++i)
        EXPECT_EQ(MethodFragment(i), expected[i]) << i;
    EXPECT_EQ(MethodFragment(-1), QString());
    EXPECT_EQ(MethodFragment(6), QString());
    EXPECT_EQ(MethodItems(),
              QStringList({"Store", "ALZ Fast", "ALZ Normal", "ALZ Best", "PPM", "LZP"}));
    EXPECT_EQ(DictionaryItems(), QStringList({"1024", "2048", "4096", "8192", "16384", "32768"}));
    EXPECT_EQ(MethodItems()[DefaultMethodPosition], QStringLiteral("ALZ Normal"));
    EXPECT_EQ(DictionaryItems()[DefaultDictionaryPosition], QStringLiteral("4096"));
}

TEST(Grammar, AddWithDefaultsOfAFolder) {
    EXPECT_EQ(addLine(folderSource()),
              QStringLiteral("\"C:\\P\\uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 \"C:\\Src.uha\" "
                             "\"Src\\*.*\" > C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, AddMoveStorePasswordExclusionOfAFile) {
    AddOptions o;
    o.move = true;
    o.recurse = false;
    o.methodPosition = 0;
    o.passwordTicked = true;
    o.password = "pw";
    o.archive = "C:\\a.uha";
    o.sourceIsFolder = false;
    o.source = "C:\\a.txt";
    o.excludeTicked = true;
    o.exclude = "*.bak";
    EXPECT_EQ(addLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" m -r- -m0 -mm+ -md+ -md4096 "
                                         "-pw\"pw\" \"C:\\a.uha\" \"a.txt\" !\"*.bak\" > "
                                         "C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, FlatExtractionWithOverwriteAndTwoPatterns) {
    ExtractOptions o = flatInto("D:\\Out");
    o.overwrite = true;
    o.choice = FileChoice::FileTypes;
    o.fileTypes = "*.dll,*.exe";
    EXPECT_EQ(extractLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" e -t\"D:\\Out\" -o+ "
                                             "\"C:\\x.uha\" \"*.dll\" \"*.exe\" > "
                                             "C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, ExtractionWithPathsIntoCurrentFolderHasTwoBlanksAfterX) {
    ExtractOptions o = flatInto("D:\\Out");
    o.toCurrentDir = true;
    o.fullPath = true;
    EXPECT_EQ(extractLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" x  -o- \"C:\\x.uha\" > "
                                             "C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, MethodPositionMinusOneOnFirstJobWritesNoMethod) {
    AddOptions o = folderSource();
    o.methodPosition = -1;
    EXPECT_EQ(addLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" a -r+ -mm+ -md+ -md4096 "
                                         "\"C:\\Src.uha\" \"Src\\*.*\" > "
                                         "C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, MethodPositionMinusOneRepeatsTheDialogsPreviousMethod) {
    MethodMemory methods;
    AddOptions o = folderSource();
    o.methodPosition = 4;
    CommandLine(AddCommandPieces(o, methods, P, T, Win));
    o.methodPosition = -1;
    const QString second = CommandLine(AddCommandPieces(o, methods, P, T, Win));
    EXPECT_EQ(second, QStringLiteral("\"C:\\P\\uharc.exe\" a -r+ -mx -mm+ -md+ -md4096 "
                                     "\"C:\\Src.uha\" \"Src\\*.*\" > "
                                     "C:\\T\\Corvana\\das.txt"));
    EXPECT_EQ(methods.current(), QStringLiteral("-mx "));
    // A second dialog starts empty again.
    MethodMemory fresh;
    EXPECT_EQ(fresh.choose(-1), QString());
    EXPECT_EQ(fresh.choose(7), QString());
    EXPECT_EQ(fresh.choose(5), QStringLiteral("-mz "));
    EXPECT_EQ(fresh.choose(-1), QStringLiteral("-mz "));
}

TEST(Grammar, EmptyPasswordGivesTwoAdjacentQuotes) {
    AddOptions o = folderSource();
    o.passwordTicked = true;
    EXPECT_TRUE(addLine(o).contains(QStringLiteral("-md4096 -pw\"\" \"C:\\Src.uha\" ")));
    ExtractOptions e = flatInto("D:\\Out");
    e.passwordTicked = true;
    EXPECT_EQ(extractLine(e), QStringLiteral("\"C:\\P\\uharc.exe\" e -t\"D:\\Out\" -o- -pw\"\" "
                                             "\"C:\\x.uha\" > C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, PasswordNotTickedIsNotWrittenEvenWithText) {
    AddOptions o = folderSource();
    o.password = "secret";
    EXPECT_FALSE(addLine(o).contains(QStringLiteral("-pw")));
}

TEST(Grammar, CommaAndBlankKeepTheBlankInsideTheQuotes) {
    AddOptions o = folderSource();
    o.choice = FileChoice::FileTypes;
    o.fileTypes = "*.dll, *.exe";
    EXPECT_EQ(addLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 "
                                         "\"C:\\Src.uha\" \"Src\\*.dll\" \"Src\\ *.exe\" "
                                         " > C:\\T\\Corvana\\das.txt"));
    ExtractOptions e = flatInto("D:\\Out");
    e.choice = FileChoice::FileTypes;
    e.fileTypes = "*.dll, *.exe";
    EXPECT_TRUE(extractLine(e).endsWith(
        QStringLiteral("\"C:\\x.uha\" \"*.dll\" \" *.exe\" > C:\\T\\Corvana\\das.txt")));
}

TEST(Grammar, SplittingKeepsEmptyElementsAndBlanks) {
    EXPECT_EQ(SplitPatterns(QString()), QStringList());
    EXPECT_EQ(SplitPatterns("*.a"), QStringList({"*.a"}));
    EXPECT_EQ(SplitPatterns("*.a,,*.b"), QStringList({"*.a", "", "*.b"}));
    EXPECT_EQ(SplitPatterns(" *.a , *.b "), QStringList({" *.a ", " *.b "}));
    EXPECT_EQ(SplitPatterns(","), QStringList({"", ""}));
    // The exclusion caption shows blank-separated examples, but only commas split.
    EXPECT_EQ(SplitPatterns("*.dll *.exe"), QStringList({"*.dll *.exe"}));
}

TEST(Grammar, AdjacentCommasGiveAnEmptyPattern) {
    ExtractOptions e = flatInto("D:\\Out");
    e.excludeTicked = true;
    e.exclude = "*.a,,*.b";
    EXPECT_TRUE(extractLine(e).endsWith(
        QStringLiteral("\"C:\\x.uha\" !\"*.a\" !\"\" !\"*.b\" > C:\\T\\Corvana\\das.txt")));
}

TEST(Grammar, ExtractLetterAndTargetFromTheTwoControls) {
    ExtractOptions o = flatInto("D:\\Out");
    // Neither: flat with target.
    EXPECT_EQ(extractLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" e -t\"D:\\Out\" -o- "
                                             "\"C:\\x.uha\" > C:\\T\\Corvana\\das.txt"));
    // Full path only: with paths and target.
    o.fullPath = true;
    EXPECT_EQ(extractLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" x -t\"D:\\Out\" -o- "
                                             "\"C:\\x.uha\" > C:\\T\\Corvana\\das.txt"));
    // Current dir only: flat, no target, two blanks.
    o.fullPath = false;
    o.toCurrentDir = true;
    o.overwrite = true;
    EXPECT_EQ(extractLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" e  -o+ \"C:\\x.uha\" > "
                                             "C:\\T\\Corvana\\das.txt"));
    // Both: with paths, no target, two blanks.
    o.fullPath = true;
    EXPECT_EQ(extractLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" x  -o+ \"C:\\x.uha\" > "
                                             "C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, DriveRootTargetIsTheBareDrive) {
    EXPECT_TRUE(extractLine(flatInto("C:\\")).contains(QStringLiteral(" e -t\"C:\" -o- ")));
    // Only one trailing separator is dropped.
    EXPECT_TRUE(extractLine(flatInto("D:\\Out\\")).contains(QStringLiteral("-t\"D:\\Out\" ")));
}

TEST(Grammar, NoBlankBeforeExcludeButOneBetweenIncludes) {
    AddOptions o = folderSource();
    o.excludeTicked = true;
    o.exclude = "*.bak,*.tmp";
    EXPECT_TRUE(addLine(o).contains(QStringLiteral("\"Src\\*.*\" !\"*.bak\" !\"*.tmp\" > ")));
    o.choice = FileChoice::FileTypes;
    o.fileTypes = "*.a,*.b";
    EXPECT_TRUE(addLine(o).contains(
        QStringLiteral("\"C:\\Src.uha\" \"Src\\*.a\" \"Src\\*.b\"  !\"*.bak\" !\"*.tmp\" > ")));
}

TEST(Grammar, OnlyTheseFilesWithEmptyTextNamesNoSource) {
    AddOptions o = folderSource();
    o.choice = FileChoice::FileTypes;
    EXPECT_EQ(addLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 "
                                         "\"C:\\Src.uha\"  > C:\\T\\Corvana\\das.txt"));
    o.excludeTicked = true; // an empty exclusion text writes nothing either
    EXPECT_EQ(addLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 "
                                         "\"C:\\Src.uha\"  > C:\\T\\Corvana\\das.txt"));
    ExtractOptions e = flatInto("D:\\Out");
    e.choice = FileChoice::FileTypes;
    EXPECT_EQ(extractLine(e), QStringLiteral("\"C:\\P\\uharc.exe\" e -t\"D:\\Out\" -o- "
                                             "\"C:\\x.uha\" > C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, OnlyTheseFilesIsIgnoredForASingleFile) {
    AddOptions o;
    o.recurse = false;
    o.archive = "C:\\a.uha";
    o.sourceIsFolder = false;
    o.source = "C:\\a.txt";
    o.choice = FileChoice::FileTypes;
    o.fileTypes = "*.dll";
    EXPECT_EQ(addLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" a -r- -m2 -mm+ -md+ -md4096 "
                                         "\"C:\\a.uha\" \"a.txt\" > C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, FileListWithAFolderAddsTheFolderAndTheList) {
    AddOptions o = folderSource();
    o.choice = FileChoice::FileList;
    o.listFile = "C:\\list.txt";
    o.dictionary = "32768";
    EXPECT_EQ(addLine(o), QStringLiteral("\"C:\\P\\uharc.exe\" a -r+ -m2 -mm+ -md+ -md32768 "
                                         "\"C:\\Src.uha\" \"Src\\*.*\" @\"C:\\list.txt\" > "
                                         "C:\\T\\Corvana\\das.txt"));
    ExtractOptions e = flatInto("D:\\Out");
    e.choice = FileChoice::FileList;
    e.listFile = "C:\\list.txt";
    e.excludeTicked = true;
    e.exclude = "*.bak";
    EXPECT_EQ(extractLine(e), QStringLiteral("\"C:\\P\\uharc.exe\" e -t\"D:\\Out\" -o- "
                                             "\"C:\\x.uha\" !\"*.bak\" @\"C:\\list.txt\" > "
                                             "C:\\T\\Corvana\\das.txt"));
}

TEST(Grammar, QuotesAreNeitherEscapedNorChecked) {
    ExtractOptions e = flatInto("D:\\Out");
    e.passwordTicked = true;
    e.password = "a\"b";
    EXPECT_TRUE(extractLine(e).contains(QStringLiteral("-pw\"a\"b\" \"C:\\x.uha\"")));
    EXPECT_EQ(RedirectFragment("C:\\Docs and Settings\\Temp", Win),
              QStringLiteral(" > C:\\Docs and Settings\\Temp\\Corvana\\das.txt"));
}

TEST(Grammar, HostPathsUseTheHostSeparatorAndStoredNamesTheEngines) {
    AddOptions o;
    o.archive = "/home/u/src.uha";
    o.source = "/home/u/src";
    MethodMemory methods;
    EXPECT_EQ(CommandLine(AddCommandPieces(o, methods, "/opt/q", "/tmp", PathStyle{'/'})),
              QStringLiteral("\"/opt/q/uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 "
                             "\"/home/u/src.uha\" \"src\\*.*\" > /tmp/Corvana/das.txt"));
}

TEST(Grammar, ListTestAndSingleItemLines) {
    EXPECT_EQ(CommandLine(ListCommandPieces(P, T, QString(), "C:\\a.uha", Win)),
              QStringLiteral("\"C:\\P\\uharc.exe\" l -d2 -y+ -lgC:\\T\\Corvana\\uharc.log "
                             "\"C:\\a.uha\""));
    EXPECT_EQ(CommandLine(ListCommandPieces(P, T, "pw", "C:\\a.uha", Win)),
              QStringLiteral("\"C:\\P\\uharc.exe\" l -d2 -y+ -lgC:\\T\\Corvana\\uharc.log "
                             "-pw\"pw\" \"C:\\a.uha\""));
    EXPECT_EQ(CommandLine(TestCommandPieces(P, T, "C:\\a.uha", Win)),
              QStringLiteral("\"C:\\P\\UHARC.exe\" t -y+ \"C:\\a.uha\" > "
                             "C:\\T\\Corvana\\das.txt"));
    EXPECT_EQ(
        CommandLine(SingleItemCommandPieces(P, T, QString(), "C:\\a.uha", "docs\\a.txt", Win)),
        QStringLiteral("\"C:\\P\\UHARC.exe\" e  -o+ -t\"C:\\T\\Corvana\" -y+ "
                       "\"C:\\a.uha\" \"docs\\a.txt\""));
    EXPECT_EQ(CommandLine(SingleItemCommandPieces(P, T, "pw", "C:\\a.uha", "docs\\*.*", Win)),
              QStringLiteral("\"C:\\P\\UHARC.exe\" e  -o+ -t\"C:\\T\\Corvana\" -y+ -pw\"pw\" "
                             "\"C:\\a.uha\" \"docs\\*.*\""));
}

TEST(Grammar, TestScriptEndsWithALineBreakTheOthersDoNot) {
    EXPECT_EQ(
        JobScriptBytes(Preamble::Job, TestCommandPieces(P, T, "C:\\a.uha", Win), LastLine::LineEnd),
        QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"C:\\P\\UHARC.exe\" t -y+ "
                   "\"C:\\a.uha\" > C:\\T\\Corvana\\das.txt\r\n"));
}

TEST(Grammar, AddAndExtractScriptsAreWrittenWithoutFinalLineBreak) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    MethodMemory methods;
    const QString add = dir.filePath("Archivia.bat");
    ASSERT_TRUE(WriteAddJobScript(add, folderSource(), methods, P, T, Win));
    QFile a(add);
    ASSERT_TRUE(a.open(QIODevice::ReadOnly));
    EXPECT_EQ(a.readAll(),
              QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\ncd /d \"C:\\\"\r\n"
                         "\"C:\\P\\uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 \"C:\\Src.uha\" "
                         "\"Src\\*.*\" > C:\\T\\Corvana\\das.txt"));
    const QString extract = dir.filePath("Estrai.bat");
    ExtractOptions e = flatInto("D:\\Out");
    e.fullPath = true;
    e.toCurrentDir = true;
    ASSERT_TRUE(WriteExtractJobScript(extract, e, P, T, Win));
    QFile x(extract);
    ASSERT_TRUE(x.open(QIODevice::ReadOnly));
    EXPECT_EQ(x.readAll(), QByteArray("@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"C:\\P\\uharc."
                                      "exe\" x  -o- \"C:\\x.uha\" > C:\\T\\Corvana\\das.txt"));
    EXPECT_FALSE(WriteExtractJobScript(dir.filePath("missing/Estrai.bat"), e, P, T, Win));
}

TEST(Grammar, AnAddRunsInTheFolderThatHoldsTheChosenItem) {
    EXPECT_EQ(SplitAddSource("/home/anna/Документы").folder, QStringLiteral("/home/anna"));
    EXPECT_EQ(SplitAddSource("/home/anna/Документы").name, QStringLiteral("Документы"));
    EXPECT_EQ(SplitAddSource("/home/anna/Документы/").name, QStringLiteral("Документы"));
    EXPECT_EQ(SplitAddSource("/report.txt").folder, QStringLiteral("/"));
    EXPECT_EQ(SplitAddSource("/report.txt").name, QStringLiteral("report.txt"));
    EXPECT_EQ(SplitAddSource("C:\\a.txt").folder, QStringLiteral("C:\\"));
    EXPECT_EQ(SplitAddSource("D:\\Work\\日本語").folder, QStringLiteral("D:\\Work"));
    EXPECT_EQ(SplitAddSource("D:\\Work\\日本語").name, QStringLiteral("日本語"));
    // A root has nothing above it: it is named as it is, from wherever the job runs.
    EXPECT_EQ(SplitAddSource("/").folder, QString());
    EXPECT_EQ(SplitAddSource("/").name, QStringLiteral("/"));
}

TEST(Grammar, AnAddNamesItsSourceRelativeToTheFolderItRunsIn) {
    AddOptions o;
    o.archive = QStringLiteral("/home/anna/Документы.uha");
    o.source = QStringLiteral("/home/anna/Документы");
    o.choice = FileChoice::FileTypes;
    o.fileTypes = QStringLiteral("*.odt,*.txt");
    MethodMemory methods;
    const CommandPieces pieces =
        AddCommandPieces(o, methods, "/opt/q", "/tmp/u", PathStyle{QLatin1Char('/')});
    EXPECT_EQ(pieces.workingFolder(), QStringLiteral("/home/anna"));
    // The source's parts are joined by "\\" whatever the host's separator: the engine stores
    // "/" as it stands.
    EXPECT_EQ(CommandLine(pieces),
              QStringLiteral("\"/opt/q/uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 "
                             "\"/home/anna/Документы.uha\" \"Документы\\*.odt\" "
                             "\"Документы\\*.txt\"  > /tmp/u/Corvana/das.txt"));
    const ParsedJob job = SplitPieces(pieces);
    EXPECT_EQ(job.workingFolder, QStringLiteral("/home/anna"));
    EXPECT_EQ(job.arguments.mid(7),
              QStringList({"/home/anna/Документы.uha", "Документы\\*.odt", "Документы\\*.txt"}));
    EXPECT_TRUE(JobScriptBytes(Preamble::Job, pieces)
                    .startsWith("@echo off\r\ncls\r\nset uharc_opt= -d2\r\ncd /d \"/home/anna\"\r\n"
                                "\"/opt/q/uharc.exe\" a "));
}

TEST(Grammar, AFolderWithALineBreakCannotBeTheFolderAJobRunsIn) {
    CommandPieces pieces({"\"/p/uharc.exe\" ", "a "});
    pieces.setWorkingFolder(QStringLiteral("/home/a\nb"));
    EXPECT_EQ(CommandPiecesProblem(pieces, EngineTextCodecs()),
              QStringLiteral("The folder\n/home/a\\nb\nholds a line break, which a job script "
                             "cannot carry. Nothing was run."));
}
