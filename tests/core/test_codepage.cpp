// The engine's code pages: decoding its text and checking names for it, single-byte and
// double-byte, and which code pages a locale gives (as wine gives them).
#include "core/codepage.h"
#include "core/enginelocale.h"
#include "core/jobscript.h"
#include "test_support.h"

#include <gtest/gtest.h>

#include <QFile>

using namespace quovara;
using namespace quovara::testing;

namespace {

QByteArray captured(const char* folder, const char* name) {
    QFile f(QStringLiteral(QUOVARA_TEST_DATA_DIR "/") + folder + '/' + name);
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.readAll();
}

// The entry lines of a captured listing log: every second line after the nine header lines.
QStringList entryLines(const QByteArray& log, const EngineCodec& codec) {
    const QStringList lines = SplitEngineLines(codec.decode(log));
    QStringList names;
    for (qsizetype i = 9; i < lines.size(); i += 2) {
        if (lines[i] == QString(79, '-'))
            break;
        names << lines[i];
    }
    return names;
}

} // namespace

TEST(EngineCodec, ReadsTheRussianListingInCodePage866) {
    const QByteArray log = captured("engine-samples", "list-cp866-russian.log");
    ASSERT_FALSE(log.isEmpty());
    EXPECT_EQ(
        entryLines(log, EngineCodec::ForCodePage(866)),
        QStringList({QString::fromUtf8("Папка\\plain.txt"),
                     QString::fromUtf8("Папка\\Документ.txt"), QString::fromUtf8("Привет.txt")}));
    // The same bytes read as code page 437: what an English desktop showed before.
    EXPECT_EQ(entryLines(log, EngineCodec::Cp437()).last(), QString::fromUtf8("Åα¿óÑΓ.txt"));
}

TEST(EngineCodec, ReadsThePolishListingInCodePage852) {
    const QByteArray log = captured("engine-samples", "list-cp852-polish.log");
    ASSERT_FALSE(log.isEmpty());
    EXPECT_EQ(entryLines(log, EngineCodec::ForCodePage(852)),
              QStringList({QString::fromUtf8("Żółw\\zażółć gęślą jaźń.txt"),
                           QString::fromUtf8("Łódź.txt")}));
}

TEST(EngineCodec, ASecondByte5CIsPartOfAJapaneseLetterNotAFolderSeparator) {
    // "表ソ.txt" is 95 5C 83 5C in code page 932: both second bytes are the byte of "\".
    const QByteArray log = captured("listing", "list-cp932-japanese.log");
    ASSERT_FALSE(log.isEmpty());
    ASSERT_TRUE(log.contains(QByteArray("\x95\x5c\x83\x5c.txt")));
    const EngineCodec cp932 = EngineCodec::ForCodePage(932);
    ASSERT_TRUE(cp932.isValid());
    EXPECT_EQ(entryLines(log, cp932),
              QStringList({QString::fromUtf8("表\\能.txt"), QString::fromUtf8("表ソ.txt")}));
    EXPECT_EQ(cp932.encode(QString::fromUtf8("表ソ.txt")), QByteArray("\x95\x5c\x83\x5c.txt"));
}

TEST(EngineCodec, EveryDoubleByteCodePageRoundTripsItsLetters) {
    const struct {
        int page;
        const char* text;
    } cases[] = {{932, "日本語のファイル名.txt"},
                 {936, "中文文件名.txt"},
                 {949, "한국어 파일.txt"},
                 {950, "繁體中文檔案.txt"}};
    for (const auto& c : cases) {
        const EngineCodec codec = EngineCodec::ForCodePage(c.page);
        ASSERT_TRUE(codec.isValid()) << c.page;
        const QString text = QString::fromUtf8(c.text);
        EXPECT_TRUE(codec.canEncode(text)) << c.page;
        EXPECT_EQ(codec.decode(codec.encode(text)), text) << c.page;
        EXPECT_GT(codec.encode(text).size(), text.size()) << c.page;
    }
}

