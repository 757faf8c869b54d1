#include "engine/progress.h"

#include "printers.h"
#include <QDateTime>

#include <gtest/gtest.h>

using namespace quovara;

namespace {

// An add progress line laid out in the engine's columns (79 characters).
const QString AddLine53 = QStringLiteral(
    "Adding folder\\pattern.dat              Total: 53%      59168      38334   64.8%");
const QString AddHeader = QStringLiteral(
    "Adding 8 files (110354 bytes)                           size     packed   ratio");

// The engine's add progress layout: job text in 39 columns, "Total:", per cent, done and
// packed bytes in 11 columns each, the ratio in 8.
QString addProgressLine(const QString& job, int percent, qint64 done, qint64 packed, double ratio) {
    return job.leftJustified(39, QLatin1Char(' '), true) + QStringLiteral("Total:") +
           QString::asprintf("%3d%%%11lld%11lld%7.1f%%", percent, static_cast<long long>(done),
                             static_cast<long long>(packed), ratio);
}

} // namespace

TEST(ScanEngineError, PasswordMessageKeepsItsLeadingBlank) {
    const EngineErrorScan r = ScanEngineError("ERROR: Archive requires a password to access");
    EXPECT_EQ(r.message, QStringLiteral(" Archive requires a password to access"));
    EXPECT_FALSE(r.closeFile);
    EXPECT_TRUE(r.isError());
}

TEST(ScanEngineError, DetailArrowIsCutBeforeTheFirstDoubleDash) {
    EXPECT_EQ(ScanEngineError("ERROR: Can't open file --> C:\\x.txt").message,
              QStringLiteral(" Can't open file "));
    EXPECT_EQ(
        ScanEngineError("ERROR: Archive requires a password to access --> use switch -pw[password]")
            .message,
        QStringLiteral(" Archive requires a password to access "));
    // The cut is at the first "--", even before the arrow.
    EXPECT_EQ(ScanEngineError("ERROR: a -- b --> c").message, QStringLiteral(" a "));
    EXPECT_EQ(ScanEngineError("ERROR: a---> c").message, QStringLiteral(" a"));
    EXPECT_EQ(ScanEngineError("ERROR:-->").message, QString());
}

TEST(ScanEngineError, OnlyUpperCaseAtTheVeryStartIsAnError) {
    EXPECT_FALSE(ScanEngineError("error: Archive requires a password to access").isError());
    EXPECT_FALSE(ScanEngineError(" ERROR: Archive requires a password to access").isError());
    EXPECT_FALSE(ScanEngineError("Error: x").isError());
    EXPECT_FALSE(ScanEngineError(QString()).isError());
    EXPECT_FALSE(ScanEngineError("ERROR").isError());
    // "ERROR:" alone is an error line with nothing to show.
    EXPECT_EQ(ScanEngineError("ERROR:").message, QString());
}

TEST(ScanEngineError, MessageWithoutArrowIsKeptWhole) {
    EXPECT_EQ(ScanEngineError("ERROR: CRC-failure (file \"folder\\random.bin\")").message,
              QStringLiteral(" CRC-failure (file \"folder\\random.bin\")"));
    EXPECT_EQ(ScanEngineError("ERROR: Can't create archive file").message,
              QStringLiteral(" Can't create archive file"));
}

TEST(ScanEngineError, VersionRequestIsReturnedWholeAndClosesTheFile) {
    const EngineErrorScan r =
        ScanEngineError("ERROR: Archive was created by another version --> use UHARC version 0.4");
    EXPECT_EQ(r.message, QStringLiteral(" Archive was created by another version --> use UHARC "
                                        "version 0.4"));
    EXPECT_TRUE(r.closeFile);
    EXPECT_TRUE(IsVersionRequestMessage(r.message));
    // The wider recognition of the version switch also takes "use UHARC ... version".
    EXPECT_TRUE(IsVersionRequestMessage(" x --> use UHARC 0.4 version"));
    EXPECT_FALSE(ScanEngineError("ERROR: x --> use UHARC 0.4 version").closeFile);
    EXPECT_FALSE(IsVersionRequestMessage(" Archive requires a password to access "));
}

TEST(AddParsing, HeaderGivesTheTotalOnce) {
    ProgressState s;
    EXPECT_TRUE(ParseAddHeader(AddHeader, s));
    EXPECT_TRUE(s.totalSeen);
    EXPECT_DOUBLE_EQ(s.totalMB, 0.1);
    // Only the first header line of a run counts.
    EXPECT_FALSE(ParseAddHeader(
        "Adding 9 files (99999999 bytes)                         size     packed   ratio", s));
    EXPECT_DOUBLE_EQ(s.totalMB, 0.1);
}

