#include "engine/consolereader.h"

#include "printers.h"
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace quovara;

namespace {

QByteArray sample(const char* name) {
    QFile f(QStringLiteral(QUOVARA_TEST_DATA "/console/") + QString::fromLatin1(name));
    if (!f.open(QIODevice::ReadOnly))
        ADD_FAILURE() << "missing test data " << name;
    return f.readAll();
}

ConsoleState wholeRead(const QByteArray& bytes, ConsoleJob job) {
    ConsoleState s;
    ReadConsoleOutput(bytes, job, s);
    return s;
}

::testing::AssertionResult sameState(const ConsoleState& a, const ConsoleState& b) {
    if (a == b)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << "incremental: line " << a.lineCount << " job '" << a.progress.jobText.toStdString()
           << "' % " << a.progress.percent << " bar " << a.barValue << " total "
           << a.progress.totalMB << " sizes '" << a.sizesText.toStdString() << "' error '"
           << a.errorMessage.toStdString() << "'\n whole read: line " << b.lineCount << " job '"
           << b.progress.jobText.toStdString() << "' % " << b.progress.percent << " bar "
           << b.barValue << " total " << b.progress.totalMB << " sizes '"
           << b.sizesText.toStdString() << "' error '" << b.errorMessage.toStdString() << "'";
}

// Feeds `bytes` in random appended chunks and compares every round with a whole re-read of
// what has been written so far (the re-read keeps its state between rounds, as the window
// does).
void checkRandomSplits(const QByteArray& bytes, ConsoleJob job, quint32 seed, int runs) {
    QRandomGenerator rng(seed);
    for (int run = 0; run < runs; ++run) {
        ConsoleReader reader(job);
        ConsoleState reference;
        qsizetype written = 0;
        int round = 0;
        // Small chunks in some runs (splits inside CR LF and inside lines), big ones in others.
        const int maxChunk = run % 3 == 0 ? 3 : (run % 3 == 1 ? 40 : 400);
        while (written < bytes.size() || round == 0) {
            const qsizetype chunk =
                qMin<qsizetype>(bytes.size() - written, rng.bounded(maxChunk + 1));
            reader.feed(bytes.mid(written, chunk));
            written += chunk;
            ReadConsoleOutput(bytes.left(written), job, reference);
            ASSERT_TRUE(sameState(reader.state(), reference))
                << "seed " << seed << " run " << run << " round " << round << " at byte "
                << written;
            ++round;
        }
        // Rounds with nothing new change nothing.
        reader.feed(QByteArray());
        ReadConsoleOutput(bytes, job, reference);
        ASSERT_TRUE(sameState(reader.state(), reference));
        EXPECT_EQ(reader.bytesRead(), bytes.size());
    }
}

} // namespace

TEST(ConsoleOutput, AddSampleEndsOnItsLastProgressLine) {
    const ConsoleState s = wholeRead(sample("add-alz3.out"), ConsoleJob::Add);
    EXPECT_FALSE(s.hasError());
    EXPECT_TRUE(s.progress.totalSeen);
    EXPECT_DOUBLE_EQ(s.progress.totalMB, 0.1);
    EXPECT_EQ(s.progress.jobText, QStringLiteral("Adding folder\\pattern.dat              "));
    EXPECT_DOUBLE_EQ(s.progress.percent, 53);
    EXPECT_DOUBLE_EQ(s.progress.doneMB, 0.1);
    EXPECT_DOUBLE_EQ(s.progress.packedMB, 0.0);
    EXPECT_EQ(s.progress.ratioText, QStringLiteral("64.8%"));
    EXPECT_EQ(s.sizesText,
              QStringLiteral("Progress: 0.1 MB (Packed  0 MB) of 0.1 MB Ratio: 64.8%"));
    EXPECT_EQ(s.barValue, 53);
    EXPECT_EQ(s.lineCount, 40);
}

TEST(ConsoleOutput, AddSampleHalfWritten) {
    const QByteArray all = sample("add-alz3.out");
    // Up to the end of the sub\notes.txt progress line.
    const QByteArray marker = "Total: 12%      14208       2482   17.5%";
    const qsizetype cut = all.indexOf(marker) + marker.size();
    const ConsoleState s = wholeRead(all.left(cut), ConsoleJob::Add);
    EXPECT_EQ(s.progress.jobText, QStringLiteral("Adding folder\\sub\\notes.txt            "));
    EXPECT_DOUBLE_EQ(s.progress.percent, 12);
    EXPECT_EQ(s.sizesText, QStringLiteral("Progress: 0 MB (Packed  0 MB) of 0.1 MB Ratio: 17.5%"));
    EXPECT_EQ(s.barValue, 12);
}

