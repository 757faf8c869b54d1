#include "core/codepage.h"
#include "core/desktop.h"
#include "core/enginefiles.h"
#include "core/places.h"
#include "core/singleinstance.h"
#include "core/workspace.h"
#include "recording_prompter.h"
#include "test_support.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLockFile>
#include <QTest>
#include <QThread>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace quovara;
using namespace quovara::testing;

TEST(Places, FoldersAreBuiltFromTheTemporaryFolderAskedAfresh) {
    ScopedPlaces places;
    EXPECT_EQ(TempRoot(), places.tempRoot());
    EXPECT_EQ(WorkFolder(), places.tempRoot() + "/Corvana");
    EXPECT_EQ(ScratchFolder(), places.tempRoot() + "/Corvana/Tessimo");
    EXPECT_EQ(WorkFile(names::ConsoleOutput), places.tempRoot() + "/Corvana/das.txt");
    EXPECT_EQ(ProgramFolder(), places.programFolder());
    {
        ScopedPlaces other;
        EXPECT_EQ(WorkFolder(), other.tempRoot() + "/Corvana");
    }
}

TEST(Places, TheProgramFolderPathIsFoundWithoutMakingThePerUserFolder) {
    QTemporaryDir data;
    ScopedEnv program("QUOVARA_PROGRAM_DIR", QByteArray());
    ScopedEnv dataHome("XDG_DATA_HOME", data.path().toLocal8Bit());
    const QString perUser = data.path() + "/" + QCoreApplication::applicationName();
    EXPECT_EQ(ProgramFolderPath(), perUser);
    EXPECT_FALSE(QFileInfo::exists(perUser));
    // The folder the jobs use is made when missing.
    EXPECT_EQ(ProgramFolder(), perUser);
    EXPECT_TRUE(QFileInfo(perUser).isDir());
}

TEST(FileExists, EmptyAndMissingFilesCountAsAbsent) {
    QTemporaryDir dir;
    writeFile(dir.filePath("empty.txt"), "");
    writeFile(dir.filePath("full.txt"), "x");
    EXPECT_FALSE(FileExists(dir.filePath("empty.txt")));
    EXPECT_FALSE(FileExists(dir.filePath("missing.txt")));
    EXPECT_FALSE(FileExists(""));
    EXPECT_FALSE(FileExists(dir.path()));
    EXPECT_TRUE(FileExists(dir.filePath("full.txt")));
}

TEST(FileExists, EngineNamesAnswerWhateverTheirCase) {
    QTemporaryDir dir;
    writeFile(dir.filePath("uharc.exe"), "engine");
    writeFile(dir.filePath("uharc0.4.FNS"), "old engine");
    EXPECT_TRUE(FileExists(dir.filePath("Uharc.exe")));
    EXPECT_TRUE(FileExists(dir.filePath("UHARC.EXE")));
    EXPECT_TRUE(FileExists(dir.filePath("Uharc0.4.fns")));
    // Other names keep their case.
    writeFile(dir.filePath("readme.txt"), "x");
    EXPECT_FALSE(FileExists(dir.filePath("README.TXT")));
}

TEST(RenameEngineFile, EverySpellingOfTheEngineBecomesOneFile) {
    QTemporaryDir dir;
    writeFile(dir.filePath("Uharc0.6.fns"), "six");
    EXPECT_TRUE(RenameEngineFile(dir.path(), "Uharc0.6.fns", "UHARC.EXE"));
    EXPECT_EQ(readAll(dir.filePath("uharc.exe")), QByteArray("six"));
    EXPECT_FALSE(QFile::exists(dir.filePath("UHARC.EXE")));
    EXPECT_TRUE(RenameEngineFile(dir.path(), "Uharc.exe", "Uharc0.6.fns"));
    EXPECT_EQ(readAll(dir.filePath("Uharc0.6.fns")), QByteArray("six"));
}

