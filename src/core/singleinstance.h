// One running copy per user: a lock file in the user's runtime folder, held for the
// program's life.
#pragma once

#include <QString>

namespace quovara {

// True when another copy already holds the lock. The first call that finds the lock free takes
// it and keeps it until the program ends. `lockPath` empty: the default per-user lock.
bool AnotherInstanceRunning(const QString& lockPath = QString());

// Gives up the locks this copy holds: it has finished its work and only lingers (a notice's
// button may still be chosen), so a new copy may start.
void ReleaseInstanceLocks();

} // namespace quovara