TEST(ConsoleOutput, ExtractSampleShowsItsLastLine) {
    const ConsoleState s = wholeRead(sample("extract-with-paths.out"), ConsoleJob::Extract);
    EXPECT_FALSE(s.hasError());
    EXPECT_EQ(s.lineCount, 36);
    // The closing line is a progress line too: columns 1-69 trimmed, 76-79 read as 0.
    EXPECT_EQ(
        s.progress.jobText,
        QStringLiteral("Completed successfully (0.2 sec)                                   Al"));
    EXPECT_DOUBLE_EQ(s.progress.percent, 0);
    EXPECT_EQ(s.barValue, 0);
}

TEST(ConsoleOutput, ExtractSampleMidway) {
    const QByteArray all = sample("extract-with-paths.out");
    const QByteArray marker = "Extracting out_x\\folder\\sub\\data.bin                       "
                              "          Total: 44%";
    const qsizetype cut = all.indexOf(marker) + marker.size();
    ASSERT_GT(cut, marker.size());
    const ConsoleState s = wholeRead(all.left(cut), ConsoleJob::Extract);
    EXPECT_EQ(s.progress.jobText, QStringLiteral("Extracting out_x\\folder\\sub\\data.bin"));
    EXPECT_DOUBLE_EQ(s.progress.percent, 44);
    EXPECT_EQ(s.barValue, 44);
}

TEST(ConsoleOutput, TwelveHeaderLinesNeverMoveTheBar) {
    const QByteArray all = sample("test-ok.out");
    // The first twelve lines include the first "Total:  0%" line; even a header line that
    // looks like progress changes nothing.
    QByteArray twelve = all;
    twelve.replace(
        "Testing folder\\empty.txt                                             Total:  0%",
        "Testing folder\\empty.txt                                             Total: 77%");
    QStringList lines = SplitConsoleLines(twelve);
    ASSERT_GE(lines.size(), 13);
    ASSERT_TRUE(lines[11].endsWith(QStringLiteral("Total: 77%")));
    const qsizetype cut = twelve.indexOf("Total: 77%") + 10;
    const ConsoleState s = wholeRead(twelve.left(cut), ConsoleJob::Test);
    EXPECT_EQ(s.lineCount, 12);
    EXPECT_EQ(s.progress.jobText, QString());
    EXPECT_DOUBLE_EQ(s.progress.percent, 0);
    EXPECT_EQ(s.barValue, 0);
    // The thirteenth line is the first progress line.
    const ConsoleState t = wholeRead(twelve.left(cut + 3), ConsoleJob::Test);
    EXPECT_EQ(t.lineCount, 13);
    EXPECT_EQ(t.progress.jobText, QStringLiteral("Te"));
}

TEST(ConsoleOutput, TestCrcErrorStopsAtTheErrorInTheBody) {
    const ConsoleState s = wholeRead(sample("test-crc-error.out"), ConsoleJob::Test);
    EXPECT_EQ(s.errorMessage, QStringLiteral(" CRC-failure (file \"folder\\random.bin\")"));
    EXPECT_FALSE(s.errorInHeader);
    EXPECT_FALSE(s.versionRequest);
    EXPECT_FALSE(s.fileClosed);
    EXPECT_EQ(s.lineCount, 33);
    // The line before the error is the engine's blanking line.
    EXPECT_EQ(s.progress.jobText, QString());
    EXPECT_DOUBLE_EQ(s.progress.percent, 0);
    EXPECT_EQ(s.barValue, 0);
    // Just before the error the bar showed the data.bin line.
    const QByteArray all = sample("test-crc-error.out");
    const ConsoleState before =
        wholeRead(all.left(all.indexOf("Total: 44%") + 10), ConsoleJob::Test);
    EXPECT_EQ(before.barValue, 44);
    EXPECT_EQ(before.progress.jobText, QStringLiteral("Testing folder\\sub\\data.bin"));
}

TEST(ConsoleOutput, VersionRequestInTheHeaderLines) {
    const ConsoleState s = wholeRead(sample("extract-version-request.out"), ConsoleJob::Extract);
    EXPECT_EQ(s.errorMessage,
              QStringLiteral(" Archive was created by another version of UHARC --> use UHARC "
                             "version 0.4"));
    EXPECT_TRUE(s.errorInHeader);
    EXPECT_TRUE(s.versionRequest);
    EXPECT_TRUE(s.fileClosed);
    EXPECT_EQ(s.lineCount, 7);
    EXPECT_EQ(s.progress.jobText, QString());
    // The last three characters of the trimmed message name the version asked for.
    EXPECT_EQ(s.errorMessage.trimmed().right(3), QStringLiteral("0.4"));
}

