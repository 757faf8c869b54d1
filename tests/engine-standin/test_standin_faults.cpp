// Tests of the stand-in engine's faults on demand (QUOVARA_STANDIN_FAULT): exit codes,
// signals, a hang and a failed write, each after the first progress output.
#include "test_standin_support.h"

using namespace standin_test;

namespace {

// ---------------------------------------------------------------------------------------
// Faults on demand (QUOVARA_STANDIN_FAULT)

class StandinFaultTest : public StandinTest {
protected:
    void SetUp() override {
        StandinTest::SetUp();
        for (int i = 0; i < 3; ++i)
            writeFile(path(QString("src/f%1.txt").arg(i)), textOfSize(1000 + i));
        ASSERT_EQ(run6({"a", "-y+", "f.uha", "src/*"}, dir.path()).exitCode, 0);
        archive = readFile(path("f.uha"));
        EngineRun l = run6({"l", "-y+", "f.uha"}, dir.path());
        auto lines = crlfLines(l.out);
        auto at = std::find(lines.begin(), lines.end(), "src\\f0.txt");
        ASSERT_NE(at, lines.end());
        f0Detail = QByteArray::fromStdString(*(at + 1));
        ASSERT_EQ(f0Detail.size(), 79);
    }
    EngineRun faulty(const QString& fault, const QStringList& args) {
        return run("0.6", args, dir.path(), {{"QUOVARA_STANDIN_FAULT", fault}});
    }
    // The command lines of every command; each writes per-file progress lines (-d2), the
    // listing its log.
    static std::vector<std::pair<std::string, QStringList>> commands() {
        return {{"a", {"a", "-y+", "-d2", "new.uha", "src/*"}},
                {"m", {"m", "-y+", "-d2", "new.uha", "src/*"}},
                {"e", {"e", "-y+", "-d2", "-tout", "f.uha"}},
                {"x", {"x", "-y+", "-d2", "-tout", "f.uha"}},
                {"t", {"t", "-y+", "-d2", "f.uha"}},
                {"l", {"l", "-d2", "-y+", "-lgLOG.txt", "f.uha"}}};
    }
    // What the run has written up to the fault: the first file's progress line, or the
    // listing up to its first entry.
    QByteArray firstProgress(const std::string& cmd) const {
        if (cmd == "a" || cmd == "m")
            return "-------------------------------------------------------------------------"
                   "------\r\n\rAdding src\\f0.txt                      Total:  0%          0 "
                   "         0    0.0%";
        if (cmd == "e")
            return QByteArray("\rExtracting out\\f0.txt") + QByteArray(48, ' ') + "Total:  0%";
        if (cmd == "x")
            return QByteArray("\rExtracting out\\src\\f0.txt") + QByteArray(44, ' ') + "Total:  0%";
        if (cmd == "t")
            return QByteArray("\rTesting src\\f0.txt") + QByteArray(51, ' ') + "Total:  0%";
        return QByteArray(79, '-') + "\r\nsrc\\f0.txt\r\n" + f0Detail + "\r\n";
    }
    void expectNothingChanged(const std::string& cmd) {
        EXPECT_EQ(readFile(path("f.uha")), archive);
        EXPECT_FALSE(QFile::exists(path("new.uha")));
        EXPECT_FALSE(QFile::exists(path("out/f0.txt")));
        EXPECT_FALSE(QFile::exists(path("out/src/f0.txt")));
        for (int i = 0; i < 3; ++i)
            EXPECT_TRUE(QFile::exists(path(QString("src/f%1.txt").arg(i)))) << cmd;
    }
    QByteArray archive;
    QByteArray f0Detail; // the listing's detail line of src\f0.txt
};

TEST_F(StandinFaultTest, ExitEndsAfterTheFirstProgressWithTheCodeAndNoError) {
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        QFile::remove(path("LOG.txt"));
        QFile::remove(path("UHA$0000.$$$"));
        EngineRun r = faulty("exit:7", args);
        EXPECT_EQ(r.exitCode, 7);
        EXPECT_FALSE(r.out.contains("ERROR:"));
        EXPECT_TRUE(r.out.endsWith(firstProgress(cmd))) << r.out.toStdString();
        expectNothingChanged(cmd);
        if (cmd == "a" || cmd == "m") {
            EXPECT_TRUE(QFile::exists(path("UHA$0000.$$$")));
        }
        if (cmd == "l") {
            // The log holds the listing up to its first entry, and no closing line.
            const QByteArray log = readFile(path("LOG.txt"));
            EXPECT_TRUE(log.contains("\r\nsrc\\f0.txt\r\n")) << log.toStdString();
            EXPECT_FALSE(log.contains("src\\f1.txt"));
            EXPECT_FALSE(log.contains(" packed ("));
            EXPECT_FALSE(log.contains(QByteArray(79, '=')));
            EXPECT_TRUE(log.endsWith(firstProgress(cmd).mid(81)));
        }
    }
    EXPECT_EQ(faulty("exit:0", {"t", "-y+", "-d2", "f.uha"}).exitCode, 0);
    EXPECT_EQ(faulty("exit:255", {"t", "-y+", "f.uha"}).exitCode, 255);
}

