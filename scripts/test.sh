#!/usr/bin/env bash
# Installs what is needed, builds, and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh "$@"
export QT_QPA_PLATFORM=offscreen
cd build
ctest --output-on-failure --timeout 300
