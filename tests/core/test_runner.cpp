#include "core/jobprocess.h"
#include "core/jobscript.h"
#include "core/launcherprefix.h"
#include "core/launcherserver.h"
#include "core/places.h"
#include "core/processcontrol.h"
#include "core/runner.h"
#include "test_support.h"

#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <atomic>
#include <gtest/gtest.h>

#include <signal.h>

using namespace quovara;
using namespace quovara::testing;

namespace {

// A fake engine that records its arguments, whether its standard input is a terminal, and the
// engine options variable, and writes one line to standard output.
const QByteArray kRecordingEngine =
    "#!/bin/sh\n"
    "printf '%s\\n' \"$@\" > \"$QV_RECORD\"\n"
    "if [ -t 0 ]; then echo tty; else echo notty; fi >> \"$QV_RECORD\"\n"
    "echo \"opt=[$uharc_opt]\" >> \"$QV_RECORD\"\n"
    "echo \"cwd=$(pwd)\" >> \"$QV_RECORD\"\n"
    "printf 'engine output\\r\\n'\n";

QString copyOfSleep(const QString& folder, const QString& name) {
    const QString path = folder + "/" + name;
    QFile::copy("/bin/sleep", path);
    QFile(path).setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    return path;
}

bool alive(qint64 pid) {
    return ::kill(static_cast<pid_t>(pid), 0) == 0;
}

} // namespace

TEST(DeadlineReached, PlainDeadline) {
    EXPECT_FALSE(DeadlineReached(102, 100, 103, false));
    EXPECT_TRUE(DeadlineReached(103, 100, 103, false));
    EXPECT_TRUE(DeadlineReached(200, 100, 103, false));
}

TEST(DeadlineReached, DeadlinePastMidnightWaitsForTheWrap) {
    // Started at 86398 with a time-out of 5: the deadline is 3 after midnight.
    EXPECT_FALSE(DeadlineReached(86399, 86398, 3, true));
    EXPECT_FALSE(DeadlineReached(0, 86398, 3, true));
    EXPECT_FALSE(DeadlineReached(2, 86398, 3, true));
    EXPECT_TRUE(DeadlineReached(3, 86398, 3, true));
    EXPECT_TRUE(DeadlineReached(10, 86398, 3, true));
}

// Each runner test has its own TempRoot and ProgramFolder: the engine is "uharc.exe" in the
// ProgramFolder and the scripts are written into the private WorkFolder, as the program does.
class Runner : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(EnsurePrivateWorkFolder().isEmpty()); }
    QString engine() const { return places.programFolder() + "/uharc.exe"; }
    QString quotedEngine() const { return "\"" + engine() + "\" "; }
    QString das() const { return WorkFile(names::ConsoleOutput); }
    QString script(const char* name) const { return WorkFile(name); }
    // The engine is a copy of sleep: it runs as long as its argument says.
    void sleeperEngine() {
        QFile::remove(engine());
        copyOfSleep(places.programFolder(), "uharc.exe");
    }
    ScopedPlaces places;
    // The engine's locale: English, code pages 437 and 1252.
    ScopedEnv locale{"LC_ALL", "C.UTF-8"};
};

TEST_F(Runner, RunsTheScriptsCommandWithItsVariablesAndRedirection) {
    writeExecutable(engine(), kRecordingEngine);
    const QString record = places.path() + "/record.txt";
    qputenv("QV_RECORD", record.toLocal8Bit());
    const QString pwned = places.path() + "/pwned";
    ASSERT_TRUE(WriteJobScript(
        script(names::AddScript), Preamble::Job,
        {Fragment("\"") + Fragment::Value(engine(), "program") + "\" ", "a ",
         "-pw\"" + Fragment::Value("a b;c&d$(touch " + pwned + ")", "password") + "\" ",
         "\"" + Fragment::Value(places.path() + "/x y.uha", "archive") + "\"",
         " > " + Fragment::Value(das(), "output")}));
    EXPECT_TRUE(RunAndWait(script(names::AddScript), 0, places.path()));
    EXPECT_EQ(readAll(das()), QByteArray("engine output\r\n"));
    // Every engine has a terminal as its console.
    const QString expected = "a\n-pwa b;c&d$(touch " + pwned + ")\n" + places.path() +
                             "/x y.uha\ntty\nopt=[ -d2]\ncwd=" + places.path() + "\n";
    EXPECT_EQ(QString::fromLocal8Bit(readAll(record)), expected);
    EXPECT_FALSE(QFile::exists(pwned));
}

