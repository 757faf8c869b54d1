#!/bin/sh
# Short libFuzzer run for the test suite: configures a separate clang build of the fuzz targets
# only, builds them, and runs each for a few seconds on the seed corpus.
#   run_short.sh BUILD_DIR [CLANGXX] [SECONDS]
set -eu
build=${1:?build folder}
cxx=${2:-clang++}
seconds=${3:-20}
src=$(cd "$(dirname "$0")/../.." && pwd)

generator=
if command -v ninja >/dev/null 2>&1; then
    generator="-G Ninja"
fi
cmake -S "$src" -B "$build" $generator -DCMAKE_CXX_COMPILER="$cxx" -DCMAKE_BUILD_TYPE=RelWithDebInfo \
    -DQUOVARA_FUZZ=ON -DQUOVARA_GUI=OFF -DQUOVARA_TESTS=OFF -DQUOVARA_BENCH=OFF >"$build.configure.log" 2>&1 || {
    cat "$build.configure.log"
    exit 1
}

targets=
for f in "$src"/tests/fuzz/fuzz_*.cpp; do
    [ -e "$f" ] || continue
    targets="$targets $(basename "$f" .cpp)"
done
[ -n "$targets" ] || { echo "no fuzz targets"; exit 1; }
# shellcheck disable=SC2086
cmake --build "$build" --target $targets -j2

status=0
for t in $targets; do
    corpus="$build/corpus/$t"
    mkdir -p "$corpus"
    seeds=
    for d in "$src/tests/data/console" "$src/tests/data/listing"; do
        [ -d "$d" ] && seeds="$seeds $d"
    done
    echo "== $t: ${seconds}s"
    # Artifacts (crash inputs) go into the build folder, never into the sources.
    # shellcheck disable=SC2086
    if ! (cd "$build" && "$build/bin/$t" -max_total_time="$seconds" -timeout=10 \
        -rss_limit_mb=2048 -max_len=8192 -print_final_stats=1 \
        -artifact_prefix="$build/" "$corpus" $seeds 2>"$build/$t.log"); then
        tail -n 60 "$build/$t.log"
        status=1
    else
        grep -E '^(stat::number_of_executed_units|Done)' "$build/$t.log" || true
    fi
done
exit $status
