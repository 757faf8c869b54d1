// The lister against small fake engines that answer with real listing logs, so that the
// password loop, the version switch and the failure paths are checked step by step.
#include "../core/recording_prompter.h"
#include "../core/test_support.h"
#include "core/places.h"
#include "core/workspace.h"
#include "engine/listing.h"

#include <QDirIterator>
#include <QProcess>
#include <QTimer>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

QString sample(const char* name) {
    return QStringLiteral(QUOVARA_LISTING_DATA "/") + name;
}

// A fake engine: appends QV_LOG_<password> (or QV_LOG_NONE without a password) to the file
// named by -lg, as the real engine appends its listing to the log.
QByteArray fakeEngine(const QString& tag) {
    return QByteArray("#!/bin/sh\n"
                      "log=; pw=NONE\n"
                      "for a in \"$@\"; do case \"$a\" in -lg*) log=\"${a#-lg}\";; -pw*) "
                      "pw=\"${a#-pw}\";; esac; done\n"
                      "echo \"" +
                      tag.toLatin1() +
                      " $*\" >> \"$QV_CALLS\"\n"
                      "eval \"src=\\$QV_LOG_" +
                      tag.toLatin1() +
                      "_$pw\"\n"
                      "[ -n \"$src\" ] && cat \"$src\" >> \"$log\"\n"
                      "exit 0\n");
}

class ListerTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        calls_ = places_.path() + "/calls.txt";
        qputenv("QV_CALLS", calls_.toLocal8Bit());
    }
    void TearDown() override {
        for (const char* v : {"QV_LOG_SIX_NONE", "QV_LOG_SIX_secret", "QV_LOG_SIX_wrong",
                              "QV_LOG_FOUR_NONE", "QV_CALLS"})
            qunsetenv(v);
    }
    QString engine(const char* name) const { return places_.programFolder() + "/" + name; }
    QStringList calls() const {
        return QString::fromLocal8Bit(readAll(calls_)).split('\n', Qt::SkipEmptyParts);
    }
    QStringList scratchFiles() const {
        QStringList out;
        QDirIterator it(ScratchFolder(), QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext())
            out << QDir(ScratchFolder()).relativeFilePath(it.next());
        out.sort();
        return out;
    }

    ScopedPlaces places_;
    QString calls_;
    RecordingPrompter prompter_;
    EngineSwitchState switch_;
};

} // namespace

TEST_F(ListerTest, PlainArchiveIsListedIntoTheMirrorTreeWithItsTotals) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", sample("list-alz3.log").toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    EXPECT_TRUE(lister.OpenSelectedArchive("/data/test.uha"));
    EXPECT_EQ(lister.listing().status, ListStatus::Opened);
    EXPECT_EQ(lister.listing().archivePath, "/data/test.uha");
    EXPECT_EQ(scratchFiles().size(), 8);
    EXPECT_TRUE(QFileInfo::exists(ScratchFolder() + "/folder/sub/deeper/deep.txt"));
    const auto totals = lister.Info();
    ASSERT_TRUE(totals.has_value());
    EXPECT_EQ(totals->filesLabel(), "Files: 8");
    EXPECT_EQ(totals->modeLabel(), "Mode: ALZ Best");
    EXPECT_TRUE(prompter_.shown.isEmpty());
    // The list script as written, byte for byte.
    EXPECT_EQ(readAll(WorkFile(names::ListScript)),
              "cls\r\n@echo off\r\n\"" + engine("uharc.exe").toLocal8Bit() + "\" l -d2 -y+ -lg" +
                  WorkFile(names::ListLog).toLocal8Bit() + " \"/data/test.uha\"");
    EXPECT_TRUE(QFileInfo::exists(WorkFile(names::Placeholder)));
}

TEST_F(ListerTest, OnlyALowerCaseUhaExtensionIsListed) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    ArchiveLister lister(prompter_, switch_);
    EXPECT_FALSE(lister.OpenSelectedArchive("/data/TEST.UHA"));
    EXPECT_FALSE(lister.OpenSelectedArchive("/data/test.Uha"));
    EXPECT_FALSE(lister.OpenSelectedArchive("/data/test.txt"));
    EXPECT_FALSE(lister.OpenSelectedArchive("/data/uha"));
    EXPECT_TRUE(calls().isEmpty());
}

