// Dragging entries out of an archive: the drag offers the entries as files, extracted only
// when the drop target asks for them, exactly those dragged (with what lies below a dragged
// folder), never the mirror tree's empty placeholders; a stopped extraction offers nothing and
// leaves nothing behind. Driven with real mouse events onto a drop target of the test's own.
#include "../mainwindow_fixture.h"

#include "ui/browser/entrydrag.h"

#include <QApplication>
#include <QDirIterator>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QMimeData>
#include <QTimer>
#include <QWindow>

using namespace quovara;
using namespace quovara::testing;

namespace {

// Every file below `folder`, relative to it, with its bytes.
QMap<QString, QByteArray> filesBelow(const QString& folder) {
    QMap<QString, QByteArray> files;
    QDirIterator it(folder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString path = it.next();
        files.insert(QDir(folder).relativeFilePath(path), readAll(path));
    }
    return files;
}

// A drop target that behaves as a file manager's folder: it copies what it is given into its
// folder and never replaces anything there (a clash is counted as a question to the user).
class DropFolder : public QWidget {
public:
    explicit DropFolder(const QString& folder) : folder_(folder) {
        setAcceptDrops(true);
        setWindowTitle("Drop folder");
        resize(200, 150);
    }
    QList<QUrl> received;
    QStringList clashes;
    int drops = 0;

protected:
    void dragEnterEvent(QDragEnterEvent* event) override {
        // A file manager looks at the formats only while the pointer moves.
        if (event->mimeData()->hasUrls())
            event->acceptProposedAction();
    }
    void dropEvent(QDropEvent* event) override {
        ++drops;
        received = event->mimeData()->urls();
        for (const QUrl& url : received)
            copy(url.toLocalFile(), folder_ + "/" + QFileInfo(url.toLocalFile()).fileName());
        event->acceptProposedAction();
    }

private:
    void copy(const QString& from, const QString& to) {
        if (QFileInfo::exists(to) && !QFileInfo(from).isDir()) {
            clashes << QFileInfo(to).fileName();
            return;
        }
        if (QFileInfo(from).isDir()) {
            QDir().mkpath(to);
            for (const QString& name :
                 QDir(from).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot))
                copy(from + "/" + name, to + "/" + name);
            return;
        }
        QFile::copy(from, to);
    }
    QString folder_;
};

class DragOut : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        target_ = places_.path() + "/target";
        QDir().mkpath(target_);
    }
    void openArchive(const QString& archive) {
        ASSERT_TRUE(window_.Form_Load(archive));
        show();
        ASSERT_TRUE(archiveLayout());
        window_.fileView()->setMultiSelection(true);
    }
    QAbstractItemView* view() { return window_.fileView()->currentView(); }
    QPoint pointOf(const QString& path) {
        return view()->visualRect(window_.fileView()->indexOf(path)).center();
    }
    void ctrlClick(const QString& path) {
        QTest::mouseClick(view()->viewport(), Qt::LeftButton, Qt::ControlModifier, pointOf(path));
    }
    // Presses on `from`, moves past the drag distance, and once the drag runs moves onto the
    // drop folder and lets go there; `whileDropping` runs when the target asks for the files.
    void dragOnto(DropFolder& folder, const QString& from) {
        folder.move(window_.geometry().right() + 20, window_.geometry().top());
        folder.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&folder));
        const QPoint start = pointOf(from);
        QTest::mousePress(view()->viewport(), Qt::LeftButton, {}, start);
        QTimer::singleShot(100, &folder, [&folder] {
            // As the window system delivers them: to the window under the pointer.
            QWindow* window = folder.windowHandle();
            const QPoint middle = folder.rect().center();
            QTest::mouseMove(window, middle);
            QTest::mouseMove(window, middle + QPoint(2, 2));
            QTest::mouseRelease(window, Qt::LeftButton, {}, middle + QPoint(2, 2));
        });
        const int distance = QApplication::startDragDistance() + 10;
        // The first move makes the view ready to drag, the next one starts the drag, which
        // runs (and ends) inside that move.
        QTest::mouseMove(view()->viewport(), start + QPoint(distance / 2, 0));
        QTest::mouseMove(view()->viewport(), start + QPoint(distance, distance / 2));
    }
    QString target_;
};

} // namespace

