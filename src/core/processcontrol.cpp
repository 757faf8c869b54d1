#include "processcontrol.h"

#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include "launcherserver.h"
#include "logging.h"
#include "prompter.h"

#include <QCoreApplication>
#include <QFile>
#include <QList>
#include <QSet>
#include <QSocketNotifier>

#include <algorithm>
#include <map>

#ifdef Q_OS_UNIX
#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace quovara {

namespace {

QString baseName(const QString& path) {
    const int cut =
        std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\')));
    return path.mid(cut + 1);
}

QByteArray readProcFile(qint64 pid, const char* name) {
    QFile f(QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1String(name)));
    if (!f.open(QIODevice::ReadOnly))
        return QByteArray();
    return f.read(4096);
}

QSet<qint64>& jobGroups() {
    static QSet<qint64> groups;
    return groups;
}

// The session id of a process (field 6 of /proc/<pid>/stat), or -1.
qint64 sessionOf(qint64 pid) {
    const QByteArray stat = readProcFile(pid, "stat");
    // The command name stands in parentheses and may hold blanks: fields follow the last ')'.
    const qsizetype close = stat.lastIndexOf(')');
    if (close < 0)
        return -1;
    const QList<QByteArray> fields = stat.mid(close + 2).split(' ');
    // state, ppid, pgrp, session
    if (fields.size() < 4)
        return -1;
    bool ok = false;
    const qint64 session = fields[3].toLongLong(&ok);
    return ok ? session : -1;
}

} // namespace

void RegisterJobGroup(qint64 sessionId) {
    if (sessionId > 0)
        jobGroups().insert(sessionId);
}

void UnregisterJobGroup(qint64 sessionId) {
    jobGroups().remove(sessionId);
}

bool IsJobGroup(qint64 sessionId) {
    return jobGroups().contains(sessionId);
}

int EndAllJobs() {
    int ended = 0;
#ifdef Q_OS_UNIX
    for (const qint64 group : jobGroups()) {
        if (::kill(-static_cast<pid_t>(group), SIGKILL) == 0)
            ++ended;
        else
            qCDebug(lcRunner) << "could not end the job session" << group;
    }
#endif
    return ended;
}

#ifdef Q_OS_UNIX
namespace {
int signalPipe[2] = {-1, -1};

void onTerminationSignal(int signal) {
    // Only what is safe in a signal handler: the number goes to the event loop's side.
    const char byte = char(signal);
    if (::write(signalPipe[1], &byte, 1) != 1)
        ::_exit(128 + signal);
}
} // namespace
#endif

namespace {
std::map<int, std::function<void()>>& TerminationWork() {
    static std::map<int, std::function<void()>> work;
    return work;
}
} // namespace

void ReturnFreedMemory() {
#if defined(__GLIBC__)
    if (::malloc_trim(0) == 0)
        qCDebug(lcRunner) << "no freed memory could be returned";
#endif
}

void KeepBigBlocksReturnable() {
#if defined(__GLIBC__)
    // Setting the limit also stops the library from moving it.
    constexpr int kBigBlockBytes = 256 * 1024;
    if (::mallopt(M_MMAP_THRESHOLD, kBigBlockBytes) != 1)
        qCDebug(lcRunner) << "the C library refused the limit for mapped blocks";
#endif
}

int AddTerminationWork(std::function<void()> work) {
    static int next = 0;
    TerminationWork().emplace(++next, std::move(work));
    return next;
}

void RemoveTerminationWork(int id) {
    TerminationWork().erase(id);
}

void RunTerminationWork() {
    while (!TerminationWork().empty()) {
        auto last = std::prev(TerminationWork().end());
        const std::function<void()> work = std::move(last->second);
        TerminationWork().erase(last);
        work();
    }
}

void EndJobsOnTerminationSignals() {
#ifdef Q_OS_UNIX
    if (signalPipe[0] >= 0)
        return;
    if (::pipe2(signalPipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        qCDebug(lcRunner) << "no pipe for the termination signals";
        return;
    }
    auto* notifier =
        new QSocketNotifier(signalPipe[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, [] {
        char byte = 0;
        if (::read(signalPipe[0], &byte, 1) != 1)
            return;
        const int signal = static_cast<unsigned char>(byte);
        qCDebug(lcRunner) << "ended by signal" << signal << "; ending the jobs first";
        EndAllJobs();
        RunTerminationWork();
        LauncherServer::Shutdown();
        ::_exit(128 + signal);
    });
    struct sigaction action {};
    action.sa_handler = onTerminationSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int s : {SIGTERM, SIGINT, SIGHUP})
        if (::sigaction(s, &action, nullptr) != 0)
            qCDebug(lcRunner) << "could not watch signal" << s;
#endif
}

qint64 TerminateProcessByName(const QString& name, Prompter* prompter) {
#ifdef Q_OS_UNIX
    DIR* dir = ::opendir("/proc");
    if (!dir) {
        qCDebug(lcRunner) << "no process list";
        return 0;
    }
    QList<qint64> pids;
    while (dirent* entry = ::readdir(dir)) {
        bool ok = false;
        const qint64 pid = QByteArray(entry->d_name).toLongLong(&ok);
        if (ok && pid > 0)
            pids.append(pid);
    }
    std::sort(pids.begin(), pids.end());

    const QString wanted = name.toUpper();
    const uid_t me = ::getuid();
    const qint64 self = ::getpid();
    qint64 ended = 0;
    for (qint64 pid : pids) {
        if (pid == self)
            continue;
        struct stat st;
        const QByteArray procPath = QByteArray("/proc/") + QByteArray::number(pid);
        if (::stat(procPath.constData(), &st) != 0 || st.st_uid != me)
            continue;
        if (!IsJobGroup(sessionOf(pid)))
            continue; // not started by this program
        const QString comm = QString::fromLocal8Bit(readProcFile(pid, "comm")).trimmed();
        const QByteArray cmdline = readProcFile(pid, "cmdline");
        const QString argv0 = baseName(QString::fromLocal8Bit(cmdline.left(cmdline.indexOf('\0'))));
        if (comm.toUpper() != wanted && argv0.toUpper() != wanted)
            continue;
        if (::kill(static_cast<pid_t>(pid), SIGKILL) == 0)
            qCDebug(lcRunner) << "ended process" << pid << comm;
        else
            qCDebug(lcRunner) << "could not end process" << pid << comm;
        ended = pid;
        break;
    }
    if (::closedir(dir) != 0 && prompter)
        prompter->plain(
            QCoreApplication::translate("ProcessControl", "Couldn't terminate process"));
    return ended;
#else
    Q_UNUSED(name);
    Q_UNUSED(prompter);
    return 0;
#endif
}

void SetIdlePriority() {
#ifdef Q_OS_UNIX
    if (::setpriority(PRIO_PROCESS, 0, 19) != 0)
        qCDebug(lcRunner) << "could not lower the program's priority";
#endif
}

} // namespace quovara
