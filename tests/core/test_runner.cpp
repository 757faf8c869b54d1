#include "core/jobprocess.h"
#include "core/jobscript.h"
#include "core/processcontrol.h"
#include "core/runner.h"
#include "test_support.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimer>
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

TEST(RunAndWait, RunsTheScriptsCommandWithItsVariablesAndRedirection) {
    QTemporaryDir dir;
    const QString engine = dir.filePath("uharc.exe");
    writeExecutable(engine, kRecordingEngine);
    const QString record = dir.filePath("record.txt");
    qputenv("QV_RECORD", record.toLocal8Bit());
    const QString script = dir.filePath("Archivia.bat");
    const QString das = dir.filePath("das.txt");
    ASSERT_TRUE(WriteJobScript(script, Preamble::Job,
                               {"\"" + dir.filePath("UHARC.exe") + "\" ", "a ",
                                "-pw\"a b;c&d$(touch " + dir.filePath("pwned") + ")\" ",
                                "\"" + dir.filePath("x y.uha") + "\"", " > " + das}));
    EXPECT_TRUE(RunAndWait(script, 0, dir.path()));
    EXPECT_EQ(readAll(das), QByteArray("engine output\r\n"));
    const QString expected = "a\n-pwa b;c&d$(touch " + dir.filePath("pwned") + ")\n" +
                             dir.filePath("x y.uha") + "\nnotty\nopt=[ -d2]\ncwd=" + dir.path() +
                             "\n";
    EXPECT_EQ(QString::fromLocal8Bit(readAll(record)), expected);
    EXPECT_FALSE(QFile::exists(dir.filePath("pwned")));
}

TEST(RunAndWait, MissingProgramIsAFailedStart) {
    QTemporaryDir dir;
    const QString script = dir.filePath("Apri.bat");
    WriteJobScript(script, Preamble::List, {"\"" + dir.filePath("uharc.exe") + "\" l"});
    QString error;
    EXPECT_FALSE(RunAndWait(script, 0, dir.path(), {}, &error));
    EXPECT_TRUE(error.contains("does not exist")) << error.toStdString();
}

TEST(RunAndWait, MissingScriptIsAFailedStart) {
    EXPECT_FALSE(RunAndWait("/nonexistent/Apri.bat", 0));
}

TEST(RunAndWait, WindowsEngineWithoutLauncherIsAFailedStart) {
    QTemporaryDir dir;
    writeFile(dir.filePath("uharc.exe"), "MZ\x90\x00 not really a program");
    const QString script = dir.filePath("Apri.bat");
    WriteJobScript(script, Preamble::List, {"\"" + dir.filePath("uharc.exe") + "\" l"});
    qputenv("QUOVARA_WINE", dir.filePath("no-such-launcher").toLocal8Bit());
    QString error;
    EXPECT_FALSE(RunAndWait(script, 0, dir.path(), {}, &error));
    EXPECT_TRUE(error.contains("launcher")) << error.toStdString();
    qunsetenv("QUOVARA_WINE");
}

TEST(RunAndWait, WindowsEngineRunsThroughTheLauncherWithATerminal) {
    QTemporaryDir dir;
    writeFile(dir.filePath("uharc.exe"), "MZ\x90\x00 a Windows program");
    const QString launcher = dir.filePath("fake-wine");
    writeExecutable(launcher, kRecordingEngine);
    const QString record = dir.filePath("record.txt");
    qputenv("QV_RECORD", record.toLocal8Bit());
    qputenv("QUOVARA_WINE", launcher.toLocal8Bit());
    const QString script = dir.filePath("Estrai.bat");
    WriteJobScript(script, Preamble::Job,
                   {"\"" + dir.filePath("Uharc.exe") + "\" ", "x ", "-t\"/out/dir\"", " -o+ ",
                    "\"/arch/a.uha\"", " !\"*.bak\"", " @\"/l/list.txt\"",
                    " > " + dir.filePath("das.txt")});
    EXPECT_TRUE(RunAndWait(script, 0, dir.path()));
    qunsetenv("QUOVARA_WINE");
    const QStringList lines = QString::fromLocal8Bit(readAll(record)).split('\n');
    ASSERT_GE(lines.size(), 8);
    EXPECT_EQ(lines[0], dir.filePath("uharc.exe"));
    EXPECT_EQ(lines[1], "x");
    EXPECT_EQ(lines[2], "-tZ:\\out\\dir");
    EXPECT_EQ(lines[3], "-o+");
    EXPECT_EQ(lines[4], "Z:\\arch\\a.uha");
    EXPECT_EQ(lines[5], "!*.bak");
    EXPECT_EQ(lines[6], "@Z:\\l\\list.txt");
    EXPECT_EQ(lines[7], "tty");
    EXPECT_EQ(readAll(dir.filePath("das.txt")), QByteArray("engine output\r\n"));
}

