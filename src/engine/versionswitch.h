// Switching the active engine to a stored older version when an archive asks for it, and back.
//
// Normal state: "uharc.exe" is version 0.6, older versions are stored as "Uharc<v>.fns".
// Switched to v: "uharc.exe" is the former "Uharc<v>.fns" and 0.6 is parked as "Uharc0.6.fns".
#pragma once

#include <QString>

namespace quovara {

struct EngineSwitchState {
    bool engineSwitched = false;
    // The three characters of the version the engine asked for, e.g. "0.4".
    QString switchedVersion;
};

// True when `message` asks for another engine version and no switch is in force yet.
bool IsVersionRequest(const QString& message, const EngineSwitchState& state);

// Makes the requested version active: sets the flag, takes the version from the last three
// characters of the trimmed message, parks "Uharc.exe" as "Uharc0.6.fns" and moves
// "Uharc<v>.fns" to "UHARC.EXE". Renames that fail leave their files as they were (logged).
void SwitchEngine(EngineSwitchState& state, const QString& programFolder, const QString& message);

// Puts the usual engine back when a switch is in force, and clears the flag.
void UndoEngineSwitch(EngineSwitchState& state, const QString& programFolder);

} // namespace quovara