TEST(ConsoleOutput, PasswordErrorInTheHeaderLines) {
    const ConsoleState s = wholeRead(sample("extract-password-required.out"), ConsoleJob::Extract);
    EXPECT_EQ(s.errorMessage, QStringLiteral(" Archive requires a password to access "));
    EXPECT_TRUE(s.errorInHeader);
    EXPECT_FALSE(s.versionRequest);
    EXPECT_FALSE(s.fileClosed);
}

TEST(ConsoleOutput, AddJobErrorAndVersionRequestAreErrors) {
    const ConsoleState s = wholeRead(sample("add-cannot-create.out"), ConsoleJob::Add);
    EXPECT_EQ(s.errorMessage, QStringLiteral(" Can't create archive file"));
    EXPECT_FALSE(s.errorInHeader);
    EXPECT_EQ(s.lineCount, 7);
    EXPECT_FALSE(s.progress.totalSeen);

    QByteArray add = sample("add-alz3.out");
    const qsizetype at = add.indexOf("Adding 8 files");
    add.insert(at, "ERROR: x --> use UHARC version 0.4\r\n");
    const ConsoleState v = wholeRead(add, ConsoleJob::Add);
    EXPECT_TRUE(v.versionRequest);
    EXPECT_TRUE(v.fileClosed);
    EXPECT_FALSE(v.errorInHeader);
    EXPECT_FALSE(v.progress.totalSeen);
}

TEST(ConsoleOutput, OnlyTheFirstHeaderOfARunCounts) {
    ConsoleState s;
    ReadConsoleOutput("Adding 1 files (1048576 bytes) size packed ratio\r\n", ConsoleJob::Add, s);
    EXPECT_DOUBLE_EQ(s.progress.totalMB, 1.0);
    // A later round that finds a different header keeps the first one.
    ReadConsoleOutput("Adding 1 files (2097152 bytes) size packed ratio\r\n", ConsoleJob::Add, s);
    EXPECT_DOUBLE_EQ(s.progress.totalMB, 1.0);
}

TEST(ConsoleReader, FollowsRealOutputsThroughAnySplit) {
    const struct {
        const char* file;
        ConsoleJob job;
    } cases[] = {
        {"add-alz3.out", ConsoleJob::Add},
        {"extract-with-paths.out", ConsoleJob::Extract},
        {"test-ok.out", ConsoleJob::Test},
        {"test-crc-error.out", ConsoleJob::Test},
        {"extract-version-request.out", ConsoleJob::Extract},
        {"extract-password-required.out", ConsoleJob::Extract},
        {"add-cannot-create.out", ConsoleJob::Add},
        // Outputs read with the other job's rules are just as good a test of the reader.
        {"add-alz3.out", ConsoleJob::Extract},
        {"test-crc-error.out", ConsoleJob::Add},
    };
    quint32 seed = 20240601;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.file);
        checkRandomSplits(sample(c.file), c.job, seed++, 150);
    }
}

TEST(ConsoleReader, CrAtTheEndMayBeHalfOfCrLf) {
    ConsoleReader r(ConsoleJob::Extract);
    r.feed("a\r");
    EXPECT_EQ(r.state().lineCount, 1);
    r.feed("\n");
    EXPECT_EQ(r.state().lineCount, 1);
    r.feed("\r");
    EXPECT_EQ(r.state().lineCount, 2);
    r.feed("b");
    EXPECT_EQ(r.state().lineCount, 3);
    EXPECT_EQ(wholeRead("a\r\n\rb", ConsoleJob::Extract).lineCount, 3);
}

TEST(ConsoleReader, UnfinishedLinesThatChangeTheirMeaning) {
    // Lines whose partial forms parse differently from their final forms; every round must
    // still agree with a whole re-read.
    QByteArray out;
    out += "Adding x (12";
    out += "34 bytes) size packed ratio\r\n";
    out += "Adding ... me with spaces.txt          Total: 15%      17600       3022   17.2%\r";
    out += "Adding z                               Total: 9e99%\r";
    out += "Adding z                               Total: 9";
    out += "ERROR: a --> use UHARC version 0.4";
    out += "\r\n";
    for (ConsoleJob job : {ConsoleJob::Add, ConsoleJob::Extract}) {
        checkRandomSplits(out, job, 7, 300);
        QByteArray header(13 * 3, '\r');
        header += out;
        checkRandomSplits(header, job, 8, 100);
    }
}

