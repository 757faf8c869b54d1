#!/usr/bin/env bash
# Starts Quovara on an archive made by the stand-in engine under Xvfb with an accessibility
# bus, and checks what a screen reader finds in its window.
#   run.sh QUOVARA STANDIN_0.6
set -euo pipefail
program=$1
standin=$2
here=$(cd "$(dirname "$0")" && pwd)
if ! /usr/bin/python3 -c "import pyatspi" 2>/dev/null || ! command -v dbus-run-session >/dev/null; then
    echo "pyatspi or dbus-run-session missing (packages python3-pyatspi, dbus-x11): not checked"
    exit 77
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/program" "$work/tmp" "$work/src/docs"
cp "$standin" "$work/program/uharc.exe"
echo "a file" > "$work/src/docs/readme.txt"
(cd "$work/src" && "$standin" a -r+ -y+ -d0 "$work/sample.uha" "docs/*" >/dev/null)
export QUOVARA_PROGRAM_DIR="$work/program" TMPDIR="$work/tmp" HOME="$work"
# A real X display under Xvfb: the offscreen platform of the widget tests has no AT-SPI bridge.
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1 XDG_RUNTIME_DIR="$work"
dbus-run-session -- xvfb-run -a -s "-screen 0 1280x900x24" bash -c '
    "$0" "$1" >/dev/null 2>&1 &
    pid=$!
    status=0
    /usr/bin/python3 "$2" || status=$?
    kill $pid 2>/dev/null || true
    exit $status' "$program" "$work/sample.uha" "$here/screenreader_view.py"
