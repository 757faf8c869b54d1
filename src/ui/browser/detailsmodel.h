// The rows of the Report view inside an archive: the entries of the folder shown, with the
// columns Name, Size, Modified, Attributes and CRC-32 taken from the archive's listing; a
// folder shows how many entries it holds. The rows are those of the file model's folder (the
// mirror tree), in an order of our own: a click on a header sorts by that column, folders
// first, names in the browser's order (the file model's own, FileManagerLess).
#pragma once

#include "engine/entrydetails.h"

#include <QAbstractTableModel>
#include <QPersistentModelIndex>

#include <memory>
#include <vector>

class QFileSystemModel;
class QHeaderView;
class QTimer;

namespace quovara {

// The texts of a details cell, shared by the Report view and the search results.
namespace details_cell {
// "9.8 KB", "341 bytes"; the tool tip gives the exact bytes ("10,000 bytes").
QString sizeText(quint64 bytes);
QString sizeToolTip(quint64 bytes);
// "1 item", "12 items".
QString countText(int entries);
// The cell of `column` (Size, Modified, Attributes, CRC-32 as 1 to 4) for `role` (display, tool
// tip, alignment) of an entry, or of a folder holding `count` entries when `entry` is null.
QVariant data(const EntryDetails* entry, std::optional<int> count, int column, int role);
QString header(int column);
// Lays out the columns of a list that shows the details from column `firstDetail` on (the
// Report view from 1, the search results from 2): the details at their fixed widths, the
// columns before them sharing the rest of the list's width.
void fitColumns(QHeaderView* header, int firstDetail);
} // namespace details_cell

class DetailsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Name = 0, Size, Modified, Attributes, Crc, ColumnCount };

    // `files` must be ordered by name (its column 0, ascending): that order is the names' order.
    explicit DetailsModel(QFileSystemModel* files, QObject* parent = nullptr);

    // The details to show and the mirror tree's root folder they are relative to.
    void setDetails(std::shared_ptr<const ArchiveDetails> details, const QString& treeRoot);
    // Shows the rows of `folder`, an index of the file model.
    void setFolder(const QModelIndex& folder);

    // The file model's index of a row (column 0), and the row of a file model's index.
    QModelIndex toSource(const QModelIndex& index) const;
    QModelIndex fromSource(const QModelIndex& source) const;

    int sortColumn() const { return sortColumn_; }
    Qt::SortOrder sortOrder() const { return sortOrder_; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QStringList mimeTypes() const override;
    QMimeData* mimeData(const QModelIndexList& indexes) const override;

private:
    // The order of the source rows for the sort column and order.
    std::vector<int> sortedRows() const;
    // A change of order that keeps the selection and the current row on their items.
    void beginRelayout();
    void endRelayout();
    void rebuild();
    void rebuildInverse();
    // Per source row: whether it is a folder, and its entry's place in the details (a
    // folder: how many entries it holds). Made at the first sort by a details column and kept
    // until the file model's rows change, so that further sorts read neither the file model
    // nor the details' index.
    // It is filled a slice at a time while the window is idle, shortly after the rows last
    // changed, so that even the first sort finds it made; a sort before then fills the rest.
    void fillRowCache(int count) const;
    bool fillRowCacheSlice(int count, int rows) const;
    void forgetRowCache();
    mutable std::vector<quint32> rowRef_;
    mutable std::vector<quint8> rowFolder_;
    mutable int rowCacheFilled_ = 0;
    mutable bool rowCacheValid_ = false;
    QTimer* rowCacheFiller_ = nullptr;

    QFileSystemModel* files_;
    std::shared_ptr<const ArchiveDetails> details_;
    QString treeRoot_;
    QPersistentModelIndex folder_;
    // The hash of the folder's path with its separator: what every name in it continues.
    quint64 folderHash_ = ArchiveDetails::kHashStart;
    // Row → source row, and back.
    std::vector<int> rows_;
    std::vector<int> inverse_;
    int sortColumn_ = Name;
    Qt::SortOrder sortOrder_ = Qt::AscendingOrder;
    // The file model's items of our persistent rows over a change of order.
    QModelIndexList relayoutFrom_;
    QList<QPersistentModelIndex> relayoutSources_;
    bool relayoutOpen_ = false;
    // The rows are in the order of the sort column (no rows came since).
    bool ordered_ = true;
    QTimer* pendingOrder_;
};

} // namespace quovara
