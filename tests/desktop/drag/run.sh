#!/usr/bin/env bash
# Drags entries out of Quovara's archive view onto a real file manager's folder (PCManFM)
# under Xvfb with a window manager, with the mouse as a user moves it (xdotool), and checks
# what arrived there: exactly the dragged entries with what lies below them, a name in Polish,
# Russian and Japanese letters kept, a file of the same name already there left as it was.
#   run.sh QUOVARA STANDIN_0.6
set -euo pipefail
program=$1
standin=$2
here=$(cd "$(dirname "$0")" && pwd)
for tool in pcmanfm xdotool openbox xvfb-run dbus-run-session; do
    if ! command -v "$tool" >/dev/null; then
        echo "$tool missing (packages pcmanfm, xdotool, openbox, xvfb, dbus-x11): not checked"
        exit 77
    fi
done
if ! /usr/bin/python3 -c "import pyatspi" 2>/dev/null; then
    echo "pyatspi missing (package python3-pyatspi): not checked"
    exit 77
fi
work=$(mktemp -d)
# QUOVARA_DRAG_KEEP=folder keeps the screen after the drop and the programs' output there.
trap '[ -n "${QUOVARA_DRAG_KEEP:-}" ] && cp "$work"/*.png "$work"/*.log "$QUOVARA_DRAG_KEEP"/ 2>/dev/null; rm -rf "$work"' EXIT
mkdir -p "$work/program" "$work/tmp" "$work/src/docs/sub" "$work/src/Привет 日本" "$work/target"
cp "$standin" "$work/program/uharc.exe"
echo "read me" > "$work/src/docs/readme.txt"
echo "deep down" > "$work/src/docs/sub/deep.txt"
echo "zażółć" > "$work/src/Привет 日本/Zażółć.txt"
echo "from the archive" > "$work/src/notes.txt"
echo "left at home" > "$work/src/home.txt"
(cd "$work/src" && "$standin" a -r+ -y+ -d0 "$work/sample.uha" "*" >/dev/null)
# Already in the target folder: the file manager asks before it replaces it; nobody answers.
echo "mine" > "$work/target/notes.txt"
export QUOVARA_PROGRAM_DIR="$work/program" TMPDIR="$work/tmp" HOME="$work" LANG=en_US.UTF-8
export QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 QT_ACCESSIBILITY=1
export XDG_RUNTIME_DIR="$work" XDG_CONFIG_HOME="$work/config" NO_AT_BRIDGE=1
dbus-run-session -- xvfb-run -a -s "-screen 0 1280x800x24" bash -c '
    openbox >/dev/null 2>&1 &
    sleep 1
    "$0" "$1" >"$4/quovara.log" 2>&1 &
    quovara=$!
    pcmanfm --no-desktop "$2" >"$4/pcmanfm.log" 2>&1 &
    manager=$!
    status=0
    /usr/bin/python3 "$3" "$2" "$4" || status=$?
    kill $quovara $manager 2>/dev/null || true
    exit $status' "$program" "$work/sample.uha" "$work/target" "$here/drag_to_file_manager.py" "$work"
