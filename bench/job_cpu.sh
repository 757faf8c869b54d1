#!/usr/bin/env bash
# Processor use of the program while a progress window follows a job, and the time from a
# progress line written by the engine to its showing in the window. A measurement, printed;
# not a test. Usage: bench/job_cpu.sh [job seconds, default 20] [latency lines, default 40]
# BUILD_DIR names the build folder (default build).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${BUILD_DIR:-build}
cmake --build "$build" --target progress_measure >/dev/null
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
export QT_LOGGING_RULES=${QT_LOGGING_RULES:-"*.debug=false;qt.qpa.*=false"}
echo "== processor use over a ${1:-20}-second extract job (stand-in engine, 200 ms per file)"
status=0
"$build/bin/progress_measure" cpu "${1:-20}" 2>/dev/null || status=1
echo "== progress-line latency (an engine writing a time-stamped line every 250 ms)"
"$build/bin/progress_measure" latency "${2:-40}" 2>/dev/null || status=1
exit $status
