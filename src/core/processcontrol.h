// Ending the engine by its name, and the program's own priority.
#pragma once

#include <functional>

#include <QString>

namespace quovara {

class Prompter;

// Ends the first process (in process-id order) whose executable name equals `name` without
// regard to case, among the processes this program started: those in the sessions of its
// running jobs (the engine, and under the launcher its children). An unrelated program of the
// same name is never touched. The kernel's short name and the file name of the first argument
// are both compared, so a Windows program under the launcher is found too. Only the first
// match ends. The pid that was ended, or 0. When the process list cannot be closed properly,
// "Couldn't terminate process" is shown through `prompter` (when given).
qint64 TerminateProcessByName(const QString& name, Prompter* prompter = nullptr);

// The sessions of the jobs this program has started and not yet forgotten (each job runs in a
// session of its own whose id is the job's first process id).
void RegisterJobGroup(qint64 sessionId);
void UnregisterJobGroup(qint64 sessionId);
bool IsJobGroup(qint64 sessionId);
// Ends every job this program has started and not yet forgotten, each with its whole session
// (used when the program itself is ended). The number of sessions signalled.
int EndAllJobs();

// Hands the memory freed since (a big listing replaced by another) back to the system, where
// the C library allows it; a no-op elsewhere.
void ReturnFreedMemory();
// Makes every block of 256 KiB or more a mapping of its own, handed back to the system as soon
// as it is freed. By default the C library raises that limit to the size of each such block
// freed, so the second listing of a big archive puts its tables in the heap, where the holes
// they leave once freed stay resident (a few MiB per listing). Called again, it does nothing
// more; a no-op where the C library has no such setting.
void KeepBigBlocksReturnable();

// Work that must be done when a termination signal ends the program, once its jobs have been
// ended (a stopped extraction removes the file it left half-written). The id removes it.
int AddTerminationWork(std::function<void()> work);
void RemoveTerminationWork(int id);
// Runs the work added, each once, newest first (the signal handler calls it).
void RunTerminationWork();

// From now on SIGTERM, SIGINT and SIGHUP end every job of this program (its engines and the
// launcher's children) before the program ends with them, so that no engine is left running.
void EndJobsOnTerminationSignals();

// Puts the program's own process at the lowest scheduling priority (nice 19), so that it and
// the jobs it starts yield to every other work on the machine.
void SetIdlePriority();

} // namespace quovara
