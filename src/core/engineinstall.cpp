#include "engineinstall.h"

#include "enginelocale.h"
#include "launcherprefix.h"

#include "enginefiles.h"
#include "jobprocess.h"
#include "logging.h"
#include "places.h"
#include "scriptexec.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStandardPaths>
#include <QTextStream>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <string>
#include <vector>

namespace quovara {

namespace {

// What the launcher writes when its 32-bit part is missing.
const char* const kIncompleteLauncherSigns[] = {
    "wine32 is missing",    "could not load kernel32",    "Bad EXE format",
    "wine: could not exec", "cannot execute binary file",
};

// How long the check waits for the engine, in seconds (QUOVARA_ENGINE_CHECK_TIMEOUT). The
// first start of the launcher prepares its folder, which takes a while.
int checkTimeoutMs() {
    bool ok = false;
    const int seconds = qEnvironmentVariableIntValue("QUOVARA_ENGINE_CHECK_TIMEOUT", &ok);
    return (ok && seconds > 0 ? seconds : 120) * 1000;
}

bool isExecutableName(const QString& name) {
    return name.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive);
}

QFile::Permissions modeFor(const QString& name) {
    QFile::Permissions mode =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    if (isExecutableName(name))
        mode |= QFile::ExeOwner | QFile::ExeGroup | QFile::ExeOther;
    return mode;
}

// Copies `source` to folder/name through a temporary file that is renamed when complete, then
// removes every other spelling of the name, so that one file answers to it.
bool installFile(const QString& source, const QString& folder, const QString& name,
                 QString& error) {
    const QString target = PathStyle::host().join(folder, name);
    const QFileInfo from(source);
    if (from.canonicalFilePath() != QFileInfo(target).canonicalFilePath()) {
        QFile in(source);
        if (!in.open(QIODevice::ReadOnly)) {
            error = in.errorString();
            return false;
        }
        QSaveFile out(target);
        if (!out.open(QIODevice::WriteOnly)) {
            error = out.errorString();
            return false;
        }
        while (!in.atEnd()) {
            const QByteArray block = in.read(1 << 20);
            if (block.isEmpty() && in.error() != QFile::NoError) {
                error = in.errorString();
                out.cancelWriting();
                return false;
            }
            if (out.write(block) != block.size()) {
                error = out.errorString();
                out.cancelWriting();
                return false;
            }
        }
        if (!out.commit()) {
            error = out.errorString();
            return false;
        }
    }
    if (!QFile::setPermissions(target, modeFor(name))) {
        error = QCoreApplication::translate("EngineInstall", "cannot set the permissions of %1")
                    .arg(target);
        return false;
    }
    const QStringList entries = QDir(folder).entryList(QDir::Files | QDir::Hidden);
    for (const QString& entry : entries) {
        if (entry != name && entry.compare(name, Qt::CaseInsensitive) == 0 &&
            !QFile::remove(PathStyle::host().join(folder, entry)))
            qCDebug(lcFiles) << "could not remove the other spelling" << entry;
    }
    return true;
}

QString lastLines(const QString& text, int count) {
    QStringList lines;
    for (const QString& line : text.split(QRegularExpression(QStringLiteral("[\r\n]+")))) {
        if (!line.trimmed().isEmpty())
            lines << line.trimmed();
    }
    return lines.mid(qMax(0, lines.size() - count)).join(QLatin1Char('\n'));
}

} // namespace

QStringList InstallableEngineFileNames() {
    return {QStringLiteral("uharc.exe"), QStringLiteral("Uharc0.4.fns"),
            QStringLiteral("Uharc0.6.fns"), QStringLiteral("SFX.exe")};
}

QString InstallableEngineFileName(const QString& fileName) {
    for (const QString& name : InstallableEngineFileNames()) {
        if (fileName.compare(name, Qt::CaseInsensitive) == 0)
            return name;
    }
    return QString();
}

QString EngineInstallFolder() {
    QString folder = qEnvironmentVariable("QUOVARA_PROGRAM_DIR");
    if (folder.isEmpty())
        folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (folder.isEmpty())
        folder = QDir::homePath() + QStringLiteral("/.local/share/quovara");
    folder = QDir::cleanPath(folder);
    if (!QDir().mkpath(folder))
        qCDebug(lcFiles) << "could not create the program folder" << folder;
    return folder;
}