TEST(EntryDragDataTest, TheEntriesAreExtractedOnceWhenTheTargetAsksForThem) {
    int calls = 0;
    EntryDragData data([&](const EntryDragData::Deliver&) {
        ++calls;
        return QList<QUrl>{QUrl::fromLocalFile("/tmp/x/a.txt"), QUrl::fromLocalFile("/tmp/x/b")};
    });
    EXPECT_TRUE(data.hasUrls());
    EXPECT_EQ(data.formats(), QStringList({"text/uri-list"}));
    EXPECT_FALSE(data.hasFormat("text/plain"));
    EXPECT_EQ(calls, 0);
    EXPECT_FALSE(data.asked());
    EXPECT_EQ(data.data("text/uri-list"), "file:///tmp/x/a.txt\r\nfile:///tmp/x/b\r\n");
    EXPECT_EQ(data.urls(),
              QList<QUrl>({QUrl::fromLocalFile("/tmp/x/a.txt"), QUrl::fromLocalFile("/tmp/x/b")}));
    EXPECT_EQ(calls, 1);
    EXPECT_TRUE(data.asked());
}

TEST(EntryDragDataTest, ATargetAskingAgainDuringTheExtractionWaitsForTheSameOne) {
    const QList<QUrl> list{QUrl::fromLocalFile("/tmp/x/a.txt")};
    int calls = 0;
    QList<QUrl> askedAgain{QUrl("file:///nothing-yet")};
    EntryDragData* self = nullptr;
    EntryDragData data([&](const EntryDragData::Deliver& deliver) {
        ++calls;
        // The extraction's event loop lets a second request in before the job has ended.
        QEventLoop job;
        QTimer::singleShot(0, [&] {
            askedAgain = self->urls();
            job.quit();
        });
        QTimer::singleShot(50, [&] { deliver(list); });
        job.exec();
        return list;
    });
    self = &data;
    EXPECT_EQ(data.urls(), list);
    EXPECT_EQ(askedAgain, list);
    EXPECT_EQ(calls, 1);
}

TEST(EntryDragDataTest, NothingExtractedMeansNothingOffered) {
    EntryDragData data([](const EntryDragData::Deliver&) { return QList<QUrl>(); });
    EXPECT_TRUE(data.urls().isEmpty());
    EXPECT_TRUE(data.data("text/uri-list").isEmpty());
}

TEST_F(DragOut, DraggedEntriesArriveWithWhatLiesBelowThemAndNothingElse) {
    openArchive(makeArchive(kSix, "plain.uha"));
    clickItem(ScratchFolder() + "/a");
    ctrlClick(ScratchFolder() + "/root.txt");
    ASSERT_EQ(window_.fileView()->selectedPaths().size(), 2);
    DropFolder folder(target_);
    dragOnto(folder, ScratchFolder() + "/root.txt");
    EXPECT_EQ(folder.drops, 1);
    const QMap<QString, QByteArray> expected{{"a/d.txt", "d in a"},
                                             {"a/b/c.txt", "c in a\\b"},
                                             {"a/b/dd.txt", "dd in a\\b"},
                                             {"root.txt", "root file"}};
    EXPECT_EQ(filesBelow(target_), expected);
    // Handed over from the work folder, never from the mirror tree.
    ASSERT_EQ(folder.received.size(), 2);
    for (const QUrl& url : folder.received) {
        EXPECT_TRUE(url.toLocalFile().startsWith(WorkFolder() + "/drag-"))
            << url.toString().toStdString();
        EXPECT_FALSE(url.toLocalFile().startsWith(ScratchFolder()));
    }
    EXPECT_TRUE(prompter_.shown.isEmpty()) << prompter_.shown.join('|').toStdString();
}

TEST_F(DragOut, AFolderInsideAFolderArrivesWithoutTheFoldersAboveIt) {
    openArchive(makeArchive(kSix, "plain.uha"));
    clickItem(ScratchFolder() + "/a", true);
    ASSERT_TRUE(waitFor([&] { return window_.fileView()->folder() == ScratchFolder() + "/a"; }));
    clickItem(ScratchFolder() + "/a/b");
    DropFolder folder(target_);
    dragOnto(folder, ScratchFolder() + "/a/b");
    const QMap<QString, QByteArray> expected{{"b/c.txt", "c in a\\b"}, {"b/dd.txt", "dd in a\\b"}};
    EXPECT_EQ(filesBelow(target_), expected);
}