TEST(RenameEngineFile, ExistingTargetOrMissingSourceLeavesFilesAsTheyWere) {
    QTemporaryDir dir;
    writeFile(dir.filePath("uharc.exe"), "active");
    writeFile(dir.filePath("Uharc0.4.fns"), "stored");
    EXPECT_FALSE(RenameEngineFile(dir.path(), "uharc.exe", "UHARC0.4.FNS"));
    EXPECT_EQ(readAll(dir.filePath("uharc.exe")), QByteArray("active"));
    EXPECT_FALSE(RenameEngineFile(dir.path(), "Uharc0.9.fns", "uharc.exe"));
}

TEST(CleanWorkFolder, DeletesEverythingAndDoesNotRecreate) {
    ScopedPlaces places;
    QDir().mkpath(ScratchFolder() + "/deep/er");
    writeFile(WorkFile(names::ListLog), "old log");
    CleanWorkFolder();
    EXPECT_FALSE(QFileInfo::exists(WorkFolder()));
    CleanWorkFolder(); // nothing there: no error
    EXPECT_FALSE(QFileInfo::exists(WorkFolder()));
}

TEST(CleanWorkFolder, ALinkInPlaceOfTheWorkFolderIsRemovedNotFollowed) {
    ScopedPlaces places;
    QTemporaryDir victim;
    writeFile(victim.filePath("precious.txt"), "keep me");
    ASSERT_TRUE(QFile::link(victim.path(), WorkFolder()));
    CleanWorkFolder();
    EXPECT_FALSE(QFileInfo(WorkFolder()).isSymLink());
    EXPECT_EQ(readAll(victim.filePath("precious.txt")), QByteArray("keep me"));
}

TEST(PrepareWorkspace, EmptyEngineCountsAsMissing) {
    ScopedPlaces places;
    writeFile(places.programFolder() + "/uharc.exe", "");
    RecordingPrompter prompter;
    EXPECT_FALSE(PrepareWorkspace(prompter));
    EXPECT_EQ(prompter.shown,
              QStringList({"critical: Uharc 0.4 not detected, program will be end"}));
}

TEST(PrepareWorkspace, MissingEngineEndsTheProgram) {
    ScopedPlaces places;
    RecordingPrompter prompter;
    EXPECT_FALSE(PrepareWorkspace(prompter));
    ASSERT_EQ(prompter.shown.size(), 1);
}

TEST(PrepareWorkspace, CleansAndMakesTheWorkFolder) {
    ScopedPlaces places;
    writeFile(places.programFolder() + "/uharc.exe", "engine");
    QDir().mkpath(ScratchFolder() + "/old");
    RecordingPrompter prompter;
    EXPECT_TRUE(PrepareWorkspace(prompter));
    EXPECT_TRUE(QFileInfo(WorkFolder()).isDir());
    EXPECT_FALSE(QFileInfo::exists(ScratchFolder()));
    EXPECT_TRUE(prompter.shown.isEmpty());
}

TEST(PrepareWorkspace, SwapsToTheStoredSixEngine) {
    ScopedPlaces places;
    const QString p = places.programFolder();
    writeFile(p + "/Uharc.exe", "engine 0.4");
    writeFile(p + "/Uharc0.6.fns", "engine 0.6");
    RecordingPrompter prompter;
    EXPECT_TRUE(PrepareWorkspace(prompter));
    EXPECT_EQ(readAll(p + "/uharc.exe"), QByteArray("engine 0.6"));
    EXPECT_EQ(readAll(p + "/Uharc0.4.fns"), QByteArray("engine 0.4"));
    EXPECT_FALSE(QFile::exists(p + "/Uharc0.6.fns"));
    EXPECT_EQ(QDir(p).entryList(QDir::Files).size(), 2);
}

