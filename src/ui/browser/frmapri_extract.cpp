// The Extract dialog (frmEstrai): for the archive the window shows (or that the command line
// named), else for the ".uha" file selected in the browser. With `forSelectedItem` it is pre-set
// to the selected item of the archive. The job runs in the extract progress window
// (frmExtracting), in the folder that holds the archive.
#include "filebrowser.h"
#include "frmapri.h"

#include "ui/jobs/frmestrai.h"
#include "ui/jobs/frmprogress.h"

namespace quovara {

void frmApri::showExtractDialog(bool forSelectedItem) {
    // The listing's archive counts only while it is shown (or was named on the command line):
    // after the browser has left the archive, the selected file is what the user means.
    QString archive = lister().listing().archivePath;
    if (archive.isEmpty() || !(archiveLayout() || commandLineJob()))
        archive = fileView()->selectedPath();
    frmEstrai dialog(
        archive, prompter(),
        [this](const QString& job) {
            RunJobWindow(JobKind::Extract, *this, job);
            reportLeftOut();
            // A job asked for on the command line ends the program: the main window that the
            // progress window brings back stays hidden.
            if (commandLineJob())
                hide();
        },
        this);
    // No unsafe entry reaches the engine, whatever the choices of the dialog.
    dialog.setNameGuard([this](ExtractOptions& options) {
        return leaveOutUnsafe(options, namesForExtraction(options.archive, options.passwordTicked
                                                                               ? options.password
                                                                               : QString()));
    });
    // Several selected entries become the patterns of "Only These Files", one after another.
    if (forSelectedItem) {
        // An unsafe entry is refused by name; the others are preset.
        QStringList items;
        for (const QString& name : selectedStoredNames()) {
            if (!refuseUnsafeItem(name))
                items << name;
        }
        if (items.isEmpty())
            return;
        dialog.presetItem(items.join(QLatin1Char(',')));
    }
    dialog.exec();
}

} // namespace quovara