TEST_F(Runner, MissingProgramIsAFailedStart) {
    WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "l"});
    QString error;
    EXPECT_FALSE(RunAndWait(script(names::ListScript), 0, places.path(), {}, &error));
    EXPECT_TRUE(error.contains("does not exist")) << error.toStdString();
}

TEST(RunBeside, TheLoopRunsWhileTheWorkTakesItsTime) {
    // Work that takes 300 ms (a disk holding up a rename): the timer of this thread keeps
    // firing meanwhile, and the call returns only when the work is done.
    int ticks = 0;
    QTimer timer;
    timer.setInterval(10);
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start();
    std::atomic<bool> done = false;
    Qt::HANDLE workThread = nullptr;
    RunBeside([&] {
        workThread = QThread::currentThreadId();
        QThread::msleep(300);
        done = true;
    });
    EXPECT_TRUE(done);
    EXPECT_NE(workThread, QThread::currentThreadId());
    EXPECT_GE(ticks, 10);
}

TEST(RunBeside, WorkThatEndsAtOnceStillReturns) {
    int runs = 0;
    for (int i = 0; i < 50; ++i)
        RunBeside([&] { ++runs; });
    EXPECT_EQ(runs, 50);
}

TEST(RunAndWait, MissingScriptIsAFailedStart) {
    EXPECT_FALSE(RunAndWait("/nonexistent/Apri.bat", 0));
}

TEST_F(Runner, WindowsEngineWithoutLauncherIsAFailedStart) {
    writeFile(engine(), "MZ\x90\x00 not really a program");
    WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "l"});
    qputenv("QUOVARA_WINE", (places.path() + "/no-such-launcher").toLocal8Bit());
    QString error;
    EXPECT_FALSE(RunAndWait(script(names::ListScript), 0, places.path(), {}, &error));
    EXPECT_TRUE(error.contains("launcher")) << error.toStdString();
    qunsetenv("QUOVARA_WINE");
}

TEST_F(Runner, WindowsEngineRunsThroughTheLauncherWithATerminal) {
    writeFile(engine(), "MZ\x90\x00 a Windows program");
    const QString launcher = places.path() + "/fake-wine";
    writeExecutable(launcher, kRecordingEngine);
    const QString record = places.path() + "/record.txt";
    qputenv("QV_RECORD", record.toLocal8Bit());
    qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    // The engine's name in another spelling of its case is still the engine.
    const QString otherCase = places.programFolder() + "/Uharc.exe";
    const QString list = places.path() + "/list.txt";
    writeFile(list, "/a/one.txt\n");
    const QString out = places.path() + "/out/dir";
    WriteJobScript(script(names::ExtractScript), Preamble::Job,
                   {"\"" + otherCase + "\" ", "x ", "-t\"" + out + "\"", " -o+ ", "\"/arch/a.uha\"",
                    " !\"*.bak\"", " @\"" + list + "\"", " > " + das()});
    EXPECT_TRUE(RunAndWait(script(names::ExtractScript), 0, places.path()));
    qunsetenv("QUOVARA_WINE");
    const QStringList lines = QString::fromLocal8Bit(readAll(record)).split('\n');
    ASSERT_GE(lines.size(), 8);
    EXPECT_EQ(lines[0], engine());
    EXPECT_EQ(lines[1], "x");
    // An extraction's target is the root of a drive of its own, linked to the destination for
    // the job and gone after it.
    EXPECT_EQ(lines[2], "-tY:\\");
    EXPECT_FALSE(QFileInfo(LauncherPrefixFolder() + "/dosdevices/y:").isSymLink());
    EXPECT_TRUE(QFileInfo(out).isDir());
    EXPECT_EQ(lines[3], "-o+");
    EXPECT_EQ(lines[4], "Z:\\arch\\a.uha");
    EXPECT_EQ(lines[5], "!*.bak");
    // The list file is handed over as a translated copy in the WorkFolder.
    EXPECT_EQ(lines[6], "@" + ToLauncherPath(WorkFolder() + "/Elenco1.lst").replace("@", ""))
        << lines[6].toStdString();
    EXPECT_EQ(lines[7], "tty");
    EXPECT_EQ(readAll(das()), QByteArray("engine output\r\n"));
}

TEST_F(Runner, TimeOutZeroWaitsAsLongAsTheProcessRuns) {
    sleeperEngine();
    WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "0.6"});
    QElapsedTimer t;
    t.start();
    EXPECT_TRUE(RunAndWait(script(names::ListScript), 0));
    EXPECT_GE(t.elapsed(), 550);
}

