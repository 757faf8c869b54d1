// The Report view inside an archive: the columns Name, Size, Modified, Attributes and CRC-32
// from the listing, folders with the count of what they hold, and a click on a header sorting
// by its column, folders first. Outside an archive the Report view is the file system's.
#include "mainwindow_fixture.h"

#include "ui/browser/detailsmodel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLocale>
#include <QMenu>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTreeView>

using namespace quovara;
using namespace quovara::testing;

namespace {

class ReportView : public MainWindow {
protected:
    void SetUp() override {
        MainWindow::SetUp();
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        // Names that a file manager orders by number and without regard to case.
        writeFile(src_ + "/File1.txt", "1");
        writeFile(src_ + "/file10.txt", QByteArray(100, 'x'));
        writeFile(src_ + "/file2.txt", QByteArray(5000, 'y'));
    }
    void TearDown() override {
        QLocale::setDefault(QLocale::c());
        MainWindow::TearDown();
    }

    // Opens the archive and picks Report in the View menu with the keyboard.
    void openInReport() {
        ASSERT_TRUE(window_.Form_Load(makeArchive(kSix, "plain.uha")));
        show();
        ASSERT_TRUE(archiveLayout());
        QAbstractItemView* list = window_.fileView()->currentView();
        const QPoint empty(list->viewport()->width() - 5, list->viewport()->height() - 5);
        QContextMenuEvent event(QContextMenuEvent::Keyboard, empty, list->mapToGlobal(empty));
        QApplication::sendEvent(list->viewport(), &event);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        ASSERT_EQ(menu->objectName(), "PopView");
        while (menu->activeAction() != menu->actions()[1])
            QTest::keyClick(menu, Qt::Key_Down);
        QTest::keyClick(menu, Qt::Key_Return);
        ASSERT_EQ(window_.fileView()->viewMode(), 1);
        ASSERT_TRUE(waitFor([&] { return names().size() == 5; }))
            << names().join('|').toStdString();
    }

    QTreeView* report() { return qobject_cast<QTreeView*>(window_.fileView()->currentView()); }

    // The rows' texts of one column, top to bottom.
    QStringList column(int c, int role = Qt::DisplayRole) {
        QStringList texts;
        const QAbstractItemModel* m = report()->model();
        for (int r = 0; r < m->rowCount(report()->rootIndex()); ++r)
            texts << m->index(r, c, report()->rootIndex()).data(role).toString();
        return texts;
    }
    QStringList names() { return report() ? column(0) : QStringList(); }

