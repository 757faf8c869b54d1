#include "jobprocess.h"

#include "codepage.h"
#include "confinement.h"
#include "enginefiles.h"
#include "enginelocale.h"
#include "jobscript.h"
#include "launcherprefix.h"
#include "launcherserver.h"
#include "logging.h"
#include "places.h"
#include "processcontrol.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QSocketNotifier>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <termios.h>
#include <unistd.h>
#endif

namespace quovara {

QString LauncherPath() {
    const QString fromEnv = qEnvironmentVariable("QUOVARA_WINE");
    if (!fromEnv.isEmpty())
        return QFileInfo(fromEnv).isExecutable() ? fromEnv
                                                 : QStandardPaths::findExecutable(fromEnv);
    return QStandardPaths::findExecutable(QStringLiteral("wine"));
}

QStringList MaskedArguments(const QStringList& arguments) {
    QStringList shown;
    shown.reserve(arguments.size());
    for (const QString& a : arguments)
        shown << (a.startsWith(QLatin1String("-pw"), Qt::CaseInsensitive) ? QStringLiteral("-pw***")
                                                                          : a);
    return shown;
}

JobProcess::JobProcess(QObject* parent) : QObject(parent) {}

JobProcess::~JobProcess() {
    if (process_ && process_->state() != QProcess::NotRunning) {
        // The owner is gone: the job must not outlive it unseen.
        kill();
        process_->waitForFinished(2000);
    }
    closeTerminal();
    if (group_ > 0)
        UnregisterJobGroup(group_);
    if (!listCopy_.isEmpty() && !QFile::remove(listCopy_))
        qCDebug(lcRunner) << "could not delete the list file's copy" << listCopy_;
}

namespace {

// The engine file of the ProgramFolder that a script's program names, or why it is refused.
// Only the engine ever runs: any other program named by a script is refused.
QString engineOf(const QString& written, QString& error) {
    const QString program = ProgramFolder();
    const QString engine = ResolveEngineFile(program, QStringLiteral("uharc.exe"));
    const QFileInfo named(written);
    const QString resolved =
        named.isAbsolute() ? ResolveEngineFile(named.absolutePath(), named.fileName()) : QString();
    if (engine.isEmpty() || resolved.isEmpty()) {
        error =
            QCoreApplication::translate("JobProcess", "the engine %1 does not exist").arg(written);
        return QString();
    }
    if (QFileInfo(resolved).canonicalFilePath() != QFileInfo(engine).canonicalFilePath()) {
        error = QCoreApplication::translate(
                    "JobProcess", "the job names %1, which is not the engine of the program "
                                  "folder %2; it was not started")
                    .arg(written, program);
        return QString();
    }
    return engine;
}

// Reads the script back without following a link.
QByteArray readScript(const QString& path, bool& ok) {
    ok = false;
#ifdef Q_OS_UNIX
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0)
        return QByteArray();
    QFile file;
    if (!file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(fd);
        return QByteArray();
    }
#else
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
#endif
    ok = true;
    return file.readAll();
}

// The list file as the engine under the launcher needs it: every host path in the launcher's
// form, in the engine's OEM code page (the real engine reads list files in that code page, not
// the ANSI one of its command line), lines ended by CR LF. The copy goes to `copyPath` (the
// user's file is never changed). Empty on success, otherwise why it cannot be made.
QString writeLauncherList(const QString& listPath, const QString& copyPath,
                          const EngineTextCodecs& engine) {
    QFile list(listPath);
    if (!list.open(QIODevice::ReadOnly))
        return QCoreApplication::translate("JobProcess", "the list file %1 cannot be read: %2")
            .arg(listPath, list.errorString());
    const QString text = QString::fromLocal8Bit(list.readAll());
    QStringList lines;
    for (QString line : SplitAnyLineEnds(text)) {
        if (line.isEmpty())
            continue;
        line = line.startsWith(QLatin1Char('/'))
                   ? ToLauncherPath(line)
                   : QString(line).replace(QLatin1Char('/'), QLatin1Char('\\'));
        const QString why = ValueProblemForEngine(line, QStringLiteral("name"), false, engine);
        if (!why.isEmpty())
            return QCoreApplication::translate(
                       "JobProcess", "the list file %1 names a file the engine cannot take. %2")
                .arg(listPath, why);
        lines << line;
    }
    const QString why = WritePrivateFile(
        copyPath, engine.text.encode(lines.join(QStringLiteral("\r\n")) +
                                     (lines.isEmpty() ? QString() : QStringLiteral("\r\n"))));
    if (!why.isEmpty())
        return QCoreApplication::translate("JobProcess",
                                           "the list file's copy %1 cannot be written: %2")
            .arg(copyPath, why);
    return QString();
}

} // namespace

