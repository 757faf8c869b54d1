// Files and folders dropped onto the main window: an archive is opened, anything else is
// offered to the Add dialog.
#include "frmapri.h"

#include "entrydrag.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>

namespace quovara {

void frmApri::dragEnterEvent(QDragEnterEvent* event) {
    // Entries dragged from this window are not dropped back onto it (asking for them would
    // extract them).
    if (qobject_cast<const EntryDragData*>(event->mimeData()))
        return;
    if (!droppedPath(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void frmApri::dropEvent(QDropEvent* event) {
    const QString path = droppedPath(event->mimeData());
    if (path.isEmpty())
        return;
    event->acceptProposedAction();
    // Handled once the drop has finished, so the source of the drag is not kept waiting.
    QTimer::singleShot(0, this, [this, path] { openDropped(path); });
}

QString frmApri::droppedPath(const QMimeData* data) {
    if (!data || !data->hasUrls())
        return QString();
    for (const QUrl& url : data->urls()) {
        if (url.isLocalFile() && QFileInfo::exists(url.toLocalFile()))
            return QDir::cleanPath(url.toLocalFile());
    }
    return QString();
}

void frmApri::openDropped(const QString& path) {
    const QFileInfo info(path);
    pointBrowserAt(path);
    if (info.isFile() && IsArchiveName(path)) {
        // A dropped archive is opened as if it were double-clicked.
        OpenItem(path);
        return;
    }
    // Anything else is a source for the Add dialog, as if it were selected in the browser.
    droppedSource_ = path;
    showAddDialog();
    droppedSource_.clear();
}

} // namespace quovara
