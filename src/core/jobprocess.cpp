#include "jobprocess.h"

#include "enginefiles.h"
#include "logging.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcessEnvironment>
#include <QSocketNotifier>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
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

namespace {

// The program file named by the script, found without regard to case for engine names and
// relative paths taken from the working folder.
QString resolveProgram(const QString& written, const QString& workingFolder) {
    QFileInfo info(written);
    if (info.isRelative())
        info = QFileInfo(QDir(workingFolder), written);
    if (info.isFile())
        return info.absoluteFilePath();
    return ResolveEngineFile(info.absolutePath(), info.fileName());
}

} // namespace

JobProcess::JobProcess(QObject* parent) : QObject(parent) {}

JobProcess::~JobProcess() {
    if (process_ && process_->state() != QProcess::NotRunning) {
        // The owner is gone: the job must not outlive it unseen.
        process_->kill();
        process_->waitForFinished(2000);
    }
    closeTerminal();
}

bool JobProcess::start(const QString& scriptPath, const QString& workingFolder) {
    error_.clear();
    QFile script(scriptPath);
    if (!script.open(QIODevice::ReadOnly)) {
        error_ = QStringLiteral("cannot read the job script %1").arg(scriptPath);
        qCDebug(lcRunner) << error_;
        return false;
    }
    const ParsedJob job = ParseJobScript(script.readAll());
    script.close();
    if (!job.isValid()) {
        error_ = QStringLiteral("the job script %1 names no command").arg(scriptPath);
        qCDebug(lcRunner) << error_;
        return false;
    }
    const QString folder =
        workingFolder.isEmpty() ? QFileInfo(scriptPath).absolutePath() : workingFolder;
    const QString engine = resolveProgram(job.arguments.first(), folder);
    if (engine.isEmpty()) {
        error_ = QStringLiteral("the program %1 does not exist").arg(job.arguments.first());
        qCDebug(lcRunner) << error_;
        return false;
    }

    QStringList args = job.arguments.mid(1);
    const bool windowsProgram = IsWindowsExecutable(engine);
    if (windowsProgram) {
        const QString launcher = LauncherPath();
        if (launcher.isEmpty()) {
            error_ = QStringLiteral("%1 is a Windows program and no launcher (wine) was found")
                         .arg(engine);
            qCDebug(lcRunner) << error_;
            return false;
        }
        for (QString& a : args)
            a = ToLauncherPath(a);
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
    process_->setProcessEnvironment(env);
    if (!job.outputTarget.isEmpty()) {
        QString target = job.outputTarget;
        if (QFileInfo(target).isRelative())
            target = QDir(folder).filePath(target);
        process_->setStandardOutputFile(target,
                                        job.appendOutput ? QIODevice::Append : QIODevice::Truncate);
    } else {
        process_->setStandardOutputFile(QProcess::nullDevice());
    }
    process_->setStandardInputFile(QProcess::nullDevice());
    connect(process_, &QProcess::readyReadStandardError, this, [this] {
        qCDebug(lcRunner).noquote() << "engine:" << process_->readAllStandardError().trimmed();
    });

#ifdef Q_OS_UNIX
    // A Windows engine needs a console: without one it waits for a key for ever. It gets a
    // pseudo-terminal as standard input and controlling terminal; nothing is ever typed in.
    QByteArray slaveName;
    if (windowsProgram) {
        ptyMaster_ = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (ptyMaster_ >= 0 && grantpt(ptyMaster_) == 0 && unlockpt(ptyMaster_) == 0) {
            slaveName = QByteArray(ptsname(ptyMaster_));
            // Whatever the engine writes to its console is read and dropped, so that a full
            // terminal buffer never blocks it.
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
    }
    const std::string slave = slaveName.toStdString();
    process_->setChildProcessModifier([slave] {
        // Runs in the child between fork and exec: async-signal-safe calls only.
        if (!slave.empty()) {
            ::setsid();
            const int fd = ::open(slave.c_str(), O_RDWR);
            if (fd >= 0) {
                ::ioctl(fd, TIOCSCTTY, 0);
                ::dup2(fd, STDIN_FILENO);
                if (fd > STDERR_FILENO)
                    ::close(fd);
            }
        }
        ::setpriority(PRIO_PROCESS, 0, 19);
    });
#endif

    connect(process_, &QProcess::finished, this, [this](int code, QProcess::ExitStatus) {
        qCDebug(lcRunner) << "job ended with" << code;
        closeTerminal();
        emit finished(code);
    });
    qCDebug(lcRunner) << "starting" << program_ << arguments_ << "in" << folder;
    process_->start();
    if (!process_->waitForStarted(10000)) {
        error_ =
            QStringLiteral("%1 could not be started: %2").arg(program_, process_->errorString());
        qCDebug(lcRunner) << error_;
        closeTerminal();
        return false;
    }
    return true;
}

bool JobProcess::isRunning() const {
    return process_ && process_->state() != QProcess::NotRunning;
}

qint64 JobProcess::processId() const {
    return process_ ? process_->processId() : 0;
}

void JobProcess::kill() {
    if (isRunning())
        process_->kill();
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