TEST(AddParsing, HeaderSizesInMebibytesHalfToEven) {
    ProgressState s;
    // 1.25 MB rounds down to 1.2; 1.35 MB up to 1.4.
    ParseAddHeader("Adding 3 files (1310720 bytes)    size packed ratio", s);
    EXPECT_DOUBLE_EQ(s.totalMB, 1.2);
    ProgressState t;
    ParseAddHeader("Adding 3 files (1415577.6 bytes)    size packed ratio", t);
    EXPECT_DOUBLE_EQ(t.totalMB, 1.4);
    // Blanks inside the number are skipped: two digit groups read as one number.
    ProgressState u;
    ParseAddHeader("Adding 3 files (1 048 576 bytes) size packed ratio", u);
    EXPECT_DOUBLE_EQ(u.totalMB, 1.0);
}

TEST(AddParsing, HeaderWithoutParenthesisLeavesTotalAtZero) {
    ProgressState s;
    EXPECT_TRUE(ParseAddHeader("Adding files size packed ratio 12345678", s));
    EXPECT_TRUE(s.totalSeen);
    EXPECT_DOUBLE_EQ(s.totalMB, 0.0);
}

TEST(AddParsing, HeaderPatternIsCaseSignificant) {
    ProgressState s;
    EXPECT_FALSE(ParseAddHeader("adding 8 files (110354 bytes) size packed ratio", s));
    EXPECT_FALSE(ParseAddHeader("Adding 8 files (110354 bytes) size packed", s));
    EXPECT_FALSE(s.totalSeen);
}

TEST(AddParsing, ProgressLineColumns) {
    ProgressState s;
    ParseAddHeader(AddHeader, s);
    const std::optional<QString> sizes = ParseAddProgress(AddLine53, s);
    ASSERT_TRUE(sizes.has_value());
    EXPECT_EQ(s.jobText, QStringLiteral("Adding folder\\pattern.dat              "));
    EXPECT_EQ(s.jobText.size(), 39);
    EXPECT_DOUBLE_EQ(s.percent, 53);
    EXPECT_DOUBLE_EQ(s.doneMB, 0.1);
    EXPECT_DOUBLE_EQ(s.packedMB, 0.0);
    EXPECT_EQ(s.ratioText, QStringLiteral("64.8%"));
    EXPECT_EQ(*sizes, QStringLiteral("Progress: 0.1 MB (Packed  0 MB) of 0.1 MB Ratio: 64.8%"));
    EXPECT_EQ(BarValue(s.percent), std::optional<qint16>(53));
}

TEST(AddParsing, LayoutHelperMatchesTheEngine) {
    EXPECT_EQ(addProgressLine("Adding folder\\pattern.dat", 53, 59168, 38334, 64.8), AddLine53);
}

TEST(AddParsing, BigSizes) {
    ProgressState s;
    ASSERT_TRUE(
        ParseAddProgress(addProgressLine("Adding big.bin", 87, 12582912, 3145728, 25.0), s));
    EXPECT_DOUBLE_EQ(s.percent, 87);
    EXPECT_DOUBLE_EQ(s.doneMB, 12);
    EXPECT_DOUBLE_EQ(s.packedMB, 3);
    EXPECT_EQ(s.ratioText, QStringLiteral("25.0%"));
    EXPECT_EQ(SizesText(s), QStringLiteral("Progress: 12 MB (Packed  3 MB) of 0 MB Ratio: 25.0%"));
}

TEST(AddParsing, ColumnSixtyOneBelongsToBothSizes) {
    // A packed count of eleven digits starts in column 61, which the done field reads too:
    // 59168 followed by the 1 reads as 591681 bytes.
    ProgressState s;
    const QString line = addProgressLine("Adding big.bin", 99, 59168, 10485760000LL, 100.0);
    ASSERT_EQ(line.mid(60, 1), QStringLiteral("1"));
    ASSERT_TRUE(ParseAddProgress(line, s));
    EXPECT_DOUBLE_EQ(s.doneMB, 0.6);
    EXPECT_DOUBLE_EQ(s.packedMB, 10000);
    EXPECT_EQ(s.ratioText, QStringLiteral("100.0%"));
}

