// Running the job (Activate) and following its output, without spinning: a 100 ms timer and the
// process's end both start a round; the round after the end reads the output once more.
#include "frmprogress.h"

#include "core/codepage.h"
#include "core/enginelocale.h"
#include "core/jobprocess.h"
#include "core/places.h"
#include "core/processcontrol.h"
#include "core/scriptexec.h"
#include "engine/listing.h"
#include "engine/versionswitch.h"
#include "ui/browser/frmapri.h"

#include <QFile>
#include <QLineEdit>
#include <QLoggingCategory>
#include <QProgressBar>
#include <QTimer>

#include <cstring>

Q_DECLARE_LOGGING_CATEGORY(lcJobWindow)

namespace quovara {

namespace {

void setTextIfChanged(QLineEdit* box, const QString& text) {
    if (box && box->text() != text) {
        box->setText(text);
        box->setCursorPosition(0);
    }
}

} // namespace

void frmProgress::Form_Activate() {
    if (TrayUsed() || unloaded_)
        return; // shown again from the notification area: the job already runs
    startJob();
}

void frmProgress::startJob() {
    // Step 2: what an earlier run left is deleted; the add header is read afresh.
    consolePath_ = WorkFile(names::ConsoleOutput);
    QFile::remove(consolePath_);
    const EngineTextCodecs codecs = ActiveEngineCodecs();
    reader_ = std::make_unique<ConsoleReader>(kind_.lineRules, consolePath_, codecs.text);
#ifdef Q_OS_UNIX
    // A Windows engine runs through the launcher and writes paths in the launcher's form.
    underLauncher_ = codecs.windows;
#endif
    answeredAt_ = -1;
    keptArchive_ = false;

    // Step 4: the script starts hidden at the lowest priority (the runner's rule), in the
    // folder that holds the archive.
    if (job_) {
        job_->disconnect(this);
        job_.reset();
    }
    job_ = std::make_unique<JobProcess>();
    connect(job_.get(), &JobProcess::finished, this, &frmProgress::pollRound, Qt::QueuedConnection);
    ++runs_;
    started_ = QDateTime::currentDateTime();
    // Ended by a signal, the program still removes what a stopped extraction left half-written.
    if (kind_.kind == JobKind::Extract && terminationWork_ == 0)
        terminationWork_ = AddTerminationWork([this] {
            terminationWork_ = 0;
            if (unloaded_)
                return;
            Form_Unload();
            if (!stopReport_.isEmpty())
                qCWarning(lcJobWindow).noquote() << stopReport_;
        });
    qCDebug(lcJobWindow) << "starting" << scriptPath_ << "run" << runs_ << "in" << workingFolder();
    if (!job_->start(scriptPath_, workingFolder())) {
        const QString why = job_->errorText();
        job_.reset();
        endWithMessage(tr(progress::NotStarted).arg(why));
        return;
    }
    // Step 5: wait for output; step 6: follow it.
    phase_ = Phase::Waiting;
    pollTimer_->start();
}

void frmProgress::pollRound() {
    if (unloaded_ || !job_ || asking_)
        return;
    // Step 6.1: whether the job has ended is read before the file, so that the round after the
    // end sees everything the engine wrote.
    const bool ended = !job_->isRunning();
    switch (phase_) {
    case Phase::Waiting:
        if (!FileExists(consolePath_)) {
            if (ended) {
                // The Part would wait here for ever; the window reports the silent engine.
                endWithMessage(tr(progress::NoOutput).arg(scriptPath_));
            }
            return;
        }
        phase_ = Phase::Following;
        [[fallthrough]];
    case Phase::Following: {
        reader_->poll();
        const ConsoleState& state = reader_->state();
        showRound(state);
        // An error counts once its line is complete, or when the engine has ended.
        if (state.hasError() && (reader_->finished() || ended)) {
            handleError(state);
            return;
        }
        if (ended) {
            // A job that did not finish is never reported as a success.
            const QString why = abnormalEnd();
            if (!why.isEmpty()) {
                endWithMessage(tr(progress::AbnormalEnd).arg(archivePath_, why));
                return;
            }
            normalEnding();
            return;
        }
        // The engine waits for a key at its console: its question is the unfinished last line.
        const QString waiting = reader_->unfinishedLine();
        if (waiting.trimmed().endsWith(QLatin1String(progress::QuestionEnding)) &&
            answeredAt_ != reader_->bytesRead())
            answerEngineQuestion(waiting);
        return;
    }
    case Phase::AwaitRestart:
        if (ended)
            restartWithSwitchedEngine();
        return;
    case Phase::Idle:
    case Phase::Ending:
        return;
    }
}

void frmProgress::showRound(const ConsoleState& state) {
    setTextIfChanged(JobTxt, shown(state.progress.jobText));
    if (ProgressTxt)
        setTextIfChanged(ProgressTxt, state.sizesText);
    // The bar keeps its value when the engine's per cent lies outside its range.
    if (state.barValue >= PB->minimum() && state.barValue <= PB->maximum() &&
        PB->value() != state.barValue)
        PB->setValue(state.barValue);
    if (time_.percent != state.progress.percent) {
        time_.percent = state.progress.percent;
        refreshTip();
    }
}

void frmProgress::handleError(const ConsoleState& state) {
    const QString& m = state.errorMessage;
    if (kind_.lineRules == ConsoleJob::Add && keptArchive_ &&
        m.trimmed() == QLatin1String("Can't create archive file")) {
        // The engine's error is what the user asked for: no error box.
        stopFollowing();
        tellEnd(JobOutcome::Stopped);
        main_.prompter().information(tr(progress::ArchiveKept));
        if (unloaded_)
            return;
        main_.setVisible(true);
        Form_Unload();
        return;
    }
    if (kind_.lineRules == ConsoleJob::Add) {
        errorEnding(m, true);
        return;
    }
    if (state.errorInHeader) {
        if (kind_.switchesEngine && IsVersionRequest(m, main_.engineSwitch())) {
            // Engine version request: the other engine runs the same script once the first run has
            // ended.
            pendingVersionMessage_ = m;
            phase_ = Phase::AwaitRestart;
            if (!job_->isRunning())
                restartWithSwitchedEngine();
            return;
        }
        errorEnding(m, true); // header error ending
        return;
    }
    errorEnding(m, kind_.bodyErrorShowsMain); // body error ending
}

void frmProgress::answerEngineQuestion(const QString& line) {
    answeredAt_ = reader_->bytesRead();
    // The line may begin with the blanks and carriage returns of a cleared progress line.
    const QString question = shown(line.mid(line.lastIndexOf(QLatin1Char('\r')) + 1)).trimmed();
    const bool archiveExists = question.contains(QLatin1String("already exists"));
    const QString text =
        tr(archiveExists ? progress::ArchiveExistsQuestion : progress::OtherQuestion).arg(question);
    qCDebug(lcJobWindow) << "the engine asks:" << question;
    asking_ = true;
    const bool yes = main_.prompter().question(text);
    asking_ = false;
    // Closed while the question was open: the job was stopped with the window; nothing is typed.
    if (unloaded_ || !job_ || !job_->isRunning())
        return;
    if (!job_->answer(yes ? 'y' : 'n'))
        qCDebug(lcJobWindow) << "the answer could not be typed into the engine's console";
    else
        keptArchive_ = archiveExists && !yes;
}

QString frmProgress::abnormalEnd() const {
    if (job_->crashed()) {
        const int signal = job_->exitCode();
        const char* name = ::strsignal(signal);
        return name ? tr("signal %1, %2").arg(signal).arg(QString::fromLocal8Bit(name))
                    : tr("signal %1").arg(signal);
    }
    if (job_->exitCode() != 0) {
        const QString words = lastEngineWords();
        return words.isEmpty() ? tr("exit code %1").arg(job_->exitCode())
                               : tr("exit code %1; it said: %2").arg(job_->exitCode()).arg(words);
    }
    if (reader_->outputLost())
        return tr("its output %1 was removed or cut short while it ran").arg(consolePath_);
    return QString();
}

QString frmProgress::lastEngineWords() const {
    QFile out(consolePath_);
    if (!out.open(QIODevice::ReadOnly))
        return QString();
    // Only the end of the output matters.
    constexpr qint64 kTail = 8192;
    if (out.size() > kTail && !out.seek(out.size() - kTail))
        return QString();
    // The engine ends a run that fails without an "ERROR:" line with its own words and then
    // "Process aborted."; whole lines only (ended by a line feed), a progress line rewritten
    // in place counts in its last state.
    QStringList lines = ActiveEngineCodecs().text.decode(out.readAll()).split(QLatin1Char('\n'));
    lines.removeLast(); // what follows the last line feed is unfinished (or empty)
    bool aborted = false;
    for (qsizetype i = lines.size() - 1; i >= 0; --i) {
        QString line = lines[i];
        if (line.endsWith(QLatin1Char('\r')))
            line.chop(1);
        line = line.mid(line.lastIndexOf(QLatin1Char('\r')) + 1).trimmed();
        if (line.isEmpty())
            continue;
        if (!aborted) {
            if (line != QLatin1String("Process aborted."))
                return QString();
            aborted = true;
            continue;
        }
        return shown(line);
    }
    return QString();
}

QString frmProgress::shown(const QString& engineText) const {
    if (!underLauncher_)
        return engineText;
    // An extraction's drive is shown as the user's folder it stands for.
    return HostPathsInText(job_ ? job_->withDriveShownAsFolder(engineText) : engineText);
}

void frmProgress::restartWithSwitchedEngine() {
    qCDebug(lcJobWindow) << "engine version request:" << pendingVersionMessage_;
    SwitchEngine(main_.engineSwitch(), ProgramFolder(), pendingVersionMessage_);
    pendingVersionMessage_.clear();
    phase_ = Phase::Idle;
    // The Activate run starts again from its first step, which honours trayUsed: a window that
    // has been to the notification area does not start the job again (kept as the Activate
    // handler has it). startTime stays, so the elapsed time keeps counting.
    if (TrayUsed()) {
        qCDebug(lcJobWindow) << "trayUsed is set: the restarted Activate run returns at once";
        return;
    }
    startJob();
}

void frmProgress::stopFollowing() {
    phase_ = Phase::Ending;
    pollTimer_->stop();
}

void frmProgress::errorEnding(const QString& message, bool showMain) {
    stopFollowing();
    const QString text = EngineErrorText(shown(message));
    tellEnd(JobOutcome::Failed, text);
    main_.prompter().critical(text);
    if (unloaded_)
        return; // closed while the message was up
    if (showMain)
        main_.setVisible(true);
    Form_Unload();
}

void frmProgress::normalEnding() {
    stopFollowing();
    succeeded_ = true;
    tellEnd(JobOutcome::Finished);
    if (kind_.endMessage)
        main_.prompter().information(tr(kind_.endMessage));
    if (unloaded_)
        return;
    main_.setVisible(true);
    Form_Unload();
}

void frmProgress::endWithMessage(const QString& message) {
    stopFollowing();
    tellEnd(JobOutcome::Failed, message);
    main_.prompter().critical(message);
    if (unloaded_)
        return;
    main_.setVisible(true);
    Form_Unload();
}

void frmProgress::Timer1_Timer() {
    if (std::optional<QString> text = EstimateTime(time_, QDateTime::currentDateTime())) {
        setTextIfChanged(TimeTxt, *text);
        refreshTip();
    }
}

void frmProgress::refreshTip() {
    if (!tray_->isShown())
        return;
    const QString tip = TrayTipText(time_.percent, time_.remainingSeconds);
    if (tip != lastTip_) {
        lastTip_ = tip;
        tray_->modify(tip);
    }
}

void frmProgress::onTrayClick(TrayClick click) {
    if (click == TrayClick::Left && !unloaded_)
        RestoreFromTray(*this, main_, *tray_);
}

} // namespace quovara
