// The job progress windows frmAdding, frmExtracting and frmTesting (Part 4.2): one class, told
// apart by a small job-kind table.
#pragma once

#include "core/jobkind.h"

#include <QString>

namespace quovara {

class frmApri;

// Shows the progress window of a job whose script has been written (Archivia.bat, Estrai.bat or
// Testing.bat in the WorkFolder), modal over the main window; returns when it has closed.
void RunJobWindow(JobKind kind, frmApri& main);

// The same with the archive of the job named by the caller (an add job's target archive); the
// job's working folder is the folder that holds it. An empty `archivePath` means: the add
// script's archive for an add job, the main window's archive otherwise.
void RunJobWindow(JobKind kind, frmApri& main, const QString& archivePath);

} // namespace quovara
