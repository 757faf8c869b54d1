#include "detailsmodel.h"

#include "core/logging.h"

#include <QFileSystemModel>
#include <QHeaderView>
#include <QLocale>
#include <QMimeData>
#include <QTimer>
#include <QtGlobal>

#include <algorithm>

namespace quovara {

namespace {
// Rows filled in one turn of the event loop (about 10 ms for 8,192 rows), and the pause in the
// rows' changes that the filling waits for.
constexpr int kRowCacheSlice = 8192;
constexpr int kRowCachePause = 200;
} // namespace

namespace details_cell {

QString sizeText(quint64 bytes) {
    if (bytes == 1)
        return DetailsModel::tr("1 byte");
    if (bytes < 1024)
        return DetailsModel::tr("%n bytes", nullptr, int(bytes));
    // Steps of 1024 with one decimal, as file managers have long written them.
    static const char* const units[] = {QT_TRANSLATE_NOOP("quovara::DetailsModel", "%1 KB"),
                                        QT_TRANSLATE_NOOP("quovara::DetailsModel", "%1 MB"),
                                        QT_TRANSLATE_NOOP("quovara::DetailsModel", "%1 GB"),
                                        QT_TRANSLATE_NOOP("quovara::DetailsModel", "%1 TB"),
                                        QT_TRANSLATE_NOOP("quovara::DetailsModel", "%1 PB"),
                                        QT_TRANSLATE_NOOP("quovara::DetailsModel", "%1 EB")};
    double value = double(bytes) / 1024.0;
    int unit = 0;
    while (value >= 1024.0 && unit < 5) {
        value /= 1024.0;
        ++unit;
    }
    return DetailsModel::tr(units[unit]).arg(QLocale().toString(value, 'f', 1));
}

QString sizeToolTip(quint64 bytes) {
    // The count may pass the range of a plural form's number: the words are chosen here.
    if (bytes == 1)
        return DetailsModel::tr("1 byte");
    return DetailsModel::tr("%1 bytes", "the exact size, its digits grouped")
        .arg(QLocale().toString(qulonglong(bytes)));
}

QString countText(int entries) {
    return entries == 1 ? DetailsModel::tr("1 item")
                        : DetailsModel::tr("%n items", nullptr, entries);
}

QVariant data(const EntryDetails* entry, std::optional<int> count, int column, int role) {
    if (role == Qt::TextAlignmentRole)
        return column == DetailsModel::Size ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                                            : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return {};
    if (!entry) {
        if (column == DetailsModel::Size && count && role == Qt::DisplayRole)
            return countText(*count);
        return {};
    }
    switch (column) {
    case DetailsModel::Size:
        if (!entry->size)
            return {};
        return role == Qt::DisplayRole ? sizeText(*entry->size) : sizeToolTip(*entry->size);
    case DetailsModel::Modified:
        return role == Qt::DisplayRole ? entry->modifiedText() : QVariant();
    case DetailsModel::Attributes:
        return role == Qt::DisplayRole ? entry->attributes : QVariant();
    case DetailsModel::Crc:
        return role == Qt::DisplayRole ? entry->crcText() : QVariant();
    default:
        return {};
    }
}

QString header(int column) {
    switch (column) {
    case DetailsModel::Name:
        return DetailsModel::tr("Name");
    case DetailsModel::Size:
        return DetailsModel::tr("Size");
    case DetailsModel::Modified:
        return DetailsModel::tr("Modified");
    case DetailsModel::Attributes:
        return DetailsModel::tr("Attributes");
    case DetailsModel::Crc:
        return DetailsModel::tr("CRC-32");
    default:
        return QString();
    }
}

void fitColumns(QHeaderView* header, int firstDetail) {
    // Size, Modified, Attributes and CRC-32 at widths that hold their texts; the columns before
    // them share what is left, so that every column shows without a sideways scroll.
    static constexpr int widths[] = {80, 140, 70, 80};
    for (int column = 0; column < firstDetail; ++column)
        header->setSectionResizeMode(column, QHeaderView::Stretch);
    for (int i = 0; i < int(std::size(widths)); ++i) {
        header->setSectionResizeMode(firstDetail + i, QHeaderView::Interactive);
        header->resizeSection(firstDetail + i, widths[i]);
    }
    header->setStretchLastSection(false);
}

} // namespace details_cell

DetailsModel::DetailsModel(QFileSystemModel* files, QObject* parent)
    : QAbstractTableModel(parent), files_(files), pendingOrder_(new QTimer(this)) {
    rowCacheFiller_ = new QTimer(this);
    rowCacheFiller_->setSingleShot(true);
    connect(rowCacheFiller_, &QTimer::timeout, this, [this] {
        const int count = folder_.isValid() ? files_->rowCount(folder_) : 0;
        if (!fillRowCacheSlice(count, kRowCacheSlice) && details_ && count > 0)
            rowCacheFiller_->start(0);
    });
    // Rows read in many batches are put in order once, after the last.
    pendingOrder_->setSingleShot(true);
    pendingOrder_->setInterval(0);
    connect(pendingOrder_, &QTimer::timeout, this, [this] {
        beginRelayout();
        endRelayout();
    });
    connect(files_, &QAbstractItemModel::rowsInserted, this,
            [this](const QModelIndex& parent, int first, int last) {
                if (!folder_.isValid() || parent != folder_)
                    return;
                forgetRowCache();
                // New rows go at the end at once, and into their places with the next change
                // of order (the file model sorts what it has read, and so do we).
                const int count = last - first + 1;
                for (int& row : rows_)
                    if (row >= first)
                        row += count;
                const int at = int(rows_.size());
                beginInsertRows(QModelIndex(), at, at + count - 1);
                for (int row = first; row <= last; ++row)
                    rows_.push_back(row);
                rebuildInverse();
                endInsertRows();
                ordered_ = false;
                pendingOrder_->start();
            });
    connect(files_, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex& parent) {
                if (folder_.isValid() && parent == folder_)
                    beginResetModel();
            });
    connect(files_, &QAbstractItemModel::rowsRemoved, this, [this](const QModelIndex& parent) {
        if (!folder_.isValid() || parent != folder_)
            return;
        forgetRowCache();
        rebuild();
        endResetModel();
    });
    // The file model's own changes of order move its rows: what was kept by row is dropped.
    connect(files_, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] {
        forgetRowCache();
        beginRelayout();
    });
    connect(files_, &QAbstractItemModel::layoutChanged, this, &DetailsModel::endRelayout);
    connect(files_, &QAbstractItemModel::modelAboutToBeReset, this, &DetailsModel::beginResetModel);
    connect(files_, &QAbstractItemModel::modelReset, this, [this] {
        forgetRowCache();
        rebuild();
        endResetModel();
    });
    connect(files_, &QAbstractItemModel::dataChanged, this, [this](const QModelIndex& topLeft) {
        if (folder_.isValid() && topLeft.parent() == folder_)
            forgetRowCache(); // a name may have changed
        if (folder_.isValid() && topLeft.parent() == folder_ && !rows_.empty())
            emit dataChanged(index(0, 0), index(int(rows_.size()) - 1, ColumnCount - 1));
    });
}

