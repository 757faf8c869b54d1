// The option table and the reading of the program's arguments: options anywhere before "--",
// everything else kept for the request word or the archive, misuses named.
#include "../core/test_support.h"

#include "app/options.h"

#include <gtest/gtest.h>

using namespace quovara;

namespace {

const CommandOption* option(OptionId id) {
    for (const CommandOption& o : ProgramOptions())
        if (o.id == id)
            return &o;
    return nullptr;
}

// A table with an option that takes one value, as a later option (a code page) would.
const CommandOption kWithValue[] = {
    {OptionId::Help, "--help", "-h", OptionTakes::Nothing, "", "print this help and end"},
    {OptionId::Version, "--code-page", "-c", OptionTakes::Value, "NUMBER",
     "read the archive's names in code page NUMBER"},
};

} // namespace

TEST(Options, TheProgramHasHelpVersionInstallEngineAndArchiveLocale) {
    EXPECT_EQ(OptionNames(), QStringList({"-h", "--help", "--version", "--install-engine",
                                          "--extract-here", "--convert", "--archive-locale"}));
    ASSERT_NE(option(OptionId::Convert), nullptr);
    EXPECT_EQ(option(OptionId::Convert)->takes, OptionTakes::Rest);
    ASSERT_NE(option(OptionId::ArchiveLocale), nullptr);
    EXPECT_EQ(option(OptionId::ArchiveLocale)->takes, OptionTakes::Value);
    ASSERT_NE(option(OptionId::InstallEngine), nullptr);
    EXPECT_EQ(option(OptionId::InstallEngine)->takes, OptionTakes::Rest);
    EXPECT_EQ(option(OptionId::Help)->takes, OptionTakes::Nothing);
    EXPECT_EQ(option(OptionId::Version)->takes, OptionTakes::Nothing);
}

TEST(Options, ConvertTakesAFormatThenArchives) {
    const ParsedArguments p = ParseArguments({"--convert", "tar.zst", "a.uha", "b.uha"});
    ASSERT_EQ(p.options.size(), 1u);
    EXPECT_EQ(p.options[0].option->id, OptionId::Convert);
    EXPECT_EQ(p.options[0].values, QStringList({"tar.zst", "a.uha", "b.uha"}));
    EXPECT_EQ(ConvertArgumentsProblem(p.options[0].values), QString());
    EXPECT_EQ(ConvertArgumentsProblem({"ZIP", "a.uha"}), QString());
    EXPECT_EQ(ConvertArgumentsProblem({}),
              "option '--convert' needs a format (zip, 7z, tar.xz, tar.zst) and an archive");
    EXPECT_EQ(ConvertArgumentsProblem({"rar", "a.uha"}),
              "unknown format 'rar' for '--convert' (zip, 7z, tar.xz, tar.zst)");
    EXPECT_EQ(ConvertArgumentsProblem({"7z"}),
              "option '--convert' needs an archive after the format");
}

TEST(Options, HelpAndItsShortNameAreFound) {
    for (const QString& name : {QStringLiteral("--help"), QStringLiteral("-h")}) {
        const ParsedArguments p = ParseArguments({name});
        EXPECT_TRUE(p.error.isEmpty());
        ASSERT_EQ(p.options.size(), 1u);
        EXPECT_EQ(p.options[0].option->id, OptionId::Help);
        EXPECT_TRUE(p.operands.isEmpty());
    }
}

TEST(Options, AnOptionAfterARequestIsStillAnOption) {
    const ParsedArguments p = ParseArguments({"/data/a.uha", "--version"});
    ASSERT_EQ(p.options.size(), 1u);
    EXPECT_EQ(p.options[0].option->id, OptionId::Version);
    EXPECT_EQ(p.operands, QStringList{"/data/a.uha"});
}

TEST(Options, InstallEngineTakesEveryArgumentAfterIt) {
    const ParsedArguments p =
        ParseArguments({"--install-engine", "uharc.exe", "--help", "--", "-x.fns"});
    EXPECT_TRUE(p.error.isEmpty());
    ASSERT_EQ(p.options.size(), 1u);
    EXPECT_EQ(p.options[0].option->id, OptionId::InstallEngine);
    EXPECT_EQ(p.options[0].values, QStringList({"uharc.exe", "--help", "--", "-x.fns"}));
    EXPECT_TRUE(p.operands.isEmpty());
}

TEST(Options, AnUnknownDoubleDashArgumentIsAnError) {
    const ParsedArguments p = ParseArguments({"--extract-hre", "/data/a.uha"});
    EXPECT_EQ(p.error, "unrecognized option '--extract-hre'");
    EXPECT_EQ(UsageErrorText(p.error), "quovara: unrecognized option '--extract-hre'\n"
                                       "Try 'quovara --help' for more information.\n");
}

TEST(Options, AnUnknownOptionAfterTheRequestWordIsAnErrorToo) {
    EXPECT_EQ(ParseArguments({"extract ", "--x.uha"}).error, "unrecognized option '--x.uha'");
}

TEST(Options, NamesAreMatchedWholeNotByPrefix) {
    EXPECT_EQ(ParseArguments({"--vers"}).error, "unrecognized option '--vers'");
    EXPECT_EQ(ParseArguments({"--helpme"}).error, "unrecognized option '--helpme'");
    EXPECT_EQ(ParseArguments({"--Help"}).error, "unrecognized option '--Help'");
}

TEST(Options, AnOptionWithoutValueRefusesOne) {
    EXPECT_EQ(ParseArguments({"--version=2"}).error,
              "option '--version' doesn't allow an argument");
}

