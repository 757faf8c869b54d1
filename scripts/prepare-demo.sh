#!/usr/bin/env bash
# Prepares a demonstration ProgramFolder in build/demo: the stand-in engines under the names
# the real engine files have, and sample archives made with them. The stand-in is a test and
# demonstration engine, not UHARC; the window title says so while it is in use.
set -euo pipefail
cd "$(dirname "$0")/.."
bin="$PWD/build/bin"
demo="$PWD/build/demo"
rm -rf "$demo"
mkdir -p "$demo/program" "$demo/sources/quovara-sample/docs" "$demo/sources/quovara-sample/pictures"

# As shipped: "uharc.exe" is version 0.4 and the stored copy of 0.6 waits beside it; the
# program's start-up makes 0.6 the active engine.
cp "$bin/uharc-standin-0.4" "$demo/program/uharc.exe"
cp "$bin/uharc-standin-0.6" "$demo/program/Uharc0.6.fns"
# The demonstration self-extractor stub, so that "Make SFX" builds a file that runs here.
cp "$bin/uharc-sfx-standin" "$demo/program/SFX.exe"

src="$demo/sources/quovara-sample"
cp README.md "$src/README.md"
cp resources/icons/toolbar/*.svg "$src/pictures/"
cp resources/icons/*.svg "$src/pictures/"
printf 'Quovara sample archive\r\nMade with the stand-in engine for the demonstration.\r\n' > "$src/docs/about.txt"
seq 1 2000 | sed 's/^/line /' > "$src/docs/numbers.txt"
head -c 20000 /dev/urandom > "$src/docs/random.bin"

cd "$demo/sources"
"$bin/uharc-standin-0.6" a -m3 -md4096 -r+ -y+ -d0 "$demo/sample.uha" "quovara-sample/*" >/dev/null
"$bin/uharc-standin-0.6" a -m2 -r+ -y+ -d0 -pwquovara "$demo/sample-protected.uha" "quovara-sample/*" >/dev/null
"$bin/uharc-standin-0.4" a -mx -r+ -y+ -d0 "$demo/sample-old.uha" "quovara-sample/docs/*" >/dev/null
echo "Demonstration folder ready: $demo"