bool JobProcess::start(const QString& scriptPath, const QString& workingFolder) {
    error_.clear();
    auto refuse = [this](const QString& why) {
        error_ = why;
        qCDebug(lcRunner) << error_;
        return false;
    };
    // Only a script this program wrote runs, and only as it was written: the job is taken
    // from the pieces it was written from, never from a re-reading of its text.
    const std::optional<WrittenScript> written = WrittenJobScript(scriptPath);
    if (!written)
        return refuse(QCoreApplication::translate(
                          "JobProcess", "the job script %1 was not written by this program")
                          .arg(scriptPath));
    bool readOk = false;
    const QByteArray onDisk = readScript(scriptPath, readOk);
    if (!readOk)
        return refuse(QCoreApplication::translate("JobProcess", "cannot read the job script %1")
                          .arg(scriptPath));
    if (onDisk != written->bytes)
        return refuse(
            QCoreApplication::translate(
                "JobProcess", "the job script %1 was changed after it was written; it was not run")
                .arg(scriptPath));
    const ParsedJob& job = written->job;
    if (!job.isValid())
        return refuse(
            QCoreApplication::translate("JobProcess", "the job script %1 names no command")
                .arg(scriptPath));
    // The script's own "cd /d" line comes first: the Add job runs in the folder that holds
    // what it adds, so that the archive stores names relative to it.
    const QString folder = !job.workingFolder.isEmpty() ? job.workingFolder
                           : workingFolder.isEmpty()    ? QFileInfo(scriptPath).absolutePath()
                                                        : workingFolder;
    QString engineError;
    const QString engine = engineOf(job.arguments.first(), engineError);
    if (engine.isEmpty())
        return refuse(engineError);
    // The one redirection a job may ask for: the console output into das.txt in the WorkFolder.
    QString target;
    if (!job.outputTarget.isEmpty()) {
        target = QDir::cleanPath(QFileInfo(QDir(folder), job.outputTarget).absoluteFilePath());
        if (target != QDir::cleanPath(WorkFile(names::ConsoleOutput)))
            return refuse(QCoreApplication::translate(
                              "JobProcess", "the job asks to write its output to %1, which is not "
                                            "the console output file of the work folder")
                              .arg(job.outputTarget));
    }

    QStringList args = job.arguments.mid(1);
    const bool windowsProgram = IsWindowsExecutable(engine);
    // An extraction writes only below its destination (see confinement.h): the target folder,
    // or the folder the job runs in when it names none.
    const bool extraction = IsExtractionJob(job.arguments);
    const qsizetype targetAt = extraction ? ExtractionTargetIndex(job.arguments) : -1;
    QString destination;
    if (extraction) {
        destination = QDir::cleanPath(
            targetAt < 0
                ? folder
                : QFileInfo(QDir(folder), job.arguments.at(targetAt).mid(2)).absoluteFilePath());
        strayFolders_ = StrayFoldersOfExclusions(job.arguments, destination);
    }
    if (windowsProgram) {
        const QString launcher = LauncherPath();
        if (launcher.isEmpty())
            return refuse(
                QCoreApplication::translate(
                    "JobProcess", "%1 is a Windows program and no launcher (wine) was found")
                    .arg(engine));
        // The engine runs in a wine prefix of its own, made on first use.
        QString prefixError;
        if (!EnsureLauncherPrefix(launcher, &prefixError))
            return refuse(prefixError);
        // The server stays warm across the jobs of the session.
        LauncherServer::EnsureRunning(launcher);
        // An archive whose path the engine cannot take letter for letter is given under a
        // plain name. The engine writes a new or updated archive beside its name (a temporary
        // file renamed over it), so an Add gets the archive's folder as a drive of its own and
        // names the archive as it is; every other job reads the archive through a link.
        const qsizetype archiveAt = job.argumentFields.indexOf(QStringLiteral("archive"));
        if (archiveAt > 0) {
            const QString archive = QDir::cleanPath(
                QFileInfo(QDir(folder), job.arguments.at(archiveAt)).absoluteFilePath());
            const EngineTextCodecs codecs = WindowsEngineCodecs(EngineLocale());
            if (!EngineCanTakePath(archive, codecs)) {
                QString why;
                if (IsAddJob(job.arguments)) {
                    const QFileInfo info(archive);
                    if (!drive_.make(LauncherPrefixFolder(), info.absolutePath(), &why))
                        return refuse(QCoreApplication::translate(
                                          "JobProcess",
                                          "the archive's folder cannot be given to the "
                                          "engine: %1")
                                          .arg(why));
                    driveFolder_ = info.absolutePath();
                    driveRoot_ = drive_.root();
                    args[archiveAt - 1] = driveRoot_ + info.fileName();
                } else {
                    if (!archiveLink_.make(WorkFolder(), archive, &why))
                        return refuse(
                            QCoreApplication::translate(
                                "JobProcess", "the archive cannot be given to the engine: %1")
                                .arg(why));
                    args[archiveAt - 1] = archiveLink_.path();
                }
            }
        }
        if (extraction) {
            // The destination is the root of a drive of its own: the engine is given that root
            // as its target, and Windows path rules stop ".." there.
            QString driveError;
            if (!drive_.make(LauncherPrefixFolder(), destination, &driveError))
                return refuse(QCoreApplication::translate(
                                  "JobProcess", "the extraction cannot be confined to its "
                                                "destination: %1")
                                  .arg(driveError));
            driveFolder_ = destination;
            driveRoot_ = drive_.root();
            // `args` lack the engine: each argument stands one place earlier.
            const QString driveTarget = QStringLiteral("-t") + driveRoot_;
            if (targetAt < 0)
                args.insert(1, driveTarget);
            else
                args[targetAt - 1] = driveTarget;
        }
        for (QString& a : args) {
            if (a.startsWith(QLatin1Char('@')) && a.size() > 1) {
                // The engine cannot open host paths: it gets a translated copy of the list.
                static int copies = 0;
                const QString copy = PathStyle::host().join(
                    WorkFolder(), QStringLiteral("Elenco%1.lst").arg(++copies));
                const QString why =
                    writeLauncherList(a.mid(1), copy, WindowsEngineCodecs(EngineLocale()));
                if (!why.isEmpty())
                    return refuse(why);
                listCopy_ = copy;
                a = QLatin1Char('@') + copy;
            }
            a = ToLauncherPath(a);
        }
        args.prepend(engine);
        program_ = launcher;
    } else {
        program_ = engine;
    }
    arguments_ = args;

    process_ = new QProcess(this);
    process_->setProgram(program_);
    process_->setArguments(arguments_);
    process_->setWorkingDirectory(folder);
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : job.environment)
        env.insert(name, value);
    if (windowsProgram)
        ApplyLauncherEnvironment(env);
    process_->setProcessEnvironment(env);
    process_->setStandardOutputFile(QProcess::nullDevice());
    process_->setStandardInputFile(QProcess::nullDevice());
