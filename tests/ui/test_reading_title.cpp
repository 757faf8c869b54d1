// The title and the state group name a count of entries only once entries were read, in the
// singular for one.
#include "mainwindow_fixture.h"

using namespace quovara;
using namespace quovara::testing;

TEST_F(MainWindow, WhileThePasswordIsAskedForTheTitleNamesNoEntries) {
    const QString archive = makeArchive(kSix, "protected.uha", {"-pwsecret"});
    ASSERT_TRUE(window_.Form_Load(""));
    show();
    window_.fileView()->setFolder(places_.path());
    QStringList titles;
    prompter_.onPrompt = [&] {
        // The count is looked at every 200 ms: give it the time to show one.
        QTest::qWait(450);
        titles << window_.windowTitle() + " | " + text("Stato");
    };
    prompter_.answers = {"secret"};
    clickItem(archive, true);
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }))
        << prompter_.shown.join("|").toStdString();
    ASSERT_EQ(titles.size(), 1);
    EXPECT_EQ(titles.first(),
              QString::fromUtf8(
                  "Reading protected.uha \u2026 \u2014 Quovara \u2014 demonstration engine | "
                  "Quovara is reading the archive"));
}

TEST(EntriesText, OneEntryIsSingular) {
    EXPECT_EQ(apri::EntriesText(1), "1 entry");
    EXPECT_EQ(apri::EntriesText(0), "0 entries");
    EXPECT_EQ(apri::EntriesText(12345), "12345 entries");
}
