#include "folderlistmodel.h"

namespace quovara {

FolderListModel::FolderListModel(QObject* parent) : QAbstractProxyModel(parent) {}

bool FolderListModel::isFolder(const QModelIndex& sourceParent) const {
    return folder_.isValid() && sourceParent == folder_;
}

bool FolderListModel::folderAmong(const QModelIndex& parent, int first, int last) const {
    for (QModelIndex at = folder_; at.isValid(); at = at.parent())
        if (at.parent() == parent && at.row() >= first && at.row() <= last)
            return true;
    return false;
}

void FolderListModel::setSourceModel(QAbstractItemModel* source) {
    beginResetModel();
    if (sourceModel())
        disconnect(sourceModel(), nullptr, this, nullptr);
    QAbstractProxyModel::setSourceModel(source);
    folder_ = QPersistentModelIndex();
    if (source) {
        connect(source, &QAbstractItemModel::rowsAboutToBeInserted, this,
                [this](const QModelIndex& parent, int first, int last) {
                    if (isFolder(parent))
                        beginInsertRows(QModelIndex(), first, last);
                });
        connect(source, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex& parent, int, int) {
                    if (isFolder(parent))
                        endInsertRows();
                });
        connect(source, &QAbstractItemModel::rowsAboutToBeRemoved, this,
                [this](const QModelIndex& parent, int first, int last) {
                    if (isFolder(parent)) {
                        beginRemoveRows(QModelIndex(), first, last);
                    } else if (folderAmong(parent, first, last)) {
                        // The folder itself goes: the list is empty from now on.
                        beginResetModel();
                        folder_ = QPersistentModelIndex();
                        endResetModel();
                    }
                });
        connect(source, &QAbstractItemModel::rowsRemoved, this,
                [this](const QModelIndex& parent, int, int) {
                    if (isFolder(parent))
                        endRemoveRows();
                });
        // Rows moving into, out of or inside the folder: the list is read again.
        connect(source, &QAbstractItemModel::rowsAboutToBeMoved, this,
                [this](const QModelIndex& from, int, int, const QModelIndex& to, int) {
                    if (isFolder(from) || isFolder(to))
                        beginResetModel();
                });
        connect(source, &QAbstractItemModel::rowsMoved, this,
                [this](const QModelIndex& from, int, int, const QModelIndex& to, int) {
                    if (isFolder(from) || isFolder(to))
                        endResetModel();
                });
        connect(source, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& topLeft, const QModelIndex& bottomRight,
                       const QList<int>& roles) {
                    if (!isFolder(topLeft.parent()) || topLeft.column() > 0)
                        return;
                    emit dataChanged(index(topLeft.row(), 0), index(bottomRight.row(), 0), roles);
                });
        connect(source, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] {
            // A new order of the source (a sort): our persistent rows follow their items.
            emit layoutAboutToBeChanged();
            relayoutOurs_ = persistentIndexList();
            relayoutFrom_.clear();
            for (const QModelIndex& ours : relayoutOurs_)
                relayoutFrom_ << QPersistentModelIndex(mapToSource(ours));
        });
        connect(source, &QAbstractItemModel::layoutChanged, this, [this] {
            QModelIndexList to;
            for (const QPersistentModelIndex& source : relayoutFrom_)
                to << mapFromSource(source);
            changePersistentIndexList(relayoutOurs_, to);
            relayoutOurs_.clear();
            relayoutFrom_.clear();
            emit layoutChanged();
        });
        connect(source, &QAbstractItemModel::modelAboutToBeReset, this,
                &FolderListModel::beginResetModel);
        connect(source, &QAbstractItemModel::modelReset, this, [this] {
            folder_ = QPersistentModelIndex();
            endResetModel();
        });
    }
    endResetModel();
}

void FolderListModel::setFolder(const QModelIndex& folder) {
    beginResetModel();
    folder_ = folder;
    endResetModel();
}

QModelIndex FolderListModel::mapToSource(const QModelIndex& index) const {
    if (!index.isValid() || !sourceModel() || !folder_.isValid())
        return QModelIndex();
    return sourceModel()->index(index.row(), 0, folder_);
}

QModelIndex FolderListModel::mapFromSource(const QModelIndex& source) const {
    if (!source.isValid() || source.column() != 0 || !isFolder(source.parent()))
        return QModelIndex();
    return createIndex(source.row(), 0);
}

QModelIndex FolderListModel::index(int row, int column, const QModelIndex& parent) const {
    if (parent.isValid() || column != 0 || row < 0 || row >= rowCount())
        return QModelIndex();
    return createIndex(row, 0);
}

QModelIndex FolderListModel::parent(const QModelIndex&) const {
    return QModelIndex();
}

int FolderListModel::rowCount(const QModelIndex& parent) const {
    if (parent.isValid() || !sourceModel() || !folder_.isValid())
        return 0;
    return sourceModel()->rowCount(folder_);
}

int FolderListModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 1;
}

bool FolderListModel::hasChildren(const QModelIndex& parent) const {
    return !parent.isValid() && rowCount() > 0;
}

bool FolderListModel::canFetchMore(const QModelIndex& parent) const {
    return !parent.isValid() && sourceModel() && folder_.isValid() &&
           sourceModel()->canFetchMore(folder_);
}

void FolderListModel::fetchMore(const QModelIndex& parent) {
    if (canFetchMore(parent))
        sourceModel()->fetchMore(folder_);
}

} // namespace quovara
