#!/usr/bin/env bash
# Takes the pictures of docs/ that show the main window, the Add window and the Extract window
# in Russian and Japanese: the real program under Xvfb with a window manager, on a small tree
# with names in several scripts archived by the demonstration engine. Japanese needs a CJK font
# (Debian's fonts-noto-cjk). Needs a build (scripts/build.sh).
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/demo-display.sh "$0" "$@"
demo=$PWD/build/demo
place=$demo/Архив
mkdir -p "$place"/{Загрузки,Документы,Музыка,写真} "$place/Проекты/данные/Документы/Отчёты" \
    "$place/Проекты/данные/写真"
data=$place/Проекты/данные
printf 'Zażółć gęślą jaźń\n' >"$data/Zażółć.txt"
printf 'readme\n' >"$data/readme.txt"
printf 'report\n' >"$data/Документы/Отчёты/Годовой.txt"
seq 1 5000 >"$data/写真/一覧.txt"
(cd "$data" && "$OLDPWD/build/bin/uharc-standin-0.6" a -r+ -y+ -d0 "$place/Отпуск.uha" "*" >/dev/null)
shot() { # <language> <LANG> <name in docs> <arguments...>
    local language=$1 lang=$2 name=$3
    shift 3
    LANGUAGE=$language LANG=$lang build/bin/quovara "$@" >/dev/null 2>&1 &
    local pid=$!
    # Its window once it is on the screen, and a moment to be painted.
    local window
    window=$(timeout 60 xdotool search --sync --onlyvisible --pid "$pid" | head -n 1)
    sleep 4
    import -frame -window "$window" "docs/$name"
    kill "$pid"
    wait "$pid" 2>/dev/null || true
}
for pair in ru:ru_RU.UTF-8 ja:ja_JP.UTF-8; do
    language=${pair%%:*} lang=${pair#*:}
    shot "$language" "$lang" "main-$language.png" "$place/Отпуск.uha"
    shot "$language" "$lang" "dialog-add-$language.png" "add " "$data/Документы"
    shot "$language" "$lang" "dialog-extract-$language.png" "extract " "$place/Отпуск.uha"
done
