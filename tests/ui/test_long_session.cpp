// What a long session must not pile up: objects made again at every job and never let go
// (bench/soak.sh measures the whole session's memory).
#include "mainwindow_fixture.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

TEST_F(MainWindow, LeavingAndOpeningAnArchiveAgainKeepsNoSelectionModels) {
    const QString archive = makeArchive(kSix, "again.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_TRUE(archiveLayout());
    auto leaveAndOpen = [&] {
        clickToolbar(1); // Back: out of the archive, to the folder that holds it
        ASSERT_FALSE(archiveLayout());
        ASSERT_EQ(window_.fileView()->folder(), places_.path());
        clickItem(archive, true);
        ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    };
    leaveAndOpen();
    const qsizetype models = window_.findChildren<QItemSelectionModel*>().size();
    for (int i = 0; i < 5; ++i)
        leaveAndOpen();
    EXPECT_EQ(window_.findChildren<QItemSelectionModel*>().size(), models);
    // The Report view's header still follows the view's own selection.
    window_.fileView()->setViewMode(FileBrowser::Report);
    auto* report = qobject_cast<QTreeView*>(window_.fileView()->currentView());
    ASSERT_NE(report, nullptr);
    EXPECT_EQ(report->header()->selectionModel(), report->selectionModel());
    clickItem(ScratchFolder() + "/root.txt");
    EXPECT_EQ(window_.selectedItem(), "root.txt");
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}