    void clickHeader(int section) {
        QHeaderView* header = report()->header();
        const QPoint at(header->sectionViewportPosition(section) + header->sectionSize(section) / 2,
                        header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
    }
};

QString modifiedOf(const QString& path) {
    return QFileInfo(path).lastModified().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

} // namespace

TEST_F(ReportView, InAnArchiveEveryEntryShowsTheDetailsOfTheListing) {
    openInReport();
    QStringList captions;
    for (int c = 0; c < report()->model()->columnCount(); ++c)
        captions << report()->model()->headerData(c, Qt::Horizontal).toString();
    EXPECT_EQ(captions, QStringList({"Name", "Size", "Modified", "Attributes", "CRC-32"}));
    // Folders first, then names in a file manager's order.
    EXPECT_EQ(names(), QStringList({"a", "File1.txt", "file2.txt", "file10.txt", "root.txt"}));
    // The folder "a" holds "b" and "d.txt".
    EXPECT_EQ(column(1), QStringList({"2 items", "1 byte", "4.9 KB", "100 bytes", "9 bytes"}));
    EXPECT_EQ(column(1, Qt::ToolTipRole),
              QStringList({"", "1 byte", "5,000 bytes", "100 bytes", "9 bytes"}));
    EXPECT_EQ(column(2),
              QStringList({"", modifiedOf(src_ + "/File1.txt"), modifiedOf(src_ + "/file2.txt"),
                           modifiedOf(src_ + "/file10.txt"), modifiedOf(src_ + "/root.txt")}));
    EXPECT_EQ(column(3), QStringList({"", "---A", "---A", "---A", "---A"}));
    // zlib.crc32(b"root file") and (b"1").
    EXPECT_EQ(column(4)[4], "B0C0F839");
    EXPECT_EQ(column(4)[1], "83DCEFB7");

    // Opening the folder shows its entries with theirs.
    clickItem(ScratchFolder() + "/a", true);
    ASSERT_TRUE(waitFor([&] {
        return names() == QStringList({"b", "d.txt"});
    })) << names().join('|').toStdString();
    EXPECT_EQ(column(1), QStringList({"2 items", "6 bytes"}));
    EXPECT_EQ(column(4)[1], "4830E824");
}

TEST_F(ReportView, AClickOnAHeaderSortsByItsColumnFoldersFirst) {
    openInReport();
    clickHeader(DetailsModel::Size);
    EXPECT_EQ(names(), QStringList({"a", "File1.txt", "root.txt", "file10.txt", "file2.txt"}));
    EXPECT_EQ(report()->header()->sortIndicatorSection(), int(DetailsModel::Size));
    clickHeader(DetailsModel::Size);
    EXPECT_EQ(names(), QStringList({"a", "file2.txt", "file10.txt", "root.txt", "File1.txt"}));
    clickHeader(DetailsModel::Crc);
    // B0C0F839 (root) 83DCEFB7 (File1): ordered by value.
    const QStringList crcs = column(4).mid(1);
    QStringList sorted = crcs;
    std::sort(sorted.begin(), sorted.end(), [](const QString& x, const QString& y) {
        return x.toUInt(nullptr, 16) < y.toUInt(nullptr, 16);
    });
    EXPECT_EQ(crcs, sorted);
    EXPECT_EQ(names().first(), "a");
    clickHeader(DetailsModel::Name);
    EXPECT_EQ(names(), QStringList({"a", "File1.txt", "file2.txt", "file10.txt", "root.txt"}));
    clickHeader(DetailsModel::Name);
    EXPECT_EQ(names(), QStringList({"a", "root.txt", "file10.txt", "file2.txt", "File1.txt"}));
}

TEST_F(ReportView, TheSelectionStaysOnItsEntryWhenTheOrderChanges) {
    openInReport();
    clickItem(ScratchFolder() + "/file10.txt");
    EXPECT_EQ(window_.fileView()->selectedPath(),
              QDir::toNativeSeparators(ScratchFolder() + "/file10.txt"));
    clickHeader(DetailsModel::Size);
    clickHeader(DetailsModel::Size);
    EXPECT_EQ(window_.fileView()->selectedPath(),
              QDir::toNativeSeparators(ScratchFolder() + "/file10.txt"));
    EXPECT_EQ(report()->currentIndex().row(), 2);
    // Enter on the selected file runs it as a double-click does.
    QTest::keyClick(report(), Qt::Key_Return);
    ASSERT_TRUE(waitFor([&] { return !opened_.isEmpty(); }));
    EXPECT_TRUE(opened_.last().endsWith("file10.txt")) << opened_.join('|').toStdString();
}

TEST_F(ReportView, OutsideAnArchiveTheReportViewShowsTheFileSystemsColumns) {
    openInReport();
    window_.fileView()->setFolder(places_.path());
    ASSERT_TRUE(waitFor([&] { return !archiveLayout(); }));
    EXPECT_FALSE(window_.fileView()->showsArchiveDetails());
    EXPECT_EQ(report()->model()->headerData(2, Qt::Horizontal).toString(), "Type");
    // And inside the next archive the details are back, in names' order.
    window_.OpenItem(places_.path() + "/plain.uha");
    ASSERT_TRUE(archiveLayout());
    EXPECT_TRUE(window_.fileView()->showsArchiveDetails());
    EXPECT_EQ(report()->model()->headerData(4, Qt::Horizontal).toString(), "CRC-32");
    ASSERT_TRUE(waitFor([&] { return names().size() == 5; }));
    EXPECT_EQ(names().first(), "a");
}

TEST_F(ReportView, SearchResultsShowTheSameDetails) {
    openInReport();
    ASSERT_TRUE(searchWithEnter("root"));
    auto* results = child<QTreeView>("Trovati");
    ASSERT_EQ(results->model()->rowCount(), 1);
    EXPECT_EQ(results->model()->index(0, 0).data().toString(), "root.txt");
    EXPECT_EQ(results->model()->index(0, 2).data().toString(), "9 bytes");
    EXPECT_EQ(results->model()->index(0, 5).data().toString(), "B0C0F839");
}

// A folder of the file system shown by a details model with `details`, in names' order.
struct FolderDetails {
    FolderDetails(std::shared_ptr<ArchiveDetails> details, const QString& folder) {
        files.setRootPath(folder);
        files.sort(0);
        model.setDetails(std::move(details), folder);
        model.setFolder(files.index(folder));
    }
    QStringList column(int c) const {
        QStringList t;
        for (int r = 0; r < model.rowCount(); ++r)
            t << model.index(r, c).data().toString();
        return t;
    }
    QFileSystemModel files;
    DetailsModel model{&files};
};

TEST(DetailsModelRows, OddDetailsShowWhatReadsAndSortBeforeEverythingKnown) {
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    auto restore = qScopeGuard([] { QLocale::setDefault(QLocale::c()); });
    QTemporaryDir tree;
    for (const char* name : {"big.bin", "nodate.txt", "plain.txt", "unknown.txt"})
        writeFile(tree.filePath(name), "");
    auto details = std::make_shared<ArchiveDetails>();
    details->add(u"big.bin",
                 ParseDetailLine(u"  123456789012345678901234567890  01-Jan-1999  00:00:01  ---A"));
    details->add(u"nodate.txt", ParseDetailLine(u"  12  00-Xxx-0000  10:20:30  ---A  7A6021B8"));
    details->add(u"plain.txt",
                 ParseDetailLine(u"  3000000  22-Nov-2026  14:28:18  R--A  00000001"));
    details->finish();
    FolderDetails shown(details, tree.path());
    DetailsModel& model = shown.model;
    ASSERT_TRUE(waitFor([&] { return model.rowCount() == 4; }));
    auto texts = [&](int c) { return shown.column(c); };
    ASSERT_TRUE(waitFor([&] { return texts(0).first() == "big.bin"; }));
    EXPECT_EQ(texts(0), QStringList({"big.bin", "nodate.txt", "plain.txt", "unknown.txt"}));
    EXPECT_EQ(texts(1), QStringList({"", "12 bytes", "2.9 MB", ""}));
    EXPECT_EQ(texts(2),
              QStringList({"1999-01-01 00:00:01", "10:20:30", "2026-11-22 14:28:18", ""}));
    EXPECT_EQ(texts(4), QStringList({"", "7A6021B8", "00000001", ""}));
    model.sort(DetailsModel::Size);
    // What has no size sorts first, in names' order.
    EXPECT_EQ(texts(0), QStringList({"big.bin", "unknown.txt", "nodate.txt", "plain.txt"}));
    model.sort(DetailsModel::Modified, Qt::DescendingOrder);
    EXPECT_EQ(texts(0), QStringList({"plain.txt", "big.bin", "nodate.txt", "unknown.txt"}));
    model.sort(DetailsModel::Attributes);
    EXPECT_EQ(texts(0).last(), "plain.txt"); // "R--A" after "---A"
}

TEST(DetailsModelRows, AnEntryThatArrivesAfterASortTakesItsPlaceInTheNextOne) {
    QTemporaryDir tree;
    for (const char* name : {"a.txt", "b.txt", "c.txt"})
        writeFile(tree.filePath(name), "");
    auto details = std::make_shared<ArchiveDetails>();
    details->add(u"a.txt", ParseDetailLine(u"  30  22-Nov-2026  14:28:18  ---A  00000001"));
    details->add(u"b.txt", ParseDetailLine(u"  10  22-Nov-2026  14:28:18  ---A  00000002"));
    details->add(u"c.txt", ParseDetailLine(u"  20  22-Nov-2026  14:28:18  ---A  00000003"));
    details->add(u"late.txt", ParseDetailLine(u"  5  22-Nov-2026  14:28:18  ---A  00000004"));
    details->finish();
    FolderDetails shown(details, tree.path());
    DetailsModel& model = shown.model;
    auto names = [&] { return shown.column(DetailsModel::Name); };
    ASSERT_TRUE(waitFor([&] { return model.rowCount() == 3; }));
    model.sort(DetailsModel::Size);
    EXPECT_EQ(names(), QStringList({"b.txt", "c.txt", "a.txt"}));
    model.sort(DetailsModel::Crc, Qt::DescendingOrder);
    EXPECT_EQ(names(), QStringList({"c.txt", "b.txt", "a.txt"}));
    // A file read late moves the file model's rows: what was kept for the old rows is not used.
    writeFile(tree.filePath("late.txt"), "");
    ASSERT_TRUE(waitFor([&] { return model.rowCount() == 4; }));
    model.sort(DetailsModel::Size);
    EXPECT_EQ(names(), QStringList({"late.txt", "b.txt", "c.txt", "a.txt"}));
    model.sort(DetailsModel::Crc);
    EXPECT_EQ(names(), QStringList({"a.txt", "b.txt", "c.txt", "late.txt"}));
}
