#include "enginefiles.h"

#include "logging.h"
#include "places.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace quovara {

bool IsEngineFileName(const QString& name) {
    const QString lower = name.toLower();
    if (lower == QLatin1String("uharc.exe") || lower == QLatin1String("sfx.exe"))
        return true;
    return lower.startsWith(QLatin1String("uharc")) && lower.endsWith(QLatin1String(".fns"));
}

QString CanonicalEngineFileName(const QString& name) {
    if (name.compare(QLatin1String("uharc.exe"), Qt::CaseInsensitive) == 0)
        return QStringLiteral("uharc.exe");
    return name;
}

QString ResolveEngineFile(const QString& folder, const QString& name) {
    const PathStyle host = PathStyle::host();
    const QString exact = host.join(folder, name);
    if (QFileInfo(exact).isFile())
        return exact;
    if (!IsEngineFileName(name))
        return QString();
    const QStringList entries = QDir(folder).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return host.join(folder, entry);
    }
    return QString();
}

bool RenameEngineFile(const QString& folder, const QString& from, const QString& to) {
    const QString source = ResolveEngineFile(folder, from);
    if (source.isEmpty()) {
        qCDebug(lcEngineSwitch) << "rename: no file answers to" << from << "in" << folder;
        return false;
    }
    const QString target = PathStyle::host().join(folder, CanonicalEngineFileName(to));
    const QString existing = ResolveEngineFile(folder, to);
    if (!existing.isEmpty() && QFileInfo(existing) != QFileInfo(source)) {
        qCDebug(lcEngineSwitch) << "rename: target already exists" << existing;
        return false;
    }
    if (source == target)
        return true;
    if (!QFile::rename(source, target)) {
        qCDebug(lcEngineSwitch) << "rename failed" << source << "->" << target;
        return false;
    }
    qCDebug(lcEngineSwitch) << "renamed" << source << "->" << target;
    return true;
}

bool IsWindowsExecutable(const QString& path) {
    QFile f(path);
    if (!f.open(QIODevice::ReadOnly))
        return false;
    return f.read(2) == "MZ";
}

} // namespace quovara
