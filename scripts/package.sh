#!/usr/bin/env bash
# Builds Quillane in Release, makes its Debian package and checks it: the
# installed tree (desktop entry and AppStream metainfo through their
# validators, icons, manual pages, the programs and learn.dll), the package's
# fields and contents, that apt can satisfy its dependencies, lintian, and the
# packaged program started under Xvfb from an unpacked copy.
#
#   scripts/package.sh             # build/package/quillane_<version>_<arch>.deb
#   scripts/package.sh --install   # also installs it with apt, starts the
#                                  # installed program, and removes it again
set -euo pipefail
cd "$(dirname "$0")/.."
install=false
[ "${1:-}" = --install ] && install=true

scripts/install-deps.sh
build=build/package
id=net.zenthora.quillane
cmake -S . -B $build -DCMAKE_BUILD_TYPE=Release -DQUILLANE_TESTS=OFF -DQUILLANE_BENCH=OFF >/dev/null
cmake --build $build -j"$(nproc)"
rm -f $build/quillane_*.deb
(cd $build && cpack -G DEB >/dev/null)
deb=$(ls $build/quillane_*.deb)
echo "== $deb"

echo "== the installed tree"
packaging/check-install.sh $build $id 16 22 24 32 48 64 128 256

echo "== the package"
dpkg-deb --field "$deb" Package Version Architecture Depends Section
dpkg-deb --contents "$deb" | awk '{print $6, $7, $8}'
apt-get install --simulate --no-install-recommends "./$deb" >/dev/null ||
  { echo "FAIL: apt can't satisfy the package's dependencies"; exit 1; }
echo "apt can install it and its dependencies"
if command -v lintian >/dev/null; then
  echo "== lintian"
  lintian --tag-display-limit 0 "$deb" || true
fi

# The program is up when its launcher is on the screen; then it is closed.
starts() {
  xvfb-run -a -s "-screen 0 1366x768x24" bash -c '
    export XDG_RUNTIME_DIR=$(mktemp -d) XDG_CONFIG_HOME=$(mktemp -d) XDG_DATA_HOME=$(mktemp -d)
    "$1" & pid=$!
    timeout 60 xdotool search --sync --onlyvisible --name "^Quillane v1\.20$" >/dev/null
    up=$?
    kill $pid
    exit $up' _ "$1"
}

echo "== the packaged program"
unpacked=$(mktemp -d)
trap 'rm -rf "$unpacked"' EXIT
dpkg-deb -x "$deb" "$unpacked"
unset QT_QPA_PLATFORM
starts "$unpacked/usr/bin/quillane" || { echo "FAIL: the unpacked program does not start"; exit 1; }
echo "the unpacked program starts and shows its launcher"

if $install; then
  sudo=""
  [ "$(id -u)" -eq 0 ] || sudo="sudo"
  $sudo apt-get install -y -qq --no-install-recommends "./$deb" >/dev/null
  starts /usr/bin/quillane || { echo "FAIL: the installed program does not start"; exit 1; }
  echo "the installed program starts and shows its launcher"
  $sudo apt-get remove -y -qq quillane >/dev/null
fi
echo "1 passed, 0 failed"