TEST_F(ListerTest, PasswordIsAskedUntilTheEngineAcceptsOne) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", sample("list-password-required.log").toLocal8Bit());
    qputenv("QV_LOG_SIX_wrong", sample("list-password-required.log").toLocal8Bit());
    qputenv("QV_LOG_SIX_secret", sample("list-alz3.log").toLocal8Bit());
    prompter_.answers = {"", "wrong", "secret"};
    ArchiveLister lister(prompter_, switch_);
    EXPECT_EQ(lister.FileInArchivio("/data/p.uha"), ListStatus::Opened);
    EXPECT_EQ(prompter_.shown, QStringList({"prompt: Insert Password", "prompt: Insert Password",
                                            "prompt: Insert Password"}));
    EXPECT_EQ(lister.listing().password, "secret");
    EXPECT_EQ(calls().size(), 4);
    EXPECT_TRUE(calls().last().contains("-pwsecret /data/p.uha"));
    EXPECT_TRUE(readAll(WorkFile(names::ListScript)).endsWith("-pw\"secret\" \"/data/p.uha\""));
}

TEST_F(ListerTest, EngineErrorIsShownAndClearsThePassword) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_secret", sample("list-missing-archive.log").toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    lister.listing().password = "secret";
    EXPECT_EQ(lister.FileInArchivio("/data/gone.uha"), ListStatus::Failed);
    EXPECT_EQ(prompter_.shown, QStringList({"critical: Can't open archive file"}));
    EXPECT_EQ(lister.listing().password, "");
    EXPECT_FALSE(lister.Info().has_value());
}

TEST_F(ListerTest, MissingLogFailsWithoutAMessage) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX")); // writes no log at all
    ArchiveLister lister(prompter_, switch_);
    lister.listing().status = ListStatus::PasswordRequired; // whatever came before
    EXPECT_EQ(lister.FileInArchivio("/data/a.uha"), ListStatus::Failed);
    EXPECT_TRUE(prompter_.shown.isEmpty());
}

TEST_F(ListerTest, LogEndingBeforeItsSeparatorSaysTheListingIsIncompleteAndShowsNothing) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", sample("list-truncated.log").toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    EXPECT_EQ(lister.FileInArchivio("/data/a.uha"), ListStatus::Failed);
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: Quovara cannot show the archive\n/data/a.uha\nbecause the "
                           "engine's listing is incomplete.\nNothing of it is shown."}));
    EXPECT_TRUE(scratchFiles().isEmpty());
    EXPECT_FALSE(lister.Info().has_value());
}

TEST_F(ListerTest, ALogCutAfterItsSeparatorIsIncompleteToo) {
    QByteArray log = readAll(sample("list-alz3.log"));
    log.truncate(log.indexOf("-----") + 81); // the separator line and its line end only
    const QString cut = places_.path() + "/cut.log";
    writeFile(cut, log);
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", cut.toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    EXPECT_EQ(lister.FileInArchivio("/data/a.uha"), ListStatus::Failed);
    ASSERT_EQ(prompter_.shown.size(), 1);
    EXPECT_TRUE(prompter_.shown[0].contains("because the engine's listing is incomplete."));
    EXPECT_TRUE(scratchFiles().isEmpty());
}

TEST_F(ListerTest, LogsWithLfOrCrAloneAreReadLikeCrLf) {
    const QByteArray crlf = readAll(sample("list-alz3.log"));
    for (const QByteArray& end : {QByteArray("\n"), QByteArray("\r")}) {
        const QString log = places_.path() + "/other-ends.log";
        writeFile(log, QByteArray(crlf).replace("\r\n", end));
        writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
        qputenv("QV_LOG_SIX_NONE", log.toLocal8Bit());
        ArchiveLister lister(prompter_, switch_);
        EXPECT_EQ(lister.FileInArchivio("/data/a.uha"), ListStatus::Opened);
        EXPECT_EQ(scratchFiles().size(), 8) << scratchFiles().join(',').toStdString();
        ASSERT_TRUE(lister.Info().has_value());
        EXPECT_EQ(lister.Info()->fileCountText, "8");
        EXPECT_TRUE(prompter_.shown.isEmpty());
    }
}

TEST_F(ListerTest, ASecondArchiveShowsOnlyItsOwnEntries) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", sample("list-alz3.log").toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    ASSERT_EQ(lister.FileInArchivio("/data/a.uha"), ListStatus::Opened);
    ASSERT_EQ(scratchFiles().size(), 8);
    qputenv("QV_LOG_SIX_NONE", sample("list-one-file.log").toLocal8Bit());
    ASSERT_EQ(lister.FileInArchivio("/data/b.uha"), ListStatus::Opened);
    EXPECT_EQ(scratchFiles().size(), 1) << scratchFiles().join(',').toStdString();
    EXPECT_EQ(lister.Info()->fileCountText, "1");
}