TEST(ConsoleReader, HeaderNumberSeenWhileStillBeingWritten) {
    // The add header matches before its number is complete when the "(" comes late: the
    // first round that sees the header takes its number, as a re-reading window would.
    ConsoleReader r(ConsoleJob::Add);
    ConsoleState reference;
    const QByteArray a = "Adding file size packed ratio (1048";
    const QByteArray b = "576\r\n";
    r.feed(a);
    ReadConsoleOutput(a, ConsoleJob::Add, reference);
    EXPECT_TRUE(sameState(r.state(), reference));
    r.feed(b);
    ReadConsoleOutput(a + b, ConsoleJob::Add, reference);
    EXPECT_TRUE(sameState(r.state(), reference));
    EXPECT_DOUBLE_EQ(r.state().progress.totalMB, 0.0);
}

TEST(ConsoleReader, ProgressLineBeforeTheHeaderTakesTheTotalOfLaterRounds) {
    // A re-reading window reads the progress line with no total in the round that first sees
    // the header after it, and with that header's total in every later round.
    const QByteArray progress =
        "Adding folder\\a.txt                  Total: 50%     524288          0    0.0%\r\n";
    const QByteArray header = "Adding 8 files (2097152 bytes)    size     packed   ratio\r\n";
    ConsoleReader r(ConsoleJob::Add);
    ConsoleState reference;
    r.feed(progress + header);
    ReadConsoleOutput(progress + header, ConsoleJob::Add, reference);
    EXPECT_TRUE(sameState(r.state(), reference));
    EXPECT_EQ(r.state().sizesText, "Progress: 0.5 MB (Packed  0 MB) of 0 MB Ratio: 0.0%");
    r.feed("more");
    ReadConsoleOutput(progress + header + "more", ConsoleJob::Add, reference);
    EXPECT_TRUE(sameState(r.state(), reference));
    EXPECT_EQ(r.state().sizesText, "Progress: 0.5 MB (Packed  0 MB) of 2 MB Ratio: 0.0%");
}

TEST(ConsoleReader, StopsAtACompleteErrorLine) {
    ConsoleReader r(ConsoleJob::Test);
    r.feed(sample("test-crc-error.out"));
    EXPECT_TRUE(r.finished());
    const ConsoleState before = r.state();
    r.feed("\rTesting more                                                    Total: 99%\r\n");
    EXPECT_EQ(r.state(), before);
}

TEST(ConsoleReader, ReadsTheFileAsItGrows) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    const QString path = dir.filePath("das.txt");
    const QByteArray all = sample("add-alz3.out");
    ConsoleReader reader(ConsoleJob::Add, path);
    // No file yet: a round with nothing.
    EXPECT_FALSE(reader.poll());
    EXPECT_EQ(reader.state().lineCount, 0);

    QFile writer(path);
    ASSERT_TRUE(writer.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    ConsoleState reference;
    for (qsizetype at = 0; at < all.size(); at += 97) {
        ASSERT_EQ(writer.write(all.mid(at, 97)), qMin<qsizetype>(97, all.size() - at));
        ASSERT_TRUE(reader.poll());
        ReadConsoleOutput(all.left(qMin(at + 97, all.size())), ConsoleJob::Add, reference);
        ASSERT_TRUE(sameState(reader.state(), reference)) << at;
    }
    writer.close();
    EXPECT_EQ(reader.bytesRead(), all.size());
    EXPECT_EQ(reader.state().progress.percent, 53);
    EXPECT_EQ(reader.state().sizesText,
              QStringLiteral("Progress: 0.1 MB (Packed  0 MB) of 0.1 MB Ratio: 64.8%"));
}

TEST(ConsoleReader, TimeFieldsWrittenByTheWindowSurviveRounds) {
    ConsoleReader r(ConsoleJob::Extract);
    r.progress().startTime = QDateTime::fromSecsSinceEpoch(1000);
    r.progress().elapsedSeconds = 12;
    r.feed(sample("extract-with-paths.out").left(900));
    EXPECT_EQ(r.state().progress.startTime, QDateTime::fromSecsSinceEpoch(1000));
    EXPECT_EQ(r.state().progress.elapsedSeconds, 12);
}
