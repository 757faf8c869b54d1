// The job progress windows frmAdding, frmExtracting and frmTesting: one class, told
// apart by a small job-kind table. The window starts its job script itself, follows the engine's
// console output (das.txt) until the engine has ended, reports the first engine error, and on
// closing stops the engine and cleans up. Minimising it sends it to the notification area
// (the tray icon). A job that ends while the user is not looking at the program is told of with a
// desktop notification (jobnotice.h).
#pragma once

#include "core/jobkind.h"
#include "engine/consolereader.h"
#include "jobnotice.h"
#include "trayicon.h"

#include <QDateTime>
#include <QPointer>
#include <QString>
#include <QWidget>
#include <QtGlobal>

#include <functional>
#include <memory>

class QGroupBox;
class QLineEdit;
class QProgressBar;
class QTimer;

namespace quovara {

class frmApri;
class JobProcess;

// Shows the progress window of a job whose script has been written (Archivia.bat, Estrai.bat or
// Testing.bat in the WorkFolder), modal over the main window; returns when it has closed.
void RunJobWindow(JobKind kind, frmApri& main);

// The same with the archive of the job named by the caller (an add job's target archive); the
// job's working folder is the folder that holds it. An empty `archivePath` means: the archive
// that the job script names, else the main window's archive. True when the job came to its
// normal end (no engine error, not stopped).
bool RunJobWindow(JobKind kind, frmApri& main, const QString& archivePath);

// The same, calling `onEnd` with the outcome as soon as the window has unloaded, before this
// returns: a caller whose own caller may be waiting further up the stack (a drop target asking
// again in a nested event loop) learns of the end at once.
bool RunJobWindow(JobKind kind, frmApri& main, const QString& archivePath,
                  const std::function<void(bool succeeded)>& onEnd);

// Which ends of a job a desktop notification tells of, when the user is not looking at the
// program as it ends.
enum class EndNotice {
    All,
    // Failures and stops only: the caller tells of a finished job itself, once its own work
    // after the job is done (Extract Here places the files first).
    FailuresOnly,
    // None: a drag's extraction, whose files the drop target shows.
    None,
};

// One run of a job window, for callers that need more than the outcome.
struct JobWindowRun {
    QString archivePath; // as for RunJobWindow
    std::function<void(bool succeeded)> onEnd;
    EndNotice notice = EndNotice::All;
    // Filled in: the user was not looking at the program as the job ended.
    bool awayAtEnd = false;
};
bool RunJobWindow(JobKind kind, frmApri& main, JobWindowRun& run);

// Texts of the windows; their translation context is the window's.
namespace progress {
inline constexpr char TestPassed[] =
    QT_TRANSLATE_NOOP("quovara::frmProgress", "No errors found during test operation");
// The window's own limit to the wait for first output: the job's process has ended and das.txt
// is still empty or absent. %1 is the job script's path.
inline constexpr char NoOutput[] = QT_TRANSLATE_NOOP(
    "quovara::frmProgress",
    "The engine ended without writing any output, so the job cannot be followed.\n"
    "Job script: %1");
// The job script could not be started. %1 says why.
inline constexpr char NotStarted[] =
    QT_TRANSLATE_NOOP("quovara::frmProgress", "The job could not be started: %1");
// The job did not finish: the engine was ended by a signal, or ended with a non-zero exit code
// and no error line, or its output was removed or cut while it ran. %1 is the archive, %2 why.
inline constexpr char AbnormalEnd[] =
    QT_TRANSLATE_NOOP("quovara::frmProgress", "The engine ended abnormally (%2).\n"
                                              "Archive: %1\n"
                                              "The job did not finish; do not rely on its result.");
// The engine waits at its console for a key. %1 is its question as it wrote it.
inline constexpr char ArchiveExistsQuestion[] = QT_TRANSLATE_NOOP(
    "quovara::frmProgress",
    "The engine asks:\n\n%1\n\n"
    "Yes: the archive is replaced by a new one that holds only the files of this job; "
    "everything the archive holds now is lost (the engine cannot add to an existing archive).\n"
    "No: the job stops and the archive stays as it is.");
// After the user's No to the engine's question whether to replace the archive.
inline constexpr char ArchiveKept[] =
    QT_TRANSLATE_NOOP("quovara::frmProgress", "The archive was left as it was.");
inline constexpr char OtherQuestion[] =
    QT_TRANSLATE_NOOP("quovara::frmProgress", "The engine asks:\n\n%1\n\n"
                                              "Yes answers \"y\", No answers \"n\".");
// How the engine's questions end: the last, unfinished line of its output (compared with
// the engine's own words, so never translated).
inline constexpr char QuestionEnding[] = "(y/n) ?";
} // namespace progress

// One row of the job-kind table: what tells the three windows apart.
struct ProgressKind {
    JobKind kind;
    const char* formName;    // object name of the window
    const char* caption;     // "Adding ...", ... (translated in the window's context)
    const char* script;      // job script in the WorkFolder
    const char* icon;        // the window's own icon
    ConsoleJob lineRules;    // how the lines of das.txt are read
    bool sizesLine;          // ProgressTxt present
    bool switchesEngine;     // a version request in the header lines switches and restarts
    bool bodyErrorShowsMain; // an error after the header makes the main window visible again
    const char* endMessage;  // information message at the normal end, or nullptr
    bool undoesSwitch;       // unload undoes an engine switch
    bool deletesTempArchive; // unload deletes UHA$0000.$$$ beside the archive
    bool takesMainIcon;      // unload gives the window the main window's icon
    // Layout in twips: client area, top of Frame2, top of PB inside Frame1.
    int clientWidth, clientHeight, frame2Top, pbTop;
};

// The row of an add, extract or test job; nullptr for any other kind.
const ProgressKind* ProgressKindOf(JobKind kind);

class frmProgress : public QWidget {
    Q_OBJECT
public:
    // Load: trayUsed cleared, caption, label-like text boxes, startTime = now.
    frmProgress(const ProgressKind& kind, frmApri& main, const QString& archivePath);
    ~frmProgress() override;

