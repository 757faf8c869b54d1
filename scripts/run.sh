#!/usr/bin/env bash
# Installs what is needed, builds, and starts Quovara.
# With QUOVARA_PROGRAM_DIR pointing at a folder that holds uharc.exe, that engine is used and
# the arguments are handed to the program. Otherwise a demonstration folder with the stand-in
# engine is prepared and the program opens a sample archive (or the arguments given).
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh
if [ -n "${QUOVARA_PROGRAM_DIR:-}" ] && grep -qi '^uharc\.exe$' <<<"$(ls "$QUOVARA_PROGRAM_DIR" 2>/dev/null)"; then
    exec build/bin/quovara "$@"
fi
bash scripts/prepare-demo.sh
export QUOVARA_PROGRAM_DIR="$PWD/build/demo/program"
if [ $# -eq 0 ]; then
    set -- "$PWD/build/demo/sample.uha"
fi
exec build/bin/quovara "$@"
