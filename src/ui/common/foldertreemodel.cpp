#include "foldertreemodel.h"

#include "folderreader.h"
#include "nameorder.h"

#include <QDir>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QHash>
#include <QLoggingCategory>
#include <QSet>

#include <algorithm>

Q_LOGGING_CATEGORY(lcFolderTree, "quovara.foldertree", QtInfoMsg)

namespace quovara {

namespace {

// Folders watched for changes at most: enough for every folder a user opens in a dialog,
// far below the system's limit of watches per user.
constexpr int MaxWatched = 256;

#ifdef Q_OS_WIN
constexpr Qt::CaseSensitivity NameCase = Qt::CaseInsensitive;
#else
constexpr Qt::CaseSensitivity NameCase = Qt::CaseSensitive;
#endif

const QFileIconProvider& Icons() {
    static const QFileIconProvider provider;
    return provider;
}

} // namespace

struct FolderTreeModel::Node {
    QString name; // a top folder's name is its path ("/", "C:/")
    Node* parent = nullptr;
    std::vector<std::unique_ptr<Node>> children;
    int row = 0;
    bool read = false;    // its subfolders are in the tree
    bool reading = false; // the reader has been asked
    bool again = false;   // changed on disk while being read: read it once more
    bool pinned = false;  // asked for by path: stays even when the disk does not list it
    bool watched = false;

