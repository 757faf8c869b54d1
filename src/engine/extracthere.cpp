#include "extracthere.h"

#include "core/logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cerrno>
#include <cstring>

#ifdef Q_OS_UNIX
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#endif

namespace quovara {

namespace {

constexpr int kMostNumbers = 9999;

QString numbered(const QString& name, int n, bool isFile) {
    if (n < 2)
        return name;
    const qsizetype dot = isFile ? name.lastIndexOf(QLatin1Char('.')) : -1;
    if (dot > 0)
        return name.left(dot) + QStringLiteral(" (%1)").arg(n) + name.mid(dot);
    return name + QStringLiteral(" (%1)").arg(n);
}

bool exists(const QString& path) {
    // A dangling link counts as taken too.
    return QFileInfo(path).exists() || QFileInfo(path).isSymLink();
}

// Moves `from` to `to` only when nothing stands at `to`; false (errno EEXIST) when something
// does, also when it appeared after the last look.
bool moveWithoutReplacing(const QString& from, const QString& to, int* error) {
#ifdef Q_OS_LINUX
    if (::renameat2(AT_FDCWD, QFile::encodeName(from).constData(), AT_FDCWD,
                    QFile::encodeName(to).constData(), RENAME_NOREPLACE) == 0)
        return true;
    *error = errno;
    if (*error != EINVAL && *error != ENOSYS)
        return false;
        // A file system without the no-replace move: look, then move.
#endif
    if (exists(to)) {
        *error = EEXIST;
        return false;
    }
    if (QDir().rename(from, to))
        return true;
    *error = EIO;
    return false;
}

} // namespace

QString FreeName(const QString& folder, const QString& name, bool isFile) {
    for (int n = 1; n <= kMostNumbers; ++n) {
        const QString candidate = numbered(name, n, isFile);
        if (!exists(QDir(folder).filePath(candidate)))
            return candidate;
    }
    return QString();
}

QString ArchiveBaseName(const QString& archivePath) {
    const QString name = QFileInfo(archivePath).fileName();
    const qsizetype dot = name.lastIndexOf(QLatin1Char('.'));
    return dot > 0 ? name.left(dot) : name;
}

QString MakeExtractStaging(const QString& archivePath, QString* problem) {
    const QString folder = QFileInfo(archivePath).absolutePath();
    QTemporaryDir staging(QDir(folder).filePath(QStringLiteral(".quovara-extract-XXXXXX")));
    if (!staging.isValid()) {
        if (problem)
            *problem = QCoreApplication::translate("ExtractHere",
                                                   "the folder %1 cannot be written to (%2)")
                           .arg(QDir::toNativeSeparators(folder), staging.errorString());
        return QString();
    }
    staging.setAutoRemove(false);
    return staging.path();
}

PlacedExtraction MoveToFreeName(const QString& from, const QString& folder,
                                const std::function<QString(int)>& nameFor) {
    PlacedExtraction result;
    // A name taken between the look and the move is never replaced: the next free one is tried.
    for (int n = 1; n <= kMostNumbers; ++n) {
        const QString name = nameFor(n);
        const QString to = QDir(folder).filePath(name);
        if (exists(to))
            continue;
        int error = 0;
        if (moveWithoutReplacing(from, to, &error)) {
            result.ok = true;
            result.placedPath = to;
            return result;
        }
        if (error != EEXIST) {
            result.problem =
                QCoreApplication::translate("ExtractHere", "it could not be moved to %1 (%2)")
                    .arg(QDir::toNativeSeparators(to),
                         QString::fromLocal8Bit(std::strerror(error)));
            return result;
        }
    }
    result.problem =
        QCoreApplication::translate("ExtractHere", "no free name was found for %1").arg(nameFor(1));
    return result;
}

PlacedExtraction PlaceExtraction(const QString& staging, const QString& archivePath) {
    const QString folder = QFileInfo(archivePath).absolutePath();
    const QStringList top = QDir(staging).entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                                    QDir::NoDotAndDotDot);
    // One top-level folder or one file stays as it is; anything else gets a folder of its own:
    // the staging folder itself, under the archive's name.
    const bool asItIs = top.size() == 1;
    const QString from = asItIs ? QDir(staging).filePath(top.first()) : staging;
    const QString wanted = asItIs ? top.first() : ArchiveBaseName(archivePath);
    const bool isFile = asItIs && !QFileInfo(from).isDir();
    PlacedExtraction result =
        MoveToFreeName(from, folder, [&](int n) { return numbered(wanted, n, isFile); });
    if (result.ok && !asItIs) {
        // The staging folder was made private; the folder it became is an ordinary one.
#ifdef Q_OS_UNIX
        const mode_t mask = ::umask(0);
        ::umask(mask);
        if (::chmod(QFile::encodeName(result.placedPath).constData(), 0777 & ~mask) != 0)
            qCDebug(lcFiles) << "could not set the permissions of" << result.placedPath;
#endif
    }
    if (asItIs || !result.ok)
        DiscardExtractStaging(staging);
    return result;
}

void DiscardExtractStaging(const QString& staging) {
    if (staging.isEmpty() || !QFileInfo(staging).isDir())
        return;
    if (!QDir(staging).removeRecursively())
        qCDebug(lcFiles) << "could not remove the extraction folder" << staging;
}

} // namespace quovara
