// The main window as a user meets it: leaving the mirror tree, the toolbar, the keyboard,
// drops onto the window, where the focus shows, and a small screen.
#include "mainwindow_fixture.h"

#include "core/places.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QDropEvent>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QPushButton>
#include <QScopeGuard>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <QTreeView>
#include <QUrl>
#include <gtest/gtest.h>

using namespace quovara;
using namespace quovara::testing;

TEST_F(MainWindow, LeavingTheMirrorTreeByAnyRouteRestoresTheFileSystemLayout) {
    const QString first = makeArchive(kSix, "first.uha");
    const QString second = makeArchive(kSix, "second.uha");
    ASSERT_TRUE(window_.Form_Load(first));
    show();
    ASSERT_TRUE(archiveLayout());
    EXPECT_EQ(window_.windowTitle(),
              QString::fromUtf8("first.uha — Quovara — demonstration engine"));
    EXPECT_TRUE(child<ucToolbar>("ucToolbar1")->ButtonEnabled(5));
    // Deeper inside the mirror tree the layout stays.
    window_.fileView()->setFolder(ScratchFolder() + "/a/b");
    EXPECT_TRUE(archiveLayout());
    // Back climbs out to the archive's folder.
    window_.fileView()->setFolder(places_.path());
    EXPECT_FALSE(archiveLayout());
    EXPECT_FALSE(child<ucToolbar>("ucToolbar1")->ButtonEnabled(5));
    EXPECT_EQ(window_.windowTitle(), QString::fromUtf8("Quovara — demonstration engine"));
    // A double-click on another archive there lists it, not an item of the old mirror tree.
    clickItem(second, true);
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    EXPECT_EQ(window_.lister().listing().archivePath, second);
    EXPECT_EQ(window_.windowTitle(),
              QString::fromUtf8("second.uha — Quovara — demonstration engine"));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(MainWindow, TheToolbarShowsCaptionsBesideTheImages) {
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    // List style: the caption stands to the right of its 32-pixel image, so a button is wider
    // than tall and the bar is one button high.
    const QRect back = toolbar->ButtonRect(1);
    EXPECT_GT(back.width(), back.height() + 10) << back.width() << "x" << back.height();
    EXPECT_LT(toolbar->ToolbarHeight(), 60);
}

TEST_F(MainWindow, ARootSearchResultRunsLikeAnyOtherItem) {
    const QString archive = makeArchive(kSix, "plain.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    show();
    ASSERT_TRUE(searchWithEnter("root*"));
    auto* found = child<QTreeView>("Trovati");
    ASSERT_EQ(found->model()->rowCount(), 1);
    QTest::mouseClick(found->viewport(), Qt::LeftButton, {},
                      found->visualRect(found->model()->index(0, 0)).center());
    EXPECT_EQ(window_.selectedItem(), "\\root.txt");
    QTest::mouseClick(child<QPushButton>("EseFile"), Qt::LeftButton);
    EXPECT_EQ(readAll(WorkFolder() + "/root.txt"), QByteArray("root file"));
    EXPECT_EQ(opened_, QStringList({WorkFolder() + "/root.txt"}));
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
    // The extract dialog's preset names the stored item.
    QTest::mouseClick(child<QPushButton>("EstFile"), Qt::LeftButton);
    EXPECT_EQ(window_.opened, QStringList({"extract selected"}));
}

TEST_F(MainWindow, AServedSfxRequestOnAnOldArchiveEndsWithTheEngineSwitchedBack) {
    const QString archive = makeArchive(kFour, "old.uha");
    EXPECT_FALSE(window_.Form_Load("sfx  " + archive));
    EXPECT_EQ(window_.opened, QStringList({"sfx"}));
    EXPECT_FALSE(window_.engineSwitch().engineSwitched);
    EXPECT_EQ(readAll(places_.programFolder() + "/uharc.exe"), readAll(kSix));
    EXPECT_EQ(readAll(places_.programFolder() + "/Uharc0.4.fns"), readAll(kFour));
}

namespace {

// The main window whose open-archive question answers with a chosen path.
class AnsweringApri : public TestApri {
public:
    QString answer;
    int asked = 0;

protected:
    QString askArchiveToOpen() override {
        ++asked;
        return answer;
    }
};

} // namespace

TEST_F(MainWindow, EverythingIsReachedWithTheKeyboard) {
    const QString archive = makeArchive(kSix, "keys.uha");
    AnsweringApri window;
    window.setPrompter(&prompter_);
    window.setInstanceLockPath(lockPath_ + ".keys");
    ASSERT_TRUE(window.Form_Load(QString()));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto key = [&](int k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : &window;
        QTest::keyClick(target, Qt::Key(k), m);
    };
    // Ctrl+O asks for an archive and opens it.
    window.answer = archive;
    key(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(window.asked, 1);
    ASSERT_TRUE(waitFor([&] { return window.lister().listing().archivePath == archive; }));
    auto* pane = window.findChild<TaskPaneBar*>("Barra");
    EXPECT_FALSE(pane->isHidden());
    // Ctrl+F puts the cursor in the search box.
    key(Qt::Key_F, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), window.findChild<QLineEdit*>("TxtCerca"));
    // Backspace typed there edits the text, it does not go back.
    QTest::keyClicks(QApplication::focusWidget(), "ab");
    key(Qt::Key_Backspace);
    EXPECT_EQ(window.findChild<QLineEdit*>("TxtCerca")->text(), "a");
    // F5 lists the archive again.
    QFile::remove(ScratchFolder() + "/root.txt");
    key(Qt::Key_F5);
    EXPECT_TRUE(QFileInfo(ScratchFolder() + "/root.txt").isFile());
    // Alt+Left goes back out of the archive's folder view.
    window.fileView()->setFocus();
    window.fileView()->setFolder(ScratchFolder() + "/a");
    key(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(window.fileView()->folder(), ScratchFolder());
    // Backspace in the file list goes back too.
    window.fileView()->setFolder(ScratchFolder() + "/a/b");
    window.fileView()->setFocus();
    key(Qt::Key_Backspace);
    EXPECT_EQ(window.fileView()->folder(), ScratchFolder());
    // Ctrl+Q ends the program.
    key(Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window.isVisible());
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

namespace {

// Drops `path` onto `target` the way a file manager's drag does.
bool dropOnto(QWidget* target, const QString& path) {
    QMimeData data;
    data.setUrls({QUrl::fromLocalFile(path)});
    const QPoint at = target->rect().center();
    QDragEnterEvent enter(at, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &enter);
    if (!enter.isAccepted())
        return false;
    QDropEvent drop(QPointF(at), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(target, &drop);
    return drop.isAccepted();
}

} // namespace

TEST_F(MainWindow, ADroppedFolderOrFileOpensTheAddDialogForIt) {
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    const QString folder = src_ + QString::fromUtf8("/a");
    ASSERT_TRUE(dropOnto(&window_, folder));
    ASSERT_TRUE(waitFor([&] { return !window_.opened.isEmpty(); }));
    EXPECT_EQ(window_.opened, QStringList({"add"}));
    EXPECT_EQ(window_.addSources, QStringList({folder}));
    // The browser points at what was dropped, as if it had been selected there.
    EXPECT_EQ(window_.fileView()->folder(), src_);
    // A name in any script comes through unchanged.
    const QString mixed = src_ + "/" + MixedScriptNames().at(4);
    writeFile(mixed, "x");
    ASSERT_TRUE(dropOnto(&window_, mixed));
    ASSERT_TRUE(waitFor([&] { return window_.addSources.size() == 2; }));
    EXPECT_EQ(window_.addSources.last(), mixed);
}

TEST_F(MainWindow, ADroppedArchiveIsOpened) {
    const QString archive = makeArchive(kSix, "dropped.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    ASSERT_TRUE(dropOnto(&window_, archive));
    ASSERT_TRUE(waitFor([&] { return archiveLayout(); }));
    EXPECT_EQ(window_.lister().listing().archivePath, archive);
    EXPECT_TRUE(window_.opened.isEmpty());
}

TEST_F(MainWindow, ADragWithoutALocalFileIsRefused) {
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    QMimeData data;
    data.setUrls({QUrl("https://example.org/a.uha")});
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window_, &enter);
    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(MainWindow, EntriesCanBeDraggedInEveryViewModeOfTheMirrorTree) {
    const QString archive = makeArchive(kSix, "drag.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    EXPECT_TRUE(window_.fileView()->dragOut());
    EXPECT_TRUE(window_.fileView()->currentView()->dragEnabled());
    window_.OpenItem(archive);
    ASSERT_TRUE(archiveLayout());
    for (int mode = 0; mode < 4; ++mode) {
        window_.fileView()->setViewMode(mode);
        EXPECT_TRUE(window_.fileView()->currentView()->dragEnabled()) << mode;
    }
    window_.fileView()->setFolder(places_.path());
    EXPECT_TRUE(window_.fileView()->currentView()->dragEnabled());
}

TEST_F(MainWindow, TheFileListAndTheTaskPaneShowWhereTheFocusIs) {
    const QString archive = makeArchive(kSix, "focus.uha");
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    window_.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    // Tab moves the focus, as a person without a mouse does.
    auto tabTo = [&](QWidget* target) {
        for (int i = 0; i < 30 && !target->hasFocus(); ++i)
            QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget()
                                                        : static_cast<QWidget*>(&window_),
                            Qt::Key_Tab);
        return target->hasFocus();
    };
    // The file list, given the focus, marks an item as the current one without selecting it.
    // The item current before, in the folder that held the archive, is not on the screen now.
    QAbstractItemView* list = window_.fileView()->currentView();
    window_.fileView()->setFolder(places_.path());
    ASSERT_TRUE(waitFor([&] { return window_.fileView()->indexOf(archive).isValid(); }));
    list->selectionModel()->setCurrentIndex(window_.fileView()->indexOf(archive),
                                            QItemSelectionModel::NoUpdate);
    window_.OpenItem(archive);
    ASSERT_TRUE(archiveLayout());
    ASSERT_TRUE(waitFor([&] { return list->model()->rowCount(list->rootIndex()) > 0; }));
    child<QLineEdit>("TxtCerca")->setFocus();
    const QImage unfocused = list->viewport()->grab().toImage();
    ASSERT_TRUE(tabTo(list));
    EXPECT_TRUE(list->currentIndex().isValid());
    EXPECT_EQ(list->currentIndex().parent(), list->rootIndex());
    EXPECT_TRUE(list->selectionModel()->selectedIndexes().isEmpty());
    EXPECT_TRUE(window_.fileView()->selectedPath().isEmpty());
    // ... and its frame is drawn.
    EXPECT_NE(list->viewport()->grab().toImage(), unfocused);
    // The task pane, given the focus with nothing under the pointer, draws a focus frame.
    auto* pane = child<TaskPaneBar>("Barra");
    const QImage before = pane->grab().toImage();
    ASSERT_TRUE(tabTo(pane));
    EXPECT_NE(pane->grab().toImage(), before);
    ASSERT_TRUE(tabTo(list));
    EXPECT_EQ(pane->grab().toImage(), before);
    // The search box and its button name their shortcut in their tips.
    EXPECT_EQ(child<QToolButton>("ImgCerca")->toolTip(), "Search (Ctrl+F)");
    EXPECT_EQ(child<QLineEdit>("TxtCerca")->toolTip(), "Search file in archive (Ctrl+F)");
    // The toolbar's tips name the other keys: resting the pointer on a button shows its tip.
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    auto tipAt = [&](int id) {
        QHelpEvent help(QEvent::ToolTip, toolbar->ButtonRect(id).center(),
                        toolbar->mapToGlobal(toolbar->ButtonRect(id).center()));
        QApplication::sendEvent(toolbar, &help);
        return QToolTip::isVisible() ? QToolTip::text() : QString();
    };
    EXPECT_EQ(tipAt(1), "Back (Backspace, Alt+Left)");
    EXPECT_EQ(tipAt(11),
              "About Quovara. Keys: Ctrl+O open an archive, F5 read it again, Ctrl+Q quit");
}

TEST_F(MainWindow, AtSixHundredFortyByFourHundredTwentyNothingIsCut) {
    const QString archive = makeArchive(kSix, "small-window.uha");
    ASSERT_TRUE(window_.Form_Load(archive));
    window_.resize(640, 420);
    show();
    ASSERT_TRUE(waitFor([&] { return window_.width() == 640 && window_.height() == 420; }));
    ASSERT_TRUE(archiveLayout());
    auto* pane = child<TaskPaneBar>("Barra");
    // A label shows its text whole: on one line within its width, or wrapped within its height.
    auto shownWhole = [](const QLabel* l) {
        const QRect r = l->contentsRect();
        return l->wordWrap() ? l->heightForWidth(l->width()) <= l->height()
                             : l->fontMetrics().horizontalAdvance(l->text()) <= r.width();
    };
    // The longest state text, with a six-digit count, is shown whole as well as the idle one.
    auto* state = child<QLabel>("Stato");
    const QString idle = state->text();
    for (const QString& t : {idle, QString("Quovara is reading the archive: 100000 entries")}) {
        state->setText(t);
        QApplication::processEvents();
        // Wrapped, it has the height it needs, inside the pane.
        EXPECT_TRUE(shownWhole(state)) << t.toStdString();
        EXPECT_LE(state->mapTo(pane, QPoint(state->width(), 0)).x(), pane->width());
        EXPECT_LE(state->mapTo(child<QWidget>("pStato"), QPoint(0, state->height())).y(),
                  child<QWidget>("pStato")->height());
    }
    state->setText(idle);
    // Each caption of the pane is shown whole, inside the pane.
    for (const char* name :
         {"NomeAr", "GranNorm", "GranComp", "MetodoC", "RatioP", "LBCerca", "Consiglio"}) {
        auto* l = child<QLabel>(name);
        EXPECT_TRUE(shownWhole(l)) << name;
        EXPECT_LE(l->mapTo(pane, QPoint(l->width(), 0)).x(), pane->width()) << name;
    }
    for (const char* name : {"EstFile", "EseFile"}) {
        auto* b = child<QPushButton>(name);
        EXPECT_GE(b->width(), b->sizeHint().width()) << name;
        EXPECT_LE(b->mapTo(pane, QPoint(b->width(), 0)).x(), pane->width()) << name;
    }
    // The toolbar's buttons that do not fit are behind its arrow, which is on the screen.
    auto* toolbar = child<ucToolbar>("ucToolbar1");
    auto* more = toolbar->findChild<QToolButton*>("Overflow");
    ASSERT_NE(more, nullptr);
    EXPECT_TRUE(more->isVisible());
    EXPECT_FALSE(toolbar->OverflowButtons().isEmpty());
    EXPECT_LE(more->mapTo(&window_, QPoint(more->width(), 0)).x(), window_.width());
}

TEST_F(MainWindow, AScreenReaderMeetsEachEntryOfTheListAsOneItemNamedByItsName) {
    ASSERT_TRUE(window_.Form_Load(makeArchive(kSix, "plain.uha")));
    ASSERT_TRUE(archiveLayout());
    show();
    QAbstractItemView* list = window_.fileView()->currentView();
    ASSERT_EQ(list->objectName(), "FileViewList");
    ASSERT_TRUE(waitFor([&] { return list->model()->rowCount(list->rootIndex()) == 2; }));
    QStringList shown;
    for (int row = 0; row < 2; ++row)
        shown << list->model()->index(row, 0, list->rootIndex()).data().toString();
    EXPECT_EQ(QSet<QString>(shown.begin(), shown.end()), QSet<QString>({"a", "root.txt"}));

    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(list);
    ASSERT_NE(access, nullptr);
    // One item per entry, all of them: not the first row's size, type and date as items.
    ASSERT_EQ(access->childCount(), 2);
    QStringList heard;
    for (int i = 0; i < access->childCount(); ++i)
        heard << access->child(i)->text(QAccessible::Name);
    EXPECT_EQ(heard, shown);

    // Into a folder: its entries, and only those.
    const QString inside = window_.fileView()->folder() + "/a";
    clickItem(inside, true);
    ASSERT_TRUE(waitFor([&] {
        return window_.fileView()->folder() == inside &&
               list->model()->rowCount(list->rootIndex()) == 2;
    }));
    // A screen reader is told of the new rows and reads them again (offscreen, nothing tells
    // the list's interface: it is made anew).
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(access));
    access = QAccessible::queryAccessibleInterface(list);
    ASSERT_NE(access, nullptr);
    heard.clear();
    for (int i = 0; i < access->childCount(); ++i)
        heard << access->child(i)->text(QAccessible::Name);
    EXPECT_EQ(QSet<QString>(heard.begin(), heard.end()), QSet<QString>({"b", "d.txt"}));
}
