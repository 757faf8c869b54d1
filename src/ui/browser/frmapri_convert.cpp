// "Convert…" in the entry menu: the archive the window shows becomes a zip, 7z, tar.xz or
// tar.zst archive, in the folder the user chooses.
#include "frmapri.h"

#include "ui/jobs/convertdialog.h"
#include "ui/jobs/convertjob.h"

#include <QDir>

namespace quovara {

void frmApri::showConvertDialog() {
    const QString archive = lister_.listing().archivePath;
    if (archive.isEmpty() || !archiveLayout()) {
        MsgNessuno();
        return;
    }
    ConvertDialog dialog(archive, this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    ConvertRun run;
    run.format = dialog.format();
    run.archives = {archive};
    run.destinationFolder = dialog.folder();
    run.knownPassword = lister_.listing().password;
    if (RunConvert(*this, run) == 0 && !run.made.isEmpty())
        prompter_->information(tr("The archive was converted and every entry checked:\n%1")
                                   .arg(QDir::toNativeSeparators(run.made.constFirst())));
}

} // namespace quovara