TEST_F(Runner, KeepsTheEventLoopLiveWhileWaiting) {
    sleeperEngine();
    WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "1"});
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(50);
    EXPECT_TRUE(RunAndWait(script(names::ListScript), 0));
    EXPECT_GE(ticks, 10);
}

TEST_F(Runner, TimeOutPastMidnightWaitsUntilTheClockHasWrapped) {
    sleeperEngine();
    WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "30"});
    qint64 calls = 0;
    QList<qint64> seen;
    auto clock = [&] {
        const qint64 t = (86398 + calls++) % 86400;
        seen << t;
        return t;
    };
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_TRUE(RunAndWait(script(names::ListScript), 5, QString(), clock));
    EXPECT_LT(elapsed.elapsed(), 10000);
    // 86398 at the start, then 86399, 0, 1, 2 and finally 3, the deadline after midnight.
    EXPECT_EQ(seen, QList<qint64>({86398, 86399, 0, 1, 2, 3}));
    // The job goes on after the time-out; end it here (it is this program's own engine).
    EXPECT_GT(TerminateProcessByName("UHARC.EXE"), 0);
}

TEST_F(Runner, PlainTimeOutStopsWaitingAtTheDeadline) {
    sleeperEngine();
    WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "30"});
    qint64 t = 1000;
    EXPECT_TRUE(RunAndWait(script(names::ListScript), 3, QString(), [&] { return t++; }));
    EXPECT_EQ(t, 1004);
    EXPECT_GT(TerminateProcessByName("uharc.exe"), 0);
}

TEST_F(Runner, JobStartsAtTheLowestPriority) {
    sleeperEngine();
    WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "5"});
    JobProcess job;
    ASSERT_TRUE(job.start(script(names::ListScript)));
    const QByteArray stat = readAll(QString("/proc/%1/stat").arg(job.processId()));
    // Field 19 of /proc/<pid>/stat is the nice value.
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    ASSERT_GT(fields.size(), 17);
    EXPECT_EQ(fields[16], "19");
    job.kill();
}

TEST_F(Runner, OnlyAScriptThisProgramWroteRuns) {
    sleeperEngine();
    // Written by someone else: same shape, never registered.
    writeFile(script(names::ListScript), "cls\r\n@echo off\r\n\"" + engine().toUtf8() + "\" 0");
    JobProcess job;
    EXPECT_FALSE(job.start(script(names::ListScript)));
    EXPECT_TRUE(job.errorText().contains("was not written by this program"))
        << job.errorText().toStdString();
}

TEST_F(Runner, AScriptChangedAfterItWasWrittenIsRefused) {
    writeExecutable(engine(), kRecordingEngine);
    const QString record = places.path() + "/record.txt";
    qputenv("QV_RECORD", record.toLocal8Bit());
    ASSERT_TRUE(WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "l"}));
    // Same length, one letter changed.
    QByteArray bytes = readAll(script(names::ListScript));
    bytes[bytes.size() - 1] = 't';
    writeFile(script(names::ListScript), bytes);
    JobProcess job;
    EXPECT_FALSE(job.start(script(names::ListScript)));
    EXPECT_TRUE(job.errorText().contains("was changed after it was written"))
        << job.errorText().toStdString();
    EXPECT_FALSE(QFile::exists(record));
}

TEST_F(Runner, AProgramOtherThanTheEngineIsNeverStarted) {
    writeExecutable(engine(), kRecordingEngine);
    const QString other = places.path() + "/run.sh";
    const QString proof = places.path() + "/started";
    writeExecutable(other, "#!/bin/sh\ntouch '" + proof.toUtf8() + "'\n");
    // A copy of the engine elsewhere is not the engine either.
    const QString copy = places.path() + "/uharc.exe";
    writeExecutable(copy, "#!/bin/sh\ntouch '" + proof.toUtf8() + "'\n");
    for (const QString& program : {other, copy}) {
        ASSERT_TRUE(
            WriteJobScript(script(names::ListScript), Preamble::List, {"\"" + program + "\" l"}));
        JobProcess job;
        EXPECT_FALSE(job.start(script(names::ListScript))) << program.toStdString();
        EXPECT_TRUE(job.errorText().contains("which is not the engine of the program folder"))
            << job.errorText().toStdString();
    }
    EXPECT_FALSE(QFile::exists(proof));
}