    void renumber() {
        for (size_t i = 0; i < children.size(); ++i)
            children[i]->row = static_cast<int>(i);
    }
    bool inside(const Node* ancestor) const {
        for (const Node* n = this; n; n = n->parent)
            if (n == ancestor)
                return true;
        return false;
    }
};

FolderTreeModel::FolderTreeModel(QObject* parent)
    : QAbstractItemModel(parent), root_(std::make_unique<Node>()), reader_(MakeFolderReader()) {
    root_->read = true;
    for (const QFileInfo& drive : QDir::drives()) {
        auto top = std::make_unique<Node>();
        top->name = drive.absoluteFilePath();
        top->parent = root_.get();
        root_->children.push_back(std::move(top));
    }
    root_->renumber();
    connect(reader_.get(), &FolderReader::folderRead, this, &FolderTreeModel::onRead);
    watcher_ = new QFileSystemWatcher(this);
    connect(watcher_, &QFileSystemWatcher::directoryChanged, this, [this](const QString& path) {
        Node* node = findNode(path);
        if (!node || !node->read)
            return;
        if (node->reading)
            node->again = true;
        else
            startRead(node);
    });
}

FolderTreeModel::~FolderTreeModel() = default;

FolderTreeModel::Node* FolderTreeModel::nodeOf(const QModelIndex& index) const {
    return index.isValid() ? static_cast<Node*>(index.internalPointer()) : root_.get();
}

QModelIndex FolderTreeModel::indexOf(const Node* node) const {
    if (!node || node == root_.get())
        return {};
    return createIndex(node->row, 0, const_cast<Node*>(node));
}

QString FolderTreeModel::pathOf(const Node* node) const {
    if (!node || node == root_.get())
        return QString();
    if (node->parent == root_.get())
        return node->name;
    const QString above = pathOf(node->parent);
    return above.endsWith('/') ? above + node->name : above + '/' + node->name;
}

QString FolderTreeModel::filePath(const QModelIndex& index) const {
    return index.isValid() ? pathOf(nodeOf(index)) : QString();
}

FolderTreeModel::Node* FolderTreeModel::childNamed(const Node* parent, const QString& name) const {
    for (const auto& child : parent->children)
        if (child->name.compare(name, NameCase) == 0)
            return child.get();
    return nullptr;
}

FolderTreeModel::Node* FolderTreeModel::findNode(const QString& path) const {
    const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
    for (const auto& top : root_->children) {
        QString start = top->name;
        if (!start.endsWith('/'))
            start += '/';
        const bool isTop =
            clean.compare(top->name, NameCase) == 0 || (clean + '/').compare(start, NameCase) == 0;
        if (isTop)
            return top.get();
        if (!clean.startsWith(start, NameCase))
            continue;
        Node* node = top.get();
        const QStringList parts = clean.mid(start.size()).split('/', Qt::SkipEmptyParts);
        for (const QString& part : parts) {
            node = childNamed(node, part);
            if (!node)
                return nullptr;
        }
        return node;
    }
    return nullptr;
}

QModelIndex FolderTreeModel::find(const QString& path) const {
    return indexOf(findNode(path));
}

bool FolderTreeModel::before(const QString& a, const QString& b) const {
    return FileManagerLess(a, b);
}

int FolderTreeModel::rowFor(const Node* parent, const QString& name) const {
    const auto at = std::partition_point(
        parent->children.begin(), parent->children.end(),
        [&](const std::unique_ptr<Node>& child) { return before(child->name, name); });
    return static_cast<int>(at - parent->children.begin());
}

FolderTreeModel::Node* FolderTreeModel::addChild(Node* parent, const QString& name, bool pinned) {
    const int row = rowFor(parent, name);
    beginInsertRows(indexOf(parent), row, row);
    auto child = std::make_unique<Node>();
    child->name = name;
    child->parent = parent;
    child->pinned = pinned;
    Node* made = child.get();
    parent->children.insert(parent->children.begin() + row, std::move(child));
    parent->renumber();
    endInsertRows();
    return made;
}

QModelIndex FolderTreeModel::reveal(const QString& path) {
    const QString clean = QDir::cleanPath(QDir::fromNativeSeparators(path));
    if (!QDir::isAbsolutePath(clean))
        return {};
    Node* top = nullptr;
    QString rest;
    for (const auto& candidate : root_->children) {
        QString start = candidate->name;
        if (!start.endsWith('/'))
            start += '/';
        if ((clean + '/').startsWith(start, NameCase)) {
            top = candidate.get();
            rest = clean.mid(start.size());
            break;
        }
    }
    if (!top) {
        qCDebug(lcFolderTree) << "no top folder holds" << path;
        return {};
    }
    Node* node = top;
    std::vector<Node*> above;
    emit treeAboutToChange();
    for (const QString& part : rest.split('/', Qt::SkipEmptyParts)) {
        above.push_back(node);
        Node* next = childNamed(node, part);
        if (!next)
            next = addChild(node, part, true);
        next->pinned = true;
        node = next;
    }
    emit treeChanged();
    for (Node* folder : above)
        if (!folder->read)
            startRead(folder);
    return indexOf(node);
}

void FolderTreeModel::startRead(Node* node) {
    if (node->reading)
        return;
    node->reading = true;
    node->again = false;
    ++reading_;
    reader_->read(pathOf(node));
}

void FolderTreeModel::onRead(const QString& path, const QStringList& subfolders, bool ok) {
    Node* node = findNode(path);
    if (node && node->reading) {
        node->reading = false;
        --reading_;
        if (!ok)
            qCDebug(lcFolderTree) << "folder could not be read:" << path;
        emit treeAboutToChange();
        merge(node, subfolders);
        node->read = true;
        emit treeChanged();
        if (ok && !node->watched && watcher_->directories().size() < MaxWatched)
            node->watched = watcher_->addPath(path);
        if (node->again)
            startRead(node);
        emit folderRead(path);
    } else {
        qCDebug(lcFolderTree) << "answer for a folder no longer in the tree:" << path;
    }
    if (reading_ == 0)
        emit readsFinished();
}

void FolderTreeModel::merge(Node* node, QStringList names) {
    const QModelIndex parent = indexOf(node);
    QSet<QString> listed;
    for (const QString& name : names)
        listed.insert(NameCase == Qt::CaseSensitive ? name : name.toLower());
    auto key = [](const QString& name) {
        return NameCase == Qt::CaseSensitive ? name : name.toLower();
    };
    // Folders gone from the disk leave, a run of neighbouring rows at a time.
    for (int last = static_cast<int>(node->children.size()) - 1; last >= 0;) {
        const Node* child = node->children[last].get();
        if (child->pinned || listed.contains(key(child->name))) {
            --last;
            continue;
        }
        int first = last;
        while (first > 0 && !node->children[first - 1]->pinned &&
               !listed.contains(key(node->children[first - 1]->name)))
            --first;
        beginRemoveRows(parent, first, last);
        for (int row = first; row <= last; ++row)
            forget(node->children[row].get());
        node->children.erase(node->children.begin() + first, node->children.begin() + last + 1);
        node->renumber();
        endRemoveRows();
        last = first - 1;
    }
    // New folders come in at their place, a run of neighbouring rows at a time.
    QSet<QString> present;
    for (const auto& child : node->children)
        present.insert(key(child->name));
    QStringList added;
    for (const QString& name : names)
        if (!present.contains(key(name))) {
            present.insert(key(name));
            added << name;
        }
    SortNames(added);
    size_t row = 0;
    for (qsizetype next = 0; next < added.size();) {
        while (row < node->children.size() && before(node->children[row]->name, added[next]))
            ++row;
        qsizetype end = next + 1;
        while (end < added.size() &&
               (row == node->children.size() || before(added[end], node->children[row]->name)))
            ++end;
        const int count = static_cast<int>(end - next);
        beginInsertRows(parent, static_cast<int>(row), static_cast<int>(row) + count - 1);
        std::vector<std::unique_ptr<Node>> run;
        for (qsizetype i = next; i < end; ++i) {
            auto child = std::make_unique<Node>();
            child->name = added[i];
            child->parent = node;
            run.push_back(std::move(child));
        }
        node->children.insert(node->children.begin() + static_cast<std::ptrdiff_t>(row),
                              std::make_move_iterator(run.begin()),
                              std::make_move_iterator(run.end()));
        node->renumber();
        endInsertRows();
        row += static_cast<size_t>(count);
        next = end;
    }
}

void FolderTreeModel::forget(const Node* node) {
    if (node->watched && !watcher_->removePath(pathOf(node)))
        qCDebug(lcFolderTree) << "watch not removed:" << pathOf(node);
    if (node->reading)
        --reading_;
    for (const auto& child : node->children)
        forget(child.get());
}

QModelIndex FolderTreeModel::mkdir(const QModelIndex& parent, const QString& name) {
    Node* node = nodeOf(parent);
    if (node == root_.get() || name.isEmpty())
        return {};
    if (!QDir(pathOf(node)).mkdir(name))
        return {};
    if (Node* known = childNamed(node, name))
        return indexOf(known);
    emit treeAboutToChange();
    Node* made = addChild(node, name, false);
    made->read = true; // a new folder is empty
    emit treeChanged();
    return indexOf(made);
}

QModelIndex FolderTreeModel::index(int row, int column, const QModelIndex& parent) const {
    const Node* node = nodeOf(parent);
    if (column != 0 || row < 0 || row >= static_cast<int>(node->children.size()))
        return {};
    return createIndex(row, column, node->children[static_cast<size_t>(row)].get());
}

QModelIndex FolderTreeModel::parent(const QModelIndex& child) const {
    if (!child.isValid())
        return {};
    return indexOf(nodeOf(child)->parent);
}

int FolderTreeModel::rowCount(const QModelIndex& parent) const {
    if (parent.column() > 0)
        return 0;
    return static_cast<int>(nodeOf(parent)->children.size());
}

int FolderTreeModel::columnCount(const QModelIndex&) const {
    return 1;
}

bool FolderTreeModel::hasChildren(const QModelIndex& parent) const {
    const Node* node = nodeOf(parent);
    return !node->read || !node->children.empty();
}

bool FolderTreeModel::canFetchMore(const QModelIndex& parent) const {
    const Node* node = nodeOf(parent);
    return node != root_.get() && !node->read && !node->reading;
}

void FolderTreeModel::fetchMore(const QModelIndex& parent) {
    if (canFetchMore(parent))
        startRead(nodeOf(parent));
}

QVariant FolderTreeModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid())
        return {};
    const Node* node = nodeOf(index);
    const bool top = node->parent == root_.get();
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return top ? QDir::toNativeSeparators(node->name) : node->name;
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(pathOf(node));
    case Qt::DecorationRole:
        return Icons().icon(top ? QFileIconProvider::Drive : QFileIconProvider::Folder);
    default:
        return {};
    }
}

