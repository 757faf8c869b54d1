#include "launcherprefix.h"

#include "enginelocale.h"
#include "logging.h"
#include "places.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>

#ifdef Q_OS_UNIX
#include <csignal>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quovara {

namespace {

PrefixPreparingNotice& notice() {
    static PrefixPreparingNotice n;
    return n;
}

// Tells the notice for the lifetime of the object.
class PreparingShown {
public:
    PreparingShown() {
        if (notice())
            notice()(true);
    }
    ~PreparingShown() {
        if (notice())
            notice()(false);
    }
    PreparingShown(const PreparingShown&) = delete;
    PreparingShown& operator=(const PreparingShown&) = delete;
};

} // namespace

QString LauncherPrefixFolder() {
    const QString fromEnv = qEnvironmentVariable("QUOVARA_WINEPREFIX");
    if (!fromEnv.isEmpty())
        return QDir::cleanPath(fromEnv);
    QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (data.isEmpty())
        data = QDir::homePath() + QStringLiteral("/.local/share");
    return data + QStringLiteral("/quovara/wine");
}

void ApplyLauncherEnvironment(QProcessEnvironment& environment) {
    environment.insert(QStringLiteral("WINEPREFIX"), LauncherPrefixFolder());
    environment.insert(QStringLiteral("WINEARCH"), QStringLiteral("win32"));
    environment.insert(QStringLiteral("WINEDEBUG"), QStringLiteral("-all"));
    environment.insert(QStringLiteral("WINEDLLOVERRIDES"),
                       QStringLiteral("mscoree,mshtml=;winemenubuilder.exe=d"));
    environment.remove(QStringLiteral("DISPLAY"));
    environment.remove(QStringLiteral("WAYLAND_DISPLAY"));
    const QString chosen = ArchiveLocale();
    if (!chosen.isEmpty()) {
        environment.insert(QStringLiteral("LC_ALL"), chosen);
        environment.insert(QStringLiteral("LANG"), chosen);
    }
}

QProcessEnvironment LauncherEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    ApplyLauncherEnvironment(environment);
    return environment;
}

namespace {
// Written once wineboot has made the prefix: wine's own registry files appear only when its
// server writes them out, which can be long after wineboot has ended.
QString preparedMark() {
    return LauncherPrefixFolder() + QStringLiteral("/.quovara-prepared");
}
} // namespace

bool LauncherPrefixReady() {
    return QFileInfo(preparedMark()).isFile() ||
           QFileInfo(LauncherPrefixFolder() + QStringLiteral("/system.reg")).isFile();
}

void SetPrefixPreparingNotice(PrefixPreparingNotice n) {
    notice() = std::move(n);
}

QString PreparingEngineText() {
    return QCoreApplication::translate("LauncherPrefix", "Preparing the engine for its first use…");
}