TEST_F(Runner, OutputCanOnlyGoToTheConsoleOutputFile) {
    writeExecutable(engine(), kRecordingEngine);
    const QString elsewhere = places.path() + "/elsewhere.txt";
    ASSERT_TRUE(WriteJobScript(script(names::ListScript), Preamble::List,
                               {quotedEngine() + "l > " + elsewhere}));
    JobProcess job;
    EXPECT_FALSE(job.start(script(names::ListScript)));
    EXPECT_FALSE(QFile::exists(elsewhere));
}

TEST_F(Runner, TheConsoleOutputFileIsNotWrittenThroughALink) {
    writeExecutable(engine(), kRecordingEngine);
    qputenv("QV_RECORD", (places.path() + "/record.txt").toLocal8Bit());
    const QString victim = places.path() + "/victim.txt";
    writeFile(victim, "keep me");
    ASSERT_TRUE(QFile::link(victim, das()));
    ASSERT_TRUE(
        WriteJobScript(script(names::AddScript), Preamble::Job, {quotedEngine() + "a > " + das()}));
    JobProcess job;
    EXPECT_FALSE(job.start(script(names::AddScript)));
    EXPECT_EQ(readAll(victim), QByteArray("keep me"));
}

TEST_F(Runner, KillEndsTheWholeJobTheEnginesChildrenToo) {
    // An engine that starts a child of its own, as the launcher does, and records its pid.
    const QString childPid = places.path() + "/child.pid";
    writeExecutable(engine(),
                    "#!/bin/sh\nsleep 30 &\necho $! > '" + childPid.toUtf8() + "'\nwait\n");
    ASSERT_TRUE(WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "l"}));
    JobProcess job;
    ASSERT_TRUE(job.start(script(names::ListScript)));
    QElapsedTimer t;
    t.start();
    while (readAll(childPid).trimmed().isEmpty() && t.elapsed() < 5000)
        QTest::qWait(20);
    const qint64 child = readAll(childPid).trimmed().toLongLong();
    ASSERT_GT(child, 0);
    job.kill();
    QSignalSpy ended(&job, &JobProcess::finished);
    EXPECT_TRUE(ended.wait(5000) || !job.isRunning());
    t.restart();
    while (alive(child) && t.elapsed() < 5000)
        QTest::qWait(20);
    EXPECT_FALSE(alive(child));
}

TEST_F(Runner, TerminateByNameEndsOnlyThisProgramsEngineAndOnlyTheFirst) {
    // An unrelated program named like the engine, started first (so with the lowest pid).
    QDir(places.path()).mkdir("other");
    const QString unrelated = copyOfSleep(places.path() + "/other", "UHARC.EXE");
    QProcess stranger;
    stranger.start(unrelated, {"30"});
    ASSERT_TRUE(stranger.waitForStarted());

    sleeperEngine();
    ASSERT_TRUE(WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "30"}));
    JobProcess first, second;
    ASSERT_TRUE(first.start(script(names::ListScript)));
    ASSERT_TRUE(second.start(script(names::ListScript)));
    const qint64 expected = std::min(first.processId(), second.processId());
    const qint64 other = std::max(first.processId(), second.processId());

    EXPECT_EQ(TerminateProcessByName("UhArC.ExE"), expected);
    JobProcess& ended = first.processId() == expected ? first : second;
    QSignalSpy spy(&ended, &JobProcess::finished);
    EXPECT_TRUE(spy.wait(5000));
    EXPECT_TRUE(alive(other));
    EXPECT_TRUE(alive(stranger.processId()));
    first.kill();
    second.kill();
    stranger.kill();
    stranger.waitForFinished();
}

TEST(TerminateProcessByName, NoMatchDoesNothing) {
    EXPECT_EQ(TerminateProcessByName("NO-SUCH-PROGRAM.EXE"), 0);
}

// A launcher that records its arguments and, for a list file argument "@Z:\\...", the bytes of
// the file the engine would open there.
const QByteArray kListReadingLauncher =
    "#!/bin/sh\n"
    "for a in \"$@\"; do\n"
    "  printf '%s\\n' \"$a\" >> \"$QV_RECORD\"\n"
    "  case \"$a\" in @Z:*) p=$(printf '%s' \"${a#@Z:}\" | tr '\\\\' '/'); "
    "cat \"$p\" >> \"$QV_LIST\";; esac\n"
    "done\n";

