#include "core/vbtext.h"

#include <gtest/gtest.h>

using namespace quovara;

TEST(Like, StarMatchesAnyRunIncludingNone) {
    EXPECT_TRUE(Like("ERROR: x", "ERROR:*"));
    EXPECT_TRUE(Like("ERROR:", "ERROR:*"));
    EXPECT_FALSE(Like(" ERROR: x", "ERROR:*"));
}

TEST(Like, CaseIsSignificant) {
    EXPECT_FALSE(Like("error: x", "ERROR:*"));
    EXPECT_TRUE(Like("Adding a Total: 5%", "*Adding*Total:*"));
    EXPECT_FALSE(Like("adding a total: 5%", "*Adding*Total:*"));
}

TEST(Like, QuestionMarkAndDigit) {
    EXPECT_TRUE(Like("a1c", "a#c"));
    EXPECT_FALSE(Like("abc", "a#c"));
    EXPECT_TRUE(Like("abc", "a?c"));
    EXPECT_FALSE(Like("ac", "a?c"));
}

TEST(Like, Brackets) {
    EXPECT_TRUE(Like("b", "[abc]"));
    EXPECT_FALSE(Like("d", "[abc]"));
    EXPECT_TRUE(Like("m", "[a-z]"));
    EXPECT_TRUE(Like("d", "[!abc]"));
    EXPECT_FALSE(Like("a", "[!abc]"));
}

TEST(Like, DriveAndSeparatorPatterns) {
    EXPECT_TRUE(Like("C:\\docs", "*:\\*"));
    EXPECT_TRUE(Like("docs\\a", "*\\*"));
    EXPECT_FALSE(Like("docs", "*\\*"));
    EXPECT_TRUE(Like(" x --> use UHARC version 0.4", "*--> use UHARC*version*"));
}

TEST(Like, WholeStringOnly) {
    EXPECT_FALSE(Like("abcd", "abc"));
    EXPECT_TRUE(Like("abcd", "abc*"));
    EXPECT_TRUE(Like("", "*"));
    EXPECT_FALSE(Like("", "?"));
}

TEST(WildcardMatch, StarDotStarMatchesEveryNameAlsoOneWithoutADot) {
    for (const char* name : {"README", "Makefile", "a.txt", ".hidden", "x.", "a.b.c", "."})
        EXPECT_TRUE(WildcardMatch(name, "*.*")) << name;
    EXPECT_FALSE(WildcardMatch("README", "*.txt"));
}

TEST(WildcardMatch, CaseInsensitiveStarAndQuestion) {
    EXPECT_TRUE(WildcardMatch("Readme.TXT", "*.txt"));
    EXPECT_TRUE(WildcardMatch("readme.txt", "READ??.*"));
    EXPECT_FALSE(WildcardMatch("readme.txt", "*.doc"));
    // '#' and brackets are ordinary characters in file names.
    EXPECT_TRUE(WildcardMatch("a#[1].txt", "a#[1].txt"));
    EXPECT_FALSE(WildcardMatch("a1.txt", "a#.txt"));
}

TEST(Val, SkipsBlanksAnywhere) {
    EXPECT_DOUBLE_EQ(Val("   110354"), 110354);
    EXPECT_DOUBLE_EQ(Val("1 2"), 12);
    EXPECT_DOUBLE_EQ(Val(" 14208       2482"), 142082482);
    EXPECT_DOUBLE_EQ(Val("\t-3.5"), -3.5);
}

TEST(Val, StopsAtFirstCharacterThatCannotContinue) {
    EXPECT_DOUBLE_EQ(Val("45%"), 45);
    EXPECT_DOUBLE_EQ(Val("110354 bytes)"), 110354);
    EXPECT_DOUBLE_EQ(Val("12.5.6"), 12.5);
    EXPECT_DOUBLE_EQ(Val("1e3x"), 1000);
    EXPECT_DOUBLE_EQ(Val("1e"), 1);
    EXPECT_DOUBLE_EQ(Val("34.8%"), 34.8);
}

TEST(Val, NoNumberGivesZero) {
    EXPECT_DOUBLE_EQ(Val(""), 0);
    EXPECT_DOUBLE_EQ(Val("   "), 0);
    EXPECT_DOUBLE_EQ(Val("files"), 0);
    EXPECT_DOUBLE_EQ(Val("-"), 0);
    EXPECT_DOUBLE_EQ(Val(".5"), 0.5);
}

TEST(RoundHalfEven, ToInteger) {
    EXPECT_DOUBLE_EQ(RoundHalfEven(0.5), 0);
    EXPECT_DOUBLE_EQ(RoundHalfEven(1.5), 2);
    EXPECT_DOUBLE_EQ(RoundHalfEven(2.5), 2);
    EXPECT_DOUBLE_EQ(RoundHalfEven(-2.5), -2);
    EXPECT_DOUBLE_EQ(RoundHalfEven(2.51), 3);
    EXPECT_DOUBLE_EQ(RoundHalfEven(34.8), 35);
}