bool EnsureLauncherPrefix(const QString& launcher, QString* error, int timeoutSeconds) {
    if (LauncherPrefixReady())
        return true;
    const QString prefix = LauncherPrefixFolder();
    auto fail = [&](const QString& why) {
        qCDebug(lcRunner) << "wine prefix" << prefix << "not made:" << why;
        if (error)
            *error =
                QCoreApplication::translate(
                    "LauncherPrefix", "The engine could not be prepared for its first use: %1.\n"
                                      "(wine prefix %2)")
                    .arg(why, prefix);
        return false;
    };
    // The folder above is made private to the user; wine makes the prefix itself.
    const QString parent = QFileInfo(prefix).absolutePath();
    if (!QDir().mkpath(parent))
        return fail(QCoreApplication::translate("LauncherPrefix", "the folder %1 cannot be made")
                        .arg(parent));
    QFile::setPermissions(parent,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);

    const PreparingShown shown;
    QProcess boot;
    boot.setProgram(launcher);
    boot.setArguments({QStringLiteral("wineboot"), QStringLiteral("-i")});
    boot.setProcessEnvironment(LauncherEnvironment());
    boot.setStandardInputFile(QProcess::nullDevice());
    boot.setStandardOutputFile(QProcess::nullDevice());
    boot.setStandardErrorFile(QProcess::nullDevice());
    boot.setWorkingDirectory(parent);
    QEventLoop loop;
    QObject::connect(&boot, &QProcess::finished, &loop, &QEventLoop::quit);
    QObject::connect(&boot, &QProcess::errorOccurred, &loop, [&](QProcess::ProcessError e) {
        if (e == QProcess::FailedToStart)
            loop.quit();
    });
    QTimer deadline;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, &loop, &QEventLoop::quit);
    qCDebug(lcRunner) << "making the wine prefix" << prefix;
    QElapsedTimer took;
    took.start();
    boot.start();
    if (boot.state() != QProcess::NotRunning || boot.error() != QProcess::FailedToStart) {
        deadline.start(timeoutSeconds * 1000);
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    }
    if (boot.error() == QProcess::FailedToStart)
        return fail(
            QCoreApplication::translate("LauncherPrefix", "%1 could not be started").arg(launcher));
    if (boot.state() != QProcess::NotRunning) {
        boot.kill();
        boot.waitForFinished(2000);
        return fail(QCoreApplication::translate("LauncherPrefix", "it took more than %n seconds",
                                                nullptr, timeoutSeconds));
    }
    qCDebug(lcRunner) << "wine prefix made in" << took.elapsed() << "ms, exit" << boot.exitCode();
    if (boot.exitStatus() != QProcess::NormalExit || boot.exitCode() != 0 ||
        !QFileInfo(prefix).isDir())
        return fail(QCoreApplication::translate("LauncherPrefix",
                                                "wine ended with code %1 without making it")
                        .arg(boot.exitCode()));
    QFile mark(preparedMark());
    if (!mark.open(QIODevice::WriteOnly))
        qCDebug(lcRunner) << "could not mark the prefix as made:" << mark.errorString();
    return true;
}

QList<qint64> ProcessesOfPrefix(const QString& prefix) {
    QList<qint64> found;
#ifdef Q_OS_UNIX
    const QByteArray wanted = "WINEPREFIX=" + QFile::encodeName(QDir::cleanPath(prefix));
    DIR* dir = ::opendir("/proc");
    if (!dir)
        return found;
    const uid_t me = ::getuid();
    const pid_t self = ::getpid();
    while (dirent* entry = ::readdir(dir)) {
        bool ok = false;
        const qint64 pid = QByteArray(entry->d_name).toLongLong(&ok);
        if (!ok || pid == self)
            continue;
        const QByteArray base = "/proc/" + QByteArray::number(pid);
        struct stat st;
        if (::stat(base.constData(), &st) != 0 || st.st_uid != me)
            continue;
        QFile environ(QString::fromLatin1(base + "/environ"));
        if (!environ.open(QIODevice::ReadOnly))
            continue;
        const QByteArray all = environ.readAll();
        for (const QByteArray& variable : all.split('\0')) {
            if (variable == wanted || variable == wanted + '/') {
                found << pid;
                break;
            }
        }
    }
    ::closedir(dir);
#else
    Q_UNUSED(prefix);
#endif
    return found;
}

int EndLauncherPrefixProcesses(const QString& serverProgram) {
    const QString prefix = LauncherPrefixFolder();
    if (!serverProgram.isEmpty() && QFileInfo(prefix).isDir()) {
        // The server ends every process of the prefix and then itself.
        QProcess kill;
        kill.setProgram(serverProgram);
        kill.setArguments({QStringLiteral("-k")});
        kill.setProcessEnvironment(LauncherEnvironment());
        kill.setStandardInputFile(QProcess::nullDevice());
        kill.setStandardOutputFile(QProcess::nullDevice());
        kill.setStandardErrorFile(QProcess::nullDevice());
        kill.start();
        if (!kill.waitForFinished(3000)) {
            qCDebug(lcRunner) << "wineserver -k did not end in time";
            kill.kill();
            kill.waitForFinished(1000);
        }
    }
    int killed = 0;
#ifdef Q_OS_UNIX
    // Whatever is left (a helper that lost its server, a process of a server that did not
    // answer) is ended here.
    for (const qint64 pid : ProcessesOfPrefix(prefix)) {
        if (::kill(pid_t(pid), SIGKILL) == 0)
            ++killed;
        else
            qCDebug(lcRunner) << "could not end process" << pid << "of the wine prefix";
    }
    if (killed > 0)
        qCDebug(lcRunner) << "ended" << killed << "processes left in the wine prefix";
#endif
    return killed;
}

} // namespace quovara