TEST(PrepareWorkspace, NormalStateIsLeftAlone) {
    ScopedPlaces places;
    const QString p = places.programFolder();
    writeFile(p + "/uharc.exe", "engine 0.6");
    writeFile(p + "/Uharc0.4.fns", "engine 0.4");
    RecordingPrompter prompter;
    EXPECT_TRUE(PrepareWorkspace(prompter));
    EXPECT_EQ(readAll(p + "/uharc.exe"), QByteArray("engine 0.6"));
    EXPECT_EQ(readAll(p + "/Uharc0.4.fns"), QByteArray("engine 0.4"));
}

TEST(ShellOpenFailureText, ItalianTextsWithTwoCarriageReturns) {
    EXPECT_EQ(ShellOpenFailureText(31, ""),
              "Il sistema in uso non presenta alcuna associazione per questo tipo di file\r\r");
    EXPECT_EQ(ShellOpenFailureText(31, "  -a b  "),
              "Il sistema in uso non presenta alcuna associazione per questo tipo di file\r\r"
              "Parametri: '-a b'");
    EXPECT_EQ(ShellOpenFailureText(0, ""), "Memoria o risorse del sistema esaurite. \r\r");
    EXPECT_EQ(ShellOpenFailureText(2, ""), "Impossibile trovare il file. \r\r");
    EXPECT_EQ(ShellOpenFailureText(3, ""), "Impossibile trovare la cartella. \r\r");
    EXPECT_EQ(ShellOpenFailureText(11, ""),
              QString::fromUtf8("Il formato del file non \u00e8 valido. \r\r"));
    EXPECT_EQ(ShellOpenFailureText(5, "x"), "");
    EXPECT_EQ(ShellOpenFailureText(42, ""), "");
}

TEST(ShellOpenReport, ReportsFailuresAndStaysQuietOnSuccess) {
    QStringList opened;
    int answer = 31;
    SetDesktopOpener([&](const QString& target, const QString&, const QString&) {
        opened << target;
        return answer;
    });
    RecordingPrompter prompter;
    EXPECT_EQ(ShellOpenReport(prompter, "/t/a.xyz", "", "", 1), 31);
    ASSERT_EQ(prompter.shown.size(), 1);
    EXPECT_TRUE(prompter.shown[0].startsWith("critical: Il sistema in uso"));
    answer = 5; // no text for this value: nothing is shown
    ShellOpenReport(prompter, "/t/b.xyz", "", "", 1);
    answer = 42;
    ShellOpenReport(prompter, "/t/c.xyz", "", "", 1);
    EXPECT_EQ(prompter.shown.size(), 1);
    EXPECT_EQ(opened, QStringList({"/t/a.xyz", "/t/b.xyz", "/t/c.xyz"}));
    SetDesktopOpener({});
}

TEST(DesktopOpen, DefaultOpenerMapsMissingFileAndFolder) {
    QTemporaryDir dir;
    EXPECT_EQ(DesktopOpen(dir.filePath("missing.txt")), 2);
    EXPECT_EQ(DesktopOpen(dir.filePath("no-folder/missing.txt")), 3);
}

TEST(AnotherInstanceRunning, SecondHolderIsRefused) {
    QTemporaryDir dir;
    // The lock stays held until the program ends: keep it outside the temporary folder.
    const QString path = QDir::temp().filePath(
        QStringLiteral("quovara-test-%1.lock").arg(QCoreApplication::applicationPid()));
    QLockFile other(path);
    ASSERT_TRUE(other.tryLock(0));
    EXPECT_TRUE(AnotherInstanceRunning(path));
    other.unlock();
    EXPECT_FALSE(AnotherInstanceRunning(path));
    // This copy now holds it; asking again does not refuse itself.
    EXPECT_FALSE(AnotherInstanceRunning(path));
    QLockFile third(path);
    EXPECT_FALSE(third.tryLock(0));
}

TEST(FromCp437, DecodesTheHighHalf) {
    EXPECT_EQ(FromCp437("abc"), "abc");
    EXPECT_EQ(FromCp437("\x82t\x82"), QString::fromUtf8("\u00e9t\u00e9"));
    EXPECT_EQ(FromCp437("\xc4\xb3"), QString::fromUtf8("\u2500\u2502"));
}

