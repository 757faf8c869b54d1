#include "versionswitch.h"

#include "core/enginefiles.h"
#include "core/logging.h"
#include "core/vbtext.h"

namespace quovara {

bool IsVersionRequest(const QString& message, const EngineSwitchState& state) {
    return !state.engineSwitched && Like(message, QStringLiteral("*--> use UHARC*version*"));
}

void SwitchEngine(EngineSwitchState& state, const QString& programFolder, const QString& message) {
    state.engineSwitched = true;
    state.switchedVersion = TrimBlanks(message).right(3);
    qCDebug(lcEngineSwitch) << "switching to engine" << state.switchedVersion;
    RenameEngineFile(programFolder, QStringLiteral("Uharc.exe"), QStringLiteral("Uharc0.6.fns"));
    RenameEngineFile(programFolder,
                     QStringLiteral("Uharc") + state.switchedVersion + QStringLiteral(".fns"),
                     QStringLiteral("UHARC.EXE"));
}

void UndoEngineSwitch(EngineSwitchState& state, const QString& programFolder) {
    if (!state.engineSwitched)
        return;
    qCDebug(lcEngineSwitch) << "switching back from engine" << state.switchedVersion;
    RenameEngineFile(programFolder, QStringLiteral("Uharc.exe"),
                     QStringLiteral("Uharc") + state.switchedVersion + QStringLiteral(".fns"));
    RenameEngineFile(programFolder, QStringLiteral("Uharc0.6.fns"), QStringLiteral("UHARC.EXE"));
    state.engineSwitched = false;
}

} // namespace quovara
