// Ending the engine by its name, and the program's own priority.
#pragma once

#include <QString>

namespace quovara {

class Prompter;

// Ends the first of the current user's processes (in process-id order) whose executable name
// equals `name` without regard to case: the kernel's short name and the file name of its first
// argument are both compared, so a Windows program under the launcher is found too. Only the
// first match ends. The pid that was ended, or 0. When the process list cannot be closed
// properly, "Couldn't terminate process" is shown through `prompter` (when given).
qint64 TerminateProcessByName(const QString& name, Prompter* prompter = nullptr);

// Puts the program's own process at the lowest scheduling priority (nice 19), so that it and
// the jobs it starts yield to every other work on the machine.
void SetIdlePriority();

} // namespace quovara
