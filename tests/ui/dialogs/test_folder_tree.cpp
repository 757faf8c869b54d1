// The folder trees hold still: the Extract dialog's tree shows the archive's folder selected
// and in view from the start, while folders are read slowly, and rows do not move under the
// pointer or the selection when folders come in later.
#include "dialog_test_support.h"

#include "ui/common/folderreader.h"
#include "ui/common/foldertree.h"
#include "ui/common/foldertreemodel.h"
#include "ui/jobs/frmestrai.h"

#include <QElapsedTimer>
#include <QLineEdit>
#include <QLocale>
#include <QScopeGuard>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTimer>

using namespace quovara;
using namespace quovara::testing;

namespace {

// A file system that answers late: the n-th folder asked for is answered `step` ms after the
// (n-1)-th, so the folders above the archive's one come in one by one over several seconds.
class SlowFolderReader : public FolderReader {
public:
    explicit SlowFolderReader(int step) : step_(step) {}
    void read(const QString& path) override {
        ++asked_;
        QTimer::singleShot(step_ * asked_, this, [this, path] {
            bool ok = false;
            const QStringList names = ListSubfolders(path, &ok);
            emit folderRead(path, names, ok);
        });
    }

private:
    int step_;
    int asked_ = 0;
};

class ScopedSlowDisk {
public:
    explicit ScopedSlowDisk(int step) {
        SetFolderReaderFactory([step] { return std::make_unique<SlowFolderReader>(step); });
    }
    ~ScopedSlowDisk() { SetFolderReaderFactory({}); }
};

class FolderTrees : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(EnsurePrivateWorkFolder(), QString());
        // Five levels, each with forty folders that sort before the way down, so that every
        // folder read late pushes rows in above the archive's folder.
        deep_ = places_.path() + "/data";
        for (int level = 0; level < 5; ++level) {
            for (int i = 0; i < 40; ++i)
                QDir().mkpath(deep_ + QString("/aa%1").arg(i));
            deep_ += QString("/level%1").arg(level);
        }
        QDir().mkpath(deep_);
        archive_ = deep_ + "/deep.uha";
        writeFile(archive_, "archive");
    }

    void open() {
        QElapsedTimer opening;
        opening.start();
        dialog_ = std::make_unique<frmEstrai>(archive_, prompter_, [](const QString&) {});
        dialog_->show();
        openedAfter_ = opening.elapsed();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog_.get()));
    }

    FolderTree* tree() { return control<FolderTree>(dialog_.get(), "FolderView1"); }
    QLineEdit* box() { return control<QLineEdit>(dialog_.get(), "TxTDir"); }

    // Where the selected row is on the screen; an empty rectangle when it is not the archive's
    // folder or not in view.
    QRect selectedRow() {
        const QModelIndex current = tree()->currentIndex();
        if (tree()->folders()->filePath(current) != deep_)
            return {};
        const QRect row = tree()->visualRect(current);
        return tree()->viewport()->rect().contains(row) ? row : QRect();
    }

    ScopedPlaces places_;
    RecordingPrompter prompter_;
    QString deep_;
    QString archive_;
    qint64 openedAfter_ = 0;
    std::unique_ptr<frmEstrai> dialog_;
};

} // namespace

TEST_F(FolderTrees, TheArchivesFolderStaysSelectedAndInViewWhileASlowDiskIsRead) {
    ScopedSlowDisk slow(700);
    open();
    std::printf("the dialog opened after %lld ms\n", static_cast<long long>(openedAfter_));
    EXPECT_LT(openedAfter_, 1000) << "the dialog waits a moment only for a slow disk";
    QElapsedTimer since;
    since.start();
    QRect first;
    int checks = 0;
    for (const int at : {300, 1000, 3000, 6000}) {
        QTest::qWait(static_cast<int>(at - since.elapsed()));
        const QRect row = selectedRow();
        ASSERT_FALSE(row.isEmpty()) << "selected and in view at " << at << " ms";
        if (first.isEmpty())
            first = row;
        EXPECT_EQ(row.top(), first.top()) << "the selected row has not moved at " << at << " ms";
        EXPECT_EQ(box()->text(), dialog_->selectedFolder()) << at << " ms";
        EXPECT_EQ(box()->text(), deep_);
        ++checks;
    }
    EXPECT_EQ(checks, 4);
    // By then every folder above has been read: the forty neighbours are all there.
    const QModelIndex parent = tree()->currentIndex().parent();
    EXPECT_EQ(tree()->folders()->rowCount(parent), 41);
    EXPECT_GT(tree()->verticalScrollBar()->value(), 0) << "rows came in above the selection";
}

TEST_F(FolderTrees, TheRowUnderThePointerStaysUnderItWhileFoldersComeIn) {
    ScopedSlowDisk slow(800);
    open();
    // The pointer rests on the row above the selection (the parent folder).
    const QModelIndex aimed = tree()->currentIndex().parent();
    const QPoint at = tree()->visualRect(aimed).center();
    QTest::mouseMove(tree()->viewport(), at);
    const QSignalSpy read(tree()->folders(), &FolderTreeModel::folderRead);
    ASSERT_TRUE(QTest::qWaitFor([&] { return read.count() >= 5; }, 10000));
    EXPECT_EQ(tree()->indexAt(at), aimed) << "the pointer still points at the same folder";
    // A click there selects the folder the user saw there.
    QTest::mouseClick(tree()->viewport(), Qt::LeftButton, Qt::NoModifier, at);
    EXPECT_EQ(dialog_->selectedFolder(), QFileInfo(deep_).absolutePath());
    EXPECT_EQ(box()->text(), QFileInfo(deep_).absolutePath());
}

