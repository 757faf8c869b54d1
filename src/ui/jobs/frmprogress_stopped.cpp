// A stopped extraction: the engine is waited for, then the file it was writing is removed when
// it is incomplete, and the user is told which file that was and how many came out whole.
#include "frmprogress.h"

#include "core/enginelocale.h"
#include "core/jobprocess.h"
#include "core/jobscript.h"
#include "engine/progress.h"
#include "engine/stoppedextract.h"

#include <QEventLoop>
#include <QFile>
#include <QLoggingCategory>
#include <QTimer>

Q_DECLARE_LOGGING_CATEGORY(lcJobWindow)

namespace quovara {

namespace {
// How long an ended engine may take to go before its files are looked at.
constexpr int EngineGoneMs = 3000;
} // namespace

QString frmProgress::cleanUpStoppedExtract() {
    // The engine must be gone before its file is judged: a live one could still write to it.
    if (job_ && job_->isRunning()) {
        QEventLoop wait;
        connect(job_.get(), &JobProcess::finished, &wait, &QEventLoop::quit);
        QTimer::singleShot(EngineGoneMs, &wait, &QEventLoop::quit);
        wait.exec(QEventLoop::ExcludeUserInputEvents);
        if (job_->isRunning())
            qCDebug(lcJobWindow) << "the stopped engine has not gone after" << EngineGoneMs << "ms";
    }
    QByteArray console;
    QFile file(consolePath_);
    if (file.open(QIODevice::ReadOnly))
        console = file.readAll();
    else
        qCDebug(lcJobWindow) << "console output not read:" << consolePath_ << file.errorString();

    StoppedExtractJob job;
    job.workingFolder = workingFolder();
    job.underLauncher = underLauncher_;
    job.started = started_;
    if (const std::optional<WrittenScript> written = WrittenJobScript(scriptPath_)) {
        for (const QString& argument : written->job.arguments) {
            if (argument.startsWith(QLatin1String("-t")))
                job.destination = argument.mid(2);
            else if (argument == QLatin1String("-o+"))
                job.overwrite = true;
        }
    }
    ExtractTrail trail = ReadExtractTrail(SplitConsoleLines(console, ActiveEngineCodecs().text));
    // The engine named the file on its drive of its own: it is the destination's.
    if (job_)
        trail.writing = job_->withDriveShownAsFolder(trail.writing);
    const StoppedExtract result = CleanUpStoppedExtract(trail, job);
    const QString report = StoppedExtractMessage(result);
    qCDebug(lcJobWindow).noquote() << report;
    return report;
}

} // namespace quovara
