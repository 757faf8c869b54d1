#include "engineversion.h"

#include "enginefiles.h"
#include "places.h"

#include <QCoreApplication>

namespace quovara {

namespace {

// The two engine versions that the program switches between.
const char* const KnownVersions[] = {"0.4", "0.6"};

} // namespace

InstalledEngine FindInstalledEngine(const QString& folder) {
    InstalledEngine found;
    found.folder = folder;
    const QString engine = ResolveEngineFile(folder, QStringLiteral("uharc.exe"));
    if (!engine.isEmpty() && FileExists(engine)) {
        found.engine = engine;
        found.windowsProgram = IsWindowsExecutable(engine);
    }
    QStringList missing;
    for (const char* version : KnownVersions) {
        const QString stored = ResolveEngineFile(
            folder, QStringLiteral("Uharc") + QLatin1String(version) + QStringLiteral(".fns"));
        if (!stored.isEmpty() && FileExists(stored))
            found.storedVersions.append(QLatin1String(version));
        else
            missing.append(QLatin1String(version));
    }
    if (!found.engine.isEmpty() && missing.size() == 1)
        found.version = missing.first();
    return found;
}

QString InstalledEngineText(const InstalledEngine& engine) {
    if (engine.engine.isEmpty())
        return QCoreApplication::translate(
                   "EngineVersion", "Engine: none in %1 (quovara --install-engine puts it there)\n")
            .arg(engine.folder);
    QString text;
    if (engine.version.isEmpty())
        text = engine.windowsProgram
                   ? QCoreApplication::translate("EngineVersion",
                                                 "Engine: UHARC, version not known (Windows "
                                                 "program, run through wine) in %1\n")
                         .arg(engine.folder)
                   : QCoreApplication::translate("EngineVersion",
                                                 "Engine: demonstration stand-in, version not "
                                                 "known (not UHARC) in %1\n")
                         .arg(engine.folder);
    else
        text = engine.windowsProgram
                   ? QCoreApplication::translate(
                         "EngineVersion",
                         "Engine: UHARC %1 (Windows program, run through wine) in %2\n")
                         .arg(engine.version, engine.folder)
                   : QCoreApplication::translate(
                         "EngineVersion", "Engine: demonstration stand-in %1 (not UHARC) in %2\n")
                         .arg(engine.version, engine.folder);
    if (!engine.storedVersions.isEmpty())
        text += QCoreApplication::translate("EngineVersion", "Stored engine versions: %1\n")
                    .arg(engine.storedVersions.join(QStringLiteral(", ")));
    return text;
}

} // namespace quovara
