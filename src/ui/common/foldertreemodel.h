// FolderTreeModel: the folders of the file system as a tree, read on demand by a FolderReader.
// A folder asked for by its path (reveal) is in the tree at once, with the folders above it,
// before any of them has been read; the other subfolders join their parents when the reader
// answers, in the browser's order of names (FileManagerLess). A folder that is read is watched,
// so that folders made or removed later come and go too.
#pragma once

#include <QAbstractItemModel>
#include <QStringList>

#include <memory>
#include <vector>

class QFileSystemWatcher;

namespace quovara {

class FolderReader;

class FolderTreeModel : public QAbstractItemModel {
    Q_OBJECT
public:
    explicit FolderTreeModel(QObject* parent = nullptr);
    ~FolderTreeModel() override;

    // The folder at `path` (made with its parents when not in the tree yet, without reading
    // anything); its parents are read so that their other subfolders join them. An invalid
    // index when `path` is not an absolute path.
    QModelIndex reveal(const QString& path);
    // The folder at `path` when the tree holds it, else an invalid index.
    QModelIndex find(const QString& path) const;
    QString filePath(const QModelIndex& index) const;

    // Makes the folder `name` under `parent` on disk and in the tree; an invalid index when
    // the disk refused.
    QModelIndex mkdir(const QModelIndex& parent, const QString& name);

    // How many folders are being read.
    int readsUnderWay() const { return reading_; }

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    bool hasChildren(const QModelIndex& parent = {}) const override;
    bool canFetchMore(const QModelIndex& parent) const override;
    void fetchMore(const QModelIndex& parent) override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    // Renames the folder on disk; the tree keeps its order.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;

signals:
    // Folders are about to come in, go or move; treeChanged() follows once they have.
    void treeAboutToChange();
    void treeChanged();
    // The subfolders of `path` have been read (or read again) and are in the tree.
    void folderRead(const QString& path);
    // Every folder asked for has been read.
    void readsFinished();
    // The folder `oldName` in `parentPath` is now called `newName`.
    void folderRenamed(const QString& parentPath, const QString& oldName, const QString& newName);

private:
    struct Node;
    Node* nodeOf(const QModelIndex& index) const;
    QModelIndex indexOf(const Node* node) const;
    QString pathOf(const Node* node) const;
    Node* findNode(const QString& path) const;
    Node* childNamed(const Node* parent, const QString& name) const;
    // The row where `name` belongs among the children of `parent`.
    int rowFor(const Node* parent, const QString& name) const;
    bool before(const QString& a, const QString& b) const;
    Node* addChild(Node* parent, const QString& name, bool pinned);
    void startRead(Node* node);
    void onRead(const QString& path, const QStringList& subfolders, bool ok);
    // Brings the children of `node` to `names`: gone folders leave (unless asked for by path),
    // new ones come in at their place.
    void merge(Node* node, QStringList names);
    void forget(const Node* node);

    std::unique_ptr<Node> root_;
    std::unique_ptr<FolderReader> reader_;
    QFileSystemWatcher* watcher_ = nullptr;
    int reading_ = 0;
};

} // namespace quovara
