// Unload: the icon removed, the engine switch undone, the engine ended, das.txt and the add
// job's temporary archive deleted. Runs once, at the end of the job or when the user closes the
// window; every step goes on past a failure.
#include "frmprogress.h"

#include "core/jobprocess.h"
#include "core/places.h"
#include "core/processcontrol.h"
#include "engine/versionswitch.h"
#include "ui/browser/frmapri.h"

#include <QFile>
#include <QLoggingCategory>
#include <QTimer>

Q_DECLARE_LOGGING_CATEGORY(lcJobWindow)

namespace quovara {

void frmProgress::Form_Unload() {
    if (unloaded_)
        return;
    unloaded_ = true;
    phase_ = Phase::Ending;
    if (terminationWork_ != 0) {
        RemoveTerminationWork(terminationWork_);
        terminationWork_ = 0;
    }
    pollTimer_->stop();
    Timer1->stop();

    // 1. The test window takes the main window's icon.
    if (kind_.takesMainIcon)
        setWindowIcon(main_.windowIcon());
    // 2. TrayDelete, whether or not an icon is shown.
    tray_->remove();
    // 3. The usual engine back.
    if (kind_.undoesSwitch && main_.engineSwitch().engineSwitched)
        UndoEngineSwitch(main_.engineSwitch(), ProgramFolder());
    // 4. The engine ended by its name when the job still runs; the job's own process is then
    //    ended by its id as well, in case the name found another one first.
    const bool stopped = job_ && job_->isRunning();
    if (stopped) {
        const qint64 ended = TerminateProcessByName(QStringLiteral("UHARC.EXE"), &main_.prompter());
        qCDebug(lcJobWindow) << "ended the engine by name:" << ended;
        if (job_->isRunning() && ended != job_->processId())
            job_->kill();
    }
    // 4b. A stopped extraction leaves no half-written file (read from the console output,
    //     which goes next).
    if (stopped && kind_.kind == JobKind::Extract)
        stopReport_ = cleanUpStoppedExtract();
    // 5. The console output.
    QFile::remove(WorkFile(names::ConsoleOutput));
    // 6. The add job's temporary archive beside the archive.
    if (kind_.deletesTempArchive && !archivePath_.isEmpty()) {
        const qsizetype cut = archivePath_.lastIndexOf(PathStyle::host().sep);
        const QString folder = cut < 0 ? workingFolder() : archivePath_.left(cut);
        const QString temp =
            folder.isEmpty()
                ? QString::fromLatin1(names::EngineTempArchive)
                : PathStyle::host().join(folder, QLatin1String(names::EngineTempArchive));
        QFile::remove(temp);
    }
    qCDebug(lcJobWindow) << "unloaded" << kind_.formName;
    hide();
    emit unloaded();
}

} // namespace quovara