TEST_F(FolderTrees, OnAQuickDiskTheDialogOpensWithEverythingRead) {
    open();
    std::printf("the dialog opened after %lld ms\n", static_cast<long long>(openedAfter_));
    EXPECT_EQ(tree()->folders()->readsUnderWay(), 0);
    EXPECT_EQ(tree()->folders()->rowCount(tree()->currentIndex().parent()), 41);
    const QRect row = selectedRow();
    ASSERT_FALSE(row.isEmpty());
    // Nothing moves afterwards.
    QTest::qWait(500);
    EXPECT_EQ(selectedRow(), row);
}

TEST_F(FolderTrees, AFolderMadeLaterComesInWithoutMovingTheSelection) {
    open();
    const QRect row = selectedRow();
    ASSERT_FALSE(row.isEmpty());
    const QString parent = QFileInfo(deep_).absolutePath();
    ASSERT_TRUE(QDir().mkpath(parent + "/aa-new"));
    FolderTreeModel* folders = tree()->folders();
    ASSERT_TRUE(QTest::qWaitFor([&] { return folders->find(parent + "/aa-new").isValid(); }));
    EXPECT_EQ(selectedRow().top(), row.top());
    EXPECT_EQ(dialog_->selectedFolder(), deep_);
    // And a folder removed on disk leaves the tree, again without moving the selection.
    ASSERT_TRUE(QDir(parent + "/aa3").removeRecursively());
    ASSERT_TRUE(QTest::qWaitFor([&] { return !folders->find(parent + "/aa3").isValid(); }));
    EXPECT_EQ(selectedRow().top(), row.top());
}

TEST(FolderTreeModel, FoldersComeInTheBrowsersOrderAndHiddenOnesOnlyWhenAskedFor) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    ScopedPlaces places;
    const QString base = places.path() + "/order";
    for (const char* name : {"b", "A", "a10", "a9", "Zed", ".hidden/inner"})
        QDir().mkpath(base + "/" + name);
    FolderTreeModel model;
    const QSignalSpy read(&model, &FolderTreeModel::folderRead);
    const QModelIndex folder = model.reveal(base);
    ASSERT_TRUE(folder.isValid());
    EXPECT_EQ(model.filePath(folder), base);
    model.fetchMore(folder);
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.rowCount(folder) == 5; }));
    QStringList shown;
    for (int row = 0; row < model.rowCount(folder); ++row)
        shown << model.index(row, 0, folder).data().toString();
    EXPECT_EQ(shown, QStringList({"A", "a9", "a10", "b", "Zed"}));
    // A hidden folder asked for by its path is shown, among the others.
    const QModelIndex hidden = model.reveal(base + "/.hidden/inner");
    ASSERT_TRUE(hidden.isValid());
    EXPECT_EQ(model.rowCount(folder), 6);
    EXPECT_EQ(model.filePath(hidden.parent()), base + "/.hidden");
}

TEST(FolderTreeModel, ARenamedFolderMovesToItsPlaceAndSaysSo) {
    ScopedPlaces places;
    const QString base = places.path() + "/rename";
    for (const char* name : {"a", "m", "z"})
        QDir().mkpath(base + "/" + name);
    FolderTreeModel model;
    const QModelIndex folder = model.reveal(base);
    model.fetchMore(folder);
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.rowCount(folder) == 3; }));
    const QModelIndex made = model.mkdir(folder, "New Folder");
    ASSERT_TRUE(made.isValid());
    EXPECT_EQ(made.row(), 2) << "after m, before z";
    QSignalSpy renamed(&model, &FolderTreeModel::folderRenamed);
    ASSERT_TRUE(model.setData(made, "zz"));
    EXPECT_TRUE(QFileInfo(base + "/zz").isDir());
    EXPECT_FALSE(QFileInfo(base + "/New Folder").exists());
    ASSERT_EQ(renamed.count(), 1);
    EXPECT_EQ(renamed[0], QVariantList({base, "New Folder", "zz"}));
    EXPECT_EQ(model.find(base + "/zz").row(), 3);
    // A name that is taken or holds a separator is refused, and the disk is left alone.
    EXPECT_FALSE(model.setData(model.find(base + "/zz"), "a"));
    EXPECT_FALSE(model.setData(model.find(base + "/zz"), "x/y"));
    EXPECT_TRUE(QFileInfo(base + "/zz").isDir());
}

TEST(FolderTreeModel, AFolderThatCannotBeReadIsEmptyAndTheTreeGoesOn) {
    FolderTreeModel model;
    const QModelIndex missing = model.reveal("/no/such/folder/here");
    ASSERT_TRUE(missing.isValid()) << "a folder asked for is shown even before it is read";
    const QSignalSpy finished(&model, &FolderTreeModel::readsFinished);
    ASSERT_TRUE(QTest::qWaitFor([&] { return model.readsUnderWay() == 0; }));
    EXPECT_EQ(model.filePath(missing), "/no/such/folder/here");
    EXPECT_FALSE(model.reveal("relative/path").isValid());
}
