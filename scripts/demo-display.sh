# Sourced by the screenshot scripts, from the project folder, with the script's arguments:
# outside, installs xdotool and openbox when missing, prepares the demonstration folder and runs
# the script again inside a new Xvfb display; inside, sets up the demonstration program folder
# and home and starts the window manager.
# shellcheck shell=bash
script=$1
shift
if [ "${1:-}" != "--inside" ]; then
    for p in xdotool openbox; do
        if ! command -v "$p" >/dev/null; then
            sudo=""
            [ "$(id -u)" -ne 0 ] && sudo=sudo
            $sudo apt-get install -y -qq "$p" >/dev/null
        fi
    done
    bash scripts/prepare-demo.sh >/dev/null
    exec xvfb-run -a -s "-screen 0 1280x900x24" bash "$script" --inside
fi
export QUOVARA_PROGRAM_DIR=$PWD/build/demo/program HOME=$PWD/build/demo
export XDG_RUNTIME_DIR=$(mktemp -d)
openbox >/dev/null 2>&1 &
sleep 1