void DetailsModel::setDetails(std::shared_ptr<const ArchiveDetails> details,
                              const QString& treeRoot) {
    beginResetModel();
    details_ = std::move(details);
    treeRoot_ = treeRoot;
    const QModelIndex folder = folder_;
    folder_ = QPersistentModelIndex();
    endResetModel();
    setFolder(folder);
}

void DetailsModel::setFolder(const QModelIndex& folder) {
    beginResetModel();
    folder_ = folder;
    folderHash_ = ArchiveDetails::kHashStart;
    const QString path = files_->filePath(folder);
    if (!treeRoot_.isEmpty() && path.startsWith(treeRoot_ + QLatin1Char('/'))) {
        QString inside = path.mid(treeRoot_.size() + 1);
        inside.replace(QLatin1Char('/'), QLatin1Char('\\'));
        folderHash_ = ArchiveDetails::hashOf(inside + QLatin1Char('\\'));
    }
    forgetRowCache();
    rebuild();
    endResetModel();
}

std::vector<int> DetailsModel::sortedRows() const {
    const int count = folder_.isValid() ? files_->rowCount(folder_) : 0;
    struct Item {
        quint64 key;
        int row;
        bool folder;
    };
    std::vector<Item> items(size_t(std::max(count, 0)));
    const bool keyed = sortColumn_ != Name && details_;
    if (keyed)
        fillRowCache(count);
    const bool cached = rowCacheValid_ && rowRef_.size() == size_t(std::max(count, 0));
    for (int row = 0; row < count; ++row) {
        Item& item = items[size_t(row)];
        item.row = row;
        item.key = 0;
        item.folder =
            cached ? rowFolder_[size_t(row)] != 0 : files_->isDir(files_->index(row, 0, folder_));
        if (!keyed)
            continue; // the file model's order is the names' order
        const quint32 ref = rowRef_[size_t(row)];
        if (item.folder) {
            if (sortColumn_ == Size)
                item.key = ref;
            continue; // folders have no date, attributes or CRC: they keep names' order
        }
        item.key = details_->sortKeyAt(ref, sortColumn_);
    }
    const bool descending = sortOrder_ == Qt::DescendingOrder;
    std::sort(items.begin(), items.end(), [&](const Item& a, const Item& b) {
        if (a.folder != b.folder)
            return a.folder; // folders first, in both orders
        const quint64 ka = sortColumn_ == Name ? quint64(a.row) : a.key;
        const quint64 kb = sortColumn_ == Name ? quint64(b.row) : b.key;
        if (ka != kb)
            return descending ? ka > kb : ka < kb;
        return a.row < b.row; // equal keys: by name
    });
    std::vector<int> rows(items.size());
    std::transform(items.begin(), items.end(), rows.begin(), [](const Item& i) { return i.row; });
    return rows;
}