#ifdef Q_OS_UNIX
    // A native engine is confined by the kernel instead: it may create, write and remove only
    // below the destination.
    int confinement = -1;
    if (extraction && !windowsProgram) {
        QString why;
        confinement = MakeWriteConfinement(destination, &why);
        if (confinement < 0)
            qCDebug(lcRunner) << "extraction not confined:" << why;
    }
#endif
    connect(process_, &QProcess::readyReadStandardError, this, [this] {
        qCDebug(lcRunner).noquote() << "engine:" << process_->readAllStandardError().trimmed();
    });

#ifdef Q_OS_UNIX
    // The output file is opened here, without following a link, and handed to the engine as
    // its standard output.
    int outFd = -1;
    if (!target.isEmpty()) {
        const int flags =
            O_WRONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC | (job.appendOutput ? O_APPEND : O_TRUNC);
        outFd = ::open(QFile::encodeName(target).constData(), flags, 0600);
        if (outFd < 0)
            return refuse(
                QCoreApplication::translate("JobProcess", "cannot create the output file %1: %2")
                    .arg(target, QString::fromLocal8Bit(std::strerror(errno))));
    }
    // The engine needs a console: without one the real engine waits for a key for ever, and it
    // asks its questions there. Every engine gets a pseudo-terminal as standard input and
    // controlling terminal, in a session of its own, so that the whole job (the launcher's
    // children too) can be ended as one group.
    QByteArray slaveName;
    ptyMaster_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (ptyMaster_ >= 0 && grantpt(ptyMaster_) == 0 && unlockpt(ptyMaster_) == 0) {
        slaveName = QByteArray(ptsname(ptyMaster_));
        // What the engine writes to its console is read and dropped, so that a full terminal
        // buffer never blocks it.
        ptyNotifier_ = new QSocketNotifier(ptyMaster_, QSocketNotifier::Read, this);
        connect(ptyNotifier_, &QSocketNotifier::activated, this, [this] {
            char buf[4096];
            const ssize_t n = ::read(ptyMaster_, buf, sizeof buf);
            if (n <= 0)
                ptyNotifier_->setEnabled(false);
        });
    } else {
        qCDebug(lcRunner) << "no pseudo-terminal for the engine";
        closeTerminal();
    }
    const std::string slave = slaveName.toStdString();
    process_->setChildProcessModifier([slave, outFd, confinement] {
        // Runs in the child between fork and exec: async-signal-safe calls only.
        ::setsid();
        if (!slave.empty()) {
            const int fd = ::open(slave.c_str(), O_RDWR);
            if (fd >= 0) {
                ::ioctl(fd, TIOCSCTTY, 0);
                ::dup2(fd, STDIN_FILENO);
                if (fd > STDERR_FILENO)
                    ::close(fd);
            }
        }
        if (outFd >= 0)
            ::dup2(outFd, STDOUT_FILENO);
        ::setpriority(PRIO_PROCESS, 0, 19);
        // Last, once the terminal and the output are open: from here on nothing above the
        // destination can be written. A confinement that cannot be applied ends the child.
        if (confinement >= 0 && !ApplyWriteConfinement(confinement))
            ::_exit(126);
    });
