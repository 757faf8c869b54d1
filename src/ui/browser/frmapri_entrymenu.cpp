// The menu of the entries of an archive: a right click on an entry, the Menu key or Shift+F10.
// "Open" does what a double click does (a folder is shown, a file extracted and run);
// "Extract…" opens the Extract dialog for every selected entry; "Convert…" converts the whole
// archive into an open format. The View menu follows.
#include "filebrowser.h"
#include "frmapri.h"

#include <QFileInfo>
#include <QMenu>

namespace quovara {

void frmApri::buildEntryMenu() {
    entryMenu_ = new QMenu(this);
    entryMenu_->setObjectName(QStringLiteral("EntryMenu"));
    entryMenu_->setAccessibleName(tr("Entry"));
    QAction* open = entryMenu_->addAction(tr("&Open"));
    open->setObjectName(QStringLiteral("EntryOpen"));
    QAction* extract = entryMenu_->addAction(tr("&Extract…"));
    extract->setObjectName(QStringLiteral("EntryExtract"));
    // The whole archive, whatever is selected: into an open format.
    QAction* convert = entryMenu_->addAction(tr("&Convert…"));
    convert->setObjectName(QStringLiteral("EntryConvert"));
    connect(convert, &QAction::triggered, this, &frmApri::showConvertDialog);
    entryMenu_->addSeparator();
    PopView->setTitle(tr("&View"));
    entryMenu_->addMenu(PopView);
    connect(open, &QAction::triggered, this, &frmApri::openEntry);
    connect(extract, &QAction::triggered, this, [this] {
        if (selectedStoredNames().isEmpty())
            MsgNessuno();
        else
            showExtractDialog(true);
    });
}

void frmApri::showEntryMenu(const QPoint& global) {
    entryMenu_->popup(global);
    entryMenu_->setActiveAction(entryMenu_->actions().constFirst());
}

void frmApri::openEntry() {
    const QString path = FileView1->selectedPath();
    if (path.isEmpty()) {
        MsgNessuno();
        return;
    }
    if (QFileInfo(path).isDir()) {
        FileView1->setFolder(path);
        return;
    }
    if (selectedItem_.isEmpty())
        MsgNessuno();
    else
        ExtractAndRun();
}

} // namespace quovara