bool FolderTreeModel::setData(const QModelIndex& index, const QVariant& value, int role) {
    Node* node = nodeOf(index);
    if (role != Qt::EditRole || !index.isValid() || node->parent == root_.get())
        return false;
    const QString newName = value.toString();
    const QString oldName = node->name;
    if (newName == oldName)
        return true;
    if (newName.isEmpty() || newName.contains('/') || newName.contains(QDir::separator()) ||
        newName == QLatin1String(".") || newName == QLatin1String("..") ||
        childNamed(node->parent, newName))
        return false;
    Node* parent = node->parent;
    const QString parentPath = pathOf(parent);
    if (!QDir(parentPath).rename(oldName, newName)) {
        qCDebug(lcFolderTree) << "rename refused:" << parentPath << oldName << newName;
        return false;
    }
    emit treeAboutToChange();
    // What was read under the old name is read again under the new one when shown.
    const bool hadChildren = !node->children.empty();
    if (hadChildren) {
        beginRemoveRows(index, 0, static_cast<int>(node->children.size()) - 1);
        for (const auto& child : node->children)
            forget(child.get());
        node->children.clear();
        endRemoveRows();
    }
    forget(node);
    node->watched = false;
    node->reading = false;
    node->read = node->read && !hadChildren;
    node->name = newName;
    emit dataChanged(index, index);
    // The folder moves to its place in the new order.
    const int from = node->row;
    int to = 0;
    for (const auto& sibling : parent->children)
        if (sibling.get() != node && before(sibling->name, newName))
            ++to;
    if (to != from) {
        const QModelIndex parentIndex = indexOf(parent);
        const int destination = to > from ? to + 1 : to;
        beginMoveRows(parentIndex, from, from, parentIndex, destination);
        auto moving = std::move(parent->children[static_cast<size_t>(from)]);
        parent->children.erase(parent->children.begin() + from);
        parent->children.insert(parent->children.begin() + to, std::move(moving));
        parent->renumber();
        endMoveRows();
    }
    emit treeChanged();
    emit folderRenamed(parentPath, oldName, newName);
    return true;
}

Qt::ItemFlags FolderTreeModel::flags(const QModelIndex& index) const {
    if (!index.isValid())
        return Qt::NoItemFlags;
    Qt::ItemFlags flags = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    if (nodeOf(index)->parent != root_.get())
        flags |= Qt::ItemIsEditable;
    return flags;
}

} // namespace quovara
