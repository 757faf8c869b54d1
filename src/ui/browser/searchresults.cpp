#include "searchresults.h"

#include "detailsmodel.h"
#include "fileicons.h"

#include <QAbstractFileIconProvider>
#include <QFileInfo>

namespace quovara {

SearchResults::SearchResults(QObject* parent) : QAbstractTableModel(parent) {}

void SearchResults::append(const QList<SearchHit>& hits) {
    if (hits.isEmpty())
        return;
    beginInsertRows(QModelIndex(), int(rows_.size()), int(rows_.size() + hits.size() - 1));
    rows_.append(hits);
    endInsertRows();
}

void SearchResults::clear() {
    // Rows removed, not a reset: the columns keep the widths the user gave them.
    if (rows_.isEmpty())
        return;
    beginRemoveRows(QModelIndex(), 0, int(rows_.size()) - 1);
    rows_.clear();
    rows_.squeeze();
    endRemoveRows();
}

int SearchResults::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : int(rows_.size());
}

int SearchResults::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 6;
}

void SearchResults::setDetails(std::shared_ptr<const ArchiveDetails> details) {
    // The columns stay: a reset would give the list's columns their first widths again.
    details_ = std::move(details);
    if (!rows_.isEmpty())
        emit dataChanged(index(0, 2), index(int(rows_.size()) - 1, 5));
}

QVariant SearchResults::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rows_.size())
        return QVariant();
    const SearchHit& hit = rows_.at(index.row());
    if (index.column() >= 2) {
        // Size, Modified, Attributes and CRC-32, as the Report view shows them.
        if (!details_)
            return QVariant();
        const QString path = hit.archiveFolder.isEmpty()
                                 ? hit.name
                                 : hit.archiveFolder + QLatin1Char('\\') + hit.name;
        const auto entry = details_->entry(path);
        return entry ? details_cell::data(&*entry, std::nullopt, index.column() - 1, role)
                     : QVariant();
    }
    if (role == Qt::DisplayRole)
        return index.column() == 0 ? hit.name : hit.archiveFolder;
    if (role == Qt::DecorationRole && index.column() == 0)
        return iconFor(hit.name);
    return QVariant();
}

QVariant SearchResults::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    if (section == 0)
        return tr("File Name");
    if (section == 1)
        return tr("File Path");
    return details_cell::header(section - 1);
}

QIcon SearchResults::iconFor(const QString& name) const {
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    const QString kind = dot < 0 ? QString() : name.mid(dot + 1).toLower();
    auto icon = icons_.constFind(kind);
    if (icon == icons_.constEnd())
        icon = icons_.insert(kind, SharedFileIconProvider()->icon(QFileInfo(name)));
    return *icon;
}

} // namespace quovara