TEST(Options, AfterTheEndOfOptionsEverythingIsAnOperand) {
    const ParsedArguments p = ParseArguments({"--", "--help", "-h", "--x.uha"});
    EXPECT_TRUE(p.error.isEmpty());
    EXPECT_TRUE(p.options.empty());
    EXPECT_EQ(p.operands, QStringList({"--help", "-h", "--x.uha"}));
    EXPECT_EQ(p.operandIndex, QList<int>({1, 2, 3}));
    EXPECT_EQ(p.operandsBeforeEnd, 0);
}

TEST(Options, TheEndOfOptionsMayFollowTheRequestWord) {
    const ParsedArguments p = ParseArguments({"extract ", "--", "--x.uha"});
    EXPECT_TRUE(p.error.isEmpty());
    EXPECT_EQ(p.operands, QStringList({"extract ", "--x.uha"}));
    EXPECT_EQ(p.operandIndex, QList<int>({0, 2}));
    EXPECT_EQ(p.operandsBeforeEnd, 1);
}

TEST(Options, OnlyTheFirstDoubleDashEndsTheOptions) {
    const ParsedArguments p = ParseArguments({"--", "a", "--", "b"});
    EXPECT_EQ(p.operands, QStringList({"a", "--", "b"}));
}

TEST(Options, SingleDashNamesThatAreNoOptionAreOperands) {
    // A name that starts with "-", a lone "-", and Qt's own options with their values.
    const ParsedArguments p =
        ParseArguments({"-platform", "offscreen", "-name.uha", "-", "./-h", "-hv"});
    EXPECT_TRUE(p.error.isEmpty());
    EXPECT_TRUE(p.options.empty());
    EXPECT_EQ(p.operands, QStringList({"-platform", "offscreen", "-name.uha", "-", "./-h", "-hv"}));
    EXPECT_EQ(p.operandsBeforeEnd, 6);
}

TEST(Options, RequestWordsAndPathsAreKeptAsTheyAre) {
    const QStringList args{"extract ", "/home/me/My archives/a b.uha"};
    const ParsedArguments p = ParseArguments(args);
    EXPECT_TRUE(p.options.empty());
    EXPECT_EQ(p.operands, args);
    EXPECT_EQ(p.operandIndex, QList<int>({0, 1}));
    EXPECT_EQ(ParseArguments({"add  /data/x y"}).operands, QStringList{"add  /data/x y"});
    EXPECT_TRUE(ParseArguments({}).operands.isEmpty());
}

TEST(Options, AValueIsTakenFromTheNextArgumentOrAfterTheEqualsSign) {
    ParsedArguments p = ParseArguments({"--code-page", "866", "a.uha"}, kWithValue);
    ASSERT_EQ(p.options.size(), 1u);
    EXPECT_EQ(p.options[0].values, QStringList{"866"});
    EXPECT_EQ(p.operands, QStringList{"a.uha"});
    p = ParseArguments({"--code-page=", "a.uha"}, kWithValue);
    ASSERT_EQ(p.options.size(), 1u);
    EXPECT_EQ(p.options[0].values, QStringList{""});
    p = ParseArguments({"-c", "--help"}, kWithValue);
    ASSERT_EQ(p.options.size(), 1u);
    EXPECT_EQ(p.options[0].values, QStringList{"--help"});
    EXPECT_EQ(ParseArguments({"a.uha", "--code-page"}, kWithValue).error,
              "option '--code-page' requires an argument");
}

TEST(Options, TheVersionLineCarriesThePackageVersion) {
    EXPECT_EQ(ProgramVersionLine(), "Quovara " QUOVARA_PACKAGE_VERSION);
}

TEST(Options, TheHelpListsTheUsageTheRequestWordsAndEveryOption) {
    const QString help = HelpText();
    EXPECT_TRUE(help.startsWith("Usage: quovara [ARCHIVE.uha]\n"
                                "  or:  quovara \"WORD  PATH\"\n"
                                "  or:  quovara \"WORD \" PATH\n"
                                "  or:  quovara OPTION...\n"))
        << help.toStdString();
    EXPECT_TRUE(help.contains("  extract  PATH              the Extract window for the archive "
                              "PATH\n"));
    EXPECT_TRUE(help.contains("  add  PATH                  the Add window"));
    EXPECT_TRUE(help.contains("  sfx  PATH                  the Make SFX window"));
    EXPECT_TRUE(help.contains("two\nseparator characters before the path: two blanks inside one "
                              "argument\n(\"extract  /data/a.uha\"), or a blank at the end of "
                              "the word and the path as\nthe next argument (\"extract \" "
                              "/data/a.uha).\n"))
        << help.toStdString();
    EXPECT_TRUE(help.contains("\nOptions:\n"
                              "  -h, --help                 print this help and end\n"
                              "      --version              print the version of Quovara and "
                              "of the engine\n"))
        << help.toStdString();
    // A name too long for its column puts the description on the next line.
    EXPECT_TRUE(help.contains("      --install-engine FILE...\n"
                              "                             copy the engine files"))
        << help.toStdString();
    EXPECT_TRUE(help.contains("\n  --                         end of the options"));
    for (const QString& line : help.split('\n'))
        EXPECT_LE(line.size(), 79) << line.toStdString();
    EXPECT_TRUE(help.endsWith('\n'));
}

TEST(Options, TheHelpFollowsTheTable) {
    const QString help = HelpText(kWithValue);
    EXPECT_TRUE(help.contains("  -c, --code-page NUMBER     read the archive's names in code "
                              "page NUMBER\n"))
        << help.toStdString();
    EXPECT_FALSE(help.contains("--install-engine FILE"));
}
