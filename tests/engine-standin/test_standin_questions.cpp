// Tests of the stand-in engine's console question before an existing archive is replaced:
// answered from standard input and, one key without Enter, from a terminal.
#include "test_standin_support.h"

using namespace standin_test;

namespace {

// The console output after the banner (the blank line, three banner lines): the part that
// the stand-in writes as the engine does.
QByteArray afterBanner(const QByteArray& out) {
    qsizetype pos = 0;
    for (int i = 0; i < 4 && pos >= 0; ++i) {
        pos = out.indexOf("\r\n", pos);
        if (pos >= 0)
            pos += 2;
    }
    return pos < 0 ? QByteArray() : out.mid(pos);
}

// The capture's layout: the archive Z:\tmp\ucap\one.uha (a folder named "Z:" in the
// working folder here) holds src\one.txt; the add names src\two.txt (4 bytes).
class StandinQuestionTest : public StandinTest {
protected:
    void SetUp() override {
        StandinTest::SetUp();
        writeFile(path("Z:/tmp/ucap/src/one.txt"), "one!\r\n");
        writeFile(path("Z:/tmp/ucap/src/two.txt"), "two!");
        writeFile(path("Z:/tmp/ucap/src/three.txt"), "three");
        ASSERT_EQ(run6({"a", "-y+", kArchive, "Z:\\tmp\\ucap\\src\\one.txt"}, dir.path()).exitCode,
                  0);
        original = readFile(archiveFile());
        ASSERT_FALSE(original.isEmpty());
    }
    QString archiveFile() const { return path("Z:/tmp/ucap/one.uha"); }
    std::vector<std::string> storedNames() {
        QFile::remove(path("names.txt"));
        run6({"l", "-lgnames.txt", kArchive}, dir.path());
        return listedNames(readFile(path("names.txt")));
    }
    static constexpr const char* kArchive = "Z:\\tmp\\ucap\\one.uha";
    static constexpr const char* kSource = "Z:\\tmp\\ucap\\src\\two.txt";
    QByteArray original;
};

TEST_F(StandinQuestionTest, AsksAndWaitsForOneKeyThenNoLeavesTheArchive) {
    QProcess p;
    p.setProcessEnvironment(cleanEnvironment());
    p.setWorkingDirectory(dir.path());
    p.start(engine("0.6"), {"a", "-m2", kArchive, kSource});
    ASSERT_TRUE(p.waitForStarted(10000));
    QByteArray seen;
    while (!seen.endsWith("?") && p.waitForReadyRead(10000))
        seen += p.readAllStandardOutput();
    EXPECT_EQ(afterBanner(seen), afterBanner(sampleFile("add-existing-question.out")));
    expectSameLayout(sampleFile("add-existing-question.out"), seen, OutputKind::Console);
    // It waits for the key.
    EXPECT_FALSE(p.waitForFinished(500));
    p.write("n");
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(p.exitCode(), 255);
    seen += p.readAllStandardOutput();
    EXPECT_EQ(afterBanner(seen), afterBanner(sampleFile("add-existing-answer-n.out")));
    expectSameLayout(sampleFile("add-existing-answer-n.out"), seen, OutputKind::Console);
    EXPECT_EQ(readFile(archiveFile()), original);
    EXPECT_FALSE(QFile::exists(path("Z:/tmp/ucap/UHA$0000.$$$")));
}

TEST_F(StandinQuestionTest, YesReplacesTheArchiveWithTheNewFilesOnly) {
    EngineRun r = run("0.6", {"a", "-m2", kArchive, kSource}, dir.path(), {}, "y");
    ASSERT_EQ(r.exitCode, 0) << r.out.toStdString();
    const QByteArray sample = sampleFile("add-existing-answer-y.out");
    expectSameLayout(sample, r.out, OutputKind::Console);
    const QByteArray upToSearch =
        "\r\n\r" + QByteArray(79, ' ') + "\rArchive \"Z:\\tmp\\ucap\\one.uha\" already exists. " +
        "Overwrite (y/n) ?\r" + QByteArray(79, ' ') + "\rSearching files ...\r";
    EXPECT_TRUE(afterBanner(sample).startsWith(upToSearch));
    EXPECT_TRUE(afterBanner(r.out).startsWith(upToSearch));
    EXPECT_TRUE(hasLine(r.out, "Adding 1 file (4 bytes)                                 size     "
                               "packed   ratio"));
    EXPECT_TRUE(hasLine(r.out, "Using ALZ:2-mode (1 KB dictionary) with multimedia detection."));
    EXPECT_TRUE(hasLine(r.out, "Using 3.0 MB for compression and 50 KB for file buffers."));
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\two.txt"});
    ASSERT_EQ(run6({"x", "-y+", "-tout", kArchive}, dir.path()).exitCode, 0);
    EXPECT_EQ(readFile(path("out/tmp/ucap/src/two.txt")), "two!");
    EXPECT_FALSE(QFile::exists(path("out/tmp/ucap/src/one.txt")));
}

TEST_F(StandinQuestionTest, CapitalYAnswersYesAnyOtherKeyOrNoInputAnswersNo) {
    for (const QByteArray& key :
         {QByteArray("x"), QByteArray("N"), QByteArray(), QByteArray("\n"), QByteArray(" y")}) {
        SCOPED_TRACE(key.toStdString());
        EngineRun r = run("0.6", {"a", "-d2", kArchive, kSource}, dir.path(), {}, key);
        EXPECT_EQ(r.exitCode, 255);
        EXPECT_TRUE(r.out.endsWith("Overwrite (y/n) ?\r" + QByteArray(79, ' ') +
                                   "\rERROR: Can't create archive file\r\nProcess aborted.\r\n"))
            << r.out.toStdString();
        EXPECT_EQ(readFile(archiveFile()), original);
    }
    // One byte is read: "Yes" answers with its "Y".
    EngineRun r =
        run("0.6", {"a", kArchive, "Z:\\tmp\\ucap\\src\\three.txt"}, dir.path(), {}, "Yes\r\n");
    ASSERT_EQ(r.exitCode, 0) << r.out.toStdString();
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\three.txt"});
}

TEST_F(StandinQuestionTest, MoveAsksTooAndKeepsItsSourcesOnNo) {
    EngineRun no = run("0.6", {"m", kArchive, kSource}, dir.path(), {}, "n");
    EXPECT_EQ(no.exitCode, 255);
    EXPECT_TRUE(no.out.contains("already exists. Overwrite (y/n) ?"));
    EXPECT_TRUE(QFile::exists(path("Z:/tmp/ucap/src/two.txt")));
    EXPECT_EQ(readFile(archiveFile()), original);
    EngineRun yes = run("0.6", {"m", kArchive, kSource}, dir.path(), {}, "y");
    EXPECT_EQ(yes.exitCode, 0);
    EXPECT_FALSE(QFile::exists(path("Z:/tmp/ucap/src/two.txt")));
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\two.txt"});
}

// A pseudo-terminal as the engine's standard input: one key without Enter answers, the key
// is not echoed, and the terminal settings are back afterwards.
class StandinTerminalTest : public StandinQuestionTest {
protected:
    void SetUp() override {
        StandinQuestionTest::SetUp();
        master = posix_openpt(O_RDWR | O_NOCTTY);
        ASSERT_GE(master, 0);
        ASSERT_EQ(grantpt(master), 0);
        ASSERT_EQ(unlockpt(master), 0);
        slaveName = QString::fromLocal8Bit(ptsname(master));
        slave = ::open(ptsname(master), O_RDWR | O_NOCTTY);
        ASSERT_GE(slave, 0);
        fcntl(master, F_SETFL, fcntl(master, F_GETFL) | O_NONBLOCK);
        ASSERT_EQ(tcgetattr(slave, &before), 0);
        ASSERT_TRUE(before.c_lflag & ICANON);
        ASSERT_TRUE(before.c_lflag & ECHO);
    }
    void TearDown() override {
        if (slave >= 0)
            ::close(slave);
        if (master >= 0)
            ::close(master);
    }
    // Starts the add with the terminal as standard input and waits until the question is
    // out and the terminal reads single keys.
    void startAsking(QProcess& p) {
        p.setProcessEnvironment(cleanEnvironment());
        p.setWorkingDirectory(dir.path());
        p.setStandardInputFile(slaveName);
        p.start(engine("0.6"), {"a", kArchive, kSource});
        ASSERT_TRUE(p.waitForStarted(10000));
        QByteArray seen;
        while (!seen.endsWith("Overwrite (y/n) ?") && p.waitForReadyRead(10000))
            seen += p.readAllStandardOutput();
        ASSERT_TRUE(seen.endsWith("Overwrite (y/n) ?"));
        QElapsedTimer t;
        t.start();
        struct termios now {};
        for (;;) {
            ASSERT_EQ(tcgetattr(slave, &now), 0);
            if (!(now.c_lflag & ICANON) || t.elapsed() > 5000)
                break;
            QThread::msleep(10);
        }
        EXPECT_FALSE(now.c_lflag & ICANON);
        EXPECT_FALSE(now.c_lflag & ECHO);
    }
    void expectSettingsBack() {
        struct termios after {};
        ASSERT_EQ(tcgetattr(slave, &after), 0);
        EXPECT_EQ(after.c_lflag, before.c_lflag);
        EXPECT_EQ(after.c_cc[VMIN], before.c_cc[VMIN]);
        EXPECT_EQ(after.c_cc[VTIME], before.c_cc[VTIME]);
    }
    int master = -1;
    int slave = -1;
    QString slaveName;
    struct termios before {};
};

TEST_F(StandinTerminalTest, OneKeyWithoutEnterAnswers) {
    QProcess p;
    startAsking(p);
    ASSERT_EQ(::write(master, "y", 1), 1);
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardOutput().toStdString();
    EXPECT_EQ(storedNames(), std::vector<std::string>{"tmp\\ucap\\src\\two.txt"});
    char echoed[16];
    EXPECT_LE(::read(master, echoed, sizeof echoed), 0); // nothing was echoed
    expectSettingsBack();
}

TEST_F(StandinTerminalTest, SettingsComeBackWhenTheWaitIsEndedBySignal) {
    QProcess p;
    startAsking(p);
    p.terminate();
    ASSERT_TRUE(p.waitForFinished(10000));
    EXPECT_EQ(p.exitStatus(), QProcess::CrashExit);
    expectSettingsBack();
    EXPECT_EQ(readFile(archiveFile()), original);
}

} // namespace