TerminalRun RunOnTerminal(const QString& program, const QStringList& arguments,
                          const QString& folder, int timeoutMs, const QByteArray& stopAfterSeen) {
    TerminalRun run;
    const int master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (master < 0 || grantpt(master) != 0 || unlockpt(master) != 0) {
        run.startError = QStringLiteral("no pseudo-terminal: %1").arg(qt_error_string(errno));
        if (master >= 0)
            ::close(master);
        return run;
    }
    char slaveName[128] = {};
    if (ptsname_r(master, slaveName, sizeof slaveName) != 0) {
        run.startError = QStringLiteral("no pseudo-terminal: %1").arg(qt_error_string(errno));
        ::close(master);
        return run;
    }
    // Everything the child needs is prepared before the fork: after it, only async-signal-safe
    // calls are made.
    std::vector<std::string> storage;
    storage.push_back(QFile::encodeName(program).toStdString());
    for (const QString& a : arguments)
        storage.push_back(a.toLocal8Bit().toStdString());
    std::vector<char*> argv;
    for (std::string& s : storage)
        argv.push_back(s.data());
    argv.push_back(nullptr);
    const std::string workingFolder = QFile::encodeName(folder).toStdString();
    int failure[2];
    if (::pipe2(failure, O_CLOEXEC) != 0) {
        run.startError = qt_error_string(errno);
        ::close(master);
        return run;
    }

    const pid_t pid = ::fork();
    if (pid < 0) {
        run.startError = qt_error_string(errno);
        ::close(master);
        ::close(failure[0]);
        ::close(failure[1]);
        return run;
    }
    if (pid == 0) {
        // The child: a session of its own with the terminal as its console and its standard
        // input, output and error; a failed exec is reported through the pipe.
        ::setsid();
        const int slave = ::open(slaveName, O_RDWR);
        if (slave >= 0) {
            ::ioctl(slave, TIOCSCTTY, 0);
            ::dup2(slave, STDIN_FILENO);
            ::dup2(slave, STDOUT_FILENO);
            ::dup2(slave, STDERR_FILENO);
            if (slave > STDERR_FILENO)
                ::close(slave);
        }
        if (!workingFolder.empty() && ::chdir(workingFolder.c_str()) != 0) {
            // The check still runs from wherever it is.
        }
        ::execv(argv[0], argv.data());
        const int code = errno;
        const ssize_t written = ::write(failure[1], &code, sizeof code);
        (void)written;
        ::_exit(127);
    }

    ::close(failure[1]);
    int execErrno = 0;
    const bool execFailed = ::read(failure[0], &execErrno, sizeof execErrno) == sizeof execErrno;
    ::close(failure[0]);
    run.started = !execFailed;
    if (execFailed)
        run.startError = QCoreApplication::translate("EngineInstall", "%1 could not be started: %2")
                             .arg(program, qt_error_string(execErrno));

    QElapsedTimer clock;
    clock.start();
    qint64 deadline = timeoutMs;
    bool seen = false;
    bool exited = false;
    bool closed = false; // the terminal reported that every writer is gone
    int status = 0;
    for (;;) {
        if (!closed) {
            pollfd fd{master, POLLIN, 0};
            const qint64 left = deadline - clock.elapsed();
            if (::poll(&fd, 1, exited ? 0 : int(std::clamp<qint64>(left, 0, 100))) > 0) {
                char buffer[4096];
                const ssize_t n = ::read(master, buffer, sizeof buffer);
                if (n > 0) {
                    run.output.append(buffer, n);
                    if (!seen && !stopAfterSeen.isEmpty() && run.output.contains(stopAfterSeen)) {
                        seen = true;
                        // A short grace time to end on its own once the awaited text is there.
                        deadline = qMin(deadline, clock.elapsed() + 3000);
                    }
                    continue;
                }
                closed = true;
            }
        } else if (!exited) {
            ::usleep(20000);
        }
        if (exited)
            break;
        // The child's end is what counts: a program it started (the launcher's server) may
        // keep the terminal open after it.
        if (::waitpid(pid, &status, WNOHANG) == pid) {
            exited = true;
            continue; // read what is left, then stop
        }
        if (clock.elapsed() >= deadline) {
            run.timedOut = !seen;
            ::kill(-pid, SIGKILL);
            ::kill(pid, SIGKILL);
            ::waitpid(pid, &status, 0);
            break;
        }
    }
    ::close(master);
    if (exited && WIFEXITED(status))
        run.exitCode = WEXITSTATUS(status);
    return run;
}

