#include "core/jobscript.h"
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

TEST(SplitPieces, AValueStaysInsideItsArgumentWhateverItHolds) {
    // The measured injections: a quote in an archive name, in an entry name, in a password.
    const CommandPieces pieces{
        Fragment("\"") + Fragment::Value("/p", "program folder") + Fragment("/uharc.exe\" "),
        Fragment(" l -d2 -y+ -lg") + Fragment::Value("/t", "temporary folder") +
            Fragment("/Corvana/uharc.log "),
        Fragment("-pw\"") + Fragment::Value("p\" > /tmp/FILE \"", "password") + Fragment("\" "),
        Fragment("\"") + Fragment::Value("/d/x\" -pwINJECTED \"y.uha", "archive") +
            Fragment("\" \"") + Fragment::Value("docs\\a\" -pwX -t\\tmp \"b.txt", "item") +
            Fragment("\"")};
    const ParsedJob job = SplitPieces(pieces);
    EXPECT_EQ(job.arguments,
              QStringList({"/p/uharc.exe", "l", "-d2", "-y+", "-lg/t/Corvana/uharc.log",
                           "-pwp\" > /tmp/FILE \"", "/d/x\" -pwINJECTED \"y.uha",
                           "docs\\a\" -pwX -t\\tmp \"b.txt"}));
    EXPECT_TRUE(job.outputTarget.isEmpty());
    // The script holds the same text, unescaped.
    EXPECT_EQ(CommandLine(pieces),
              "\"/p/uharc.exe\"  l -d2 -y+ -lg/t/Corvana/uharc.log -pw\"p\" > /tmp/FILE \"\" "
              "\"/d/x\" -pwINJECTED \"y.uha\" \"docs\\a\" -pwX -t\\tmp \"b.txt\"");
}

TEST(SplitPieces, OnlyTheFixedTextRedirects) {
    const CommandPieces pieces{Fragment("\"/p/uharc.exe\" t -y+ "),
                               Fragment("\"") + Fragment::Value("/a>b.uha", "archive") +
                                   Fragment("\""),
                               Fragment(" > ") + Fragment::Value("/t dir", "temporary folder") +
                                   Fragment("/Corvana/das.txt")};
    const ParsedJob job = SplitPieces(pieces);
    EXPECT_EQ(job.arguments, QStringList({"/p/uharc.exe", "t", "-y+", "/a>b.uha"}));
    EXPECT_EQ(job.outputTarget, "/t dir/Corvana/das.txt");
}

TEST(SplitPieces, AnEmptyQuotedValueIsAnArgument) {
    const ParsedJob job = SplitPieces(
        {Fragment("x "), Fragment("\"") + Fragment::Value("", "archive") + Fragment("\"")});
    EXPECT_EQ(job.arguments, QStringList({"x", ""}));
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

TEST(HostPathsInText, LauncherPathsInShownTextsBecomeHostPaths) {
    EXPECT_EQ(
        HostPathsInText("Archive \"Z:\\home\\anna\\a b.uha\" already exists. Overwrite (y/n) ?"),
        "Archive \"/home/anna/a b.uha\" already exists. Overwrite (y/n) ?");
    EXPECT_EQ(HostPathsInText("Adding Z:\\home\\anna\\src\\two.txt   4  100.0%"),
              "Adding /home/anna/src/two.txt   4  100.0%");
    EXPECT_EQ(HostPathsInText(" Can't write file \"Z:\\tmp\\out\\x.txt\""),
              " Can't write file \"/tmp/out/x.txt\"");
    EXPECT_EQ(HostPathsInText(QString::fromUtf8("Z:\\home\\Łukasz\\Привет.txt")),
              QString::fromUtf8("/home/Łukasz/Привет.txt"));
    // Not a path: inside a word, another drive, no backslash.
    EXPECT_EQ(HostPathsInText("ABZ:\\x C:\\dir\\f Z: Z:x"), "ABZ:\\x C:\\dir\\f Z: Z:x");
}