TEST(EngineCodec, ALineCutInTheMiddleOfALetterGivesOneReplacementCharacter) {
    const EngineCodec cp932 = EngineCodec::ForCodePage(932);
    EXPECT_EQ(cp932.decode(QByteArray("ab\x95")), QString("ab") + QChar(0xFFFD));
    // A second byte without its lead byte, as a shortened progress line can start.
    EXPECT_EQ(cp932.decode(QByteArray("\x5c.txt")), QString("\\.txt"));
}

TEST(EngineCodec, LackingNamesEachMissingLetterOnce) {
    const EngineCodec cp437 = EngineCodec::Cp437();
    EXPECT_EQ(cp437.lacking(QString::fromUtf8("Łódź łza")), QString::fromUtf8("Łźł"));
    EXPECT_EQ(cp437.encode(QString::fromUtf8("Łódź")), QByteArray("?\xa2"
                                                                  "d?"));
    EXPECT_TRUE(cp437.canEncode(QString::fromUtf8("café ñ ü")));
    // A letter beyond the Basic Multilingual Plane is in no code page, and is named whole.
    EXPECT_EQ(EngineCodec::ForCodePage(1252).lacking(QString::fromUtf8("a📦b")),
              QString::fromUtf8("📦"));
    EXPECT_TRUE(EngineCodec::Utf8().canEncode(QString::fromUtf8("Łódź 📦 日本")));
}

TEST(EngineCodec, ACodePageThisSystemCannotConvertIsInvalidAndTakesOnlyAscii) {
    const EngineCodec none = EngineCodec::ForCodePage(12345);
    EXPECT_FALSE(none.isValid());
    EXPECT_TRUE(none.canEncode("plain.txt"));
    EXPECT_FALSE(none.canEncode(QString::fromUtf8("é")));
    EXPECT_EQ(none.decode(QByteArray("a\x82")), QString::fromUtf8("aé"));
}

// Measured with the real engine under wine: "wine cmd /c chcp" on a console under each locale
// (C 437, de_DE 850, en_GB 850, fr_FR 850 also when not generated, ru_RU 866, pl_PL 852,
// el_GR 737, tr_TR 857, ja_JP 932, zh_CN 936, ko_KR 949, zh_TW 950).
TEST(EngineLocale, CodePagesFollowTheLocaleAsWineChoosesThem) {
    const struct {
        const char* locale;
        int oem;
        int ansi;
    } cases[] = {
        {"C", 437, 1252},           {"POSIX", 437, 1252},       {"en_US.UTF-8", 437, 1252},
        {"en_GB.UTF-8", 850, 1252}, {"de_DE.UTF-8", 850, 1252}, {"fr_FR.UTF-8", 850, 1252},
        {"pt_PT.UTF-8", 860, 1252}, {"pl_PL.UTF-8", 852, 1250}, {"cs_CZ", 852, 1250},
        {"ru_RU.UTF-8", 866, 1251}, {"uk_UA.UTF-8", 866, 1251}, {"sr_RS", 855, 1251},
        {"sr_RS@latin", 852, 1250}, {"el_GR.UTF-8", 737, 1253}, {"tr_TR.UTF-8", 857, 1254},
        {"he_IL.UTF-8", 862, 1255}, {"lt_LT.UTF-8", 775, 1257}, {"vi_VN", 1258, 1258},
        {"th_TH.UTF-8", 874, 874},  {"ja_JP.UTF-8", 932, 932},  {"zh_CN.UTF-8", 936, 936},
        {"zh_SG.UTF-8", 936, 936},  {"ko_KR.UTF-8", 949, 949},  {"zh_TW.UTF-8", 950, 950},
        {"zh_HK.UTF-8", 950, 950},  {"xx_YY.UTF-8", 437, 1252},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CodePagesForLocale(c.locale), (EngineCodePages{c.oem, c.ansi})) << c.locale;
}