    // Shows the window modally and returns when it has unloaded.
    void exec();

    const ProgressKind& kind() const { return kind_; }
    // The archive of the job and the folder the engine works in.
    QString archivePath() const { return archivePath_; }
    QString workingFolder() const;
    QString scriptPath() const { return scriptPath_; }
    // How many times the job script has been started (a version switch starts it again).
    int runs() const { return runs_; }
    // The process id of the job's engine (0 before the start).
    qint64 jobProcessId() const;
    bool jobRunning() const;
    bool isUnloaded() const { return unloaded_; }
    // The job came to its normal end: the engine finished without an error.
    bool succeeded() const { return succeeded_; }
    TrayIcon& trayIcon() { return *tray_; }
    // Which ends a notification tells of (every end unless set before the job ends).
    void setEndNotice(EndNotice notice) { endNotice_ = notice; }
    // The user was not looking at the program as the job ended.
    bool userAwayAtEnd() const { return awayAtEnd_; }
    const ProgressState& timeState() const { return time_; }
    const ConsoleState* consoleState() const;

signals:
    // The window has unloaded: the job is over or was cut short.
    void unloaded();

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum class Phase { Idle, Waiting, Following, AwaitRestart, Ending };

    void buildControls();
    void Form_Activate();
    void startJob();
    void pollRound();
    void showRound(const ConsoleState& state);
    void handleError(const ConsoleState& state);
    void restartWithSwitchedEngine();
    void errorEnding(const QString& message, bool showMain);
    void normalEnding();
    void endWithMessage(const QString& message);
    // Tells a user who is not looking at the program how the job ended (once, before any
    // message of the end takes the focus).
    void tellEnd(JobOutcome outcome, const QString& reason = QString());
    // The folder an extraction wrote into: its job script's target, else the folder the engine
    // worked in.
    QString extractDestination() const;
    void Timer1_Timer();
    void refreshTip();
    void onTrayClick(TrayClick click);
    void Form_Unload();
    // An extraction stopped while it ran: once the engine has gone, the file it was writing is
    // removed when incomplete; returns the text that tells the user what is left.
    QString cleanUpStoppedExtract();
    void stopFollowing();
    // Asks the user the engine's question and types the answer into its console.
    void answerEngineQuestion(const QString& question);
    // Why the ended job cannot count as done, or empty when it ended normally.
    QString abnormalEnd() const;
    // The line before the engine's closing "Process aborted.": its own words for an end that
    // has no "ERROR:" line, such as "No matching files found !". Empty when it did not say so.
    QString lastEngineWords() const;
    // A text of the engine as the user reads it: under the launcher, its paths in host form.
    QString shown(const QString& engineText) const;

    const ProgressKind& kind_;
    frmApri& main_;
    QString archivePath_;
    QString scriptPath_;
    QString consolePath_;
    Phase phase_ = Phase::Idle;
    bool activated_ = false;
    bool unloaded_ = false;
    bool succeeded_ = false;
    int runs_ = 0;
    QString pendingVersionMessage_;
    // A question of the engine is being asked (the rounds wait), and the output position of
    // the last one answered, so that a question is asked once.
    bool asking_ = false;
    bool underLauncher_ = false;
    qint64 answeredAt_ = -1;
    // The user answered No to the engine's "already exists. Overwrite" question: the engine
    // then ends with "Can't create archive file", and the archive is as it was.
    bool keptArchive_ = false;
    // When the job's engine was started, and what the stop of an extraction left (shown once
    // the window is gone).
    QDateTime started_;
    QString stopReport_;
    // The clean-up registered for the program's end by a signal while the job runs.
    int terminationWork_ = 0;
    EndNotice endNotice_ = EndNotice::All;
    bool endTold_ = false;
    bool awayAtEnd_ = false;

    std::unique_ptr<JobProcess> job_;
    std::unique_ptr<ConsoleReader> reader_;
    ProgressState time_;
    std::unique_ptr<TrayIcon> tray_;
    QString lastTip_;

    QGroupBox* Frame1 = nullptr;
    QLineEdit* JobTxt = nullptr;
    QLineEdit* ProgressTxt = nullptr;
    QProgressBar* PB = nullptr;
    QGroupBox* Frame2 = nullptr;
    QLineEdit* TimeTxt = nullptr;
    QTimer* Timer1 = nullptr;
    QTimer* pollTimer_ = nullptr;
};

} // namespace quovara
