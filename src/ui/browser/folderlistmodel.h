// The browser's list: the entries of the folder shown, one item each, named by its name.
#pragma once

#include <QAbstractProxyModel>
#include <QPersistentModelIndex>

namespace quovara {

// The file model's folder shown, as a flat list of one column: its rows are the folder's rows,
// in the file model's order. A list view shows one column of the folder below its root, but
// the accessibility of a Qt 6.4 list reads the model's top level and every column of it: a
// screen reader met the first row of the top level as four items (a name, a size, "Folder", a
// date) and nothing else. With the folder as the top level and one column, each entry is one
// item, named by its name.
class FolderListModel : public QAbstractProxyModel {
    Q_OBJECT
public:
    explicit FolderListModel(QObject* parent = nullptr);

    void setSourceModel(QAbstractItemModel* source) override;
    // Shows the rows of `folder`, an index of the source model.
    void setFolder(const QModelIndex& folder);

    QModelIndex mapToSource(const QModelIndex& index) const override;
    QModelIndex mapFromSource(const QModelIndex& source) const override;
    QModelIndex index(int row, int column,
                      const QModelIndex& parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex& parent = QModelIndex()) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;

private:
    bool isFolder(const QModelIndex& sourceParent) const;
    // Whether rows `first` to `last` of `parent` hold the folder or a folder above it.
    bool folderAmong(const QModelIndex& parent, int first, int last) const;

    QPersistentModelIndex folder_;
    // The source items of our persistent rows over a change of the source's order.
    QList<QPersistentModelIndex> relayoutFrom_;
    QModelIndexList relayoutOurs_;
};

} // namespace quovara