#endif

    connect(process_, &QProcess::finished, this, [this](int code, QProcess::ExitStatus status) {
        exitStatus_ = status;
        exitCode_ = code;
        qCDebug(lcRunner) << "job ended with" << code
                          << (status == QProcess::CrashExit ? "(crashed)" : "");
        closeTerminal();
        // The job's drive goes with it: the drive's letter stands for nothing once it ended;
        // so do the empty folders the engine made for entries it was told to leave out.
        drive_.remove();
        archiveLink_.remove();
        RemoveStrayFolders(strayFolders_);
        emit finished(code);
    });
    qCDebug(lcRunner) << "starting" << program_ << MaskedArguments(arguments_) << "in" << folder;
    process_->start();
    const bool started = process_->waitForStarted(10000);
#ifdef Q_OS_UNIX
    if (outFd >= 0)
        ::close(outFd);
    if (confinement >= 0)
        ::close(confinement);
#endif
    if (!started) {
        closeTerminal();
        return refuse(QCoreApplication::translate("JobProcess", "%1 could not be started: %2")
                          .arg(program_, process_->errorString()));
    }
    group_ = process_->processId();
    RegisterJobGroup(group_);
    return true;
}

bool JobProcess::answer(char key) {
#ifdef Q_OS_UNIX
    if (ptyMaster_ < 0 || !isRunning())
        return false;
    const ssize_t n = ::write(ptyMaster_, &key, 1);
    qCDebug(lcRunner) << "typed one key into the engine's console:" << (n == 1);
    return n == 1;
#else
    Q_UNUSED(key);
    return false;
#endif
}

bool JobProcess::isRunning() const {
    return process_ && process_->state() != QProcess::NotRunning;
}

qint64 JobProcess::processId() const {
    return process_ ? process_->processId() : 0;
}

void JobProcess::kill() {
    if (!isRunning())
        return;
#ifdef Q_OS_UNIX
    // The whole job: the engine and whatever the launcher started for it.
    if (group_ > 0 && ::kill(-static_cast<pid_t>(group_), SIGKILL) != 0)
        qCDebug(lcRunner) << "could not end the job's process group" << group_;
#endif
    process_->kill();
}

QString JobProcess::withDriveShownAsFolder(const QString& engineText) const {
    if (!archiveLink_.path().isEmpty()) {
        // The link's name is ours; the user knows the archive.
        const QString link = ToLauncherPath(archiveLink_.path());
        if (engineText.contains(link, Qt::CaseInsensitive))
            return withDriveShownAsFolder(
                QString(engineText)
                    .replace(link, ToLauncherPath(archiveLink_.archive()), Qt::CaseInsensitive));
    }
    if (driveRoot_.isEmpty() || !engineText.contains(driveRoot_, Qt::CaseInsensitive))
        return engineText;
    // "Q:\a\b.txt" is the destination's "a\b.txt": in the launcher's form, which the text's
    // other paths share, so that one translation shows them all as host paths.
    QString folder = ToLauncherPath(driveFolder_);
    if (!folder.endsWith(QLatin1Char('\\')))
        folder += QLatin1Char('\\');
    return QString(engineText).replace(driveRoot_, folder, Qt::CaseInsensitive);
}

void JobProcess::closeTerminal() {
    if (ptyNotifier_) {
        ptyNotifier_->setEnabled(false);
        ptyNotifier_->deleteLater();
        ptyNotifier_ = nullptr;
    }
#ifdef Q_OS_UNIX
    if (ptyMaster_ >= 0) {
        ::close(ptyMaster_);
        ptyMaster_ = -1;
    }
#endif
}

} // namespace quovara
