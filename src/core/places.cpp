#include "places.h"

#include "enginefiles.h"
#include "logging.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

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

QString TempRoot() {
    return QDir::toNativeSeparators(QDir::tempPath());
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

QString ProgramFolder() {
    const QString fromEnv = qEnvironmentVariable("QUOVARA_PROGRAM_DIR");
    if (!fromEnv.isEmpty())
        return QDir::toNativeSeparators(QDir::cleanPath(fromEnv));
    const QString exeDir = QCoreApplication::applicationDirPath();
    if (!exeDir.isEmpty() && !ResolveEngineFile(exeDir, QStringLiteral("uharc.exe")).isEmpty())
        return QDir::toNativeSeparators(exeDir);
    QString data = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    if (data.isEmpty())
        data = QDir::homePath() + QStringLiteral("/.local/share/quovara");
    if (!QDir().mkpath(data))
        qCDebug(lcFiles) << "could not create the program folder" << data;
    return QDir::toNativeSeparators(data);
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
    if (!info.isDir())
        return;
    if (!QDir(work).removeRecursively())
        qCDebug(lcFiles) << "could not delete the work folder completely" << work;
}

void MakeDir(const QString& path) {
    if (QFileInfo(path).isDir())
        return;
    if (!QDir().mkdir(path))
        qCDebug(lcFiles) << "could not create folder" << path;
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
