// Endings other than the plain one: engine errors in the header and after it, the engine
// version request (switch, second run, undo), a window closed during its job, an engine that
// writes nothing, a job that cannot start.
#include "english_left.h"
#include "progress_fixture.h"

#include "core/places.h"
#include "engine/grammar.h"

#include <QApplication>
#include <QDir>
#include <QLineEdit>
#include <QProcess>
#include <QProgressBar>
#include <QTest>
#include <gtest/gtest.h>

#include <csignal>

using namespace quovara;
using namespace quovara::testing;

namespace {

const QString kCantRead =
    QStringLiteral(" Can't read from archive file / Unexpected end of file (maybe corrupt)");

class ProgressErrors : public ::testing::Test {
protected:
    // An archive whose stored data of f02.bin is damaged (stored, not packed, so its bytes
    // can be found and changed).
    QString damagedArchive() {
        bench.makeSource(5, 20000);
        const QString archive = bench.makeArchive(kSix, "damaged.uha", {"-m0"});
        QByteArray bytes = readAll(archive);
        const QByteArray content = readAll(bench.src + "/f02.bin");
        const qsizetype at = bytes.indexOf(content.left(64));
        EXPECT_GT(at, 0);
        bytes[at + 100] = bytes[at + 100] == 'x' ? 'y' : 'x';
        writeFile(archive, bytes);
        return archive;
    }

    // An add of twenty files, slowed down, whose window has begun to follow the engine's
    // output; null when it never did.
    frmProgress* slowAddUnderWay(const char* archiveName) {
        bench.makeSource(20, 1000);
        bench.writeAddScript(bench.places.path() + "/" + archiveName);
        bench.setDelay(200);
        frmProgress* w = bench.open(JobKind::Add);
        const bool following =
            WaitFor([&] { return w->consoleState() && w->consoleState()->lineCount > 0; });
        return following ? w : nullptr;
    }

    JobBench bench;
};

} // namespace

TEST_F(ProgressErrors, ATestThatFindsDamageShowsTheErrorAndNotTheSuccessMessage) {
    const QString archive = damagedArchive();
    bench.writeTestScript(archive);
    bench.main->show();
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({"critical:  CRC-failure (file \"f02.bin\")"}));
    EXPECT_FALSE(QFile::exists(WorkFile(names::ConsoleOutput)));
}

TEST_F(ProgressErrors, InAnotherLanguageTheEnginesErrorIsQuotedInASentenceOfIt) {
    LanguageForTest russian(QStringLiteral("ru"));
    ASSERT_TRUE(russian.loaded());
    const QString archive = damagedArchive();
    bench.writeTestScript(archive);
    bench.main->show();
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(
        bench.prompter.shown,
        QStringList({"critical: Движок сообщил об ошибке:\n\n CRC-failure (file \"f02.bin\")"}));
}

TEST_F(ProgressErrors, AnErrorAfterTheHeaderLeavesAHiddenMainWindowHidden) {
    const QString archive = damagedArchive();
    bench.writeExtractScript(archive, bench.places.path() + "/dest");
    bench.main->hide();
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({"critical:  CRC-failure (file \"f02.bin\")"}));
    EXPECT_FALSE(bench.main->isVisible());
}

TEST_F(ProgressErrors, AnAddErrorMakesTheMainWindowVisible) {
    bench.makeSource(2, 100);
    // An existing archive made by the other version: the engine cannot add to it and asks
    // whether to replace it; "No" ends the add with the engine's error, and nothing switches.
    const QString archive = bench.makeArchive(kFour, "four.uha");
    const QByteArray before = readAll(archive);
    bench.writeAddScript(archive);
    bench.main->hide();
    bench.prompter.questionAnswers = {false};
    frmProgress* w = bench.open(JobKind::Add);
    ASSERT_TRUE(bench.waitUnloaded(w));
    ASSERT_EQ(bench.prompter.shown.size(), 2);
    EXPECT_TRUE(bench.prompter.shown[0].startsWith("question: The engine asks:"));
    // The engine's error is what the user asked for: no error box.
    EXPECT_EQ(bench.prompter.shown[1], "information: The archive was left as it was.");
    EXPECT_EQ(readAll(archive), before);
    EXPECT_TRUE(bench.main->isVisible());
    EXPECT_FALSE(bench.main->engineSwitch().engineSwitched);
    EXPECT_EQ(w->runs(), 1);
    EXPECT_EQ(readAll(bench.programFile("uharc.exe")), readAll(kSix));
}