TEST(RunAndWait, TimeOutZeroWaitsAsLongAsTheProcessRuns) {
    QTemporaryDir dir;
    copyOfSleep(dir.path(), "qvsleeper");
    const QString script = dir.filePath("Apri.bat");
    WriteJobScript(script, Preamble::List, {"\"" + dir.filePath("qvsleeper") + "\" 0.6"});
    QElapsedTimer t;
    t.start();
    EXPECT_TRUE(RunAndWait(script, 0));
    EXPECT_GE(t.elapsed(), 550);
}

TEST(RunAndWait, KeepsTheEventLoopLiveWhileWaiting) {
    QTemporaryDir dir;
    copyOfSleep(dir.path(), "qvsleeper");
    const QString script = dir.filePath("Apri.bat");
    WriteJobScript(script, Preamble::List, {"\"" + dir.filePath("qvsleeper") + "\" 1"});
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++ticks; });
    timer.start(50);
    EXPECT_TRUE(RunAndWait(script, 0));
    EXPECT_GE(ticks, 10);
}

TEST(RunAndWait, TimeOutPastMidnightWaitsUntilTheClockHasWrapped) {
    QTemporaryDir dir;
    copyOfSleep(dir.path(), "qvsleeper");
    const QString script = dir.filePath("Apri.bat");
    WriteJobScript(script, Preamble::List, {"\"" + dir.filePath("qvsleeper") + "\" 30"});
    qint64 calls = 0;
    QList<qint64> seen;
    auto clock = [&] {
        const qint64 t = (86398 + calls++) % 86400;
        seen << t;
        return t;
    };
    QElapsedTimer elapsed;
    elapsed.start();
    EXPECT_TRUE(RunAndWait(script, 5, QString(), clock));
    EXPECT_LT(elapsed.elapsed(), 10000);
    // 86398 at the start, then 86399, 0, 1, 2 and finally 3, the deadline after midnight.
    EXPECT_EQ(seen, QList<qint64>({86398, 86399, 0, 1, 2, 3}));
    // The job goes on after the time-out; end it here.
    EXPECT_GT(TerminateProcessByName("qvsleeper"), 0);
}

TEST(RunAndWait, PlainTimeOutStopsWaitingAtTheDeadline) {
    QTemporaryDir dir;
    copyOfSleep(dir.path(), "qvsleeper");
    const QString script = dir.filePath("Apri.bat");
    WriteJobScript(script, Preamble::List, {"\"" + dir.filePath("qvsleeper") + "\" 30"});
    qint64 t = 1000;
    EXPECT_TRUE(RunAndWait(script, 3, QString(), [&] { return t++; }));
    EXPECT_EQ(t, 1004);
    EXPECT_GT(TerminateProcessByName("qvsleeper"), 0);
}

TEST(JobProcess, StartsAtTheLowestPriority) {
    QTemporaryDir dir;
    copyOfSleep(dir.path(), "qvsleeper");
    const QString script = dir.filePath("Apri.bat");
    WriteJobScript(script, Preamble::List, {"\"" + dir.filePath("qvsleeper") + "\" 5"});
    JobProcess job;
    ASSERT_TRUE(job.start(script));
    const QByteArray stat = readAll(QString("/proc/%1/stat").arg(job.processId()));
    // Field 19 of /proc/<pid>/stat is the nice value.
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    ASSERT_GT(fields.size(), 17);
    EXPECT_EQ(fields[16], "19");
    job.kill();
}

TEST(TerminateProcessByName, EndsOnlyTheFirstMatchWhateverItsCase) {
    QTemporaryDir dir;
    QDir(dir.path()).mkdir("a");
    QDir(dir.path()).mkdir("b");
    // Names of this test's own, so that no other engine of the user is touched.
    const QString lower = copyOfSleep(dir.filePath("a"), "qvtest.exe");
    const QString upper = copyOfSleep(dir.filePath("b"), "QVTEST.EXE");
    QProcess first, second;
    first.start(lower, {"30"});
    second.start(upper, {"30"});
    ASSERT_TRUE(first.waitForStarted());
    ASSERT_TRUE(second.waitForStarted());
    const qint64 expected = std::min(first.processId(), second.processId());
    const qint64 other = std::max(first.processId(), second.processId());

    EXPECT_EQ(TerminateProcessByName("QvTest.Exe"), expected);
    QProcess& ended = first.processId() == expected ? first : second;
    EXPECT_TRUE(ended.waitForFinished(5000));
    EXPECT_TRUE(alive(other));
    first.kill();
    second.kill();
    first.waitForFinished();
    second.waitForFinished();
}

TEST(TerminateProcessByName, NoMatchDoesNothing) {
    EXPECT_EQ(TerminateProcessByName("NO-SUCH-PROGRAM.EXE"), 0);
}
