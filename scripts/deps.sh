#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Quovara need.
# Idempotent: prints nothing and installs nothing when everything is present.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev libgl-dev libicu-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    clang libclang-rt-14-dev clang-format
    xvfb xauth x11-utils imagemagick
    desktop-file-utils shared-mime-info libglib2.0-dev
    appstream dpkg-dev file gzip
    dbus-x11 dbus-daemon at-spi2-core python3-pyatspi
    xdg-utils
    libarchive-dev libarchive-tools zstd p7zip-full python3
    qt6-l10n-tools qt6-tools-dev qt6-translations-l10n
    pcmanfm xdotool openbox
    locales
)

missing=()
for p in "${packages[@]}"; do
    if ! grep -q "ok installed" <<<"$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null)"; then
        missing+=("$p")
    fi
done
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    # A mirror in the middle of a sync can fail one index (of another architecture, say):
    # the install below still finds what it needs, or fails itself.
    $sudo apt-get update -qq || echo "apt-get update reported errors; installing anyway" >&2
    $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

# The locales whose code pages the tests play (English, Polish, Russian, Japanese): the engine
# takes its code pages from the locale, and names beyond ASCII need the locale generated.
locales=(en_US.UTF-8 pl_PL.UTF-8 ru_RU.UTF-8 ja_JP.UTF-8)
absent=()
have="$(locale -a 2>/dev/null | tr 'A-Z' 'a-z' | sed 's/utf-8/utf8/')"
for l in "${locales[@]}"; do
    want="$(tr 'A-Z' 'a-z' <<<"$l" | sed 's/utf-8/utf8/')"
    grep -qx "$want" <<<"$have" || absent+=("$l")
done
if [ ${#absent[@]} -gt 0 ]; then
    echo "Generating locales: ${absent[*]}"
    for l in "${absent[@]}"; do
        $sudo sed -i "s/^# *$l UTF-8/$l UTF-8/" /etc/locale.gen
        grep -q "^$l UTF-8" /etc/locale.gen || echo "$l UTF-8" | $sudo tee -a /etc/locale.gen >/dev/null
    done
    $sudo locale-gen >/dev/null
fi
