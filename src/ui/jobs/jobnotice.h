// How the end of a job (add, extract, test, SFX) is told to a user who is not looking at
// Quovara: a desktop notification that says how it ended and names the archive; after an
// extraction it has an "Open folder" button that opens the destination with the desktop's
// opener. A user who is looking at the program sees the job's own window and messages.
#pragma once

#include "core/jobkind.h"

#include <QString>

class QWidget;

namespace quovara {

struct DesktopNotice;

enum class JobOutcome { Finished, Failed, Stopped };

struct JobEnd {
    JobKind kind = JobKind::Extract; // Add, Extract, Test or SfxBuild
    JobOutcome outcome = JobOutcome::Finished;
    QString archive; // the job's archive, by its full path
    QString reason;  // Failed: why (its first line is shown)
    QString result;  // Finished: the extraction's folder, or the SFX file made
};

// The key and label of the button of a finished extraction.
inline constexpr char OpenFolderKey[] = "open-folder";

// True when the user is not looking at the program as the job of `jobWindow` ends: none of the
// program's windows is the active one, or the job's window is hidden (in the notification
// area) or minimised.
bool UserIsAway(const QWidget* jobWindow);

// The notice for `end`.
DesktopNotice JobEndNotice(const JobEnd& end);

// Sends the notice for `end` (nothing happens when no notification service runs).
void NotifyJobEnd(const JobEnd& end);

} // namespace quovara