TEST(Places, WithoutTmpDirTheTempRootIsAPrivateFolderOfTheUser) {
    ScopedEnv noTmp("TMPDIR", QByteArray());
    const QString root = TempRoot();
    EXPECT_EQ(QFileInfo(root).absolutePath(), QDir::tempPath());
    EXPECT_TRUE(QFileInfo(root).fileName().startsWith("quovara-"));
    struct stat st;
    ASSERT_EQ(::lstat(QFile::encodeName(root).constData(), &st), 0);
    EXPECT_TRUE(S_ISDIR(st.st_mode));
    EXPECT_EQ(st.st_uid, ::geteuid());
    EXPECT_EQ(st.st_mode & 0777, 0700u);
    EXPECT_EQ(WorkFolder(), root + "/Corvana");
}

TEST(Places, TwoUsersGetTwoPrivateFolders) {
    EXPECT_EQ(PrivateTempFolderName("anna", 1000), "quovara-anna");
    EXPECT_EQ(PrivateTempFolderName("bartek", 1001), "quovara-bartek");
    EXPECT_EQ(PrivateTempFolderName(QString::fromUtf8("łukasz"), 1002),
              QString::fromUtf8("quovara-łukasz"));
    // A name that cannot be a folder name falls back to the user's number.
    EXPECT_EQ(PrivateTempFolderName("", 1003), "quovara-1003");
    EXPECT_EQ(PrivateTempFolderName("../x", 1004), "quovara-1004");
    EXPECT_EQ(PrivateTempFolderName("..", 1005), "quovara-1005");
}

TEST(Places, TwoProgramsWithTheirOwnTmpDirHaveTheirOwnWorkFolders) {
    ScopedPlaces first;
    const QString firstWork = WorkFolder();
    ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
    writeFile(WorkFile(names::ListLog), "first");
    {
        ScopedPlaces second;
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        EXPECT_NE(WorkFolder(), firstWork);
        writeFile(WorkFile(names::ListLog), "second");
    }
    EXPECT_EQ(readAll(firstWork + "/uharc.log"), QByteArray("first"));
}

