// Dragging archive entries out of the main window. The drag carries `EntryDragData`: the
// entries are extracted only when a drop target asks for them (on the drop, or while a file
// manager looks at what it is offered), once per drag, into a private folder of the work
// folder; the target is handed those extracted files, never the mirror tree's empty
// placeholders, and copies them itself (asking, as file managers do, before it replaces
// anything). A drag whose extraction failed or was stopped offers nothing.
#pragma once

#include <QAbstractItemView>
#include <QList>
#include <QListView>
#include <QMimeData>
#include <QTreeView>
#include <QUrl>

#include <functional>
#include <optional>

namespace quovara {

class EntryDragData : public QMimeData {
    Q_OBJECT
public:
    // Hands over the files and folders to offer (empty when nothing was extracted). An
    // extractor calls it as soon as it knows, which may be before it returns.
    using Deliver = std::function<void(const QList<QUrl>&)>;
    // Extracts the dragged entries, delivers what to hand over, and returns it too.
    using Extractor = std::function<QList<QUrl>(const Deliver& deliver)>;
    explicit EntryDragData(Extractor extract);

    QStringList formats() const override;
    bool hasFormat(const QString& mimeType) const override;
    // Whether the target has asked for the entries (and they were extracted or refused).
    bool asked() const { return urls_.has_value(); }

signals:
    // What to hand over is known.
    void delivered();

protected:
    QVariant retrieveData(const QString& mimeType, QMetaType type) const override;

private:
    void deliver(const QList<QUrl>& urls) const;

    mutable Extractor extract_;
    mutable std::optional<QList<QUrl>> urls_;
    mutable bool extracting_ = false;
};

// The file browser's list and tree views, whose drags the browser can take over: `dragStarter`
// returns true when it has run the drag itself.
template <typename View> class DragHookView : public View {
public:
    using View::View;
    std::function<bool()> dragStarter;

protected:
    void startDrag(Qt::DropActions actions) override {
        if (!dragStarter || !dragStarter())
            View::startDrag(actions);
    }
};
using BrowserListView = DragHookView<QListView>;
using BrowserTreeView = DragHookView<QTreeView>;

} // namespace quovara