TEST(AddParsing, ShortProgressLineGivesZeros) {
    ProgressState s;
    s.percent = 40;
    s.doneMB = 3;
    s.packedMB = 2;
    const QString shortLine = QStringLiteral("Adding a.txt     Total:");
    ASSERT_LT(shortLine.size(), 46);
    const std::optional<QString> sizes = ParseAddProgress(shortLine, s);
    ASSERT_TRUE(sizes.has_value());
    EXPECT_EQ(s.jobText, shortLine);
    EXPECT_DOUBLE_EQ(s.percent, 0);
    EXPECT_DOUBLE_EQ(s.doneMB, 0);
    EXPECT_DOUBLE_EQ(s.packedMB, 0);
    EXPECT_EQ(s.ratioText, QString());
    EXPECT_EQ(*sizes, QStringLiteral("Progress: 0 MB (Packed  0 MB) of 0 MB Ratio: "));
}

TEST(AddParsing, OtherLinesAreIgnored) {
    ProgressState s;
    s.percent = 7;
    EXPECT_FALSE(ParseAddProgress(
        "Adding folder\\readme.txt                               13989       2482   17.7%", s));
    EXPECT_FALSE(ParseAddProgress(
        "Completed successfully (0.4 sec)           Total:     110354      38356   34.8%", s));
    EXPECT_DOUBLE_EQ(s.percent, 7);
}

TEST(ExtractParsing, ProgressColumns) {
    ProgressState s;
    ParseExtractProgress("Extracting out_x\\folder\\sub\\data.bin                        "
                         "         Total: 44%",
                         s);
    EXPECT_EQ(s.jobText, QStringLiteral("Extracting out_x\\folder\\sub\\data.bin"));
    EXPECT_DOUBLE_EQ(s.percent, 44);
}

TEST(ExtractParsing, ShortLineGivesEmptyTextAndZero) {
    ProgressState s;
    s.jobText = "old";
    s.percent = 60;
    ParseExtractProgress(QString(), s);
    EXPECT_EQ(s.jobText, QString());
    EXPECT_DOUBLE_EQ(s.percent, 0);
    ParseExtractProgress("Testing folder\\a.txt", s);
    EXPECT_EQ(s.jobText, QStringLiteral("Testing folder\\a.txt"));
    EXPECT_DOUBLE_EQ(s.percent, 0);
}

TEST(Bar, HalvesGoToEvenAndOutOfRangeKeepsTheBar) {
    EXPECT_EQ(BarValue(12.5), std::optional<qint16>(12));
    EXPECT_EQ(BarValue(13.5), std::optional<qint16>(14));
    EXPECT_EQ(BarValue(100), std::optional<qint16>(100));
    EXPECT_EQ(BarValue(1e9), std::nullopt);
}

TEST(FormatDuration, CountingLoops) {
    EXPECT_EQ(FormatDuration(3661), (Duration{1, 1, 1}));
    EXPECT_EQ(FormatDuration(0), (Duration{0, 0, 0}));
    EXPECT_EQ(FormatDuration(59), (Duration{0, 0, 59}));
    EXPECT_EQ(FormatDuration(60), (Duration{0, 1, 0}));
    EXPECT_EQ(FormatDuration(86399), (Duration{23, 59, 59}));
    EXPECT_EQ(FormatDuration(90000), (Duration{25, 0, 0}));
}

TEST(FormatDuration, NegativeCountsRunDownToTheNextLowerMultiple) {
    EXPECT_EQ(FormatDuration(-3), (Duration{-1, 59, 57}));
    EXPECT_EQ(FormatDuration(-60), (Duration{-1, 59, 0}));
    EXPECT_EQ(FormatDuration(-61), (Duration{-1, 58, 59}));
    EXPECT_EQ(FormatDuration(-3600), (Duration{-1, 0, 0}));
    EXPECT_EQ(FormatDuration(-3601), (Duration{-2, 59, 59}));
    for (qint64 x : {-86401LL, -3LL, 0LL, 1LL, 3599LL, 123456LL})
        EXPECT_EQ(FormatDuration(x).totalSeconds(), x) << x;
}

TEST(FormatDuration, TimeOfDayTexts) {
    EXPECT_EQ(DurationText(0), QStringLiteral("00:00:00"));
    EXPECT_EQ(DurationText(3661), QStringLiteral("01:01:01"));
    EXPECT_EQ(DurationText(-3), QStringLiteral("23:59:57"));
    EXPECT_EQ(DurationText(90000), QStringLiteral("1d 01:00:00"));
}

TEST(TimeEstimate, InitialText) {
    EXPECT_EQ(QString(InitialTimeText),
              QStringLiteral("Total: 00:00:00       Remaining: 00:00:00       Elapsed: 00:00:00"));
    EXPECT_EQ(TimeLineText(0, 0, 0), QString(InitialTimeText));
}

