#include "filebrowser.h"

#include "detailsmodel.h"
#include "entrydrag.h"
#include "fileicons.h"
#include "focusframe.h"
#include "folderlistmodel.h"

#include "ui/common/handcursor.h"

#include <QContextMenuEvent>
#include <QDir>
#include <QDrag>
#include <QEvent>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QIcon>
#include <QItemSelectionModel>
#include <QListView>
#include <QMouseEvent>
#include <QShortcut>
#include <QStackedWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>

namespace quovara {

FileBrowser::FileBrowser(QWidget* parent) : QWidget(parent) {
    model_ = new QFileSystemModel(this);
    model_->setIconProvider(SharedFileIconProvider());
    model_->setFilter(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System);
    model_->setReadOnly(true);

    entries_ = new FolderListModel(this);
    entries_->setSourceModel(model_);
    auto* list = new BrowserListView(this);
    list->dragStarter = [this, list] { return startContentDrag(list); };
    list_ = list;
    list_->setObjectName(QStringLiteral("FileViewList"));
    auto* tree = new BrowserTreeView(this);
    tree->dragStarter = [this, tree] { return startContentDrag(tree); };
    tree_ = tree;
    tree_->setObjectName(QStringLiteral("FileViewReport"));
    tree_->setRootIsDecorated(false);
    tree_->setItemsExpandable(false);
    // Every row is one line high: a folder of many entries is laid out without measuring each.
    tree_->setUniformRowHeights(true);
    tree_->setSortingEnabled(true);
    tree_->sortByColumn(0, Qt::AscendingOrder);
    for (QAbstractItemView* v :
         {static_cast<QAbstractItemView*>(list_), static_cast<QAbstractItemView*>(tree_)}) {
        v->setModel(v == list_ ? static_cast<QAbstractItemModel*>(entries_) : model_);
        v->setItemDelegate(new FocusFrameDelegate(v));
        v->setSelectionMode(QAbstractItemView::SingleSelection);
        v->setEditTriggers(QAbstractItemView::NoEditTriggers);
        v->setMouseTracking(true);
        v->viewport()->installEventFilter(this);
        v->installEventFilter(this);
        connect(v, &QAbstractItemView::activated, this, &FileBrowser::onActivated);
        watchSelection(v);
        // The pointer becomes a hand over an item that can be opened.
        connect(v, &QAbstractItemView::entered, this, [v] { SetHandCursor(v->viewport(), true); });
    }
    details_ = new DetailsModel(model_, this);
    // A sort of the file system's columns leaves the file model out of names' order.
    connect(tree_->header(), &QHeaderView::sortIndicatorChanged, this,
            [this](int column, Qt::SortOrder order) {
                if (tree_->model() == model_)
                    namesInOrder_ = column == 0 && order == Qt::AscendingOrder;
            });
    list_->setAccessibleName(tr("Files"));
    tree_->setAccessibleName(tr("Files"));
    stack_ = new QStackedWidget(this);
    stack_->addWidget(list_);
    stack_->addWidget(tree_);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(stack_);
    setFocusProxy(list_);
    // Shift+F10 opens the menu as the Menu key does.
    auto* menuKey = new QShortcut(QKeySequence(Qt::SHIFT | Qt::Key_F10), this);
    menuKey->setContext(Qt::WidgetWithChildrenShortcut);
    connect(menuKey, &QShortcut::activated, this, [this] { requestMenu(currentView(), nullptr); });

    connect(model_, &QFileSystemModel::directoryLoaded, this, [this](const QString& path) {
        if (QDir(path) == QDir(folder_)) {
            applySelection();
            if (currentView()->hasFocus())
                showFocusItem(currentView());
        }
    });
    setViewMode(List);
}

void FileBrowser::watchSelection(QAbstractItemView* view) {
    connect(view->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &FileBrowser::selectionChanged);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &FileBrowser::selectionChanged);
}

QModelIndex FileBrowser::sourceOf(const QModelIndex& index) const {
    if (index.model() == details_)
        return details_->toSource(index);
    return index.model() == entries_ ? entries_->mapToSource(index) : index;
}

QModelIndex FileBrowser::viewIndexOf(const QAbstractItemView* view,
                                     const QModelIndex& source) const {
    if (view->model() == details_)
        return details_->fromSource(source);
    return view->model() == entries_ ? entries_->mapFromSource(source) : source;
}

QModelIndex FileBrowser::indexOf(const QString& path) const {
    return viewIndexOf(currentView(), model_->index(path));
}

bool FileBrowser::showsArchiveDetails() const {
    return tree_->model() == details_;
}

