// The main window's test fixture: the window with its other windows replaced by a record of
// what was asked for, temporary places with the stand-in engine, and helpers that drive it.
#pragma once

#include "../core/recording_prompter.h"
#include "../core/test_support.h"
#include "controls/taskpanebar.h"
#include "controls/uctoolbar.h"
#include "core/desktop.h"
#include "core/places.h"
#include "ui/browser/filebrowser.h"
#include "ui/browser/frmapri.h"
#include "ui/common/foldertree.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QElapsedTimer>
#include <QFileSystemModel>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace quovara::testing {

inline const QString kSix = QStringLiteral(QUOVARA_STANDIN_06);
inline const QString kFour = QStringLiteral(QUOVARA_STANDIN_04);

// The text of a row's column in a list such as the search results.
inline QString cell(const QAbstractItemView* view, int row, int column) {
    return view->model()->index(row, column).data().toString();
}

inline bool waitFor(const std::function<bool()>& done, int ms = 10000) {
    QElapsedTimer t;
    t.start();
    while (!done()) {
        if (t.elapsed() > ms)
            return false;
        QTest::qWait(20);
    }
    return true;
}

// The main window with its other windows replaced by a record of what was asked for.
class TestApri : public frmApri {
public:
    QStringList opened;

protected:
    void showAddDialog() override {
        opened << "add";
        addSources << addSource();
    }

public:
    QStringList addSources;
    // The window's own Extract dialog, for the tests that drive it.
    void realExtractDialog(bool forSelectedItem) { frmApri::showExtractDialog(forSelectedItem); }

protected:
    void showExtractDialog(bool forSelectedItem) override {
        opened << (forSelectedItem ? "extract selected" : "extract");
    }
    void showSfxDialog() override { opened << "sfx"; }
    void showTestingWindow() override { opened << "testing"; }
    void showAboutWindow() override { opened << "about"; }
};

class MainWindow : public ::testing::Test {
protected:
    void SetUp() override {
        // Shipped layout: uharc.exe is 0.4, the stored 0.6 copy waits beside it.
        QFile::copy(kFour, places_.programFolder() + "/uharc.exe");
        QFile::copy(kSix, places_.programFolder() + "/Uharc0.6.fns");
        src_ = places_.path() + "/data";
        QDir().mkpath(src_ + "/a/b");
        writeFile(src_ + "/root.txt", "root file");
        writeFile(src_ + "/a/d.txt", "d in a");
        writeFile(src_ + "/a/b/c.txt", "c in a\\b");
        writeFile(src_ + "/a/b/dd.txt", "dd in a\\b");
        window_.setPrompter(&prompter_);
        // Locks stay held until the program ends: one of this test's own outside its folder.
        static int count = 0;
        lockPath_ = QDir(QCoreApplication::applicationDirPath())
                        .filePath(QStringLiteral("quovara-test-%1-%2.lock")
                                      .arg(QCoreApplication::applicationPid())
                                      .arg(++count));
        window_.setInstanceLockPath(lockPath_);
        SetDesktopOpener([this](const QString& target, const QString&, const QString&) {
            opened_ << target;
            if (target.startsWith("http"))
                return 42;
            return QFileInfo(target).isFile() ? 42 : 2;
        });
    }
    void TearDown() override { SetDesktopOpener({}); }

    // Takes the stand-in engines out of the program folder, for a test that puts its own.
    void emptyProgramFolder() {
        for (const QString& f : QDir(places_.programFolder()).entryList(QDir::Files))
            QFile::remove(places_.programFolder() + "/" + f);
    }

    QString makeArchive(const QString& engine, const QString& name, QStringList switches = {}) {
        const QString archive = makeArchiveOf(engine, src_, places_.path() + "/" + name, switches);
        EXPECT_FALSE(archive.isEmpty()) << name.toStdString();
        return places_.path() + "/" + name;
    }

    template <typename T> T* child(const char* name) {
        T* w = window_.findChild<T*>(QLatin1String(name));
        EXPECT_NE(w, nullptr) << name;
        return w;
    }

    QString text(const char* label) { return child<QLabel>(label)->text(); }

    void show() {
        window_.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window_));
    }

    // Clicks (or double-clicks) the browser's item `path` once the folder has been read.
    void clickItem(const QString& path, bool twice = false) {
        QAbstractItemView* view = window_.fileView()->currentView();
        QModelIndex index;
        ASSERT_TRUE(waitFor([&] {
            index = window_.fileView()->indexOf(path);
            return index.isValid() && !view->visualRect(index).isEmpty();
        })) << path.toStdString();
        const QPoint at = view->visualRect(index).center();
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, at);
        if (twice)
            QTest::mouseDClick(view->viewport(), Qt::LeftButton, {}, at);
    }

    void clickToolbar(int id) {
        auto* toolbar = child<ucToolbar>("ucToolbar1");
        QTest::mouseClick(toolbar, Qt::LeftButton, {}, toolbar->ButtonRect(id).center());
    }

    bool archiveLayout() { return !child<TaskPaneBar>("Barra")->isHidden(); }

    // Runs the window's own Extract dialog for the open archive into `destination`, with the
    // stored folders. The dialog opens modally: it is driven from the event loop, as a user
    // would.
    void extractWithTheWindowInto(const QString& destination) {
        QTimer poll;
        poll.setInterval(20);
        QObject::connect(&poll, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (!dialog || dialog->objectName() != "frmEstrai" || !dialog->isVisible())
                return;
            poll.stop();
            auto* tree = dialog->findChild<FolderTree*>("FolderView1");
            ASSERT_TRUE(tree->selectPath(destination, 2000));
            QTest::mouseClick(dialog->findChild<QCheckBox*>("Check3"), Qt::LeftButton);
            QTest::mouseClick(dialog->findChild<QPushButton*>("Command2"), Qt::LeftButton);
        });
        poll.start();
        window_.realExtractDialog(false);
    }

    // Types `pattern` into the search box and presses Enter; true once the search has ended.
    bool searchWithEnter(const QString& pattern) {
        QTest::keyClicks(child<QLineEdit>("TxtCerca"), pattern);
        QTest::keyClick(child<QLineEdit>("TxtCerca"), Qt::Key_Return);
        return waitFor([&] { return text("Stato") == "Quovara is ready"; });
    }

    ScopedPlaces places_;
    QString src_;
    QString lockPath_;
    RecordingPrompter prompter_;
    QStringList opened_;
    TestApri window_;
};

} // namespace quovara::testing