TEST(EnsurePrivateWorkFolder, MakesTheWorkFolderPrivate) {
    ScopedPlaces places;
    ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
    struct stat st;
    ASSERT_EQ(::lstat(QFile::encodeName(WorkFolder()).constData(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0700u);
}

TEST(EnsurePrivateWorkFolder, RefusesALinkAFolderOpenToOthersAndAFile) {
    ScopedPlaces places;
    const QString target = places.path() + "/planted";
    ASSERT_TRUE(QDir().mkdir(target));
    ASSERT_TRUE(QFile::link(target, WorkFolder()));
    EXPECT_EQ(EnsurePrivateWorkFolder(),
              "Quovara cannot use its work folder\n" + WorkFolder() +
                  "\nbecause it is a symbolic link.\nNothing is written there, and no job runs "
                  "until this is put right.");
    QFile::remove(WorkFolder());

    ASSERT_TRUE(QDir().mkdir(WorkFolder()));
    ASSERT_EQ(::chmod(QFile::encodeName(WorkFolder()).constData(), 0777), 0);
    EXPECT_TRUE(EnsurePrivateWorkFolder().contains("because other users have access to it (mode "
                                                   "0777)."));
    QDir(WorkFolder()).removeRecursively();

    writeFile(WorkFolder(), "a file");
    EXPECT_TRUE(EnsurePrivateWorkFolder().contains("because it is not a folder."));
    QFile::remove(WorkFolder());

    EXPECT_TRUE(QDir(target).isEmpty());
}

TEST(PrepareWorkspace, AWorkFolderThatCannotBeMadePrivateStopsTheProgramWithItsPath) {
    ScopedPlaces places;
    writeFile(places.programFolder() + "/uharc.exe", "engine");
    // TMPDIR names a file: no folder can be made inside it.
    const QString file = places.path() + "/not-a-folder";
    writeFile(file, "x");
    const QByteArray old = qgetenv("TMPDIR");
    qputenv("TMPDIR", file.toLocal8Bit());
    RecordingPrompter prompter;
    EXPECT_FALSE(PrepareWorkspace(prompter));
    qputenv("TMPDIR", old);
    EXPECT_EQ(prompter.shown,
              QStringList({"critical: Quovara cannot use its work folder\n" + file +
                           "/Corvana\nbecause it cannot be reached (Not a directory).\nNothing "
                           "is written there, and no job runs until this is put right."}));
}

TEST(CleanWorkFolder, TheOldWorkFolderAndLeftoversAreDeletedInTheBackground) {
    ScopedPlaces places;
    QDir().mkpath(ScratchFolder() + "/a/b");
    writeFile(ScratchFolder() + "/a/b/c.txt", "");
    // Left half-deleted by an earlier session.
    QDir().mkpath(WorkFolder() + ".old-1-1/Tessimo/x");
    CleanWorkFolder();
    // The work folder is gone at once; what was moved aside goes soon after.
    EXPECT_FALSE(QFileInfo::exists(WorkFolder()));
    QElapsedTimer t;
    t.start();
    auto leftovers = [&] {
        return QDir(places.tempRoot()).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    };
    while (!leftovers().isEmpty() && t.elapsed() < 5000)
        QThread::msleep(10);
    EXPECT_TRUE(leftovers().isEmpty()) << leftovers().join(',').toStdString();
}

namespace {

// True once nothing named "<folder>.old-*" is left beside `folder`.
bool nothingAsideOf(const QString& folder) {
    const QFileInfo info(folder);
    return QDir(info.absolutePath())
        .entryList({info.fileName() + ".old-*"}, QDir::AllEntries | QDir::Hidden)
        .isEmpty();
}

} // namespace

TEST(MoveAsideAndDelete, TheFolderGoesAtOnceAndWhatWasInItGoesInTheBackground) {
    QTemporaryDir dir;
    const QString folder = dir.filePath("tree");
    for (int i = 0; i < 50; ++i)
        writeFile(folder + QString("/d%1/f%2.txt").arg(i % 5).arg(i), "x");
    ASSERT_TRUE(QFile::link(dir.filePath("outside"), folder + "/link"));
    writeFile(dir.filePath("outside/keep.txt"), "keep");
    ASSERT_TRUE(MoveAsideAndDelete(folder));
    EXPECT_FALSE(QFileInfo::exists(folder));
    ASSERT_TRUE(QTest::qWaitFor([&] { return nothingAsideOf(folder); }, 10000));
    // A link inside is removed, never followed.
    EXPECT_EQ(readAll(dir.filePath("outside/keep.txt")), QByteArray("keep"));
}

TEST(MoveAsideAndDelete, DeletingWaitsWhileHeldAndGoesOnOnceReleased) {
    QTemporaryDir dir;
    const QString folder = dir.filePath("tree");
    for (int i = 0; i < 20; ++i)
        writeFile(folder + QString("/f%1.txt").arg(i), "x");
    QString aside;
    {
        const BackgroundDeletesHeld held;
        ASSERT_TRUE(MoveAsideAndDelete(folder));
        EXPECT_FALSE(QFileInfo::exists(folder));
        const QStringList moved =
            QDir(dir.path()).entryList({"tree.old-*"}, QDir::Dirs | QDir::Hidden);
        ASSERT_EQ(moved.size(), 1);
        aside = dir.filePath(moved.first());
        // While held, at most the one file under way goes.
        QTest::qWait(300);
        EXPECT_GE(QDir(aside).entryList(QDir::Files).size(), 19);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return !QFileInfo::exists(aside); }, 10000));
}