EngineCheck CheckEngine(const QString& folder, int timeoutMs) {
    EngineCheck check;
    check.engine = ResolveEngineFile(folder, QStringLiteral("uharc.exe"));
    if (check.engine.isEmpty()) {
        check.result = EngineCheck::NoEngine;
        return check;
    }
    QString program = check.engine;
    QStringList arguments;
    if (IsWindowsExecutable(check.engine)) {
        check.launcher = LauncherPath();
        if (check.launcher.isEmpty()) {
            check.result = EngineCheck::NoLauncher;
            return check;
        }
        program = check.launcher;
        arguments << ToLauncherPath(check.engine);
        // The check runs in the engine's own prefix, as every job does (a one-shot console
        // command: its own environment carries the prefix's variables to the child).
        const QProcessEnvironment launcherEnv = LauncherEnvironment();
        for (const QString& name : {QStringLiteral("DISPLAY"), QStringLiteral("WAYLAND_DISPLAY")})
            qunsetenv(name.toLocal8Bit().constData());
        for (const QString& name : launcherEnv.keys())
            qputenv(name.toLocal8Bit().constData(), launcherEnv.value(name).toLocal8Bit());
    }
    const TerminalRun run = RunOnTerminal(program, arguments, folder, timeoutMs, "UHARC");
    check.output = QString::fromLocal8Bit(run.output);
    if (!run.started) {
        check.output = run.startError;
        // A launcher that cannot be started is as good as none.
        check.result = check.launcher.isEmpty() ? EngineCheck::NoBanner : EngineCheck::NoLauncher;
        return check;
    }
    // The console's title ("ESC ] 0 ; UHARC BEL") is no banner: escape sequences are dropped.
    QString plain = check.output;
    plain.remove(QRegularExpression(QStringLiteral("\x1b\\][^\x07]*\x07|\x1b\\[[0-9;?]*[A-Za-z]")));
    for (const QString& line : plain.split(QRegularExpression(QStringLiteral("[\r\n]+")))) {
        if (line.contains(QLatin1String("UHARC"))) {
            check.banner = line.trimmed();
            check.result = EngineCheck::Runs;
            return check;
        }
    }
    check.result = EngineCheck::NoBanner;
    if (!check.launcher.isEmpty()) {
        for (const char* sign : kIncompleteLauncherSigns) {
            if (check.output.contains(QLatin1String(sign), Qt::CaseInsensitive))
                check.result = EngineCheck::LauncherIncomplete;
        }
    }
    return check;
}