TEST_F(ListerTest, StoppedBeforeTheListJobStartsTheEngineIsNeverRun) {
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", sample("list-alz3.log").toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    // The user's Escape arrives while the files before the run are written.
    QTimer::singleShot(0, [&] { lister.Cancel(); });
    EXPECT_EQ(lister.FileInArchivio("/data/a.uha"), ListStatus::Failed);
    EXPECT_TRUE(lister.cancelled());
    EXPECT_TRUE(calls().isEmpty()) << calls().join('|').toStdString();
    EXPECT_TRUE(scratchFiles().isEmpty());
    EXPECT_TRUE(prompter_.shown.isEmpty());
}

TEST_F(ListerTest, MissingEngineIsAFailedStartNotAHang) {
    ArchiveLister lister(prompter_, switch_);
    EXPECT_EQ(lister.FileInArchivio("/data/a.uha"), ListStatus::Failed);
    EXPECT_FALSE(lister.startError().isEmpty());
}

TEST_F(ListerTest, VersionRequestSwitchesListsAgainAndALaterFailureUndoes) {
    const QString request = places_.path() + "/request.log";
    QByteArray log = readAll(sample("list-missing-archive.log"));
    log.replace("ERROR: Can't open archive file",
                "ERROR: Archive was created by another version --> use UHARC version 0.4");
    writeFile(request, log);
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    writeExecutable(engine("Uharc0.4.fns"), fakeEngine("FOUR"));
    qputenv("QV_LOG_SIX_NONE", request.toLocal8Bit());
    qputenv("QV_LOG_FOUR_NONE", sample("list-ppm.log").toLocal8Bit());

    ArchiveLister lister(prompter_, switch_);
    EXPECT_TRUE(lister.OpenSelectedArchive("/data/old.uha"));
    EXPECT_EQ(lister.listing().status, ListStatus::Opened);
    EXPECT_TRUE(switch_.engineSwitched);
    EXPECT_EQ(switch_.switchedVersion, "0.4");
    EXPECT_EQ(calls().size(), 2);
    EXPECT_TRUE(calls()[0].startsWith("SIX "));
    EXPECT_TRUE(calls()[1].startsWith("FOUR "));
    EXPECT_TRUE(readAll(engine("uharc.exe")).contains("FOUR"));
    EXPECT_TRUE(readAll(engine("Uharc0.6.fns")).contains("SIX"));
    EXPECT_FALSE(QFile::exists(engine("Uharc0.4.fns")));
    EXPECT_EQ(lister.Info()->modeText, "PPM");
    EXPECT_TRUE(prompter_.shown.isEmpty());

    // The switch stays for later listings; a failing one undoes it.
    qputenv("QV_LOG_FOUR_NONE", sample("list-missing-archive.log").toLocal8Bit());
    EXPECT_TRUE(lister.OpenSelectedArchive("/data/gone.uha"));
    EXPECT_EQ(lister.listing().status, ListStatus::Failed);
    EXPECT_FALSE(switch_.engineSwitched);
    EXPECT_TRUE(readAll(engine("uharc.exe")).contains("SIX"));
    EXPECT_TRUE(readAll(engine("Uharc0.4.fns")).contains("FOUR"));
    EXPECT_FALSE(QFile::exists(engine("Uharc0.6.fns")));
}

TEST_F(ListerTest, VersionRequestWhileSwitchedIsAnErrorAndUndoes) {
    const QString request = places_.path() + "/request.log";
    QByteArray log = readAll(sample("list-missing-archive.log"));
    log.replace("ERROR: Can't open archive file",
                "ERROR: Archive was created by another version --> use UHARC version 0.4");
    writeFile(request, log);
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    writeExecutable(engine("Uharc0.4.fns"), fakeEngine("FOUR"));
    qputenv("QV_LOG_SIX_NONE", request.toLocal8Bit());
    qputenv("QV_LOG_FOUR_NONE", request.toLocal8Bit());

    ArchiveLister lister(prompter_, switch_);
    EXPECT_TRUE(lister.OpenSelectedArchive("/data/older.uha"));
    EXPECT_EQ(lister.listing().status, ListStatus::Failed);
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: Archive was created by another version --> use UHARC "
                           "version 0.4"}));
    EXPECT_FALSE(switch_.engineSwitched);
    EXPECT_TRUE(readAll(engine("uharc.exe")).contains("SIX"));
    EXPECT_TRUE(readAll(engine("Uharc0.4.fns")).contains("FOUR"));
}