TEST(RoundHalfEven, ToDecimals) {
    EXPECT_DOUBLE_EQ(RoundHalfEven(0.25, 1), 0.2);
    EXPECT_DOUBLE_EQ(RoundHalfEven(0.35, 1), 0.4);
    EXPECT_DOUBLE_EQ(RoundHalfEven(0.125, 2), 0.12);
    EXPECT_DOUBLE_EQ(RoundHalfEven(110354.0 / 1048576.0, 2), 0.11);
    EXPECT_DOUBLE_EQ(RoundHalfEven(38356.0 / 1048576.0, 2), 0.04);
}

TEST(ToInt16, RoundsAndRefusesOverflow) {
    EXPECT_EQ(ToInt16(45.0), 45);
    EXPECT_EQ(ToInt16(44.5), 44);
    EXPECT_EQ(ToInt16(45.5), 46);
    EXPECT_EQ(ToInt16(-32768.0), -32768);
    EXPECT_FALSE(ToInt16(32768.0).has_value());
    EXPECT_FALSE(ToInt16(1e10).has_value());
}

TEST(NumberText, ShortestGeneralForm) {
    EXPECT_EQ(NumberText(12), "12");
    EXPECT_EQ(NumberText(12.5), "12.5");
    EXPECT_EQ(NumberText(0), "0");
    EXPECT_EQ(NumberText(0.1), "0.1");
    EXPECT_EQ(NumberText(-3), "-3");
    EXPECT_EQ(NumberText(RoundHalfEven(110354.0 / 1048576.0, 1)), "0.1");
}

TEST(TimeText, TimeOfDay) {
    EXPECT_EQ(TimeText(0), "00:00:00");
    EXPECT_EQ(TimeText(3661), "01:01:01");
    EXPECT_EQ(TimeText(86399), "23:59:59");
}

TEST(TimeText, NegativeWrapsBeforeMidnight) {
    EXPECT_EQ(TimeText(-3), "23:59:57");
    EXPECT_EQ(TimeText(-60), "23:59:00");
}

TEST(TimeText, DayPart) {
    EXPECT_EQ(TimeText(86400), "1d 00:00:00");
    EXPECT_EQ(TimeText(90061), "1d 01:01:01");
}

TEST(RoundHalfEven, LargeValuesAreNotTakenForTies) {
    EXPECT_DOUBLE_EQ(RoundHalfEven(1e9 + 1.2), 1000000001);
    EXPECT_DOUBLE_EQ(RoundHalfEven(1e9 + 1.5), 1000000002);
    EXPECT_DOUBLE_EQ(RoundHalfEven(1e9 + 2.5), 1000000002);
    EXPECT_DOUBLE_EQ(RoundHalfEven(1e9 + 2.49), 1000000002);
    EXPECT_DOUBLE_EQ(RoundHalfEven(1e9 + 2.51), 1000000003);
    // 1073747067 bytes are 1024.0050001... MB: not a tie.
    EXPECT_EQ(NumberText(RoundHalfEven(1073747067.0 / 1048576.0, 2)), "1024.01");
    // Exactly 1024.005 MB would be a tie, and goes to the even digit.
    EXPECT_EQ(NumberText(RoundHalfEven(1024.005, 2)), "1024");
    EXPECT_EQ(NumberText(RoundHalfEven(1024.015, 2)), "1024.02");
}

TEST(RoundHalfEven, TerabytesInBytes) {
    // 5 TB, 2 TiB and 7.5 TiB plus a few bytes, shown in mebibytes with two decimals.
    EXPECT_EQ(NumberText(RoundHalfEven(5e12 / 1048576.0, 2)), "4768371.58");
    EXPECT_EQ(NumberText(RoundHalfEven(2199023255552.0 / 1048576.0, 2)), "2097152");
    EXPECT_EQ(NumberText(RoundHalfEven((8246337208320.0 + 5243.0) / 1048576.0, 2)), "7864320.01");
    EXPECT_EQ(NumberText(RoundHalfEven((8246337208320.0 + 5242.0) / 1048576.0, 2)), "7864320");
    // One decimal, as the progress windows show sizes.
    EXPECT_EQ(NumberText(RoundHalfEven(3298534883328.0 / 1048576.0 + 0.05, 1)), "3145728");
    EXPECT_EQ(NumberText(RoundHalfEven(3298534883328.0 / 1048576.0 + 0.15, 1)), "3145728.2");
}

TEST(TrimBlanks, RemovesBlanksOnly) {
    EXPECT_EQ(TrimBlanks("  a b  "), "a b");
    EXPECT_EQ(TrimBlanks(QString::fromUtf8("\u00a0a\u00a0")), QString::fromUtf8("\u00a0a\u00a0"));
    EXPECT_EQ(TrimBlanks(" \ta\t "), "\ta\t");
    EXPECT_EQ(TrimBlanks("\n"), "\n");
    EXPECT_EQ(TrimBlanks("   "), "");
    EXPECT_EQ(TrimLeadingBlanks("  a  "), "a  ");
    EXPECT_EQ(TrimTrailingBlanks("  a  "), "  a");
}
