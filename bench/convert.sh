#!/usr/bin/env bash
# Converting an archive to tar.zst, against what a user would do by hand in the same run:
# extract it with the engine and pack the tree with `tar --zstd`. The stand-in engine plays the
# engine in both. Prints the times, their ratio (goal: at most 1.2), and the program's peak
# memory for an archive of the same files with a quarter of the bytes and for the whole one
# (flat: a ratio near 1).
# Usage: bench/convert.sh [files, default 10000] [MB, default 200]
# BUILD_DIR names the build folder (default build); BENCH_DIR where the files go (default the
# system's temporary folder).
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD
build=${BUILD_DIR:-build}
files=${1:-10000}
megabytes=${2:-200}
cmake --build "$build" --target quovara uharc-standin-0.6 >/dev/null
work=$(mktemp -d "${BENCH_DIR:-${TMPDIR:-/tmp}}/quovara-convert-bench.XXXXXX")
trap 'rm -rf "$work"' EXIT
engine="$root/$build/bin/uharc-standin-0.6"
mkdir -p "$work/program" "$work/home"
chmod 700 "$work/home"
cp "$engine" "$work/program/uharc.exe"
export QUOVARA_PROGRAM_DIR="$work/program" HOME="$work/home" XDG_RUNTIME_DIR="$work/home"
export QT_QPA_PLATFORM=offscreen QT_LOGGING_RULES="*.debug=false"

# A tree of `files` files of `megabytes` MB in all, in 100 folders, half text and half bytes
# that do not compress, and its archive (stored: the engine's own speed is not measured here).
make_archive() { # folder files megabytes archive
    python3 - "$1" "$2" "$3" <<'PY'
import os, random, sys
top, count, mb = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
each = mb * 1024 * 1024 // count
rng = random.Random(7)
words = [b"archive", b"entry", b"folder", b"listing", b"check", b"name", b"size", b"time"]
for i in range(count):
    folder = os.path.join(top, "folder%02d" % (i % 100))
    os.makedirs(folder, exist_ok=True)
    if i % 2:
        data = rng.randbytes(each)
    else:
        text = b" ".join(rng.choice(words) for _ in range(each // 6 + 1))
        data = text[:each]
    with open(os.path.join(folder, "file%05d.dat" % i), "wb") as f:
        f.write(data)
PY
    (cd "$1" && "$engine" a -m0 -r+ -y+ -d0 "$4" '*' >/dev/null)
}

# Runs a command; prints its wall seconds and the peak resident memory of that process itself
# in KiB (its high-water mark, read while it runs: the engine it starts is not counted).
measure() {
    python3 - "$@" <<'PY'
import subprocess, sys, time
start = time.monotonic()
child = subprocess.Popen(sys.argv[1:], stdout=subprocess.DEVNULL)
peak = 0
while child.poll() is None:
    try:
        with open("/proc/%d/status" % child.pid) as status:
            for line in status:
                if line.startswith("VmHWM:"):
                    peak = max(peak, int(line.split()[1]))
    except OSError:
        pass
    time.sleep(0.01)
if child.returncode != 0:
    sys.exit("failed: " + " ".join(sys.argv[1:]))
print("%.3f %d" % (time.monotonic() - start, peak))
PY
}

by_hand() { # archive
    local out="$work/byhand"
    rm -rf "$out" "$work/byhand.tar.zst"
    mkdir -p "$out"
    "$engine" x -y+ -d0 "-t$out" "$1"
    tar --zstd -cf "$work/byhand.tar.zst" -C "$out" .
}

echo "Making an archive of $files files, $megabytes MB ..."
make_archive "$work/tree" "$files" "$megabytes" "$work/big.uha"
# The same number of files with a quarter of the bytes: the memory figure compares sizes only.
make_archive "$work/tree4" "$files" "$((megabytes / 4))" "$work/quarter.uha"

# Each way three times, in turn, keeping the best time of each (the first run warms the caches).
times_convert=()
times_hand=()
for round in 1 2 3; do
    rm -f "$work/big.tar.zst"
    read -r t _ < <(measure "$root/$build/bin/quovara" --convert tar.zst "$work/big.uha")
    read -r t2 _ < <(measure bash -c "$(declare -f by_hand); work='$work' engine='$engine'; by_hand '$work/big.uha'")
    times_convert+=("$t")
    times_hand+=("$t2")
    echo "round $round: convert $t s, engine + tar --zstd $t2 s"
done
rm -f "$work/big.tar.zst" "$work/quarter.tar.zst"
read -r _ peak_quarter < <(measure "$root/$build/bin/quovara" --convert tar.zst "$work/quarter.uha")
read -r _ peak_big < <(measure "$root/$build/bin/quovara" --convert tar.zst "$work/big.uha")
python3 - "${times_convert[*]}" "${times_hand[*]}" "$peak_quarter" "$peak_big" "$megabytes" <<'PY'
import sys
convert = min(float(t) for t in sys.argv[1].split())
hand = min(float(t) for t in sys.argv[2].split())
quarter, big, mb = int(sys.argv[3]), int(sys.argv[4]), int(sys.argv[5])
print("convert to tar.zst:         %.2f s" % convert)
print("engine x + tar --zstd -cf:  %.2f s" % hand)
print("ratio:                      %.2f (goal: at most 1.2)" % (convert / hand))
print("peak memory: %d KiB for %d MB, %d KiB for %d MB; ratio %.2f (flat: near 1)"
      % (quarter, mb // 4, big, mb, big / quarter))
PY
