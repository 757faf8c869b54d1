#!/usr/bin/env bash
# A long session of the main window, offscreen, with the stand-in engine: F5, Verify, Extract
# all, a search, and leaving and opening the archive again, in turn. Every 100 jobs the resident
# memory, the heap, open files, threads, child processes and the work folder's entries are
# printed; at the end the memory's slope in MiB per 100 jobs after the first 100. The exit
# status is 1 when a job failed or the jobs after the first 100 added more than 2 MiB per 1,000.
# Usage: bench/soak.sh [jobs, default 1100] [entries of the archive, default 2000]
# BUILD_DIR names the build folder (default build); SOAK_DIR where the session's files go
# (default the system's temporary folder).
set -uo pipefail
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build}
cmake --build "$build" --target soak_window >/dev/null || exit 1
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
export QT_LOGGING_RULES=${QT_LOGGING_RULES:-"*.debug=false;qt.qpa.*=false"}
exec "$build/bin/soak_window" "${1:-1100}" "${2:-2000}"
