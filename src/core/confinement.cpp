#include "confinement.h"

#include "logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <linux/landlock.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace quovara {

bool IsExtractionJob(const QStringList& arguments) {
    if (arguments.size() < 2)
        return false;
    const QString command = arguments.at(1).toLower();
    return command == QLatin1String("e") || command == QLatin1String("x");
}

bool IsAddJob(const QStringList& arguments) {
    if (arguments.size() < 2)
        return false;
    const QString command = arguments.at(1).toLower();
    return command == QLatin1String("a") || command == QLatin1String("m");
}

qsizetype ExtractionTargetIndex(const QStringList& arguments) {
    for (qsizetype i = 2; i < arguments.size(); ++i) {
        const QString& a = arguments.at(i);
        if (a.size() > 2 && a.startsWith(QLatin1String("-t"), Qt::CaseInsensitive))
            return i;
    }
    return -1;
}

QStringList StrayFoldersOfExclusions(const QStringList& arguments, const QString& destination) {
    QStringList folders;
    for (qsizetype i = 2; i < arguments.size(); ++i) {
        const QString& a = arguments.at(i);
        if (!a.startsWith(QLatin1Char('!')) || a.contains(QLatin1Char('*')) ||
            a.contains(QLatin1Char('?')))
            continue;
        QStringList parts = a.mid(1).split(QRegularExpression(QStringLiteral("[\\\\/]")));
        if (!parts.isEmpty() && parts.front().size() >= 2 && parts.front()[1] == QLatin1Char(':'))
            parts.front() = parts.front().mid(2); // a drive is dropped under a target
        parts.removeLast();                       // the file itself
        // Every folder the path goes through is made, also one it climbs out of again.
        QStringList at;
        for (const QString& p : parts) {
            if (p.isEmpty() || p == QLatin1String("."))
                continue;
            if (p == QLatin1String("..")) {
                if (!at.isEmpty())
                    at.removeLast(); // never above the root
                continue;
            }
            at << p;
            const QString folder = destination + QLatin1Char('/') + at.join(QLatin1Char('/'));
            if (!folders.contains(folder) && !QFileInfo::exists(folder))
                folders << folder;
        }
    }
    return folders;
}

void RemoveStrayFolders(const QStringList& folders) {
    for (auto it = folders.crbegin(); it != folders.crend(); ++it) {
        // rmdir removes an empty folder only, and never follows a link.
        if (QFileInfo(*it).isDir() && !QFileInfo(*it).isSymLink() && !QDir().rmdir(*it))
            qCDebug(lcRunner) << "a folder the engine made is not empty, it stays:" << *it;
    }
}

LauncherDrive::~LauncherDrive() {
    remove();
}

bool LauncherDrive::make(const QString& prefix, const QString& folder, QString* error) {
    remove();
    const QString target = QDir::cleanPath(QFileInfo(folder).absoluteFilePath());
    // The engine makes a missing target folder itself; the drive needs it first.
    if (!QFileInfo(target).isDir() && !QDir().mkpath(target))
        qCDebug(lcRunner) << "could not make the destination" << target;
    if (!QFileInfo(target).isDir()) {
        if (error)
            *error =
                QCoreApplication::translate("Confinement", "the destination %1 is not a folder")
                    .arg(folder);
        return false;
    }
    const QString devices = prefix + QStringLiteral("/dosdevices");
    if (!QDir().mkpath(devices)) {
        if (error)
            *error = QCoreApplication::translate("Confinement", "cannot make the folder %1")
                         .arg(devices);
        return false;
    }
#ifdef Q_OS_UNIX
    // From Y down to D: A and B were floppies, C is the prefix's own, Z the whole file system.
    for (char l = 'y'; l >= 'd'; --l) {
        const QByteArray base = QFile::encodeName(devices) + '/' + l + ':';
        struct stat st;
        if (::lstat((base + ':').constData(), &st) == 0)
            continue; // the letter names a device
        // symlink() never replaces what stands: a letter taken meanwhile is skipped.
        if (::symlink(QFile::encodeName(target).constData(), base.constData()) == 0) {
            link_ = QFile::decodeName(base);
            letter_ = static_cast<char>(l - 'a' + 'A');
            qCDebug(lcRunner) << "drive" << root() << "is" << target;
            return true;
        }
        if (errno != EEXIST) {
            const QString reason = QString::fromLocal8Bit(std::strerror(errno));
            if (error)
                *error = QCoreApplication::translate("Confinement", "cannot link a drive to %1: %2")
                             .arg(target, reason);
            return false;
        }
    }
#endif
    if (error)
        *error = QCoreApplication::translate("Confinement",
                                             "no drive letter of the engine's prefix is free");
    return false;
}

