// Running a JobScript and waiting for it without blocking the window: the wait is a nested
// event loop, so the interface redraws and reacts (and re-entrant clicks are honoured) while
// the engine works.
#pragma once

#include <QString>
#include <functional>

namespace quovara {

// Seconds since midnight, rounded, as the platform timer gives them.
qint64 SecondsSinceMidnight();

// The deadline rule of the wait. `deadline` is start + time-out, less 86400 when that passed
// midnight (`wrapped`). Not wrapped: reached once now >= deadline. Wrapped: reached once now >=
// deadline and now < start (midnight has passed).
bool DeadlineReached(qint64 now, qint64 start, qint64 deadline, bool wrapped);

// Runs the script hidden and returns when its process has ended or the time-out (seconds, 0 =
// none) has passed; true in both cases, false only when the script could not be started. A job
// still running at the time-out goes on by itself. `clock` replaces the time of day (tests).
bool RunAndWait(const QString& scriptPath, qint16 timeoutSeconds,
                const QString& workingFolder = QString(), const std::function<qint64()>& clock = {},
                QString* startError = nullptr);

// Runs `work` on a thread of its own while this thread waits in an event loop, and returns when
// it is done. For file-system work that a busy disk can hold up (a rename or a small write can
// wait a long time for the journal while thousands of files are written back): the window
// keeps repainting and taking keys meanwhile. `work` must not touch widgets.
void RunBeside(const std::function<void()>& work);

// Ends the jobs that RunAndWait is waiting for now (the user stopped the wait); each wait then
// returns at once. The number of jobs ended.
int StopWaitedJobs();

} // namespace quovara