void DetailsModel::forgetRowCache() {
    rowCacheValid_ = false;
    rowCacheFilled_ = 0;
    // The rows arrive in batches while a folder is read: the filling waits for a pause.
    if (details_ && folder_.isValid())
        rowCacheFiller_->start(kRowCachePause);
    else
        rowCacheFiller_->stop();
}

bool DetailsModel::fillRowCacheSlice(int count, int rows) const {
    if (rowCacheValid_ && rowRef_.size() == size_t(count))
        return true;
    if (!details_ || count <= 0) {
        rowRef_.clear();
        rowFolder_.clear();
        return false;
    }
    if (rowRef_.size() != size_t(count) || rowCacheFilled_ > count) {
        rowRef_.assign(size_t(count), ArchiveDetails::kNoEntry);
        rowFolder_.assign(size_t(count), 0);
        rowCacheFilled_ = 0;
    }
    const int end = std::min(count, rowCacheFilled_ + rows);
    for (int row = rowCacheFilled_; row < end; ++row) {
        const QModelIndex source = files_->index(row, 0, folder_);
        const bool folder = files_->isDir(source);
        const quint64 hash = ArchiveDetails::hashOf(files_->fileName(source), folderHash_);
        rowFolder_[size_t(row)] = folder ? 1 : 0;
        rowRef_[size_t(row)] = folder ? quint32(details_->folderCountByHash(hash).value_or(0))
                                      : details_->entryIndexByHash(hash);
    }
    rowCacheFilled_ = end;
    rowCacheValid_ = end == count;
    return rowCacheValid_;
}

void DetailsModel::fillRowCache(int count) const {
    fillRowCacheSlice(count, count);
}

void DetailsModel::rebuild() {
    rows_ = sortedRows();
    ordered_ = true;
    rebuildInverse();
}

void DetailsModel::rebuildInverse() {
    inverse_.assign(rows_.size(), -1);
    for (size_t i = 0; i < rows_.size(); ++i)
        if (rows_[i] >= 0 && size_t(rows_[i]) < inverse_.size())
            inverse_[size_t(rows_[i])] = int(i);
}

void DetailsModel::beginRelayout() {
    if (relayoutOpen_)
        return;
    relayoutOpen_ = true;
    emit layoutAboutToBeChanged({}, QAbstractItemModel::VerticalSortHint);
    relayoutFrom_ = persistentIndexList();
    relayoutSources_.clear();
    for (const QModelIndex& index : relayoutFrom_)
        relayoutSources_ << QPersistentModelIndex(toSource(index));
}