TEST_F(ProgressErrors, AWrongPasswordIsAHeaderErrorAndShowsTheMainWindow) {
    bench.makeSource(3, 5000);
    const QString archive = bench.makeArchive(kSix, "locked.uha", {"-pwsecret"});
    bench.writeExtractScript(archive, bench.places.path() + "/dest", "wrong");
    bench.main->hide();
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({"critical: " + kCantRead}));
    EXPECT_TRUE(bench.main->isVisible());
    EXPECT_FALSE(QFile::exists(bench.places.path() + "/dest/f00.bin"));
}

TEST_F(ProgressErrors, AMissingPasswordShowsTheMessageCutBeforeItsPointer) {
    bench.makeSource(1, 500);
    const QString archive = bench.makeArchive(kSix, "locked.uha", {"-pwsecret"});
    bench.writeTestScript(archive); // the test script never carries a password
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"critical:  Archive requires a password to access "}));
}

TEST_F(ProgressErrors, AnOldArchiveSwitchesTheEngineRunsAgainAndUndoesAtClose) {
    bench.makeSource(8, 20000);
    const QString archive = bench.makeArchive(kFour, "four.uha");
    bench.writeExtractScript(archive, bench.places.path() + "/dest");
    bench.setDelay(350);
    frmProgress* w = bench.open(JobKind::Extract);
    const QDateTime start = w->timeState().startTime;
    // The second run works with the 0.4 engine in place.
    ASSERT_TRUE(WaitFor([&] { return w->runs() == 2; }));
    const QDateTime secondRun = QDateTime::currentDateTime();
    EXPECT_TRUE(bench.main->engineSwitch().engineSwitched);
    EXPECT_EQ(bench.main->engineSwitch().switchedVersion, "0.4");
    EXPECT_EQ(readAll(bench.programFile("uharc.exe")), readAll(kFour));
    EXPECT_EQ(readAll(bench.programFile("Uharc0.6.fns")), readAll(kSix));
    auto* time = w->findChild<QLineEdit*>("TimeTxt");
    ASSERT_TRUE(bench.waitUnloaded(w));

    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
    EXPECT_TRUE(QFileInfo(bench.places.path() + "/dest/f07.bin").isFile());
    // The elapsed time counts from the window's load, before the first run.
    EXPECT_EQ(w->timeState().startTime, start);
    EXPECT_LE(start, secondRun);
    EXPECT_GE(w->timeState().elapsedSeconds, 1);
    EXPECT_TRUE(time->text().contains("Elapsed: 00:00:0"));
    // Undone at unload: 0.6 active again, 0.4 stored again, nothing parked.
    EXPECT_FALSE(bench.main->engineSwitch().engineSwitched);
    EXPECT_EQ(readAll(bench.programFile("uharc.exe")), readAll(kSix));
    EXPECT_EQ(readAll(bench.programFile("Uharc0.4.fns")), readAll(kFour));
    EXPECT_FALSE(QFile::exists(bench.programFile("Uharc0.6.fns")));
}

TEST_F(ProgressErrors, ASecondVersionRequestDuringTheRerunIsAnError) {
    bench.makeSource(2, 1000);
    const QString archive = bench.makeArchive(kFour, "four.uha");
    // The stored "0.4" copy is really the 0.6 engine: it asks for 0.4 again.
    QFile::remove(bench.programFile("Uharc0.4.fns"));
    QFile::copy(kSix, bench.programFile("Uharc0.4.fns"));
    bench.writeTestScript(archive);
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(w->runs(), 2);
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"critical:  Archive was created by another version --> use UHARC "
                           "version 0.4"}));
    EXPECT_FALSE(bench.main->engineSwitch().engineSwitched);
    EXPECT_FALSE(QFile::exists(bench.programFile("Uharc0.6.fns")));
}

