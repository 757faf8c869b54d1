#!/usr/bin/env bash
# The main window's figures with a big archive, on a memory file system and on disk: the open
# against the engine's list run plus a bare loop creating the same files, the longest pause of
# the event loop, the peak memory while listing, a search against find(1), Back during a
# search, and start-up after a big session against a clean start. Each figure is printed with
# its baseline from the same run and their ratio; the exit status is 1 when a target is missed.
# Usage: bench/window.sh [entries, default 100000] [rounds, default 3]
# BUILD_DIR names the build folder (default build); DISK_DIR the folder on disk (default a
# temporary folder inside the build folder); MEMORY_DIR the memory one (default /dev/shm).
set -uo pipefail
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build}
entries=${1:-100000}
rounds=${2:-3}
cmake --build "$build" --target measure_window >/dev/null || exit 1
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
export QT_LOGGING_RULES=${QT_LOGGING_RULES:-"*.debug=false;qt.qpa.*=false"}
status=0
measure() { # <what> <parent folder>
    local base
    base=$(mktemp -d "$2/quovara-measure.XXXXXX") || { status=1; return; }
    echo "== $1 ($(df -T "$base" | awk 'NR == 2 { print $2 }') at $base)"
    "$build/bin/measure_window" "$base" "$entries" "$rounds" 2>/dev/null | grep -v '^open [0-9]\|^start [0-9]' ||
        status=1
    rm -rf "$base"
}
memory=${MEMORY_DIR:-/dev/shm}
if [ -d "$memory" ] && [ -w "$memory" ]; then
    measure "memory file system" "$memory"
else
    echo "== memory file system: $memory is not there; skipped"
fi
measure "disk" "${DISK_DIR:-$build}"
exit $status
