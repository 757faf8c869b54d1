// The file browser of the main window (`FileView1`): a view of one folder of the real file
// system with four view modes, a back history, and notifications for folder changes,
// selection changes and execute requests (double-click or Enter).
#pragma once

#include <QStringList>
#include <QWidget>

#include <functional>
#include <memory>

class QFileSystemModel;
class QListView;
class QTreeView;
class QStackedWidget;
class QAbstractItemView;
class QModelIndex;
class QMimeData;

namespace quovara {

class ArchiveDetails;
class DetailsModel;
class FolderListModel;

class FileBrowser : public QWidget {
    Q_OBJECT
public:
    // View modes, in the order of the view menu.
    enum ViewMode { LargeIcon = 0, Report = 1, SmallIcon = 2, List = 3 };

    explicit FileBrowser(QWidget* parent = nullptr);

    QString folder() const { return folder_; }
    // Shows `path`; the previous folder goes into the back history.
    void setFolder(const QString& path);
    // Selects the entry `name` of the current folder (as soon as the folder has been read).
    void selectFile(const QString& name);
    // The selected item's full path, or empty.
    QString selectedPath() const;
    bool hasSelection() const { return !selectedPath().isEmpty(); }
    // Every selected path (native separators), in the order the view shows them.
    QStringList selectedPaths() const;
    // Several items may be selected at once (Ctrl and Shift with a click or the arrows).
    void setMultiSelection(bool on);

    // Hidden entries (names beginning with a dot) are left out of ordinary folders but shown
    // in an archive's mirror tree, where they are entries like any other.
    void setShowHidden(bool show);

    // Whether items can be dragged out of the view.
    void setDragOut(bool allowed);
    bool dragOut() const { return dragOut_; }
    // What a drag out of the view carries, made when the drag starts (null: nothing is
    // dragged). Unset, a drag carries the selected files themselves; inside an archive's
    // mirror tree, whose files are empty placeholders, it carries the entries instead.
    void setDragContent(std::function<QMimeData*()> make);

    // Inside an archive the Report view shows the entries' details from its listing (their
    // columns and order of its own); null goes back to the file system's columns. `treeRoot`
    // is the mirror tree's root folder, which the details' paths are relative to.
    void setArchiveDetails(std::shared_ptr<const ArchiveDetails> details, const QString& treeRoot);
    bool showsArchiveDetails() const;
    DetailsModel* detailsModel() const { return details_; }

    void setViewMode(int mode);
    int viewMode() const { return mode_; }
    // Goes back to the previous folder of the history (false when there is none).
    bool back();

    QAbstractItemView* currentView() const;
    // The current view's index of the item at `path` (invalid while it is not read or shown).
    QModelIndex indexOf(const QString& path) const;

signals:
    void folderChanged(const QString& folder);
    void selectionChanged();
    // Double-click or Enter on an item; the receiver decides what opening it means.
    void executeRequested(const QString& path);
    // A menu is asked for at `global` (a right click, the Menu key or Shift+F10); `onItem`
    // when it points at an item, which is then selected.
    void menuRequested(const QPoint& global, bool onItem);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // The file model's index of a view's index, and a view's index of the file model's.
    QModelIndex sourceOf(const QModelIndex& index) const;
    QModelIndex viewIndexOf(const QAbstractItemView* view, const QModelIndex& source) const;
    void watchSelection(QAbstractItemView* view);
    void showFolder(const QString& path);
    void applySelection();
    void onActivated(const QModelIndex& index);
    void showFocusItem(QAbstractItemView* view);
    // The menu for a right click at `pos` of `view`'s viewport, or for the keyboard.
    void requestMenu(QAbstractItemView* view, const QPoint* pos);
    // Runs a drag of `view` with the content set above; false when none is set.
    bool startContentDrag(QAbstractItemView* view);

    QFileSystemModel* model_;
    DetailsModel* details_;
    // What the list shows: the folder's entries, one item each.
    FolderListModel* entries_;
    // The file model is in names' order (the details take their name order from it).
    bool namesInOrder_ = true;
    QStackedWidget* stack_;
    bool dragOut_ = true;
    std::function<QMimeData*()> dragContent_;
    QListView* list_;
    QTreeView* tree_;
    QString folder_;
    QStringList history_;
    QString pendingSelection_;
    int mode_ = List;
};

} // namespace quovara