TEST(EngineLocale, TheLocaleIsLcAllThenLcCtypeThenLang) {
    QProcessEnvironment env;
    EXPECT_EQ(LocaleOfEnvironment(env), "C");
    env.insert("LANG", "pl_PL.UTF-8");
    EXPECT_EQ(LocaleOfEnvironment(env), "pl_PL.UTF-8");
    env.insert("LC_CTYPE", "ru_RU.UTF-8");
    EXPECT_EQ(LocaleOfEnvironment(env), "ru_RU.UTF-8");
    env.insert("LC_ALL", "ja_JP.UTF-8");
    EXPECT_EQ(LocaleOfEnvironment(env), "ja_JP.UTF-8");
    env.insert("LC_ALL", "");
    EXPECT_EQ(LocaleOfEnvironment(env), "ru_RU.UTF-8");
}

TEST(EngineLocale, AnArchiveLocaleTakesThePlaceOfTheUsersOwn) {
    ScopedEnv lang("LANG", "en_US.UTF-8");
    ScopedEnv all("LC_ALL", QByteArray());
    ScopedEnv ctype("LC_CTYPE", QByteArray());
    SetArchiveLocale(QString());
    EXPECT_EQ(EngineLocale(), "en_US.UTF-8");
    SetArchiveLocale("ru_RU.UTF-8");
    EXPECT_EQ(EngineLocale(), "ru_RU.UTF-8");
    EXPECT_EQ(WindowsEngineCodecs(EngineLocale()).text.number(), 866);
    SetArchiveLocale(QString());
}

TEST(EngineLocale, ALanguageOrLocaleNamedByTheUserBecomesItsUtf8Form) {
    EXPECT_EQ(NormalizedLocale("ru"), "ru_RU.UTF-8");
    EXPECT_EQ(NormalizedLocale("ja"), "ja_JP.UTF-8");
    EXPECT_EQ(NormalizedLocale("pl_PL"), "pl_PL.UTF-8");
    EXPECT_EQ(NormalizedLocale("de_AT.ISO-8859-1"), "de_AT.UTF-8");
    EXPECT_EQ(NormalizedLocale("sr_RS@latin"), "sr_RS.UTF-8@latin");
    EXPECT_EQ(NormalizedLocale(""), QString());
    EXPECT_EQ(NormalizedLocale("../../x"), QString());
    EXPECT_EQ(NormalizedLocale("Русский"), QString());
}

TEST(EngineLocale, ALocaleThatIsNotInstalledIsToldWithTheWayToAddIt) {
    EXPECT_TRUE(LocaleInstalled("C"));
    EXPECT_TRUE(LocaleInstalled("C.UTF-8"));
    EXPECT_FALSE(LocaleInstalled("xx_YY.UTF-8"));
    EXPECT_EQ(LocaleMissingMessage("ru_RU.UTF-8"),
              "The locale ru_RU.UTF-8 is not installed on this system, so the engine cannot "
              "read or write names in its letters. Add it with\n"
              "sudo sed -i 's/^# *ru_RU.UTF-8 /ru_RU.UTF-8 /' /etc/locale.gen && sudo "
              "locale-gen\n(or \"sudo dpkg-reconfigure locales\") and start Quovara again.");
}