TEST_F(ProgressErrors, ASwitchMadeByTheListingIsUsedDirectlyAndUndoneAtClose) {
    bench.makeSource(3, 1000);
    const QString archive = bench.makeArchive(kFour, "four.uha");
    bench.main->OpenItem(archive); // the listing switches to 0.4
    ASSERT_TRUE(bench.main->engineSwitch().engineSwitched);
    bench.writeExtractScript(archive, bench.places.path() + "/dest");
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(w->runs(), 1);
    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
    EXPECT_TRUE(QFileInfo(bench.places.path() + "/dest/f02.bin").isFile());
    EXPECT_FALSE(bench.main->engineSwitch().engineSwitched);
    EXPECT_EQ(readAll(bench.programFile("uharc.exe")), readAll(kSix));
    EXPECT_EQ(readAll(bench.programFile("Uharc0.4.fns")), readAll(kFour));
}

TEST_F(ProgressErrors, ClosingAnAddWindowMidJobEndsTheEngineAndLeavesNoTemporaryArchive) {
    bench.makeSource(20, 20000);
    const QString archive = bench.places.path() + "/out/new.uha";
    QDir().mkpath(bench.places.path() + "/out");
    bench.writeAddScript(archive);
    bench.setDelay(300);
    bench.main->hide();
    frmProgress* w = bench.open(JobKind::Add);
    const QString temp = bench.places.path() + "/out/UHA$0000.$$$";
    auto* job = w->findChild<QLineEdit*>("JobTxt");
    ASSERT_TRUE(WaitFor([&] { return !job->text().isEmpty() && QFile::exists(temp); }));
    const qint64 pid = w->jobProcessId();
    ASSERT_TRUE(ProcessAlive(pid));
    ASSERT_TRUE(FileExists(WorkFile(names::ConsoleOutput)));

    w->close();
    EXPECT_TRUE(w->isUnloaded());
    EXPECT_FALSE(w->isVisible());
    EXPECT_TRUE(bench.main->isVisible());
    EXPECT_TRUE(WaitFor([&] { return !ProcessAlive(pid); }, 5000));
    EXPECT_FALSE(QFile::exists(WorkFile(names::ConsoleOutput)));
    EXPECT_FALSE(QFile::exists(temp));
    EXPECT_FALSE(QFile::exists(archive));
    EXPECT_TRUE(bench.tray->calls.contains("remove"));
    // Nothing more happens afterwards: no message, no new run, the window stays hidden.
    QTest::qWait(300);
    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
    EXPECT_EQ(w->runs(), 1);
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(QFile::exists(temp));
}

TEST_F(ProgressErrors, ClosingAnExtractWindowMidJobUndoesTheSwitch) {
    bench.makeSource(10, 20000);
    const QString archive = bench.makeArchive(kFour, "four.uha");
    bench.writeExtractScript(archive, bench.places.path() + "/dest");
    bench.setDelay(300);
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(WaitFor([&] { return w->runs() == 2 && w->jobRunning(); }));
    const qint64 pid = w->jobProcessId();
    w->close();
    EXPECT_TRUE(WaitFor([&] { return !ProcessAlive(pid); }, 5000));
    EXPECT_FALSE(bench.main->engineSwitch().engineSwitched);
    EXPECT_EQ(readAll(bench.programFile("uharc.exe")), readAll(kSix));
    EXPECT_EQ(readAll(bench.programFile("Uharc0.4.fns")), readAll(kFour));
    EXPECT_FALSE(QFile::exists(WorkFile(names::ConsoleOutput)));
    ASSERT_EQ(bench.prompter.shown.size(), 1);
    EXPECT_TRUE(
        bench.prompter.shown.first().startsWith("information: The extraction was stopped: "))
        << bench.prompter.shown.first().toStdString();
}

