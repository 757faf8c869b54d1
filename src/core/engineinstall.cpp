#include "engineinstall.h"

#include "enginelocale.h"
#include "launcherprefix.h"

#include "enginefiles.h"
#include "jobprocess.h"
#include "logging.h"
#include "places.h"
#include "scriptexec.h"

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
        error = QStringLiteral("cannot set the permissions of %1").arg(target);
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
        run.startError =
            QStringLiteral("%1 could not be started: %2").arg(program, qt_error_string(execErrno));

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
        err << "Usage: quovara " << InstallEngineSwitch << " FILE...\n"
            << "Copies the engine files into Quovara's program folder. Expected names: " << expected
            << " (in any case).\n";
        return 1;
    }
    // Every name is checked before anything is copied.
    bool named = true;
    for (const QString& file : files) {
        const QFileInfo info(file);
        if (InstallableEngineFileName(info.fileName()).isEmpty()) {
            err << "Not an engine file: " << file << "\n"
                << "Expected names: " << expected << " (in any case).\n";
            named = false;
        } else if (!info.isFile()) {
            err << "No such file: " << file << "\n";
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
            err << "Could not copy " << file << " to " << folder << ": " << error << "\n";
            return 1;
        }
        out << "Installed " << PathStyle::host().join(folder, name) << "\n";
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
        out << "The engine runs" << (check.launcher.isEmpty() ? "" : " through ") << check.launcher
            << ": " << check.banner << "\n";
        if (!check.launcher.isEmpty()) {
            const EngineTextCodecs codecs = WindowsEngineCodecs(EngineLocale());
            out << "It runs in the wine prefix " << LauncherPrefixFolder() << " under the locale "
                << codecs.locale << ": code page " << codecs.pages.oem
                << " for its text and the names it stores, " << codecs.pages.ansi
                << " for the names it reads.\n";
            if (!LocaleInstalled(codecs.locale))
                out << LocaleMissingMessage(codecs.locale) << "\n";
        }
        if (QDir(ProgramFolder()) != QDir(folder))
            out << "Note: Quovara now uses the engine in " << ProgramFolder()
                << ", which holds a uharc.exe of its own.\n";
        return 0;
    case EngineCheck::NoEngine:
        err << "There is no uharc.exe in " << folder
            << ": Quovara needs it. Install it with: quovara " << InstallEngineSwitch
            << " /path/to/uharc.exe\n";
        return 2;
    case EngineCheck::NoLauncher:
        if (!check.output.isEmpty())
            err << check.output << "\n";
        err << "wine was not found (set QUOVARA_WINE to the launcher, or put wine on the "
               "PATH): Quovara runs the engine, a Windows program, with it.\n"
            << "On Debian, install it with:\n    " << WineInstallCommand << "\n";
        return 3;
    case EngineCheck::LauncherIncomplete:
        err << check.launcher << " cannot run the engine " << check.engine
            << ": its 32-bit part is missing.\n"
            << lastLines(check.output, 5) << "\n"
            << "On Debian, install it with:\n    " << WineInstallCommand << "\n";
        return 3;
    case EngineCheck::NoBanner:
        err << "The engine " << check.engine << " did not print its banner"
            << (check.launcher.isEmpty() ? QString() : QStringLiteral(" through ") + check.launcher)
            << ".\n";
        if (!check.output.trimmed().isEmpty())
            err << lastLines(check.output, 5) << "\n";
        return 2;
    }
    return 2;
}

} // namespace quovara
