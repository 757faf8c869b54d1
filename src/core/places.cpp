#include "places.h"

#include "enginefiles.h"
#include "logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#ifdef Q_OS_UNIX
#include <atomic>
#include <cerrno>
#include <chrono>
#include <condition_variable>
#include <cstring>
#include <deque>
#include <mutex>
#include <pwd.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>
#include <vector>
#endif

namespace quovara {

PathStyle PathStyle::host() {
#ifdef Q_OS_WIN
    return PathStyle{QLatin1Char('\\')};
#else
    return PathStyle{QLatin1Char('/')};
#endif
}

PathStyle PathStyle::windows() {
    return PathStyle{QLatin1Char('\\')};
}

namespace {

#ifdef Q_OS_UNIX
// A problem sentence of the "Places" context with the system's reason for the last failed call
// (errno, read before anything else can change it) in place of %1.
QString systemProblem(const char* sentence) {
    const QString reason = QString::fromLocal8Bit(std::strerror(errno));
    return QCoreApplication::translate("Places", sentence).arg(reason);
}

QString currentUserName() {
    const uid_t uid = ::geteuid();
    long size = ::sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(size > 0 ? size_t(size) : 16384);
    struct passwd pw;
    struct passwd* result = nullptr;
    if (::getpwuid_r(uid, &pw, buffer.data(), buffer.size(), &result) == 0 && result)
        return QFile::decodeName(result->pw_name);
    return QString();
}
#endif

} // namespace

QString PrivateTempFolderName(const QString& userName, uint uid) {
    const bool usable = !userName.isEmpty() && !userName.contains(QLatin1Char('/')) &&
                        !userName.contains(QLatin1Char('\\')) && userName != QLatin1String(".") &&
                        userName != QLatin1String("..");
    return QStringLiteral("quovara-") + (usable ? userName : QString::number(uid));
}

QString TempRoot() {
#ifdef Q_OS_UNIX
    const QString fromEnv = qEnvironmentVariable("TMPDIR");
    if (!fromEnv.isEmpty())
        return QDir::toNativeSeparators(QDir::cleanPath(fromEnv));
    // The system temporary folder is shared by every user: each user gets a private folder of
    // their own inside it, as long-lived tools do.
    const QString root =
        PathStyle::host().join(QDir::toNativeSeparators(QDir::tempPath()),
                               PrivateTempFolderName(currentUserName(), uint(::geteuid())));
    const QString problem = PrivateFolderProblem(root, true);
    if (!problem.isEmpty())
        qCDebug(lcFiles) << "the private temporary folder" << root << "cannot be used:" << problem;
    return root;
#else
    return QDir::toNativeSeparators(QDir::tempPath());
#endif
}

QString PrivateFolderProblem(const QString& folder, bool create) {
#ifdef Q_OS_UNIX
    const QByteArray path = QFile::encodeName(folder);
    struct stat st;
    if (::lstat(path.constData(), &st) != 0) {
        if (errno != ENOENT || !create)
            return systemProblem(QT_TRANSLATE_NOOP("Places", "it cannot be reached (%1)"));
        if (::mkdir(path.constData(), 0700) != 0 && errno != EEXIST)
            return systemProblem(QT_TRANSLATE_NOOP("Places", "it cannot be created (%1)"));
        if (::lstat(path.constData(), &st) != 0)
            return systemProblem(QT_TRANSLATE_NOOP("Places", "it cannot be reached (%1)"));
    }
    if (S_ISLNK(st.st_mode))
        return QCoreApplication::translate("Places", "it is a symbolic link");
    if (!S_ISDIR(st.st_mode))
        return QCoreApplication::translate("Places", "it is not a folder");
    if (st.st_uid != ::geteuid())
        return QCoreApplication::translate("Places", "it belongs to another user");
    if ((st.st_mode & 077) != 0)
        return QCoreApplication::translate("Places", "other users have access to it (mode %1)")
            .arg(st.st_mode & 07777, 4, 8, QLatin1Char('0'));
    return QString();
#else
    if (!QFileInfo(folder).isDir() && !(create && QDir().mkpath(folder)))
        return QCoreApplication::translate("Places", "it cannot be created");
    return QString();
#endif
}

QString WorkFolderMessage(const QString& folder, const QString& problem) {
    return QCoreApplication::translate(
               "Places", "Quovara cannot use its work folder\n%1\nbecause %2.\n"
                         "Nothing is written there, and no job runs until this is put right.")
        .arg(folder, problem);
}

QString EnsurePrivateWorkFolder() {
    const QString work = WorkFolder();
#ifdef Q_OS_UNIX
    // The private TempRoot first (when TMPDIR is not set): a folder someone else made in its
    // place would let them reach into ours.
    if (qEnvironmentVariable("TMPDIR").isEmpty()) {
        const QString root = TempRoot();
        const QString problem = PrivateFolderProblem(root, true);
        if (!problem.isEmpty())
            return WorkFolderMessage(root, problem);
    }
#endif
    const QString problem = PrivateFolderProblem(work, true);
    return problem.isEmpty() ? QString() : WorkFolderMessage(work, problem);
}

QString WorkFolder() {
    return PathStyle::host().join(TempRoot(), names::WorkFolderName);
}

QString ScratchFolder() {
    return PathStyle::host().join(WorkFolder(), names::ScratchFolderName);
}

QString WorkFile(const char* name) {
    return PathStyle::host().join(WorkFolder(), QString::fromLatin1(name));
}

namespace {

// The program folder and whether it is the per-user data folder (the one place that is made
// when missing).
QString FindProgramFolder(bool* perUserFolder) {
    *perUserFolder = false;
    const QString fromEnv = qEnvironmentVariable("QUOVARA_PROGRAM_DIR");
    if (!fromEnv.isEmpty())
        return QDir::toNativeSeparators(QDir::cleanPath(fromEnv));
    const QString exeDir = QCoreApplication::applicationDirPath();
    if (!exeDir.isEmpty() && !ResolveEngineFile(exeDir, QStringLiteral("uharc.exe")).isEmpty())
        return QDir::toNativeSeparators(exeDir);
    *perUserFolder = true;
    QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (data.isEmpty())
        data = QDir::homePath() + QStringLiteral("/.local/share/quovara");
    return QDir::toNativeSeparators(data);
}

} // namespace

QString ProgramFolder() {
    bool perUserFolder = false;
    const QString folder = FindProgramFolder(&perUserFolder);
    if (perUserFolder && !QDir().mkpath(folder))
        qCDebug(lcFiles) << "could not create the program folder" << folder;
    return folder;
}

QString ProgramFolderPath() {
    bool perUserFolder = false;
    return FindProgramFolder(&perUserFolder);
}

namespace {

// Deletes folders moved aside, one at a time on one worker thread. While a mirror tree is
// being made the worker holds off between two files, so that the new tree never competes
// with the deletion of an old one for the disk.
class AsideDeleter {
public:
    static AsideDeleter& instance() {
        // Never destroyed: a detached worker may still use it while the program ends; what
        // it leaves undeleted is found and deleted at the next start-up.
        static auto* deleter = new AsideDeleter;
        return *deleter;
    }