TEST_F(ProgressErrors, AnEngineThatWritesNothingEndsTheWaitWithAClearMessage) {
    const QString engine = bench.programFile("uharc.exe");
    QFile::remove(engine);
    writeExecutable(engine, "#!/bin/sh\nsleep 0.3\nexit 0\n");
    bench.writeTestScript(bench.places.path() + "/x.uha");
    bench.main->hide();
    frmProgress* w = bench.open(JobKind::Test);
    // The window waits while the engine runs ...
    QTest::qWait(150);
    EXPECT_FALSE(w->isUnloaded());
    // ... and not once it has ended.
    ASSERT_TRUE(bench.waitUnloaded(w, 5000));
    ASSERT_EQ(bench.prompter.shown.size(), 1);
    EXPECT_EQ(bench.prompter.shown.first(),
              "critical: The engine ended without writing any output, so the job cannot be "
              "followed.\nJob script: " +
                  WorkFile(names::TestScript));
    EXPECT_TRUE(bench.main->isVisible());
}

TEST_F(ProgressErrors, AnEngineThatKeepsSilentWhileRunningIsWaitedForUntilClosed) {
    const QString engine = bench.programFile("uharc.exe");
    QFile::remove(engine);
    writeExecutable(engine, "#!/bin/sh\nexec sleep 30\n");
    bench.writeExtractScript(bench.places.path() + "/x.uha", bench.places.path() + "/dest");
    frmProgress* w = bench.open(JobKind::Extract);
    QTest::qWait(500);
    EXPECT_FALSE(w->isUnloaded());
    const qint64 pid = w->jobProcessId();
    EXPECT_TRUE(ProcessAlive(pid));
    w->close();
    EXPECT_TRUE(WaitFor([&] { return !ProcessAlive(pid); }, 5000));
    // Nothing was written: the user is told so.
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"information: The extraction was stopped: no file was extracted."}));
}

TEST_F(ProgressErrors, AJobWhoseEngineIsMissingSaysItCouldNotStart) {
    QFile::remove(bench.programFile("uharc.exe"));
    bench.writeTestScript(bench.places.path() + "/x.uha");
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w, 5000));
    ASSERT_EQ(bench.prompter.shown.size(), 1);
    EXPECT_TRUE(bench.prompter.shown.first().startsWith("critical: The job could not be started: "))
        << bench.prompter.shown.first().toStdString();
}

TEST_F(ProgressErrors, AYesToTheEnginesQuestionIsTypedIntoItsConsole) {
    bench.makeSource(3, 100);
    const QString archive = bench.makeArchive(kSix, "six.uha");
    bench.writeAddScript(archive);
    bench.prompter.questionAnswers = {true};
    frmProgress* w = bench.open(JobKind::Add);
    ASSERT_TRUE(bench.waitUnloaded(w));
    ASSERT_EQ(bench.prompter.shown.size(), 1);
    EXPECT_EQ(bench.prompter.shown[0],
              "question: The engine asks:\n\nArchive \"" + archive +
                  "\" already exists. Overwrite (y/n) ?\n\nYes: the archive is replaced by a new "
                  "one that holds only the files of this job; everything the archive holds now "
                  "is lost (the engine cannot add to an existing archive).\nNo: the job stops "
                  "and the archive stays as it is.");
}

TEST_F(ProgressErrors, ClosingTheWindowWhileTheEngineAsksStopsTheJobAndTypesNothing) {
    bench.makeSource(2, 100);
    const QString archive = bench.makeArchive(kSix, "asked.uha");
    const QByteArray before = readAll(archive);
    bench.writeAddScript(archive);
    frmProgress* w = bench.open(JobKind::Add);
    qint64 engine = 0;
    bench.prompter.onQuestion = [&] {
        engine = w->jobProcessId();
        w->close();
    };
    bench.prompter.questionAnswers = {true};
    ASSERT_TRUE(bench.waitUnloaded(w));
    ASSERT_GT(engine, 0);
    EXPECT_TRUE(WaitFor([&] { return !ProcessAlive(engine); }, 5000)) << "the engine still runs";
    ASSERT_EQ(bench.prompter.shown.size(), 1);
    EXPECT_TRUE(bench.prompter.shown[0].startsWith("question: "));
    // "Yes" came too late: the archive is untouched.
    EXPECT_EQ(readAll(archive), before);
}