TEST(EngineNames, ANameIsRefusedOnlyWhenTheEngineCannotTakeItUnderItsLocale) {
    const EngineTextCodecs ru = WindowsEngineCodecs("C.UTF-8");
    // Under C (code pages 437 and 1252) a Cyrillic name cannot reach the engine.
    EXPECT_EQ(ValueProblemForEngine(QString::fromUtf8("/d/Документ.txt"), "source", false, ru),
              QString::fromUtf8(
                  "The source\n/d/Документ.txt\nholds letters that the engine cannot take under "
                  "the locale C.UTF-8: \"Д\" (CYRILLIC CAPITAL LETTER DE), \"о\" (CYRILLIC SMALL "
                  "LETTER O), \"к\" (CYRILLIC SMALL LETTER KA), \"у\" (CYRILLIC SMALL LETTER U), "
                  "\"м\" (CYRILLIC SMALL LETTER EM), \"е\" (CYRILLIC SMALL LETTER IE), \"н\" "
                  "(CYRILLIC SMALL LETTER EN), \"т\" (CYRILLIC SMALL LETTER TE) (its code pages "
                  "1252 and 437 lack them). Nothing was run. To go on, rename it with other "
                  "letters, or start Quovara with \"--archive-locale ru_RU.UTF-8\", a locale whose "
                  "code pages have them."));
    // "€" is in code page 1252 but not in 437, in which the engine keeps names: the real
    // engine then says it cannot read "?uro.txt".
    EXPECT_EQ(ValueProblemForEngine(QString::fromUtf8("€uro.txt"), "source", false, ru),
              QString::fromUtf8("The source\n€uro.txt\nholds letters that the engine cannot "
                                "take under the locale C.UTF-8: \"€\" (EURO SIGN) (its code page "
                                "437 lacks them). Nothing was run. To go on, rename it with other "
                                "letters, or start Quovara with \"--archive-locale "
                                "vi_VN.UTF-8\", a locale whose code pages have them."));
    // A password's letters are never shown.
    EXPECT_EQ(ValueProblemForEngine(QString::fromUtf8("пароль"), "password", true, ru),
              "The password holds letters that the engine cannot take under the locale "
              "C.UTF-8 (its code pages 1252 and 437 lack them). Nothing was run. To go on, "
              "choose a password with other letters, or start Quovara with \"--archive-locale "
              "LOCALE\" naming a locale whose code pages have them.");
    EXPECT_EQ(ValueProblemForEngine(QString::fromUtf8("café ñ ü.uha"), "archive", false, ru),
              QString());
    // A native engine takes every name.
    EXPECT_EQ(ValueProblemForEngine(QString::fromUtf8("Łódź 📦.uha"), "archive", false,
                                    EngineTextCodecs()),
              QString());
}

TEST(EngineNames, UnderTheLocalesOfTheirLanguagesTheNamesAreTaken) {
    const struct {
        const char* locale;
        const char* name;
    } cases[] = {
        {"ru_RU.UTF-8", "Папка/Документ.txt"}, {"pl_PL.UTF-8", "Żółw/zażółć gęślą jaźń.txt"},
        {"el_GR.UTF-8", "Ελληνικά.txt"},       {"tr_TR.UTF-8", "Türkçe ığüşöç.txt"},
        {"ja_JP.UTF-8", "表ソ.txt"},           {"zh_CN.UTF-8", "中文.txt"},
        {"ko_KR.UTF-8", "한국어.txt"}};
    for (const auto& c : cases) {
        EngineTextCodecs engine = WindowsEngineCodecs(c.locale);
        // Judged by the code pages alone (whether the locale is generated here does not count).
        engine.locale = "C.UTF-8";
        EXPECT_EQ(ValueProblemForEngine(QString::fromUtf8(c.name), "source", false, engine),
                  QString())
            << c.locale;
    }
    // Polish letters under a Russian locale are refused, and named.
    EngineTextCodecs ru = WindowsEngineCodecs("ru_RU.UTF-8");
    ru.locale = "C.UTF-8";
    EXPECT_TRUE(ValueProblemForEngine(QString::fromUtf8("Łódź.txt"), "source", false, ru)
                    .contains(QString::fromUtf8(
                        "\"Ł\" (LATIN CAPITAL LETTER L WITH STROKE), \"ó\" (LATIN SMALL LETTER O "
                        "WITH ACUTE), \"ź\" (LATIN SMALL LETTER Z WITH ACUTE) (its code pages 1251 "
                        "and 866 lack them)")));
}

TEST(EngineNames, UnderALocaleThatIsNotInstalledOnlyAsciiNamesAreTaken) {
    const EngineTextCodecs missing = WindowsEngineCodecs("xx_YY.UTF-8");
    EXPECT_EQ(ValueProblemForEngine("plain.txt", "source", false, missing), QString());
    EXPECT_EQ(ValueProblemForEngine(QString::fromUtf8("é.txt"), "source", false, missing),
              QString::fromUtf8("The source\né.txt\nholds letters beyond ASCII. ") +
                  LocaleMissingMessage("xx_YY.UTF-8") + " Nothing was run.");
}
