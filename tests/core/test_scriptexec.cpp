#include "core/scriptexec.h"

#include <gtest/gtest.h>

using namespace quovara;

TEST(SplitCommandLine, QuotesGroupAndAreRemoved) {
    const ParsedJob job = SplitCommandLine(
        "\"/p q/uharc.exe\" a -r+ -m2 -mm+ -md+ -md4096 -pw\"a b\" \"/s/x y.uha\" \"/s/*.*\"");
    EXPECT_EQ(job.arguments, QStringList({"/p q/uharc.exe", "a", "-r+", "-m2", "-mm+", "-md+",
                                          "-md4096", "-pwa b", "/s/x y.uha", "/s/*.*"}));
    EXPECT_TRUE(job.outputTarget.isEmpty());
}

TEST(SplitCommandLine, SwitchPrefixesLoseTheirQuotes) {
    const ParsedJob job = SplitCommandLine("e -t\"/x\" !\"*.bak\" @\"/l.txt\"");
    EXPECT_EQ(job.arguments, QStringList({"e", "-t/x", "!*.bak", "@/l.txt"}));
}

TEST(SplitCommandLine, RedirectionTakesTheNextWord) {
    const ParsedJob job =
        SplitCommandLine("\"/p/uharc.exe\" x  -o- \"/x.uha\" > /t/Corvana/das.txt");
    EXPECT_EQ(job.arguments, QStringList({"/p/uharc.exe", "x", "-o-", "/x.uha"}));
    EXPECT_EQ(job.outputTarget, "/t/Corvana/das.txt");
    EXPECT_FALSE(job.appendOutput);
}

TEST(SplitCommandLine, QuotedGreaterThanIsLiteral) {
    const ParsedJob job = SplitCommandLine("a \"-pwx>y\" b");
    EXPECT_EQ(job.arguments, QStringList({"a", "-pwx>y", "b"}));
    EXPECT_TRUE(job.outputTarget.isEmpty());
}

TEST(SplitCommandLine, ShellCharactersMeanNothing) {
    const ParsedJob job = SplitCommandLine("e -pw\"a;b&c|d$(touch x)`y`\" \"/a.uha\"");
    EXPECT_EQ(job.arguments, QStringList({"e", "-pwa;b&c|d$(touch x)`y`", "/a.uha"}));
}

TEST(SplitCommandLine, PasswordWithAQuoteSplitsTheLineAsTheEngineWouldSeeIt) {
    // Nothing is escaped: the inner quote ends the group, and the line reads on from there.
    const ParsedJob job = SplitCommandLine("l -pw\"a\"b\" \"/a.uha\"");
    EXPECT_EQ(job.arguments, QStringList({"l", "-pwab /a.uha"}));
}

TEST(SplitCommandLine, AppendRedirection) {
    const ParsedJob job = SplitCommandLine("a >> \"/t/o.txt\"");
    EXPECT_EQ(job.outputTarget, "/t/o.txt");
    EXPECT_TRUE(job.appendOutput);
}

TEST(ParseJobScript, PreambleSetsVariablesAndTheLastLineIsTheCommand) {
    const ParsedJob job =
        ParseJobScript("@echo off\r\ncls\r\nset uharc_opt= -d2\r\n\"/p/uharc.exe\" t -y+ "
                       "\"/a.uha\" > /t/das.txt\r\n");
    ASSERT_EQ(job.environment.size(), 1);
    EXPECT_EQ(job.environment[0].first, "uharc_opt");
    EXPECT_EQ(job.environment[0].second, " -d2");
    EXPECT_EQ(job.arguments, QStringList({"/p/uharc.exe", "t", "-y+", "/a.uha"}));
    EXPECT_EQ(job.outputTarget, "/t/das.txt");
}

TEST(ParseJobScript, CommandWithoutLineEndIsNotLost) {
    const ParsedJob job =
        ParseJobScript("cls\r\n@echo off\r\n\"/p/uharc.exe\" l -d2 -y+ -lg/t/uharc.log \"/a.uha\"");
    EXPECT_TRUE(job.environment.isEmpty());
    EXPECT_EQ(job.arguments,
              QStringList({"/p/uharc.exe", "l", "-d2", "-y+", "-lg/t/uharc.log", "/a.uha"}));
}

TEST(ParseJobScript, EmptyScriptIsInvalid) {
    EXPECT_FALSE(ParseJobScript("@echo off\r\ncls\r\n").isValid());
}

TEST(ToLauncherPath, AbsolutePathsAlsoAfterSwitchPrefixes) {
    EXPECT_EQ(ToLauncherPath("/a/b c.uha"), "Z:\\a\\b c.uha");
    EXPECT_EQ(ToLauncherPath("-t/out/x"), "-tZ:\\out\\x");
    EXPECT_EQ(ToLauncherPath("-lg/t/uharc.log"), "-lgZ:\\t\\uharc.log");
    EXPECT_EQ(ToLauncherPath("@/t/list.txt"), "@Z:\\t\\list.txt");
    EXPECT_EQ(ToLauncherPath("!/x/*.bak"), "!Z:\\x\\*.bak");
    EXPECT_EQ(ToLauncherPath("-pw/secret"), "-pw/secret");
    EXPECT_EQ(ToLauncherPath("*.dll"), "*.dll");
    EXPECT_EQ(ToLauncherPath("-r+"), "-r+");
}