void FileBrowser::setArchiveDetails(std::shared_ptr<const ArchiveDetails> details,
                                    const QString& treeRoot) {
    const QString selected = selectedPath();
    const bool on = details != nullptr;
    if (on && !namesInOrder_) {
        model_->sort(0, Qt::AscendingOrder);
        namesInOrder_ = true;
    }
    details_->setDetails(std::move(details), QDir::cleanPath(treeRoot));
    if (on != showsArchiveDetails()) {
        QItemSelectionModel* old = tree_->selectionModel();
        tree_->setModel(on ? static_cast<QAbstractItemModel*>(details_) : model_);
        delete old;
        // The header makes a selection model of its own for the new model, then takes the
        // tree's and keeps its own, connected to the model: one more at every switch between
        // an archive and a folder, for as long as the window lives.
        QHeaderView* header = tree_->header();
        for (QItemSelectionModel* own :
             header->findChildren<QItemSelectionModel*>(Qt::FindDirectChildrenOnly)) {
            if (own != header->selectionModel())
                delete own;
        }
        watchSelection(tree_);
        // Each archive starts in names' order, and so does the file system after one.
        tree_->sortByColumn(0, Qt::AscendingOrder);
        const QModelIndex root = model_->index(folder_);
        if (on) {
            details_->setFolder(root);
            tree_->setRootIndex(QModelIndex());
            details_cell::fitColumns(tree_->header(), DetailsModel::Size);
        } else {
            tree_->setRootIndex(root);
            tree_->header()->setStretchLastSection(true);
        }
    } else if (on) {
        tree_->sortByColumn(0, Qt::AscendingOrder);
    }
    if (!selected.isEmpty())
        selectFile(QFileInfo(selected).fileName());
}

QAbstractItemView* FileBrowser::currentView() const {
    return mode_ == Report ? static_cast<QAbstractItemView*>(tree_) : list_;
}

void FileBrowser::setFolder(const QString& path) {
    const QString clean = QDir::cleanPath(path);
    if (clean == folder_)
        return;
    if (!folder_.isEmpty())
        history_.append(folder_);
    showFolder(clean);
}

void FileBrowser::showFolder(const QString& path) {
    folder_ = path;
    pendingSelection_.clear();
    const QModelIndex root = model_->setRootPath(path);
    entries_->setFolder(root);
    if (showsArchiveDetails())
        details_->setFolder(root);
    else
        tree_->setRootIndex(root);
    list_->clearSelection();
    tree_->clearSelection();
    emit folderChanged(folder_);
    emit selectionChanged();
}

bool FileBrowser::back() {
    if (history_.isEmpty())
        return false;
    showFolder(history_.takeLast());
    return true;
}

void FileBrowser::selectFile(const QString& name) {
    pendingSelection_ = name;
    applySelection();
}

void FileBrowser::applySelection() {
    if (pendingSelection_.isEmpty())
        return;
    const QModelIndex source = model_->index(QDir(folder_).filePath(pendingSelection_));
    if (!source.isValid())
        return;
    for (QAbstractItemView* v :
         {static_cast<QAbstractItemView*>(list_), static_cast<QAbstractItemView*>(tree_)}) {
        const QModelIndex index = viewIndexOf(v, source);
        if (!index.isValid())
            continue;
        v->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect |
                                                        QItemSelectionModel::Rows);
        v->scrollTo(index);
    }
    pendingSelection_.clear();
}

QString FileBrowser::selectedPath() const {
    // The current item when it is selected (with several selected, the one the user is on).
    const QItemSelectionModel* selection = currentView()->selectionModel();
    const QModelIndex current = selection->currentIndex();
    if (current.isValid() && selection->isSelected(current))
        return QDir::toNativeSeparators(model_->filePath(sourceOf(current)));
    const QModelIndexList rows = selection->selectedIndexes();
    if (rows.isEmpty())
        return QString();
    return QDir::toNativeSeparators(model_->filePath(sourceOf(rows.first())));
}

QStringList FileBrowser::selectedPaths() const {
    // The list selects the name column only, the report view whole rows: the names count.
    QModelIndexList rows;
    for (const QModelIndex& index : currentView()->selectionModel()->selectedIndexes())
        if (index.column() == 0)
            rows << index;
    std::sort(rows.begin(), rows.end());
    QStringList paths;
    for (const QModelIndex& row : rows)
        paths << QDir::toNativeSeparators(model_->filePath(sourceOf(row)));
    return paths;
}

void FileBrowser::setMultiSelection(bool on) {
    for (QAbstractItemView* v :
         {static_cast<QAbstractItemView*>(list_), static_cast<QAbstractItemView*>(tree_)})
        v->setSelectionMode(on ? QAbstractItemView::ExtendedSelection
                               : QAbstractItemView::SingleSelection);
}

