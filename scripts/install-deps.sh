#!/usr/bin/env bash
# Installs what Quillane needs to build, run and test, from Debian's packages.
# Does nothing when everything is there already.
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 libgl-dev
  libsqlite3-dev libgtest-dev
  fonts-dejavu-core
  xvfb xauth xdotool imagemagick poppler-utils
  # libFuzzer: clang and its runtime libraries, of the same version
  clang libclang-rt-dev
)

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing: ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