void DetailsModel::endRelayout() {
    if (!relayoutOpen_)
        return;
    relayoutOpen_ = false;
    const size_t before = rows_.size();
    rows_ = sortedRows();
    ordered_ = true;
    if (rows_.size() != before) {
        // A change of order may not change the count of rows; rows the file model added
        // without telling are shown with its next change.
        qCDebug(lcListing) << "the folder's rows changed during a change of order:" << before
                           << "to" << rows_.size();
        rows_.resize(before, -1);
    }
    rebuildInverse();
    QModelIndexList to;
    for (qsizetype i = 0; i < relayoutFrom_.size(); ++i) {
        const QPersistentModelIndex& source = relayoutSources_[i];
        const bool known = source.isValid() && source.parent() == folder_ &&
                           size_t(source.row()) < inverse_.size() && inverse_[source.row()] >= 0;
        to << (known ? index(inverse_[size_t(source.row())], relayoutFrom_[i].column())
                     : QModelIndex());
    }
    changePersistentIndexList(relayoutFrom_, to);
    relayoutFrom_.clear();
    relayoutSources_.clear();
    emit layoutChanged({}, QAbstractItemModel::VerticalSortHint);
}

QModelIndex DetailsModel::toSource(const QModelIndex& index) const {
    if (!index.isValid() || index.model() != this || size_t(index.row()) >= rows_.size() ||
        rows_[size_t(index.row())] < 0)
        return {};
    return files_->index(rows_[size_t(index.row())], 0, folder_);
}

QModelIndex DetailsModel::fromSource(const QModelIndex& source) const {
    if (!source.isValid() || source.parent() != folder_ || size_t(source.row()) >= inverse_.size())
        return {};
    const int row = inverse_[size_t(source.row())];
    return row < 0 ? QModelIndex() : index(row, 0);
}

int DetailsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int DetailsModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant DetailsModel::data(const QModelIndex& index, int role) const {
    const QModelIndex source = toSource(index);
    if (!source.isValid())
        return {};
    if (index.column() == Name || role >= Qt::UserRole)
        return files_->data(source, role);
    if (!details_)
        return {};
    const quint64 hash = ArchiveDetails::hashOf(files_->fileName(source), folderHash_);
    if (files_->isDir(source))
        return details_cell::data(nullptr, details_->folderCountByHash(hash), index.column(), role);
    const auto entry = details_->entryByHash(hash);
    if (!entry)
        return {};
    return details_cell::data(&*entry, std::nullopt, index.column(), role);
}

QVariant DetailsModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal)
        return {};
    if (role == Qt::DisplayRole)
        return details_cell::header(section);
    if (role == Qt::TextAlignmentRole)
        return section == Size ? QVariant(Qt::AlignRight | Qt::AlignVCenter)
                               : QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return {};
}

Qt::ItemFlags DetailsModel::flags(const QModelIndex& index) const {
    // The same for every row, without asking the file model: views ask for every row when
    // they lay out, and a folder can hold a hundred thousand.
    if (!index.isValid() || index.model() != this || size_t(index.row()) >= rows_.size())
        return Qt::NoItemFlags;
    return Qt::ItemIsSelectable | Qt::ItemIsEnabled | Qt::ItemIsDragEnabled |
           Qt::ItemNeverHasChildren;
}

void DetailsModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= ColumnCount)
        return;
    // A view asks twice for one sort (the header's indicator, then the view itself).
    if (ordered_ && column == sortColumn_ && order == sortOrder_)
        return;
    beginRelayout();
    sortColumn_ = column;
    sortOrder_ = order;
    endRelayout();
}

bool DetailsModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && folder_.isValid() && files_->canFetchMore(folder_);
}

void DetailsModel::fetchMore(const QModelIndex& parent) {
    if (!parent.isValid() && folder_.isValid())
        files_->fetchMore(folder_);
}

QStringList DetailsModel::mimeTypes() const {
    return files_->mimeTypes();
}

QMimeData* DetailsModel::mimeData(const QModelIndexList& indexes) const {
    QModelIndexList sources;
    for (const QModelIndex& index : indexes)
        if (index.column() == Name)
            sources << toSource(index);
    return files_->mimeData(sources);
}

} // namespace quovara
