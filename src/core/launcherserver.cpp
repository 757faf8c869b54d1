#include "launcherserver.h"

#include "launcherprefix.h"
#include "logging.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#ifdef Q_OS_LINUX
#include <csignal>
#include <sys/prctl.h>
#endif

namespace quovara {

namespace {

// How long the server waits for a new client after the last one has gone: long enough to
// bridge the pauses of a working session, short enough not to linger.
constexpr int kPersistSeconds = 600;

QProcess*& server() {
    static QProcess* process = nullptr;
    return process;
}

// Whether a launcher was used in this session, and its server program (empty when none).
bool& launcherUsed() {
    static bool used = false;
    return used;
}
QString& usedServer() {
    static QString program;
    return program;
}

} // namespace

QString LauncherServer::ServerFor(const QString& launcher) {
    const QString fromEnv = qEnvironmentVariable("QUOVARA_WINESERVER");
    if (!fromEnv.isEmpty())
        return QFileInfo(fromEnv).isExecutable() ? fromEnv
                                                 : QStandardPaths::findExecutable(fromEnv);
    if (!launcher.isEmpty()) {
        const QFileInfo beside(QFileInfo(launcher).absolutePath() + QStringLiteral("/wineserver"));
        if (beside.isExecutable())
            return beside.filePath();
    }
    return QStandardPaths::findExecutable(QStringLiteral("wineserver"));
}

void LauncherServer::EnsureRunning(const QString& launcher) {
    QProcess*& p = server();
    if (p && p->state() != QProcess::NotRunning)
        return;
    const QString program = ServerFor(launcher);
    launcherUsed() = true;
    usedServer() = program;
    if (program.isEmpty()) {
        qCDebug(lcRunner) << "no launcher server found; every job starts its own";
        return;
    }
    if (!p) {
        p = new QProcess();
        // Gone with the application object at the latest.
        if (QCoreApplication::instance())
            QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit,
                             [] { Shutdown(); });
    }
    p->setProgram(program);
    p->setArguments({QStringLiteral("-f"), QStringLiteral("-p%1").arg(kPersistSeconds)});
    // The prefix of the engine's own, with the locale the engine runs under.
    p->setProcessEnvironment(LauncherEnvironment());
    p->setStandardInputFile(QProcess::nullDevice());
    p->setStandardOutputFile(QProcess::nullDevice());
    p->setStandardErrorFile(QProcess::nullDevice());
#ifdef Q_OS_LINUX
    p->setChildProcessModifier([] {
        // The server must not outlive this program, whatever way it ends.
        ::prctl(PR_SET_PDEATHSIG, SIGTERM);
    });
#endif
    p->start();
    if (!p->waitForStarted(5000)) {
        qCDebug(lcRunner) << "the launcher server" << program
                          << "did not start:" << p->errorString();
        return;
    }
    qCDebug(lcRunner) << "launcher server started:" << program << p->processId();
}

void LauncherServer::Shutdown() {
    // Every process started in the prefix ends with the program: the engine, wine's helpers
    // and the server.
    if (launcherUsed()) {
        EndLauncherPrefixProcesses(usedServer());
        launcherUsed() = false;
    }
    QProcess*& p = server();
    if (!p)
        return;
    if (p->state() != QProcess::NotRunning) {
        p->terminate();
        if (!p->waitForFinished(3000)) {
            qCDebug(lcRunner) << "the launcher server did not end on request; killing it";
            p->kill();
            p->waitForFinished(2000);
        }
    }
    delete p;
    p = nullptr;
}

qint64 LauncherServer::ProcessId() {
    QProcess* p = server();
    return p && p->state() != QProcess::NotRunning ? p->processId() : 0;
}

} // namespace quovara
