// The Add dialog (frmAggiungi): its source is the browser's selected item. The job runs in the
// add progress window (frmAdding); when it wrote the archive that the window shows, the archive
// is listed again.
#include "filebrowser.h"
#include "frmapri.h"

#include "ui/jobs/frmaggiungi.h"
#include "ui/jobs/frmprogress.h"

namespace quovara {

QString frmApri::addSource() const {
    // A dropped file or folder is the source; otherwise the browser's selection.
    return droppedSource_.isEmpty() ? FileView1->selectedPath() : droppedSource_;
}

void frmApri::showAddDialog() {
    const QString shown = archiveLayout() ? lister().listing().archivePath : QString();
    frmAggiungi dialog([this] { return addSource(); }, prompter(),
                       [this, shown](const QString& archive) {
                           RunJobWindow(JobKind::Add, *this, archive);
                           // A job asked for on the command line ends the program: the main
                           // window that the progress window brings back stays hidden.
                           if (commandLineJob())
                               hide();
                           if (shown.isEmpty())
                               return;
                           if (SamePath(shown, archive)) {
                               relistArchive();
                           } else {
                               // The window still shows its archive: the commands that act on
                               // the shown archive keep acting on it.
                               lister().listing().archivePath = shown;
                           }
                       },
                       this);
    dialog.exec();
}

} // namespace quovara