TEST_F(Runner, AListFileReachesTheLauncherAsATranslatedCopyAndTheUsersFileStays) {
    writeFile(engine(), "MZ\x90\x00 a Windows program");
    const QString launcher = places.path() + "/fake-wine";
    writeExecutable(launcher, kListReadingLauncher);
    qputenv("QV_RECORD", (places.path() + "/record.txt").toLocal8Bit());
    qputenv("QV_LIST", (places.path() + "/seen-list.txt").toLocal8Bit());
    qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    const QString list = places.path() + "/my list.txt";
    const QByteArray mine = QString::fromUtf8("/home/anna/src/a.txt\n/home/anna/café/b c.txt\n"
                                              "relative/d.txt\n\n")
                                .toUtf8();
    writeFile(list, mine);
    ASSERT_TRUE(WriteJobScript(script(names::AddScript), Preamble::Job,
                               {quotedEngine() + "a \"/x/a.uha\" @\"" +
                                Fragment::Value(list, "list file") + "\" > " + das()}));
    JobProcess job;
    ASSERT_TRUE(job.start(script(names::AddScript))) << job.errorText().toStdString();
    QSignalSpy done(&job, &JobProcess::finished);
    ASSERT_TRUE(done.wait(10000));
    qunsetenv("QUOVARA_WINE");
    // Host paths in the launcher's form, code page 437 (0x82 is "é"), CR LF.
    EXPECT_EQ(readAll(places.path() + "/seen-list.txt"),
              QByteArray("Z:\\home\\anna\\src\\a.txt\r\nZ:\\home\\anna\\caf\x82\\b c.txt\r\n"
                         "relative\\d.txt\r\n"));
    EXPECT_EQ(readAll(list), mine);
    EXPECT_TRUE(job.arguments().last().startsWith("@Z:\\")) << job.arguments().last().toStdString();
}

TEST_F(Runner, AListNamingLettersTheRealEngineCannotReadIsRefused) {
    writeFile(engine(), "MZ\x90\x00 a Windows program");
    const QString launcher = places.path() + "/fake-wine";
    writeExecutable(launcher, kListReadingLauncher);
    qputenv("QV_RECORD", (places.path() + "/record.txt").toLocal8Bit());
    qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    const QString list = places.path() + "/list.txt";
    writeFile(list, QString::fromUtf8("/home/Łukasz/a.txt\n").toUtf8());
    ASSERT_TRUE(WriteJobScript(script(names::AddScript), Preamble::Job,
                               {quotedEngine() + "a \"/x/a.uha\" @\"" + list + "\""}));
    JobProcess job;
    EXPECT_FALSE(job.start(script(names::AddScript)));
    qunsetenv("QUOVARA_WINE");
    EXPECT_EQ(job.errorText(),
              "the list file " + list + " names a file the engine cannot take. The name\n" +
                  QString::fromUtf8("Z:\\home\\Łukasz\\a.txt\nholds letters that the engine "
                                    "cannot take under the locale C.UTF-8: \"Ł\" (LATIN CAPITAL "
                                    "LETTER L WITH STROKE) (its code pages 1252 and 437 lack "
                                    "them). Nothing was run. To go on, rename it with other "
                                    "letters, or start Quovara with \"--archive-locale "
                                    "pl_PL.UTF-8\", a locale whose code pages have them."));
    EXPECT_FALSE(QFile::exists(places.path() + "/record.txt"));
}

// A fake wine that counts cold starts: when no server runs (no live pid in $QV_SERVER), it
// counts one and serves itself for the length of its job, as wine does without a persistent
// server. The fake server records its pid, counts its own start as the session's cold start,
// and runs until it is ended.
const QByteArray kCountingLauncher =
    "#!/bin/sh\n"
    "alive() { [ -s \"$QV_SERVER\" ] && kill -0 \"$(cat \"$QV_SERVER\")\" 2>/dev/null; }\n"
    "i=0; while ! alive && [ $i -lt 20 ]; do sleep 0.05; i=$((i+1)); done\n"
    "alive || echo cold >> \"$QV_COLD\"\n"
    "echo job >> \"$QV_JOBS\"\n";
const QByteArray kCountingServer = "#!/bin/sh\n"
                                   "echo cold >> \"$QV_COLD\"\n"
                                   "echo \"$@\" > \"$QV_SERVER_ARGS\"\n"
                                   "echo $$ > \"$QV_SERVER\"\n"
                                   "exec sleep 300\n";

