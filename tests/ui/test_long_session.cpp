// What a long session must not pile up: objects made again at every job and never let go
// (bench/soak.sh measures the whole session's memory).
#include "mainwindow_fixture.h"

#include "ui/browser/fileicons.h"

#include <QAbstractFileIconProvider>
#include <QHeaderView>
#include <QItemSelectionModel>
#include <QTemporaryDir>
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

TEST(FileIcons, EveryFolderAndEveryArchiveShareOneIcon) {
    QTemporaryDir dir;
    ASSERT_TRUE(QDir(dir.path()).mkpath("a") && QDir(dir.path()).mkpath("b"));
    writeFile(dir.filePath("x.uha"), "UHA");
    writeFile(dir.filePath("y.uha"), "UHA");
    QAbstractFileIconProvider* icons = SharedFileIconProvider();
    const QIcon folder = icons->icon(QFileInfo(dir.filePath("a")));
    const QIcon archive = icons->icon(QFileInfo(dir.filePath("x.uha")));
    ASSERT_FALSE(folder.isNull());
    ASSERT_FALSE(archive.isNull());
    // The same icon, not one drawn and cached afresh for each item.
    EXPECT_EQ(icons->icon(QFileInfo(dir.filePath("b"))).cacheKey(), folder.cacheKey());
    EXPECT_EQ(icons->icon(QFileInfo(dir.filePath("a"))).cacheKey(), folder.cacheKey());
    EXPECT_EQ(icons->icon(QAbstractFileIconProvider::Folder).cacheKey(), folder.cacheKey());
    EXPECT_EQ(icons->icon(QFileInfo(dir.filePath("y.uha"))).cacheKey(), archive.cacheKey());
    EXPECT_NE(archive.cacheKey(), folder.cacheKey());
}