TEST_F(ListerTest, RequestForAVersionWithNoStoredCopyLeavesNoEngineUntilTheUndo) {
    const QString request = places_.path() + "/request.log";
    QByteArray log = readAll(sample("list-missing-archive.log"));
    log.replace("ERROR: Can't open archive file", "ERROR: x --> use UHARC version 0.3");
    writeFile(request, log);
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", request.toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    EXPECT_TRUE(lister.OpenSelectedArchive("/data/a.uha"));
    // The second listing finds no engine, fails, and the undo puts 0.6 back.
    EXPECT_EQ(lister.listing().status, ListStatus::Failed);
    EXPECT_FALSE(switch_.engineSwitched);
    EXPECT_TRUE(readAll(engine("uharc.exe")).contains("SIX"));
    EXPECT_FALSE(QFile::exists(engine("Uharc0.6.fns")));
}

TEST(StartupRepair, LeftOverSwitchIsRepairedAtTheNextStart) {
    ScopedPlaces places;
    const QString p = places.programFolder();
    // Switched state after a crash: 0.4 active, 0.6 parked.
    writeFile(p + "/uharc.exe", "engine 0.4");
    writeFile(p + "/Uharc0.6.fns", "engine 0.6");
    RecordingPrompter prompter;
    ASSERT_TRUE(PrepareWorkspace(prompter));
    EXPECT_EQ(readAll(p + "/uharc.exe"), QByteArray("engine 0.6"));
    EXPECT_EQ(readAll(p + "/Uharc0.4.fns"), QByteArray("engine 0.4"));
    EXPECT_FALSE(QFile::exists(p + "/Uharc0.6.fns"));
}

TEST(VersionSwitch, RecognitionAndTheVersionText) {
    EngineSwitchState s;
    EXPECT_TRUE(IsVersionRequest(" x --> use UHARC version 0.4 ", s));
    EXPECT_TRUE(IsVersionRequest(" x --> use UHARC 0.4 compatible version", s));
    EXPECT_FALSE(IsVersionRequest(" x --> use uharc version 0.4", s));
    s.engineSwitched = true;
    EXPECT_FALSE(IsVersionRequest(" x --> use UHARC version 0.4", s));
    QTemporaryDir dir;
    EngineSwitchState t;
    SwitchEngine(t, dir.path(), " old archive --> use UHARC version 0.4   ");
    EXPECT_TRUE(t.engineSwitched);
    EXPECT_EQ(t.switchedVersion, "0.4");
    UndoEngineSwitch(t, dir.path());
    EXPECT_FALSE(t.engineSwitched);
}

// A full disk while the folder view is made, on a small memory file system (where this machine
// lets the test mount one).
TEST_F(ListerTest, AFullDiskWhileTheFolderViewIsMadeIsReportedAndLeavesNoPartialTree) {
    const QString mount = places_.path() + "/small";
    QDir().mkpath(mount);
    QProcess mounter;
    mounter.start("mount", {"-t", "tmpfs", "-o", "size=256k,nr_inodes=60", "tmpfs", mount});
    if (!mounter.waitForFinished(10000) || mounter.exitStatus() != QProcess::NormalExit ||
        mounter.exitCode() != 0)
        GTEST_SKIP() << "no small memory file system can be mounted here";
    const QByteArray oldTmp = qgetenv("TMPDIR");
    qputenv("TMPDIR", mount.toLocal8Bit());
    ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
    const QString log = places_.path() + "/many.log";
    QList<QByteArray> names;
    for (int i = 0; i < 200; ++i)
        names << "folder\\file" + QByteArray::number(i) + ".txt";
    writeFile(log, ListingLogOf(names));
    writeExecutable(engine("uharc.exe"), fakeEngine("SIX"));
    qputenv("QV_LOG_SIX_NONE", log.toLocal8Bit());
    ArchiveLister lister(prompter_, switch_);
    EXPECT_EQ(lister.FileInArchivio("/data/many.uha"), ListStatus::Failed);
    EXPECT_EQ(prompter_.shown,
              QStringList({"critical: Quovara cannot show the archive\n/data/many.uha\nbecause it "
                           "cannot create the folder view: no space left on device.\nNothing of "
                           "it is shown."}));
    EXPECT_TRUE(scratchFiles().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(ScratchFolder() + ".new"));
    qputenv("TMPDIR", oldTmp);
    QProcess::execute("umount", {mount});
}