TEST_F(DragOut, NamesInEveryLanguageAndAProtectedArchive) {
    const QString from = places_.path() + "/languages";
    writeFile(from + "/Zażółć gęślą jaźń.txt", "pl");
    writeFile(from + "/Привет/мир.txt", "ru");
    writeFile(from + "/日本語/ファイル.txt", "ja");
    const QString archive =
        makeArchiveOf(kSix, from, places_.path() + "/Zdjęcia.uha", {"-pwsekret"});
    ASSERT_FALSE(archive.isEmpty());
    prompter_.answers = {"sekret"};
    openArchive(archive);
    clickItem(ScratchFolder() + "/Привет");
    ctrlClick(ScratchFolder() + "/日本語");
    ctrlClick(ScratchFolder() + "/Zażółć gęślą jaźń.txt");
    DropFolder folder(target_);
    dragOnto(folder, ScratchFolder() + "/日本語");
    const QMap<QString, QByteArray> expected{
        {"Zażółć gęślą jaźń.txt", "pl"}, {"Привет/мир.txt", "ru"}, {"日本語/ファイル.txt", "ja"}};
    EXPECT_EQ(filesBelow(target_), expected);
}

TEST_F(DragOut, AClashAtTheTargetIsTheTargetsToAskAndNothingIsOverwritten) {
    openArchive(makeArchive(kSix, "plain.uha"));
    writeFile(target_ + "/root.txt", "my own root");
    clickItem(ScratchFolder() + "/root.txt");
    DropFolder folder(target_);
    dragOnto(folder, ScratchFolder() + "/root.txt");
    EXPECT_EQ(folder.clashes, QStringList({"root.txt"}));
    EXPECT_EQ(readAll(target_ + "/root.txt"), "my own root");
}

TEST_F(DragOut, AStoppedExtractionOffersNothingAndLeavesNothingBehind) {
    // A big file written slowly, so that the extraction is stopped in the middle of it.
    writeFile(src_ + "/big.bin", QByteArray(2 * 1024 * 1024, 'x'));
    const QString archive = makeArchive(kSix, "big.uha");
    openArchive(archive);
    clickItem(ScratchFolder() + "/big.bin");
    ScopedEnv slow("QUOVARA_STANDIN_WRITE_MS", "100");
    bool sawWindow = false;
    QTimer stopper;
    stopper.setInterval(50);
    QObject::connect(&stopper, &QTimer::timeout, [&] {
        QWidget* progress = nullptr;
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmExtracting" && w->isVisible())
                progress = w;
        if (progress && !sawWindow) {
            sawWindow = true;
            // Stopped as a user stops it: Escape in the progress window, once it has begun.
            QTimer::singleShot(400, progress, [progress] {
                QTest::keyClick(QApplication::focusWidget() ? QApplication::focusWidget()
                                                            : progress,
                                Qt::Key_Escape);
            });
        }
    });
    stopper.start();
    DropFolder folder(target_);
    dragOnto(folder, ScratchFolder() + "/big.bin");
    stopper.stop();
    EXPECT_TRUE(sawWindow);
    EXPECT_EQ(folder.drops, 1);
    EXPECT_TRUE(folder.received.isEmpty());
    EXPECT_TRUE(filesBelow(target_).isEmpty());
    // No folder of the drag is left in the work folder.
    EXPECT_TRUE(
        QDir(WorkFolder()).entryList({"drag-*"}, QDir::AllEntries | QDir::Hidden).isEmpty());
}

TEST_F(DragOut, EntriesAreNotDroppedBackOntoTheWindow) {
    openArchive(makeArchive(kSix, "plain.uha"));
    int calls = 0;
    EntryDragData data([&](const EntryDragData::Deliver&) {
        ++calls;
        return QList<QUrl>{QUrl::fromLocalFile(places_.path() + "/plain.uha")};
    });
    QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&window_, &enter);
    EXPECT_FALSE(enter.isAccepted());
    EXPECT_EQ(calls, 0);
}

TEST_F(DragOut, OutsideAnArchiveTheFilesThemselvesAreDragged) {
    ASSERT_TRUE(window_.Form_Load(QString()));
    show();
    window_.fileView()->setFolder(src_);
    clickItem(src_ + "/root.txt");
    DropFolder folder(target_);
    dragOnto(folder, src_ + "/root.txt");
    EXPECT_EQ(folder.received, QList<QUrl>({QUrl::fromLocalFile(src_ + "/root.txt")}));
    EXPECT_EQ(readAll(target_ + "/root.txt"), "root file");
}