void FileBrowser::requestMenu(QAbstractItemView* view, const QPoint* pos) {
    QModelIndex item;
    QPoint at;
    if (pos) {
        item = view->indexAt(*pos);
        at = *pos;
        // A right click on an item not yet selected selects it alone, as file managers do.
        if (item.isValid() && !view->selectionModel()->isSelected(item))
            view->selectionModel()->setCurrentIndex(item, QItemSelectionModel::ClearAndSelect |
                                                              QItemSelectionModel::Rows);
    } else {
        // From the keyboard: at the item with the focus frame (selected now if it was not),
        // else at the top left.
        const QModelIndex current = view->currentIndex();
        if (current.isValid() && current.parent() == view->rootIndex()) {
            item = current;
            if (!view->selectionModel()->isSelected(current))
                view->selectionModel()->setCurrentIndex(
                    current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
            at = view->visualRect(current).center();
        } else {
            at = QPoint(8, 8);
        }
    }
    emit menuRequested(view->viewport()->mapToGlobal(at), item.isValid());
}

void FileBrowser::setShowHidden(bool show) {
    QDir::Filters filter = QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System;
    if (show)
        filter |= QDir::Hidden;
    model_->setFilter(filter);
}

void FileBrowser::setDragOut(bool allowed) {
    dragOut_ = allowed;
    for (QAbstractItemView* v :
         {static_cast<QAbstractItemView*>(list_), static_cast<QAbstractItemView*>(tree_)}) {
        v->setDragEnabled(allowed);
        v->setDragDropMode(allowed ? QAbstractItemView::DragOnly : QAbstractItemView::NoDragDrop);
    }
}

void FileBrowser::setDragContent(std::function<QMimeData*()> make) {
    dragContent_ = std::move(make);
}

bool FileBrowser::startContentDrag(QAbstractItemView* view) {
    if (!dragContent_)
        return false;
    QMimeData* data = dragContent_();
    if (!data)
        return true;
    auto* drag = new QDrag(view);
    drag->setMimeData(data);
    // The picture under the pointer: the icon of the item the drag began on.
    const QIcon icon = view->currentIndex().data(Qt::DecorationRole).value<QIcon>();
    if (!icon.isNull())
        drag->setPixmap(icon.pixmap(view->iconSize().isValid() ? view->iconSize() : QSize(32, 32)));
    drag->exec(Qt::CopyAction, Qt::CopyAction);
    return true;
}

void FileBrowser::setViewMode(int mode) {
    const QString selected = selectedPath();
    mode_ = mode;
    switch (mode) {
    case LargeIcon:
        list_->setViewMode(QListView::IconMode);
        list_->setIconSize(QSize(48, 48));
        list_->setGridSize(QSize(104, 84));
        list_->setWordWrap(true);
        list_->setFlow(QListView::LeftToRight);
        list_->setWrapping(true);
        break;
    case SmallIcon:
        list_->setViewMode(QListView::ListMode);
        list_->setIconSize(QSize(16, 16));
        list_->setGridSize(QSize(180, 22));
        list_->setWordWrap(false);
        list_->setFlow(QListView::LeftToRight);
        list_->setWrapping(true);
        break;
    case List:
    default:
        mode_ = mode == Report ? Report : List;
        list_->setViewMode(QListView::ListMode);
        list_->setIconSize(QSize(16, 16));
        list_->setGridSize(QSize());
        list_->setWordWrap(false);
        list_->setFlow(QListView::TopToBottom);
        list_->setWrapping(true);
        break;
    }
    list_->setResizeMode(QListView::Adjust);
    // A list view's mode brings its own drag settings: ours are put back.
    setDragOut(dragOut_);
    stack_->setCurrentWidget(mode_ == Report ? static_cast<QWidget*>(tree_) : list_);
    if (mode_ == Report && !showsArchiveDetails())
        tree_->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    setFocusProxy(currentView());
    if (!selected.isEmpty())
        selectFile(QFileInfo(selected).fileName());
}

void FileBrowser::onActivated(const QModelIndex& index) {
    const QModelIndex source = sourceOf(index);
    if (!source.isValid())
        return;
    const QString path = model_->filePath(source);
    if (model_->isDir(source)) {
        setFolder(path);
        return;
    }
    emit executeRequested(QDir::toNativeSeparators(path));
}

void FileBrowser::showFocusItem(QAbstractItemView* view) {
    // A list with the focus shows it on an item: with no current item in its folder, the first
    // one becomes current (its focus frame shows) without being selected.
    // A current item left from a folder shown before does not count: it is not on the screen.
    const QModelIndex current = view->currentIndex();
    if (current.isValid() && current.parent() == view->rootIndex())
        return;
    const QModelIndex first = view->model()->index(0, 0, view->rootIndex());
    if (first.isValid())
        view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
}

bool FileBrowser::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ContextMenu) {
        auto* menu = static_cast<QContextMenuEvent*>(event);
        QAbstractItemView* view = currentView();
        if (watched == view || watched == view->viewport()) {
            if (menu->reason() == QContextMenuEvent::Mouse) {
                const QPoint pos = view->viewport()->mapFromGlobal(menu->globalPos());
                requestMenu(view, &pos);
            } else {
                requestMenu(view, nullptr);
            }
            return true;
        }
    }
    if (event->type() == QEvent::FocusIn && (watched == list_ || watched == tree_)) {
        showFocusItem(static_cast<QAbstractItemView*>(watched));
    } else if (event->type() == QEvent::MouseMove) {
        auto* viewport = static_cast<QWidget*>(watched);
        auto* me = static_cast<QMouseEvent*>(event);
        const bool overItem = currentView()->indexAt(me->position().toPoint()).isValid();
        if (!overItem)
            SetHandCursor(viewport, false);
    } else if (event->type() == QEvent::Leave) {
        SetHandCursor(static_cast<QWidget*>(watched), false);
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace quovara
