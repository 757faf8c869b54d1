#include "launcherpaths.h"

#include "jobscript.h"
#include "logging.h"
#include "scriptexec.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace quovara {

bool EngineCanTakePath(const QString& hostPath, const EngineTextCodecs& engine) {
    return ValueProblemForEngine(ToLauncherPath(hostPath), QStringLiteral("path"), false, engine)
        .isEmpty();
}

ArchiveLink::~ArchiveLink() {
    remove();
}

bool ArchiveLink::make(const QString& folder, const QString& archive, QString* error) {
    remove();
    const QString target = QDir::cleanPath(QFileInfo(archive).absoluteFilePath());
    QString suffix = QFileInfo(target).suffix();
    bool plain = !suffix.isEmpty() && suffix.size() <= 8;
    for (const QChar c : suffix)
        plain = plain && c.unicode() < 0x80 && c.isLetterOrNumber();
    if (!plain)
        suffix = QStringLiteral("uha");
#ifdef Q_OS_UNIX
    for (int n = 1; n <= 100; ++n) {
        const QString link = QStringLiteral("%1/Archivio%2.%3").arg(folder).arg(n).arg(suffix);
        // symlink() never replaces what stands: a name in use is skipped.
        if (::symlink(QFile::encodeName(target).constData(), QFile::encodeName(link).constData()) ==
            0) {
            link_ = link;
            archive_ = target;
            qCDebug(lcRunner) << "the engine reads" << target << "as" << link;
            return true;
        }
        if (errno != EEXIST) {
            const QString reason = QString::fromLocal8Bit(std::strerror(errno));
            if (error)
                *error = QCoreApplication::translate("LauncherPaths", "cannot link %1 into %2: %3")
                             .arg(target, folder, reason);
            return false;
        }
    }
#endif
    if (error)
        *error = QCoreApplication::translate("LauncherPaths",
                                             "no plain name is free in %1 for a link to %2")
                     .arg(folder, target);
    return false;
}

void ArchiveLink::remove() {
    if (link_.isEmpty())
        return;
    // QFile::remove on a link removes the link, never what it points to.
    if (!QFile::remove(link_))
        qCDebug(lcRunner) << "could not remove the link" << link_;
    link_.clear();
    archive_.clear();
}

} // namespace quovara