// Names in several scripts, a blank and an apostrophe go through a test and an extraction
// unchanged, in an archive whose own name is just as mixed.
TEST_F(ProgressErrors, NamesInEveryScriptAreTestedAndExtractedUnchanged) {
    const QStringList names = MixedScriptNames();
    QDir().mkpath(bench.src);
    for (const QString& n : names)
        writeFile(bench.src + "/" + n, n.toUtf8());
    const QString archive = bench.makeArchive(kSix, QString::fromUtf8("Архив 日本 📦.uha"));
    ASSERT_TRUE(QFileInfo(archive).isFile());

    bench.writeTestScript(archive);
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown,
              QStringList({"information: No errors found during test operation"}));

    const QString destination = bench.places.path() + QString::fromUtf8("/Wynik Ćma");
    QDir().mkpath(destination);
    bench.writeExtractScript(archive, destination);
    w = bench.open(JobKind::Extract);
    ASSERT_TRUE(bench.waitUnloaded(w));
    QStringList extracted = QDir(destination).entryList(QDir::Files);
    QStringList expected = names;
    extracted.sort();
    expected.sort();
    EXPECT_EQ(extracted, expected);
    for (const QString& n : names)
        EXPECT_EQ(readAll(destination + "/" + n), n.toUtf8()) << n.toStdString();
}

namespace {

// Sets the stand-in engine's fault for the jobs started while it lives.
class ScopedFault : public ScopedEnv {
public:
    explicit ScopedFault(const QByteArray& fault) : ScopedEnv("QUOVARA_STANDIN_FAULT", fault) {}
};

QString abnormal(const QString& archive, const QString& why) {
    return "critical: The engine ended abnormally (" + why + ").\nArchive: " + archive +
           "\nThe job did not finish; do not rely on its result.";
}

} // namespace

TEST_F(ProgressErrors, ATestWhoseEngineExitsWithACodeAndNoErrorIsNotASuccess) {
    bench.makeSource(4, 1000);
    const QString archive = bench.makeArchive(kSix, "exit3.uha");
    bench.writeTestScript(archive);
    ScopedFault fault("exit:3");
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({abnormal(archive, "exit code 3")}));
}

TEST_F(ProgressErrors, AnEngineEndedByASignalIsReportedWithTheSignal) {
    bench.makeSource(4, 1000);
    const QString archive = bench.makeArchive(kSix, "killed.uha");
    bench.writeTestScript(archive);
    ScopedFault fault("signal:9");
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({abnormal(archive, "signal 9, Killed")}));
}

TEST_F(ProgressErrors, ACrashedExtractDoesNotCloseSilently) {
    bench.makeSource(4, 1000);
    const QString archive = bench.makeArchive(kSix, "crash.uha");
    const QString out = bench.places.path() + "/out";
    QDir().mkpath(out);
    bench.writeExtractScript(archive, out);
    ScopedFault fault("signal:11");
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown,
              QStringList({abnormal(archive, "signal 11, Segmentation fault")}));
}

TEST_F(ProgressErrors, AFullDiskIsAnErrorNotASuccess) {
    bench.makeSource(4, 1000);
    const QString archive = bench.places.path() + "/full.uha";
    bench.writeAddScript(archive);
    ScopedFault fault("enospc");
    frmProgress* w = bench.open(JobKind::Add);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown, QStringList({"critical:  No space left on device"}));
}