int InstallEngineCommand(const QStringList& files, QTextStream& out, QTextStream& err) {
    const QString expected = InstallableEngineFileNames().join(QStringLiteral(", "));
    if (files.isEmpty()) {
        err << QCoreApplication::translate("EngineInstall",
                                           "Usage: quovara %1 FILE...\n"
                                           "Copies the engine files into Quovara's program "
                                           "folder. Expected names: %2 (in any case).\n")
                   .arg(QLatin1String(InstallEngineSwitch), expected);
        return 1;
    }
    // Every name is checked before anything is copied.
    bool named = true;
    for (const QString& file : files) {
        const QFileInfo info(file);
        if (InstallableEngineFileName(info.fileName()).isEmpty()) {
            err << QCoreApplication::translate("EngineInstall",
                                               "Not an engine file: %1\n"
                                               "Expected names: %2 (in any case).\n")
                       .arg(file, expected);
            named = false;
        } else if (!info.isFile()) {
            err << QCoreApplication::translate("EngineInstall", "No such file: %1\n").arg(file);
            named = false;
        }
    }
    if (!named)
        return 1;

    const QString folder = EngineInstallFolder();
    for (const QString& file : files) {
        const QString name = InstallableEngineFileName(QFileInfo(file).fileName());
        QString error;
        if (!installFile(file, folder, name, error)) {
            err << QCoreApplication::translate("EngineInstall", "Could not copy %1 to %2: %3\n")
                       .arg(file, folder, error);
            return 1;
        }
        out << QCoreApplication::translate("EngineInstall", "Installed %1\n")
                   .arg(PathStyle::host().join(folder, name));
    }
    out.flush();

    // A Windows engine runs in a wine prefix of Quovara's own, made here at once so that the
    // first archive opened does not wait for it.
    const QString engine = ResolveEngineFile(folder, QStringLiteral("uharc.exe"));
    const QString launcher = LauncherPath();
    if (!engine.isEmpty() && IsWindowsExecutable(engine) && !launcher.isEmpty() &&
        !LauncherPrefixReady()) {
        out << PreparingEngineText() << " (" << LauncherPrefixFolder() << ")\n";
        out.flush();
        // A launcher that cannot make it is told about; the check below says what to do.
        QString why;
        if (!EnsureLauncherPrefix(launcher, &why, std::max(1, checkTimeoutMs() / 1000)))
            err << why << "\n";
    }

    const EngineCheck check = CheckEngine(folder, checkTimeoutMs());
    switch (check.result) {
    case EngineCheck::Runs:
        if (check.launcher.isEmpty())
            out << QCoreApplication::translate("EngineInstall", "The engine runs: %1\n")
                       .arg(check.banner);
        else
            out << QCoreApplication::translate("EngineInstall", "The engine runs through %1: %2\n")
                       .arg(check.launcher, check.banner);
        if (!check.launcher.isEmpty()) {
            const EngineTextCodecs codecs = WindowsEngineCodecs(EngineLocale());
            out << QCoreApplication::translate(
                       "EngineInstall",
                       "It runs in the wine prefix %1 under the locale %2: code page %3 for its "
                       "text and the names it stores, %4 for the names it reads.\n")
                       .arg(LauncherPrefixFolder(), codecs.locale,
                            QString::number(codecs.pages.oem), QString::number(codecs.pages.ansi));
            if (!LocaleInstalled(codecs.locale))
                out << LocaleMissingMessage(codecs.locale) << "\n";
        }
        if (QDir(ProgramFolder()) != QDir(folder))
            out << QCoreApplication::translate("EngineInstall",
                                               "Note: Quovara now uses the engine in %1, which "
                                               "holds a uharc.exe of its own.\n")
                       .arg(ProgramFolder());
        return 0;
    case EngineCheck::NoEngine:
        err << QCoreApplication::translate("EngineInstall",
                                           "There is no uharc.exe in %1: Quovara needs it. "
                                           "Install it with: quovara %2 /path/to/uharc.exe\n")
                   .arg(folder, QLatin1String(InstallEngineSwitch));
        return 2;
    case EngineCheck::NoLauncher:
        if (!check.output.isEmpty())
            err << check.output << "\n";
        err << QCoreApplication::translate(
                   "EngineInstall",
                   "wine was not found (set QUOVARA_WINE to the launcher, or put wine on the "
                   "PATH): Quovara runs the engine, a Windows program, with it.\n"
                   "On Debian, install it with:\n    %1\n")
                   .arg(QLatin1String(WineInstallCommand));
        return 3;
    case EngineCheck::LauncherIncomplete:
        err << QCoreApplication::translate("EngineInstall",
                                           "%1 cannot run the engine %2: its 32-bit part is "
                                           "missing.\n")
                   .arg(check.launcher, check.engine)
            << lastLines(check.output, 5) << "\n"
            << QCoreApplication::translate("EngineInstall", "On Debian, install it with:\n    %1\n")
                   .arg(QLatin1String(WineInstallCommand));
        return 3;
    case EngineCheck::NoBanner:
        if (check.launcher.isEmpty())
            err << QCoreApplication::translate("EngineInstall",
                                               "The engine %1 did not print its banner.\n")
                       .arg(check.engine);
        else
            err << QCoreApplication::translate("EngineInstall",
                                               "The engine %1 did not print its banner through "
                                               "%2.\n")
                       .arg(check.engine, check.launcher);
        if (!check.output.trimmed().isEmpty())
            err << lastLines(check.output, 5) << "\n";
        return 2;
    }
    return 2;
}

} // namespace quovara