    // `notBefore`: the deleting waits that long (at start-up, so that the window is built and
    // shown with the disk to itself).
    void add(const QStringList& folders,
             std::chrono::milliseconds notBefore = std::chrono::milliseconds(0)) {
        std::lock_guard<std::mutex> lock(mutex_);
        for (const QString& folder : folders)
            queue_.push_back(folder);
        startAt_ = std::max(startAt_, std::chrono::steady_clock::now() + notBefore);
        if (!running_) {
            running_ = true;
            std::thread([this] { work(); }).detach();
        }
    }

    void hold() {
        std::lock_guard<std::mutex> lock(mutex_);
        ++holds_;
    }

    void release() {
        {
            std::lock_guard<std::mutex> lock(mutex_);
            if (holds_ > 0)
                --holds_;
        }
        resumed_.notify_all();
    }

private:
    void work() {
        for (;;) {
            QString folder;
            {
                std::lock_guard<std::mutex> lock(mutex_);
                if (queue_.empty()) {
                    running_ = false;
                    return;
                }
                folder = queue_.front();
                queue_.pop_front();
            }
            if (!removeTree(folder))
                qCDebug(lcFiles) << "could not delete the folder moved aside" << folder;
        }
    }

    void waitWhileHeld() {
        std::unique_lock<std::mutex> lock(mutex_);
        // Not a spin: the thread sleeps until the time has come or a hold is released.
        while (std::chrono::steady_clock::now() < startAt_)
            resumed_.wait_until(lock, startAt_);
        resumed_.wait(lock, [this] { return holds_ == 0; });
    }

