#!/usr/bin/env bash
# Installs what Quillane needs to build, run and test, from Debian's packages.
# Does nothing when everything is there already.
set -euo pipefail

packages=(
  build-essential cmake pkg-config
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev libqt6svg6 libgl-dev
  libsqlite3-dev libpng-dev libgtest-dev libfontconfig-dev
  fonts-dejavu-core
  xvfb xauth xdotool imagemagick poppler-utils
  # scripts/package.sh: the Debian package, its checks and validators.
  dpkg-dev desktop-file-utils appstream lintian
  locales
  # The logic's builds with Clang and libc++, and for Windows with MinGW-w64;
  # libFuzzer needs clang's runtime libraries of the same version.
  clang libclang-rt-dev libc++-dev libc++abi-dev g++-mingw-w64-x86-64-posix
  # The gates of scripts/test.sh.
  clang-format clang-tidy
)
# The locales that the locale tests run under.
locales=(de_DE tr_TR)

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
  echo "Installing: ${missing[*]}"
  export DEBIAN_FRONTEND=noninteractive
  $sudo apt-get update -qq
  $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

for l in "${locales[@]}"; do
  locale -a | grep -qx "$l.utf8" || $sudo localedef -i "$l" -f UTF-8 "$l.UTF-8"
done
