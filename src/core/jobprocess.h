// One running JobScript. Without a batch interpreter the script is read back and its command
// is started directly, never through a shell: the preamble's variables go into the engine's
// environment, "> target" sends standard output to that file, the engine starts at the lowest
// scheduling priority, and a Windows engine runs through the launcher (wine) with a
// pseudo-terminal as its console.
#pragma once

#include "confinement.h"
#include "launcherpaths.h"
#include "scriptexec.h"

#include <QObject>
#include <QProcess>
#include <QString>

class QSocketNotifier;

namespace quovara {

class JobProcess : public QObject {
    Q_OBJECT
public:
    explicit JobProcess(QObject* parent = nullptr);
    ~JobProcess() override;

    // Starts the script. `workingFolder` empty: the script's own folder. Only a script that
    // this program wrote (WriteJobScript), unchanged on disk, whose program is the engine of the
    // ProgramFolder, with no redirection but das.txt in the WorkFolder, is started; the job is
    // taken from the pieces it was written from. False when it is refused, its engine is
    // missing, or a Windows engine has no launcher; errorText() then says why.
    bool start(const QString& scriptPath, const QString& workingFolder = QString());

    // Types one key into the engine's console (its answer to a question it asks there).
    bool answer(char key);

    // How the job ended (valid once finished() was emitted).
    bool crashed() const { return exitStatus_ == QProcess::CrashExit; }
    int exitCode() const { return exitCode_; }

    bool isRunning() const;
    qint64 processId() const;
    QString errorText() const { return error_; }
    // The program and arguments actually started (after launcher translation), for tests and logs.
    QString program() const { return program_; }
    QStringList arguments() const { return arguments_; }
    // Engine text with what stood in for a path under the launcher (the drive "Q:\" of an
    // extraction or of an archive's folder, the link to an archive) turned back into the path it
    // stands for; other text as it is.
    QString withDriveShownAsFolder(const QString& engineText) const;

    // Ends the job at once, the engine's whole process group with it (used when the window
    // that owns the job closes).
    void kill();

signals:
    void finished(int exitCode);

private:
    void closeTerminal();

    QProcess* process_ = nullptr;
    int ptyMaster_ = -1;
    QSocketNotifier* ptyNotifier_ = nullptr;
    qint64 group_ = 0;
    QProcess::ExitStatus exitStatus_ = QProcess::NormalExit;
    int exitCode_ = 0;
    QString error_;
    // The translated copy of a list file handed to an engine under the launcher.
    QString listCopy_;
    // An extraction under the launcher: its drive (removed when the job ends), the drive's
    // root as the engine was given it, and the destination it stands for.
    LauncherDrive drive_;
    QString driveRoot_;
    // The link an archive with a path the engine cannot take is read through.
    ArchiveLink archiveLink_;
    QString driveFolder_;
    // Folders an extraction's excluded entries would make that did not stand before it.
    QStringList strayFolders_;
    QString program_;
    QStringList arguments_;
};

// The arguments as logs may show them: a password ("-pw…", in any case) is written "-pw***".
QStringList MaskedArguments(const QStringList& arguments);

// Finds the launcher for Windows programs: QUOVARA_WINE when set, else "wine" on the PATH.
QString LauncherPath();

} // namespace quovara
