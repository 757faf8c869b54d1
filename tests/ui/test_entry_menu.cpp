// The menu of an archive's entries: a right click on an entry, the Menu key and Shift+F10 open
// it; "Open" runs a file (or shows a folder) and "Extract…" opens the Extract dialog for every
// selected entry. Elsewhere the View menu opens as before.
#include "mainwindow_fixture.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>

using namespace quovara;
using namespace quovara::testing;

namespace {

class EntryMenu : public MainWindow {
protected:
    void openArchive() {
        ASSERT_TRUE(window_.Form_Load(makeArchive(kSix, "plain.uha")));
        show();
        ASSERT_TRUE(archiveLayout());
    }
    QAbstractItemView* view() { return window_.fileView()->currentView(); }
    QPoint pointOf(const QString& path) {
        return view()->visualRect(window_.fileView()->indexOf(path)).center();
    }
    void rightClick(const QPoint& at) {
        // A right click as the window system delivers it: press, then the menu event.
        QTest::mousePress(view()->viewport(), Qt::RightButton, {}, at);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, view()->viewport()->mapToGlobal(at));
        QApplication::sendEvent(view()->viewport(), &event);
        QTest::mouseRelease(view()->viewport(), Qt::RightButton, {}, at);
    }
    QMenu* shownMenu() { return qobject_cast<QMenu*>(QApplication::activePopupWidget()); }
    QStringList captions(QMenu* menu) {
        QStringList list;
        for (QAction* a : menu->actions())
            if (!a->isSeparator())
                list << a->text().remove('&');
        return list;
    }
    // Chooses the `n`-th action of the open menu with the arrows and Enter.
    void choose(int n) {
        QMenu* menu = shownMenu();
        ASSERT_NE(menu, nullptr);
        for (int i = 0; i < n; ++i)
            QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
    }
    TestApri& apri() { return static_cast<TestApri&>(window_); }
};

} // namespace

TEST_F(EntryMenu, ARightClickOnAnEntryOffersOpenAndExtract) {
    openArchive();
    clickItem(ScratchFolder() + "/root.txt");
    rightClick(pointOf(ScratchFolder() + "/root.txt"));
    QMenu* menu = shownMenu();
    ASSERT_NE(menu, nullptr);
    EXPECT_EQ(menu->objectName(), "EntryMenu");
    EXPECT_EQ(captions(menu), QStringList({"Open", "Extract…", "Convert…", "View"}));
    choose(1);
    EXPECT_EQ(apri().opened, QStringList({"extract selected"}));
    EXPECT_EQ(window_.selectedStoredNames(), QStringList({"root.txt"}));
}

TEST_F(EntryMenu, ARightClickSelectsTheEntryUnderThePointer) {
    openArchive();
    clickItem(ScratchFolder() + "/root.txt");
    rightClick(pointOf(ScratchFolder() + "/a"));
    ASSERT_NE(shownMenu(), nullptr);
    EXPECT_EQ(window_.selectedStoredNames(), QStringList({"a\\*.*"}));
    QTest::keyClick(shownMenu(), Qt::Key_Escape);
    EXPECT_EQ(shownMenu(), nullptr);
}

TEST_F(EntryMenu, ExtractTakesEverySelectedEntry) {
    openArchive();
    clickItem(ScratchFolder() + "/a");
    QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::ControlModifier,
                      pointOf(ScratchFolder() + "/root.txt"));
    rightClick(pointOf(ScratchFolder() + "/root.txt"));
    choose(1);
    EXPECT_EQ(apri().opened, QStringList({"extract selected"}));
    EXPECT_EQ(window_.selectedStoredNames(), QStringList({"a\\*.*", "root.txt"}));
}

TEST_F(EntryMenu, OpenRunsAFileAsRunSelectedFileDoes) {
    openArchive();
    clickItem(ScratchFolder() + "/root.txt");
    rightClick(pointOf(ScratchFolder() + "/root.txt"));
    choose(0);
    ASSERT_TRUE(waitFor([&] { return !opened_.isEmpty(); }));
    EXPECT_EQ(opened_, QStringList({WorkFolder() + "/root.txt"}));
    EXPECT_EQ(readAll(WorkFolder() + "/root.txt"), QByteArray("root file"));
}

TEST_F(EntryMenu, OpenOnAFolderShowsIt) {
    openArchive();
    clickItem(ScratchFolder() + "/a");
    rightClick(pointOf(ScratchFolder() + "/a"));
    choose(0);
    EXPECT_EQ(window_.fileView()->folder(), ScratchFolder() + "/a");
    EXPECT_TRUE(opened_.isEmpty());
}

TEST_F(EntryMenu, TheMenuKeyAndShiftF10OpenItForTheSelectedEntry) {
    openArchive();
    clickItem(ScratchFolder() + "/root.txt");
    QTest::keyClick(view(), Qt::Key_Menu);
    // Qt turns the Menu key into a menu event for the widget with the focus.
    if (!shownMenu()) {
        QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1),
                                view()->mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(view(), &event);
    }
    ASSERT_NE(shownMenu(), nullptr);
    EXPECT_EQ(shownMenu()->objectName(), "EntryMenu");
    // At the selected entry, not where the pointer happens to be.
    const QPoint entry = view()->viewport()->mapToGlobal(pointOf(ScratchFolder() + "/root.txt"));
    EXPECT_LT((shownMenu()->pos() - entry).manhattanLength(), 4);
    QTest::keyClick(shownMenu(), Qt::Key_Escape);
    ASSERT_EQ(shownMenu(), nullptr);
    QTest::keyClick(view(), Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(shownMenu(), nullptr);
    EXPECT_EQ(shownMenu()->objectName(), "EntryMenu");
    choose(1);
    EXPECT_EQ(apri().opened, QStringList({"extract selected"}));
}

TEST_F(EntryMenu, AwayFromTheEntriesAndOutsideAnArchiveTheViewMenuOpens) {
    openArchive();
    rightClick(QPoint(view()->viewport()->width() - 5, view()->viewport()->height() - 5));
    ASSERT_NE(shownMenu(), nullptr);
    EXPECT_EQ(shownMenu()->objectName(), "PopView");
    QTest::keyClick(shownMenu(), Qt::Key_Escape);
    // In the file system a right click on a file opens the View menu as it always did.
    window_.fileView()->setFolder(places_.path());
    ASSERT_TRUE(waitFor([&] { return !archiveLayout(); }));
    clickItem(places_.path() + "/plain.uha");
    rightClick(pointOf(places_.path() + "/plain.uha"));
    ASSERT_NE(shownMenu(), nullptr);
    EXPECT_EQ(shownMenu()->objectName(), "PopView");
    QTest::keyClick(shownMenu(), Qt::Key_Escape);
}

TEST_F(EntryMenu, FromTheKeyboardTheMenuIsForTheItemWithTheFocusFrame) {
    openArchive();
    // The list takes the focus: its first item shows the focus frame without being selected.
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    view()->setFocus();
    ASSERT_TRUE(waitFor([&] {
        return view()->currentIndex().isValid() &&
               view()->currentIndex().parent() == view()->rootIndex();
    }));
    ASSERT_TRUE(window_.fileView()->selectedPath().isEmpty());
    QTest::keyClick(view(), Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_NE(shownMenu(), nullptr);
    EXPECT_EQ(shownMenu()->objectName(), "EntryMenu");
    EXPECT_FALSE(window_.fileView()->selectedPath().isEmpty());
    choose(1);
    EXPECT_EQ(apri().opened, QStringList({"extract selected"}));
}