TEST(TimeEstimate, ZeroPercentKeepsTheLastText) {
    ProgressState s;
    s.startTime = QDateTime::fromSecsSinceEpoch(1000000);
    s.elapsedSeconds = 5;
    EXPECT_EQ(EstimateTime(s, s.startTime.addSecs(30)), std::nullopt);
    EXPECT_EQ(s.elapsedSeconds, 5);
}

TEST(TimeEstimate, HalfwayAfterThirtySeconds) {
    ProgressState s;
    s.startTime = QDateTime::fromSecsSinceEpoch(1000000);
    s.percent = 50;
    const std::optional<QString> text = EstimateTime(s, s.startTime.addSecs(30));
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(s.elapsedSeconds, 30);
    EXPECT_EQ(s.totalSeconds, 60);
    EXPECT_EQ(s.remainingSeconds, 30);
    EXPECT_EQ(*text,
              QStringLiteral("Total: 00:01:00       Remaining: 00:00:30       Elapsed: 00:00:30"));
}

TEST(TimeEstimate, SecondBoundariesAndHalfToEven) {
    ProgressState s;
    // 0.9 s after a boundary to 0.1 s after the next: one boundary crossed.
    s.startTime = QDateTime::fromMSecsSinceEpoch(1000000900);
    s.percent = 40;
    ASSERT_TRUE(EstimateTime(s, QDateTime::fromMSecsSinceEpoch(1000001100)));
    EXPECT_EQ(s.elapsedSeconds, 1);
    // 1 * 100 / 40 = 2.5 -> 2.
    EXPECT_EQ(s.totalSeconds, 2);
    EXPECT_EQ(s.remainingSeconds, 1);
    // 3 * 100 / 40 = 7.5 -> 8.
    ASSERT_TRUE(EstimateTime(s, QDateTime::fromMSecsSinceEpoch(1000003000)));
    EXPECT_EQ(s.totalSeconds, 8);
}

TEST(TimeEstimate, RemainingMayBeNegative) {
    ProgressState s;
    s.startTime = QDateTime::fromSecsSinceEpoch(1000000);
    s.percent = 120;
    const std::optional<QString> text = EstimateTime(s, s.startTime.addSecs(60));
    ASSERT_TRUE(text.has_value());
    EXPECT_EQ(s.totalSeconds, 50);
    EXPECT_EQ(s.remainingSeconds, -10);
    EXPECT_EQ(*text,
              QStringLiteral("Total: 00:00:50       Remaining: 23:59:50       Elapsed: 00:01:00"));
}

TEST(TimeEstimate, AnEstimateTooLargeIsDropped) {
    ProgressState s;
    s.startTime = QDateTime::fromSecsSinceEpoch(1000000);
    s.percent = 1e-9;
    s.totalSeconds = 77;
    EXPECT_EQ(EstimateTime(s, s.startTime.addSecs(60)), std::nullopt);
    EXPECT_EQ(s.totalSeconds, 77);
}

TEST(TrayTip, PercentAndRemainingTime) {
    EXPECT_EQ(TrayTipText(53, 30), QStringLiteral("Completed: 53 % Remaining: 00:00:30"));
    EXPECT_EQ(TrayTipText(12.5, 3661), QStringLiteral("Completed: 12.5 % Remaining: 01:01:01"));
    EXPECT_EQ(TrayTipText(0, 0), QStringLiteral("Completed: 0 % Remaining: 00:00:00"));
}

TEST(ConsoleLines, CrAndCrLfEndLinesALoneLfDoesNot) {
    EXPECT_EQ(SplitConsoleLines(QByteArray()), QStringList());
    EXPECT_EQ(SplitConsoleLines("a\r\nb\rc"), QStringList({"a", "b", "c"}));
    EXPECT_EQ(SplitConsoleLines("a\nb\r\n"), QStringList({"a\nb"}));
    EXPECT_EQ(SplitConsoleLines("\r\n\r"), QStringList({"", ""}));
    EXPECT_EQ(SplitConsoleLines("a\r\r\nb"), QStringList({"a", "", "b"}));
    EXPECT_EQ(SplitConsoleLines("a\r\n\n"), QStringList({"a", "\n"}));
    // The unfinished last line is read too.
    EXPECT_EQ(SplitConsoleLines("a\r\nAdding x"), QStringList({"a", "Adding x"}));
}

TEST(ConsoleLines, CodePage437) {
    EXPECT_EQ(DecodeConsoleLine(QByteArray("caf\x82 \x81"
                                           "ber \xc4\xb3")),
              QString::fromUtf8("caf\u00e9 \u00fcber \u2500\u2502"));
    EXPECT_EQ(DecodeConsoleLine(QByteArray("a\bb")), QStringLiteral("a\bb"));
}
