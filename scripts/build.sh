#!/usr/bin/env bash
# Configures and builds Quovara into build/ (every executable in build/bin).
# Extra arguments go to the CMake configure step, e.g. -DQUOVARA_SANITIZE=ON.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/deps.sh
generator=()
if [ ! -f build/CMakeCache.txt ] && command -v ninja >/dev/null; then generator=(-G Ninja); fi
cmake -S . -B build "${generator[@]}" "$@" >/dev/null
cmake --build build -j"$(nproc)"
