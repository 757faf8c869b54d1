// The Add and Extract windows in Russian and Japanese: no English text left in any caption,
// label, button, tooltip or accessible name.
#include "dialog_test_support.h"
#include "english_left.h"

#include "ui/jobs/frmaggiungi.h"
#include "ui/jobs/frmestrai.h"

using namespace quovara;
using namespace quovara::testing;

namespace {

class TranslatedDialogs : public ::testing::TestWithParam<const char*> {};

TEST_P(TranslatedDialogs, TheAddWindowHasNoEnglishLeft) {
    LanguageForTest language(QString::fromLatin1(GetParam()));
    ASSERT_TRUE(language.loaded());
    ScopedPlaces places;
    const QString src = places.path() + "/Документы";
    QDir().mkpath(src);
    RecordingPrompter prompter;
    frmAggiungi add([src] { return src; }, prompter, {});
    showAndWait(&add);
    EXPECT_EQ(EnglishLeft(ShownTexts(&add)), QStringList());
}

TEST_P(TranslatedDialogs, TheExtractWindowHasNoEnglishLeft) {
    LanguageForTest language(QString::fromLatin1(GetParam()));
    ASSERT_TRUE(language.loaded());
    ScopedPlaces places;
    const QString archive = places.path() + "/Отпуск.uha";
    writeFile(archive, "archive");
    RecordingPrompter prompter;
    frmEstrai extract(archive, prompter, {});
    showAndWait(&extract);
    EXPECT_EQ(EnglishLeft(ShownTexts(&extract)), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Languages, TranslatedDialogs, ::testing::Values("ru", "ja"));

} // namespace