TEST_F(StandinFaultTest, SignalEndsTheRunByThatSignal) {
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        for (int sig : {9, 15, 2}) {
            EngineRun r = faulty("signal:" + QString::number(sig), args);
            EXPECT_EQ(r.exitCode, -2) << sig;
            EXPECT_EQ(r.signal, sig);
            EXPECT_FALSE(r.out.contains("ERROR:"));
            EXPECT_TRUE(r.out.endsWith(firstProgress(cmd))) << r.out.toStdString();
            expectNothingChanged(cmd);
        }
    }
    // A signal whose default action is to be ignored (SIGWINCH) lets the run finish.
    EngineRun ignored = faulty("signal:28", {"t", "-y+", "-d2", "f.uha"});
    EXPECT_EQ(ignored.exitCode, 0);
    EXPECT_TRUE(ignored.out.contains("All files OK"));
}

TEST_F(StandinFaultTest, HangWaitsForEverAfterTheFirstProgress) {
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        QFile::remove(path("LOG.txt"));
        QProcess p;
        QProcessEnvironment env = cleanEnvironment();
        env.insert("QUOVARA_STANDIN_FAULT", "hang");
        p.setProcessEnvironment(env);
        p.setWorkingDirectory(dir.path());
        p.start(engine("0.6"), args);
        ASSERT_TRUE(p.waitForStarted(10000));
        QByteArray seen;
        const QByteArray expected = firstProgress(cmd);
        while (!seen.endsWith(expected) && p.waitForReadyRead(10000))
            seen += p.readAllStandardOutput();
        EXPECT_TRUE(seen.endsWith(expected)) << seen.toStdString();
        EXPECT_FALSE(p.waitForFinished(700));
        EXPECT_EQ(p.state(), QProcess::Running);
        seen += p.readAllStandardOutput();
        EXPECT_TRUE(seen.endsWith(expected));
        if (cmd == "l") {
            EXPECT_TRUE(readFile(path("LOG.txt")).endsWith(expected.mid(81)));
        }
        p.kill();
        ASSERT_TRUE(p.waitForFinished(10000));
        expectNothingChanged(cmd);
    }
}

TEST_F(StandinFaultTest, EnospcIsAWriteFailure) {
    const QByteArray tail = "ERROR: No space left on device\r\nProcess aborted.\r\n";
    for (const auto& [cmd, args] : commands()) {
        SCOPED_TRACE(cmd);
        QFile::remove(path("LOG.txt"));
        EngineRun r = faulty("enospc", args);
        EXPECT_EQ(r.exitCode, 255);
        // After an open progress line the line is ended and the next one blanked.
        const QByteArray end =
            cmd == "l" ? firstProgress(cmd) + tail
                       : firstProgress(cmd) + "\r\n\r" + QByteArray(79, ' ') + "\r" + tail;
        EXPECT_TRUE(r.out.endsWith(end)) << r.out.toStdString();
        EXPECT_EQ(r.out.count("ERROR:"), 1);
        expectNothingChanged(cmd);
        // The add removes its temporary archive.
        EXPECT_FALSE(QFile::exists(path("UHA$0000.$$$")));
        if (cmd == "l") {
            EXPECT_TRUE(readFile(path("LOG.txt"))
                            .endsWith(firstProgress(cmd).mid(81) + tail + QByteArray(79, '=') +
                                      "\r\n\r\n"));
        }
    }
    // An add in display mode 1 has its progress line open too.
    EngineRun quiet = faulty("enospc", {"a", "-y+", "q.uha", "src/*"});
    EXPECT_EQ(quiet.exitCode, 255);
    EXPECT_TRUE(quiet.out.endsWith("Total:  0%          0          0    0.0%\r\n\r" +
                                   QByteArray(79, ' ') + "\r" + tail))
        << quiet.out.toStdString();
    EXPECT_FALSE(QFile::exists(path("q.uha")));
}

TEST_F(StandinFaultTest, AValueThatNamesNoFaultIsRefused) {
    for (const char* bad :
         {"exit", "exit:256", "exit:-1", "signal:0", "signal:x", "hang ", "full"}) {
        EngineRun r = faulty(bad, {"t", "-y+", "f.uha"});
        EXPECT_EQ(r.exitCode, 2) << bad;
        EXPECT_TRUE(r.out.isEmpty());
        EXPECT_EQ(r.err.toStdString(), "QUOVARA_STANDIN_FAULT=\"" + std::string(bad) +
                                           "\" names no fault (exit:N, signal:N, hang, enospc)\n");
    }
    EXPECT_EQ(faulty("", {"t", "-y+", "f.uha"}).exitCode, 0);
}

} // namespace
