// Tests of the stand-in engine's console and log layouts against output captured from the
// real engine (tests/data/engine-samples).
#include "test_standin_support.h"

using namespace standin_test;

namespace {

// ---------------------------------------------------------------------------------------
// Layouts against the captured engine output

TEST(StandinLayoutCheck, NoticesAMovedColumnAndAChangedWord) {
    const QByteArray add = sampleFile("add-alz3.out");
    QByteArray moved = add;
    ASSERT_EQ(moved.count("      14208       2482"), 1);
    moved.replace("      14208       2482", "     14208        2482");
    EXPECT_NONFATAL_FAILURE(expectSameLayout(add, moved, OutputKind::Console), "number");
    const QByteArray sample = sampleFile("test-ok.out");
    QByteArray changed = sample;
    changed.replace("All files OK", "All files ok");
    EXPECT_NONFATAL_FAILURE(expectSameLayout(sample, changed, OutputKind::Console), "word");
    EXPECT_FATAL_FAILURE(expectSameLayout(sampleFile("test-ok.out"),
                                          sampleFile("test-ok.out") + "\r\n", OutputKind::Console),
                         "stand-in output");
}

class StandinLayoutTest : public StandinTest {
protected:
    void SetUp() override {
        StandinTest::SetUp();
        makeSampleTree(dir.path());
        EngineRun a = run6({"a", "-m3", "-md32768", "-r+", "-y+", "-d2", "test.uha", "folder\\*"},
                           dir.path());
        ASSERT_EQ(a.exitCode, 0);
        addOutput = a.out;
    }
    QByteArray addOutput;
};

TEST_F(StandinLayoutTest, AddOutputMatchesTheEngine) {
    const QByteArray sample = sampleFile("add-alz3.out");
    ASSERT_FALSE(sample.isEmpty());
    expectSameLayout(sample, addOutput, OutputKind::Console);
    expectSameNames(sample, addOutput);
    EXPECT_TRUE(addOutput.contains(
        "\r\nSearching files ...\rAnalysing files ...  0%\b\b\b12%\b\b\b25%\b\b\b37%\b\b\b50%"
        "\b\b\b62%\b\b\b75%\b\b\b87%\b\b\b99%\r" +
        QByteArray(79, ' ') + "\rCreating archive \"test.uha\".\r\n"));
    EXPECT_TRUE(hasLine(addOutput, "Using ALZ:3-mode (128 KB dictionary) with multimedia "
                                   "detection."));
    EXPECT_TRUE(hasLine(addOutput, "Adding folder\\random.bin                               "
                                   "30000      30001  100.0%"));
}

TEST_F(StandinLayoutTest, ListingLogMatchesTheEngine) {
    EngineRun l = run6({"l", "-d2", "-y+", "-lgLOG.txt", "test.uha"}, dir.path());
    ASSERT_EQ(l.exitCode, 0);
    const QByteArray log = readFile(path("LOG.txt"));
    expectSameLayout(sampleFile("list-alz3.log"), log, OutputKind::Log);
    expectSameNames(sampleFile("list-alz3.log"), log);
    auto lines = crlfLines(log);
    EXPECT_EQ(lines[8], std::string(79, '-'));
    ASSERT_GE(lines.size(), 14u);
    EXPECT_EQ(lines[lines.size() - 4], "8 files                           110354");
    EXPECT_EQ(lines[lines.size() - 3].substr(40, 19), " packed (ALZ:3-mode");
    EXPECT_EQ(listedNames(log), listedNames(sampleFile("list-alz3.log")));
    EXPECT_EQ(lines[2], "Environment: \"\"");
}

TEST_F(StandinLayoutTest, PpmListingMatchesTheEngine) {
    ASSERT_EQ(run6({"a", "-mx", "-r+", "-y+", "test_mx.uha", "folder\\*"}, dir.path()).exitCode, 0);
    EngineRun l = run6({"l", "-d2", "-y+", "-lgLOG.txt", "test_mx.uha"}, dir.path());
    ASSERT_EQ(l.exitCode, 0);
    expectSameLayout(sampleFile("list-ppm.log"), readFile(path("LOG.txt")), OutputKind::Log);
}

TEST_F(StandinLayoutTest, ExtractOutputMatchesTheEngine) {
    EngineRun x = run6({"x", "-d2", "-o+", "-tout_x", "-y+", "test.uha"}, dir.path());
    ASSERT_EQ(x.exitCode, 0);
    const QByteArray sample = sampleFile("extract-with-paths.out");
    expectSameLayout(sample, x.out, OutputKind::Console);
    expectSameNames(sample, x.out);
    EXPECT_TRUE(
        hasLine(x.out, "Extracting out_x\\folder\\read me with spaces.txt" + std::string(32, ' ')));
}

TEST_F(StandinLayoutTest, TestOutputMatchesTheEngine) {
    EngineRun t = run6({"t", "-d2", "-y+", "-lgLOG.txt", "test.uha"}, dir.path());
    ASSERT_EQ(t.exitCode, 0);
    const QByteArray sample = sampleFile("test-ok.out");
    expectSameLayout(sample, t.out, OutputKind::Console);
    expectSameNames(sample, t.out);
    auto lines = crlfLines(t.out);
    EXPECT_TRUE(QRegularExpression("^Completed successfully \\(\\d\\.\\d sec\\) +All files OK$")
                    .match(QString::fromStdString(lines.back()))
                    .hasMatch())
        << lines.back();
    EXPECT_EQ(lines.back().size(), 79u);
}

TEST_F(StandinLayoutTest, CrcErrorOutputMatchesTheEngine) {
    // The engine's sample damaged the sixth file and reported it while the seventh started.
    QByteArray arc = readFile(path("test.uha"));
    auto entries = rawEntries(arc);
    ASSERT_EQ(entries.size(), 8u);
    const auto& e = entries[5];
    ASSERT_GT(e.dataLen, 8);
    for (int k = 0; k < 4; ++k)
        arc[e.dataPos + e.dataLen / 2 + k] = static_cast<char>(~arc[e.dataPos + e.dataLen / 2 + k]);
    writeFile(path("flip.uha"), arc);
    EngineRun t = run6({"t", "-d2", "-y+", "-lgLOG.txt", "flip.uha"}, dir.path());
    EXPECT_EQ(t.exitCode, 255);
    expectSameLayout(sampleFile("test-crc-error.out"), t.out, OutputKind::Console);
    EXPECT_TRUE(hasLine(t.out, "ERROR: CRC-failure (file \"" + e.name + "\")"));
    EXPECT_TRUE(readFile(path("LOG.txt"))
                    .contains(QByteArray::fromStdString("ERROR: CRC-failure (file \"" + e.name +
                                                        "\")\r\nProcess aborted.\r\n")));
}

} // namespace
