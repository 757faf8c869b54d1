// The rows of the search results list (`Trovati`): "File Name" with the icon of its kind of
// file, "File Path", the folder inside the archive, then the entry's Size, Modified,
// Attributes and CRC-32 from the listing. Results arrive in batches; a batch
// is one insertion, so a search that finds a hundred thousand files costs the list a handful
// of layouts, not one per file.
#pragma once

#include "findfile.h"

#include "engine/entrydetails.h"

#include <QAbstractTableModel>
#include <QHash>
#include <QIcon>
#include <QList>

#include <memory>

namespace quovara {

class SearchResults : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit SearchResults(QObject* parent = nullptr);

    void append(const QList<SearchHit>& hits);
    void clear();
    // The details of the archive searched (null: the detail columns stay empty).
    void setDetails(std::shared_ptr<const ArchiveDetails> details);
    const SearchHit& hit(int row) const { return rows_.at(row); }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QIcon iconFor(const QString& name) const;

    QList<SearchHit> rows_;
    std::shared_ptr<const ArchiveDetails> details_;
    // One icon look-up per kind of file (its extension), made when a row is first shown.
    mutable QHash<QString, QIcon> icons_;
};

} // namespace quovara
