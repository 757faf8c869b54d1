// Which catalogue the program's texts come from: LANGUAGE, then LC_ALL, LC_MESSAGES and LANG,
// as desktop programs read them; the C locale keeps the source texts.
#include "app/language.h"

#include <gtest/gtest.h>

namespace quovara {
namespace {

QProcessEnvironment environment(std::initializer_list<std::pair<const char*, const char*>> vars) {
    QProcessEnvironment e;
    for (const auto& [name, value] : vars)
        e.insert(QString::fromLatin1(name), QString::fromLatin1(value));
    return e;
}

const QStringList kAvailable{"cs", "de",    "es", "fr", "it", "ja",
                             "pl", "pt_BR", "ru", "tr", "uk", "zh_CN"};

TEST(Language, TheListOfLanguageComesFirstElseTheLocaleOfMessages) {
    EXPECT_EQ(
        RequestedLanguages(environment({{"LANGUAGE", "pt_BR:pt:de"}, {"LANG", "ru_RU.UTF-8"}})),
        QStringList({"pt_BR", "pt", "de"}));
    // A list that names no language with a catalogue ends in the texts as written.
    EXPECT_EQ(RequestedLanguages(environment({{"LANGUAGE", "en"}, {"LANG", "ru_RU.UTF-8"}})),
              QStringList({"en"}));
    EXPECT_EQ(RequestedLanguages(environment(
                  {{"LC_ALL", "ja_JP.UTF-8"}, {"LC_MESSAGES", "de_DE"}, {"LANG", "fr_FR"}})),
              QStringList({"ja_JP"}));
    EXPECT_EQ(RequestedLanguages(
                  environment({{"LC_MESSAGES", "de_DE.UTF-8@euro"}, {"LANG", "fr_FR.UTF-8"}})),
              QStringList({"de_DE"}));
}

TEST(Language, UnderTheCLocaleNothingIsTranslatedEvenWithLanguageSet) {
    EXPECT_TRUE(RequestedLanguages(environment({{"LANGUAGE", "de"}, {"LANG", "C"}})).isEmpty());
    EXPECT_TRUE(
        RequestedLanguages(environment({{"LANGUAGE", "de"}, {"LC_ALL", "C.UTF-8"}})).isEmpty());
    EXPECT_TRUE(RequestedLanguages(environment({{"LANGUAGE", "de"}})).isEmpty());
    EXPECT_TRUE(RequestedLanguages(environment({{"LANG", "POSIX"}})).isEmpty());
}

TEST(Language, TheFirstLanguageWithACatalogueWins) {
    EXPECT_EQ(ChooseCatalogue({"eo", "de_AT", "ru"}, kAvailable), "de");
    EXPECT_EQ(ChooseCatalogue({"pt_BR"}, kAvailable), "pt_BR");
    EXPECT_EQ(ChooseCatalogue({"pt"}, kAvailable), "pt_BR");
    EXPECT_EQ(ChooseCatalogue({"zh"}, kAvailable), "zh_CN");
    // Traditional Chinese is not Simplified Chinese: the next language is taken.
    EXPECT_EQ(ChooseCatalogue({"zh_TW", "ja_JP"}, kAvailable), "ja");
    EXPECT_EQ(ChooseCatalogue({"pt_PT", "en_GB"}, kAvailable), QString());
    EXPECT_EQ(ChooseCatalogue({"en_US"}, kAvailable), QString());
}

TEST(Language, TheProgramCarriesTwelveCatalogues) {
    EXPECT_EQ(CatalogueLanguages(), kAvailable);
}

} // namespace
} // namespace quovara
