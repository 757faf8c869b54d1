#!/usr/bin/env bash
# Takes the main window screenshots of docs/ the way a user meets the program: the real program
# on the demonstration folder under Xvfb with a window manager, driven with xdotool.
# Needs a build (scripts/build.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/demo-display.sh "$0" "$@"
build/bin/quovara >/dev/null 2>&1 &
sleep 3
W=$(xdotool search --onlyvisible --name "Quovara")
W=${W%%$'\n'*}
xdotool windowsize "$W" 980 640
xdotool windowmove "$W" 20 20
sleep 1
shot() { import -window root -crop 1000x690+15+0 "$1"; }
shot docs/main-files.png
# Open sample.uha with the keyboard: a click on the list's empty part gives it the focus,
# typing the name selects it and Return opens it.
xdotool mousemove --window "$W" 600 500 click 1
sleep 0.3
xdotool type --delay 60 "sample.uha"
sleep 0.3
xdotool key Return
sleep 3
xdotool mousemove --window "$W" 600 400
shot docs/main-archive.png
# An entry's menu: Home selects the first entry, the Menu key opens its menu.
xdotool key Home
sleep 0.3
xdotool key Menu
sleep 0.8
shot docs/main-entry-menu.png
xdotool key Escape
sleep 0.3
# The Report view: a right click away from the entries opens the View menu; the arrows pick
# "Report"; Return opens the folder selected.
xdotool mousemove --window "$W" 900 580 click 3
sleep 0.5
xdotool key Down Down Return
sleep 1
xdotool key Return
sleep 1
xdotool mousemove --window "$W" 600 400
shot docs/main-report.png
# Search the archive: type into the task pane's search box and press Enter.
xdotool mousemove --window "$W" 110 281 click 1
sleep 0.3
xdotool type --delay 40 "*.svg"
xdotool key Return
sleep 2
shot docs/main-search.png
kill %2 %1 2>/dev/null || true
