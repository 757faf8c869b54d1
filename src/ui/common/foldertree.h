// FolderTree: a tree of the file system's folders that holds still. The folder asked for is
// selected and in view from the first paint; folders read later (a slow disk, a network folder)
// or made later come in without moving the row under the pointer or, with the pointer
// elsewhere, the selected row: the view scrolls by exactly what was added above it.
#pragma once

#include <QPersistentModelIndex>
#include <QTreeView>

namespace quovara {

class FolderTreeModel;

class FolderTree : public QTreeView {
    Q_OBJECT
public:
    explicit FolderTree(QWidget* parent = nullptr);

    FolderTreeModel* folders() const { return model_; }

    // Selects the folder at `path` (shown at once, with its parents) and brings it into view;
    // false when the path cannot be shown. The folders above it are read, waiting at most
    // `settle` milliseconds (without taking the user's input) so that a window about to open
    // shows them complete.
    bool selectPath(const QString& path, int settle = 0);
    // The path of the current folder, empty when none.
    QString currentPath() const;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void updateGeometries() override;

private:
    // The row that must not move: the one under the pointer, else the current one when it
    // shows, else the top row.
    void holdAnchor();
    void restoreAnchor();

    FolderTreeModel* model_;
    QPoint pointer_{-1, -1}; // where the pointer is over the rows, (-1, -1) when elsewhere
    QPersistentModelIndex anchor_;
    int anchorTop_ = 0;
    bool centred_ = false;
    // Room below the last row, so that a row held in place near the end of the tree can stay
    // where it is; it goes as the user scrolls back up.
    int reach_ = 0; // how far down the view must be able to scroll, 0 when no further than usual
    int naturalMaximum_ = 0;
    bool inLayout_ = false;
};

} // namespace quovara
