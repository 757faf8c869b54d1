#!/usr/bin/env bash
# Installs the Debian packages that building, running and testing Quovara need.
# Idempotent: prints nothing and installs nothing when everything is present.
set -euo pipefail

packages=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev libgl-dev
    libgtest-dev libgmock-dev libbenchmark-dev
    clang libclang-rt-14-dev clang-format
    xvfb xauth x11-utils imagemagick
    desktop-file-utils shared-mime-info libglib2.0-dev
    appstream dpkg-dev file gzip
    dbus-x11 at-spi2-core python3-pyatspi
)

missing=()
for p in "${packages[@]}"; do
    if ! grep -q "ok installed" <<<"$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null)"; then
        missing+=("$p")
    fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
if [ "$(id -u)" -ne 0 ]; then sudo="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
