// Start-up preparation of the work folder and the engine files.
#pragma once

#include <QCoreApplication>
#include <QString>

namespace quovara {

class Prompter;

// The start-up message when no engine is found.
inline constexpr char kEngineMissingText[] =
    QT_TRANSLATE_NOOP("Workspace", "Uharc 0.4 not detected, program will be end");

// Deletes the previous run's WorkFolder and makes it again, private to the user. A folder that
// cannot be made private is named in a message and false returned: the program must end.
bool PrepareWorkFolder(Prompter& prompter);

// Checks that the engine is present (an empty file counts as missing: the message is shown and
// false returned, the program must end), then makes engine 0.6 active when its stored copy is
// present.
bool PrepareEngine(Prompter& prompter);

// PrepareWorkFolder, then PrepareEngine.
bool PrepareWorkspace(Prompter& prompter);

// When "Uharc0.6.fns" is present: "uharc.exe" becomes "Uharc0.4.fns" and "Uharc0.6.fns"
// becomes the active engine. This also repairs a switch left over by a crash.
void StartupEngineSwap(const QString& programFolder);

} // namespace quovara
