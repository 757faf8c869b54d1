// The browser list's model: the rows of one folder of a tree model as a flat list of one
// column, following the tree's inserts, removals and new orders.
#include "ui/browser/folderlistmodel.h"

#include <QAbstractItemModelTester>
#include <QPersistentModelIndex>
#include <QStandardItemModel>
#include <gtest/gtest.h>

using namespace quovara;

namespace {

// A tree: "top" with the rows "b", "a", "c" of three columns each, and "other" with "x".
struct Tree {
    QStandardItemModel model;
    QStandardItem* top = new QStandardItem("top");
    QStandardItem* other = new QStandardItem("other");
    Tree() {
        model.setColumnCount(3);
        model.appendRow({top, new QStandardItem("4 KB"), new QStandardItem("Folder")});
        model.appendRow({other, new QStandardItem(""), new QStandardItem("Folder")});
        for (const char* name : {"b", "a", "c"})
            top->appendRow(
                {new QStandardItem(name), new QStandardItem("1 KB"), new QStandardItem("Text")});
        other->appendRow(new QStandardItem("x"));
    }
};

// The list over the tree, checked by Qt's model tester at every change.
class FolderList : public ::testing::Test {
protected:
    FolderList() { list.setSourceModel(&tree.model); }
    Tree tree;
    FolderListModel list;
    QAbstractItemModelTester tester{&list, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

QStringList Names(const QAbstractItemModel& m) {
    QStringList out;
    for (int row = 0; row < m.rowCount(); ++row)
        out << m.index(row, 0).data().toString();
    return out;
}

TEST_F(FolderList, TheFoldersRowsAreTheTopLevelInOneColumn) {
    EXPECT_EQ(list.rowCount(), 0); // no folder yet
    list.setFolder(tree.top->index());
    EXPECT_EQ(Names(list), QStringList({"b", "a", "c"}));
    EXPECT_EQ(list.columnCount(), 1);
    EXPECT_FALSE(list.index(0, 1).isValid());
    EXPECT_FALSE(list.hasChildren(list.index(0, 0)));
    EXPECT_EQ(list.mapToSource(list.index(1, 0)), tree.top->child(1)->index());
    EXPECT_EQ(list.mapFromSource(tree.top->child(2)->index()), list.index(2, 0));
    // Outside the folder, or another column: no row of the list.
    EXPECT_FALSE(list.mapFromSource(tree.other->child(0)->index()).isValid());
    EXPECT_FALSE(list.mapFromSource(tree.model.index(0, 1, tree.top->index())).isValid());
    list.setFolder(tree.other->index());
    EXPECT_EQ(Names(list), QStringList({"x"}));
}

TEST_F(FolderList, InsertsRemovalsAndChangesInTheFolderAreFollowed) {
    list.setFolder(tree.top->index());
    tree.top->appendRow(new QStandardItem("d"));
    tree.other->appendRow(new QStandardItem("y")); // elsewhere: nothing changes here
    EXPECT_EQ(Names(list), QStringList({"b", "a", "c", "d"}));
    tree.top->removeRow(0);
    EXPECT_EQ(Names(list), QStringList({"a", "c", "d"}));
    tree.top->child(0)->setText("a2");
    EXPECT_EQ(Names(list), QStringList({"a2", "c", "d"}));
}

TEST_F(FolderList, ANewOrderKeepsPersistentRowsOnTheirItems) {
    list.setFolder(tree.top->index());
    const QPersistentModelIndex a(list.index(1, 0));
    ASSERT_EQ(a.data().toString(), "a");
    tree.model.sort(0);
    EXPECT_EQ(Names(list), QStringList({"a", "b", "c"}));
    EXPECT_EQ(a.row(), 0);
    EXPECT_EQ(a.data().toString(), "a");
}

TEST_F(FolderList, WhenTheFolderGoesTheListIsEmpty) {
    list.setFolder(tree.top->index());
    const QPersistentModelIndex b(list.index(0, 0));
    tree.model.removeRow(0); // "top" and all it holds
    EXPECT_EQ(list.rowCount(), 0);
    EXPECT_FALSE(b.isValid());
}

} // namespace
