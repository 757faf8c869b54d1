#!/usr/bin/env bash
# The progress windows on a real display: pictures of each window mid-job (docs/progress-*.png)
# and the real notification-area icon (minimise, tip, left click restores). Not part of ctest:
# it needs Xvfb, a window manager (openbox), a tray host (trayer; stalonetray where Debian has
# it) and xdotool:  apt-get install -y xvfb openbox trayer xdotool
# Usage: tests/ui/progress/xvfb_check.sh [build folder, default build]
set -euo pipefail
cd "$(dirname "$0")/../../.."
build=${1:-build}
cmake --build "$build" --target progress_measure >/dev/null
tool="$build/bin/progress_measure"

display=:$((90 + RANDOM % 100))
pids=()
cleanup() { for p in "${pids[@]}"; do kill "$p" 2>/dev/null || true; done; }
trap cleanup EXIT
Xvfb "$display" -screen 0 1024x700x24 -nolisten tcp >/dev/null 2>&1 & pids+=($!)
sleep 1
export DISPLAY=$display QT_QPA_PLATFORM=xcb QT_LOGGING_RULES="*.debug=false"
openbox >/dev/null 2>&1 & pids+=($!)
sleep 1

"$tool" shot add docs/progress-adding.png 2>/dev/null
"$tool" shot extract docs/progress-extracting.png 2>/dev/null
"$tool" shot test docs/progress-testing.png 2>/dev/null

# The tray host on the top edge, right-aligned: its first icon sits at the right end.
if command -v trayer >/dev/null; then
    trayer --edge top --align right --widthtype pixel --width 120 --height 28 \
        --SetDockType true --transparent false --tint 0xdddddd >/dev/null 2>&1 & pids+=($!)
else
    stalonetray --geometry 1x1-0+0 --icon-size 24 >/dev/null 2>&1 & pids+=($!)
fi
sleep 1
QUOVARA_TRAY_CLICK=1012,14 "$tool" tray /tmp/quovara-tray-screen.png 2>/dev/null
convert /tmp/quovara-tray-screen.png -crop 420x70+604+0 +repage docs/progress-tray.png
echo "docs/progress-tray.png: the icon and its tip"
