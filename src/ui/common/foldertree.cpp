#include "foldertree.h"

#include "foldertreemodel.h"

#include <QEventLoop>
#include <QMouseEvent>
#include <QResizeEvent>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>

namespace quovara {

FolderTree::FolderTree(QWidget* parent) : QTreeView(parent), model_(new FolderTreeModel(this)) {
    setModel(model_);
    setHeaderHidden(true);
    setUniformRowHeights(true);
    // Pixel scrolling lets the view make up exactly for rows added above what the user sees.
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    // The pointer is followed so that the row under it stays put while folders come in.
    setMouseTracking(true);
    // The row to hold is taken before the tree changes and put back once the change is
    // complete (a read brings several runs of rows in and out at once).
    connect(model_, &FolderTreeModel::treeAboutToChange, this, &FolderTree::holdAnchor);
    connect(model_, &FolderTreeModel::treeChanged, this, &FolderTree::restoreAnchor);
    // An opened folder is read (also when the view only noted it for its next layout).
    connect(this, &QTreeView::expanded, model_, &FolderTreeModel::fetchMore);
    // The room made below the last row shrinks as the user scrolls back up.
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (inLayout_ || reach_ == 0 || value >= reach_)
            return;
        reach_ = value > naturalMaximum_ ? value : 0;
        verticalScrollBar()->setMaximum(std::max(naturalMaximum_, reach_));
    });
}

bool FolderTree::selectPath(const QString& path, int settle) {
    const QModelIndex index = model_->reveal(path);
    if (!index.isValid())
        return false;
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent())
        expand(above);
    setCurrentIndex(index);
    if (settle > 0 && model_->readsUnderWay() > 0) {
        QEventLoop wait;
        QTimer::singleShot(settle, &wait, &QEventLoop::quit);
        connect(model_, &FolderTreeModel::readsFinished, &wait, &QEventLoop::quit);
        wait.exec(QEventLoop::ExcludeUserInputEvents);
    }
    scrollTo(currentIndex(), QAbstractItemView::PositionAtCenter);
    centred_ = isVisible();
    return true;
}

QString FolderTree::currentPath() const {
    return model_->filePath(currentIndex());
}

void FolderTree::showEvent(QShowEvent* event) {
    QTreeView::showEvent(event);
    // The viewport has its size only now: the selected folder goes to the middle before the
    // first paint.
    if (!centred_ && currentIndex().isValid()) {
        scrollTo(currentIndex(), QAbstractItemView::PositionAtCenter);
        centred_ = true;
    }
}

void FolderTree::resizeEvent(QResizeEvent* event) {
    const QModelIndex current = currentIndex();
    const bool wasInView = current.isValid() && viewport()->rect().intersects(visualRect(current));
    QTreeView::resizeEvent(event);
    // Only a selection that the new size hides is brought back: scrolling to it otherwise
    // would move rows that did not have to move.
    if (wasInView && !viewport()->rect().contains(visualRect(current)))
        scrollTo(current, QAbstractItemView::EnsureVisible);
}

void FolderTree::mouseMoveEvent(QMouseEvent* event) {
    pointer_ = event->position().toPoint();
    QTreeView::mouseMoveEvent(event);
}

bool FolderTree::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::Leave)
        pointer_ = QPoint(-1, -1);
    return QTreeView::viewportEvent(event);
}

void FolderTree::holdAnchor() {
    anchor_ = QPersistentModelIndex();
    executeDelayedItemsLayout();
    if (viewport()->rect().contains(pointer_))
        anchor_ = indexAt(pointer_);
    if (!anchor_.isValid() && currentIndex().isValid() &&
        viewport()->rect().intersects(visualRect(currentIndex())))
        anchor_ = currentIndex();
    if (!anchor_.isValid())
        anchor_ = indexAt(QPoint(1, 1));
    if (anchor_.isValid())
        anchorTop_ = visualRect(anchor_).top();
}

void FolderTree::restoreAnchor() {
    if (!anchor_.isValid())
        return;
    // The view lays out its rows again now rather than at its next paint.
    executeDelayedItemsLayout();
    const QRect now = visualRect(anchor_);
    anchor_ = QPersistentModelIndex();
    if (now.isEmpty())
        return;
    const int shift = now.top() - anchorTop_;
    if (shift == 0)
        return;
    QScrollBar* bar = verticalScrollBar();
    const int wanted = bar->value() + shift;
    if (wanted > bar->maximum()) {
        reach_ = wanted;
        bar->setMaximum(wanted);
    }
    bar->setValue(wanted);
}

void FolderTree::updateGeometries() {
    QScrollBar* bar = verticalScrollBar();
    const int kept = bar->value();
    inLayout_ = true;
    QTreeView::updateGeometries();
    naturalMaximum_ = bar->maximum();
    if (reach_ > naturalMaximum_) {
        bar->setMaximum(reach_);
        bar->setValue(kept);
    } else {
        reach_ = 0;
    }
    inLayout_ = false;
}

} // namespace quovara
