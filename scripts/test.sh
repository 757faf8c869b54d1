#!/usr/bin/env bash
# Installs what is needed, builds, and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh "$@"
export QT_QPA_PLATFORM=offscreen
cd build
# Both cores: every engine-running test has its own TempRoot and program folder, and ends only
# the engines it started itself, so the tests can run side by side.
ctest -j"$(nproc)" --output-on-failure --timeout 300