TEST_F(ProgressErrors, OutputRemovedWhileTheEngineRanIsNotASuccess) {
    bench.makeSource(6, 1000);
    const QString archive = bench.makeArchive(kSix, "vanished.uha");
    bench.writeTestScript(archive);
    bench.setDelay(150);
    frmProgress* w = bench.open(JobKind::Test);
    const QString das = WorkFile(names::ConsoleOutput);
    // Once the window follows the output, it is removed under the engine.
    ASSERT_TRUE(WaitFor([&] { return w->consoleState() && w->consoleState()->lineCount > 0; }));
    ASSERT_TRUE(QFile::remove(das));
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(bench.prompter.shown,
              QStringList({abnormal(archive, "its output " + das +
                                                 " was removed or cut short while it ran")}));
}

TEST_F(ProgressErrors, ClosingAWindowEndsOnlyItsOwnEngineNotAnotherProgramOfTheSameName) {
    // An unrelated program named like the engine, started first: it has the lower pid.
    QDir().mkpath(bench.places.path() + "/elsewhere");
    const QString stranger = bench.places.path() + "/elsewhere/uharc.exe";
    QFile::copy("/bin/sleep", stranger);
    QFile(stranger).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    QProcess other;
    other.start(stranger, {"60"});
    ASSERT_TRUE(other.waitForStarted());

    frmProgress* w = slowAddUnderWay("slow.uha");
    ASSERT_NE(w, nullptr);
    const qint64 engine = w->jobProcessId();
    ASSERT_GT(engine, other.processId());
    w->close();
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_TRUE(WaitFor([&] { return !ProcessAlive(engine); }));
    EXPECT_TRUE(ProcessAlive(other.processId()));
    other.kill();
    other.waitForFinished();
}

TEST_F(ProgressErrors, EscapeStopsTheJobAsClosingTheWindowDoes) {
    frmProgress* w = slowAddUnderWay("escaped.uha");
    ASSERT_NE(w, nullptr);
    const qint64 engine = w->jobProcessId();
    w->activateWindow();
    QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : w;
    QTest::keyClick(target, Qt::Key_Escape);
    ASSERT_TRUE(bench.waitUnloaded(w, 5000));
    EXPECT_TRUE(WaitFor([&] { return !ProcessAlive(engine); }, 5000));
    EXPECT_TRUE(bench.prompter.shown.isEmpty()) << bench.prompter.shown.join('|').toStdString();
}

TEST_F(ProgressErrors, AnEngineThatEndsWithoutAnErrorLineIsQuotedInItsOwnWords) {
    bench.makeSource(2, 100);
    const QString archive = bench.makeArchive(kSix, "nomatch.uha");
    ExtractOptions o;
    o.archive = archive;
    o.destination = bench.places.path() + "/dest";
    o.overwrite = true;
    o.choice = FileChoice::FileTypes;
    o.fileTypes = "*.nothing";
    WriteExtractJobScript(WorkFile(names::ExtractScript), o, ProgramFolder(), TempRoot(),
                          PathStyle::host());
    frmProgress* w = bench.open(JobKind::Extract);
    ASSERT_TRUE(bench.waitUnloaded(w));
    EXPECT_EQ(
        bench.prompter.shown,
        QStringList({abnormal(archive, "exit code 255; it said: No matching files found !")}));
}

TEST_F(ProgressErrors, AnEngineThatSaysNothingBeforeItsErrorExitIsNotGivenWordsItDidNotSay) {
    const QString engine = bench.programFile("uharc.exe");
    QFile::remove(engine);
    // Output that the window follows, then an error exit with no line of its own.
    writeExecutable(engine, "#!/bin/sh\nprintf '\\r\\n'\nsleep 0.3\nexit 3\n");
    bench.writeTestScript(bench.places.path() + "/x.uha");
    frmProgress* w = bench.open(JobKind::Test);
    ASSERT_TRUE(bench.waitUnloaded(w, 5000));
    EXPECT_EQ(bench.prompter.shown,
              QStringList({abnormal(bench.places.path() + "/x.uha", "exit code 3")}));
}
