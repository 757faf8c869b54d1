// What the program folder says about its engine, read without running anything: which engine
// files are there, whether the active one is a Windows program or the native demonstration
// stand-in, and which version it is, told by the stored copy of the other version beside it.
#pragma once

#include <QString>
#include <QStringList>

namespace quovara {

struct InstalledEngine {
    QString folder;
    // The active engine file ("uharc.exe" in any case); empty when there is none or it is
    // empty (an empty file counts as missing, as at start-up).
    QString engine;
    // A Windows executable, run through the launcher; otherwise a native program, which here
    // is the project's demonstration stand-in.
    bool windowsProgram = false;
    // The stored versions found ("0.4", "0.6"), in this order.
    QStringList storedVersions;
    // The active engine's version: of the two versions 0.4 and 0.6, the one that is not
    // stored, when exactly one of them is; empty when the files do not tell.
    QString version;
};

// Looks at `folder` only: reads the first bytes of the active engine and lists the stored
// copies. Creates nothing and starts nothing.
InstalledEngine FindInstalledEngine(const QString& folder);

// The report of `quovara --version` about the engine, one or two lines, each ended by "\n".
QString InstalledEngineText(const InstalledEngine& engine);

} // namespace quovara