QString LauncherDrive::root() const {
    return letter_ ? QString(QLatin1Char(letter_)) + QStringLiteral(":\\") : QString();
}

void LauncherDrive::remove() {
    if (link_.isEmpty())
        return;
#ifdef Q_OS_UNIX
    // unlink removes the link itself, never the folder it points to.
    if (::unlink(QFile::encodeName(link_).constData()) != 0)
        qCDebug(lcRunner) << "could not remove the drive link" << link_;
#endif
    link_.clear();
    letter_ = 0;
}

int MakeWriteConfinement(const QString& folder, QString* error) {
#ifdef Q_OS_LINUX
    const long abi =
        ::syscall(SYS_landlock_create_ruleset, nullptr, 0, LANDLOCK_CREATE_RULESET_VERSION);
    if (abi < 1) {
        if (error)
            *error = QCoreApplication::translate("Confinement", "this system has no Landlock");
        return -1;
    }
    __u64 handled = LANDLOCK_ACCESS_FS_WRITE_FILE | LANDLOCK_ACCESS_FS_REMOVE_DIR |
                    LANDLOCK_ACCESS_FS_REMOVE_FILE | LANDLOCK_ACCESS_FS_MAKE_CHAR |
                    LANDLOCK_ACCESS_FS_MAKE_DIR | LANDLOCK_ACCESS_FS_MAKE_REG |
                    LANDLOCK_ACCESS_FS_MAKE_SOCK | LANDLOCK_ACCESS_FS_MAKE_FIFO |
                    LANDLOCK_ACCESS_FS_MAKE_BLOCK | LANDLOCK_ACCESS_FS_MAKE_SYM;
#ifdef LANDLOCK_ACCESS_FS_REFER
    if (abi >= 2)
        handled |= LANDLOCK_ACCESS_FS_REFER;
#endif
#ifdef LANDLOCK_ACCESS_FS_TRUNCATE
    if (abi >= 3)
        handled |= LANDLOCK_ACCESS_FS_TRUNCATE;
#endif
    landlock_ruleset_attr attr{};
    attr.handled_access_fs = handled;
    const int ruleset =
        static_cast<int>(::syscall(SYS_landlock_create_ruleset, &attr, sizeof attr, 0));
    if (ruleset < 0) {
        const QString reason = QString::fromLocal8Bit(std::strerror(errno));
        if (error)
            *error =
                QCoreApplication::translate("Confinement", "cannot make a Landlock rule set: %1")
                    .arg(reason);
        return -1;
    }
    const int dir = ::open(QFile::encodeName(folder).constData(), O_PATH | O_DIRECTORY | O_CLOEXEC);
    landlock_path_beneath_attr beneath{};
    beneath.allowed_access = handled;
    beneath.parent_fd = dir;
    if (dir < 0 ||
        ::syscall(SYS_landlock_add_rule, ruleset, LANDLOCK_RULE_PATH_BENEATH, &beneath, 0) != 0) {
        const QString reason = QString::fromLocal8Bit(std::strerror(errno));
        if (error)
            *error = QCoreApplication::translate("Confinement", "cannot confine the job to %1: %2")
                         .arg(folder, reason);
        if (dir >= 0)
            ::close(dir);
        ::close(ruleset);
        return -1;
    }
    ::close(dir);
    return ruleset;
#else
    Q_UNUSED(folder);
    if (error)
        *error = QCoreApplication::translate("Confinement", "this system has no Landlock");
    return -1;
#endif
}

bool ApplyWriteConfinement(int rulesetFd) {
#ifdef Q_OS_LINUX
    if (rulesetFd < 0)
        return false;
    if (::prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0)
        return false;
    return ::syscall(SYS_landlock_restrict_self, rulesetFd, 0) == 0;
#else
    Q_UNUSED(rulesetFd);
    return false;
#endif
}

} // namespace quovara