    // Deletes `folder` and everything below it; links are removed, never followed.
    bool removeTree(const QString& folder) {
        bool ok = true;
        QDirIterator it(folder,
                        QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
        while (it.hasNext()) {
            it.next();
            const QFileInfo entry = it.fileInfo();
            if (entry.isDir() && !entry.isSymLink()) {
                ok = removeTree(entry.filePath()) && ok;
                continue;
            }
            waitWhileHeld();
            if (!QFile::remove(entry.filePath())) {
                // A read-only file: made writable first, as a desktop's delete would.
                QFile::setPermissions(entry.filePath(), entry.permissions() | QFile::WriteOwner);
                if (!QFile::remove(entry.filePath())) {
                    qCDebug(lcFiles) << "could not delete" << entry.filePath();
                    ok = false;
                }
            }
        }
        if (!QDir().rmdir(folder)) {
            qCDebug(lcFiles) << "could not delete the folder" << folder;
            ok = false;
        }
        return ok;
    }

    std::mutex mutex_;
    std::condition_variable resumed_;
    std::deque<QString> queue_;
    bool running_ = false;
    int holds_ = 0;
    std::chrono::steady_clock::time_point startAt_;
};

} // namespace

BackgroundDeletesHeld::BackgroundDeletesHeld() {
    AsideDeleter::instance().hold();
}

BackgroundDeletesHeld::~BackgroundDeletesHeld() {
    AsideDeleter::instance().release();
}

namespace {

// Renames `folder` beside itself for deleting; empty when it could not be moved.
QString MoveAside(const QString& folder) {
    // Folders are moved aside from more than one thread (the listing's worker, the window's).
    static std::atomic<int> generation = 0;
    const QString aside =
        folder +
        QStringLiteral(".old-%1-%2").arg(QCoreApplication::applicationPid()).arg(++generation);
    if (QDir().rename(folder, aside))
        return aside;
    qCDebug(lcFiles) << "could not move" << folder << "aside";
    return QString();
}

} // namespace

bool MoveAsideAndDelete(const QString& folder) {
    const QFileInfo info(folder);
    if (!info.isDir() || info.isSymLink())
        return true;
    const QString aside = MoveAside(folder);
    if (!aside.isEmpty()) {
        AsideDeleter::instance().add({aside});
        return true;
    }
    return QDir(folder).removeRecursively();
}

void CleanWorkFolder() {
    const QString work = WorkFolder();
    QFileInfo info(work);
    if (info.isSymLink()) {
        // Never follow a link planted where the WorkFolder belongs: remove the link itself.
        if (!QFile::remove(work))
            qCDebug(lcFiles) << "could not remove the link" << work;
        return;
    }
    // The previous session's work folder (its mirror tree can hold many thousands of
    // placeholders) is moved aside at once and deleted in the background, together with any
    // such folder of ours that an earlier session left half-deleted: start-up never waits.
    const QDir root(QFileInfo(work).absolutePath());
    const QString prefix = QFileInfo(work).fileName() + QStringLiteral(".old-");
    QStringList leftovers;
    for (const QFileInfo& old : root.entryInfoList({prefix + QLatin1Char('*')},
                                                   QDir::Dirs | QDir::Hidden | QDir::NoSymLinks)) {
#ifdef Q_OS_UNIX
        if (old.ownerId() != ::geteuid())
            continue; // someone else's: never touched
#endif
        leftovers << old.absoluteFilePath();
    }
    // Deleting starts a little later: the window is built and shown first.
    constexpr std::chrono::milliseconds kAfterStartUp(3000);
    if (info.isDir()) {
        const QString aside = MoveAside(work);
        if (aside.isEmpty()) {
            if (!QDir(work).removeRecursively())
                qCDebug(lcFiles) << "could not delete the work folder completely" << work;
        } else {
            leftovers << aside;
        }
    }
    if (!leftovers.isEmpty())
        AsideDeleter::instance().add(leftovers, kAfterStartUp);
}

void MakeDir(const QString& path) {
    if (QFileInfo(path).isDir())
        return;
#ifdef Q_OS_UNIX
    // Folders of ours are private to the user (mode 0700).
    if (::mkdir(QFile::encodeName(path).constData(), 0700) != 0)
        qCDebug(lcFiles) << "could not create folder" << path << std::strerror(errno);
#else
    if (!QDir().mkdir(path))
        qCDebug(lcFiles) << "could not create folder" << path;
#endif
}

bool FileExists(const QString& path) {
    if (path.isEmpty())
        return false;
    QFileInfo info(path);
    if (!info.exists() || !info.isFile()) {
        // Engine file names answer to every spelling of their case.
        const QString resolved = ResolveEngineFile(info.absolutePath(), info.fileName());
        if (resolved.isEmpty())
            return false;
        info = QFileInfo(resolved);
    }
    return info.isFile() && info.size() > 0;
}

QString LongPath(const QString& path) {
    QFileInfo info(path);
    if (!info.exists())
        return QString();
    return QDir::toNativeSeparators(info.absoluteFilePath());
}

} // namespace quovara
