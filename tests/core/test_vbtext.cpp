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