TEST_F(Runner, TenJobsOfASessionPayOneColdStartOfTheLauncher) {
    writeFile(engine(), "MZ\x90\x00 a Windows program");
    const QString launcher = places.path() + "/wine";
    writeExecutable(launcher, kCountingLauncher);
    // Found beside the launcher, as a wine installation has it.
    writeExecutable(places.path() + "/wineserver", kCountingServer);
    for (const char* v : {"QV_SERVER", "QV_COLD", "QV_JOBS", "QV_SERVER_ARGS"})
        qputenv(v, (places.path() + "/" + QString::fromLatin1(v).toLower()).toLocal8Bit());
    qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    ASSERT_TRUE(WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "l"}));
    for (int i = 0; i < 10; ++i)
        ASSERT_TRUE(RunAndWait(script(names::ListScript), 0, places.path()));
    qunsetenv("QUOVARA_WINE");
    EXPECT_EQ(readAll(places.path() + "/qv_jobs").count("job"), 10);
    EXPECT_EQ(readAll(places.path() + "/qv_cold"), QByteArray("cold\n"));
    // Persistent, in the foreground, as this program's child.
    EXPECT_EQ(readAll(places.path() + "/qv_server_args"), QByteArray("-f -p600\n"));
    const qint64 server = LauncherServer::ProcessId();
    ASSERT_GT(server, 0);
    EXPECT_TRUE(alive(server));
    // It ends with the session.
    LauncherServer::Shutdown();
    EXPECT_FALSE(alive(server));
    EXPECT_EQ(LauncherServer::ProcessId(), 0);
}

TEST_F(Runner, WithoutAServerProgramEveryJobStillRuns) {
    writeFile(engine(), "MZ\x90\x00 a Windows program");
    QDir(places.path()).mkdir("bin");
    const QString launcher = places.path() + "/bin/wine";
    writeExecutable(launcher, kCountingLauncher);
    for (const char* v : {"QV_SERVER", "QV_COLD", "QV_JOBS"})
        qputenv(v, (places.path() + "/" + QString::fromLatin1(v).toLower()).toLocal8Bit());
    qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    qputenv("QUOVARA_WINESERVER", (places.path() + "/no-such-server").toLocal8Bit());
    ASSERT_TRUE(WriteJobScript(script(names::ListScript), Preamble::List, {quotedEngine() + "l"}));
    for (int i = 0; i < 2; ++i)
        ASSERT_TRUE(RunAndWait(script(names::ListScript), 0, places.path()));
    qunsetenv("QUOVARA_WINE");
    qunsetenv("QUOVARA_WINESERVER");
    EXPECT_EQ(readAll(places.path() + "/qv_jobs").count("job"), 2);
    EXPECT_EQ(readAll(places.path() + "/qv_cold"), QByteArray("cold\ncold\n"));
    EXPECT_EQ(LauncherServer::ProcessId(), 0);
}

namespace {
QStringList* g_logged = nullptr;
void keepMessage(QtMsgType, const QMessageLogContext&, const QString& message) {
    if (g_logged)
        *g_logged << message;
}
} // namespace

TEST_F(Runner, NoPasswordReachesTheDebugOutput) {
    EXPECT_EQ(MaskedArguments({"e", "-pwsecret", "-PWOther", "-o+", "a.uha"}),
              QStringList({"e", "-pw***", "-pw***", "-o+", "a.uha"}));
    writeExecutable(engine(), kRecordingEngine);
    qputenv("QV_RECORD", (places.path() + "/record.txt").toLocal8Bit());
    const QString password = QString::fromUtf8("s3cr\"et \\ \\n$(x) hasło");
    ASSERT_TRUE(
        WriteJobScript(script(names::ExtractScript), Preamble::Job,
                       {quotedEngine() + "e ",
                        "-pw\"" + Fragment::Value(password, "password") + "\" ", "\"/a/b.uha\""}));
    QStringList logged;
    g_logged = &logged;
    QLoggingCategory::setFilterRules(QStringLiteral("quovara.*.debug=true"));
    const QtMessageHandler old = qInstallMessageHandler(keepMessage);
    EXPECT_TRUE(RunAndWait(script(names::ExtractScript), 0, places.path()));
    qInstallMessageHandler(old);
    QLoggingCategory::setFilterRules(QString());
    g_logged = nullptr;
    ASSERT_FALSE(logged.isEmpty());
    bool masked = false;
    for (const QString& m : logged) {
        EXPECT_FALSE(m.contains("s3cr")) << m.toStdString();
        EXPECT_FALSE(m.contains(QString::fromUtf8("hasło"))) << m.toStdString();
        masked = masked || m.contains("-pw***");
    }
    EXPECT_TRUE(masked) << logged.join('\n').toStdString();
}
