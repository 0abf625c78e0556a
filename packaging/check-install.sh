#!/usr/bin/env bash
# Installs the build into a scratch folder and checks what a Linux desktop
# needs of it: the programs reached from bin/ with learn.dll beside them, the
# desktop entry and the AppStream metainfo passing their validators, the icons
# at every size of the theme and as SVG, the manual pages and the changelog.
#   check-install.sh BUILD_DIR APP_ID SIZE...
set -euo pipefail
build=$1 id=$2
shift 2
root=$(mktemp -d)
trap 'rm -rf "$root"' EXIT
fail() { echo "FAIL: $*"; exit 1; }

cmake --install "$build" --prefix "$root/usr" >/dev/null
cd "$root/usr"
for program in quillane quillane-drive; do
  [ -x "bin/$program" ] || fail "bin/$program is missing"
  [ "$(readlink -f "bin/$program")" = "$root/usr/lib/quillane/$program" ] ||
    fail "bin/$program does not lead to lib/quillane/$program"
done
[ -f lib/quillane/learn.dll ] || fail "learn.dll is not beside the program"
# The installed driver runs from bin/ and finds the card database.
answer=$(printf 'start\nclick frmMDI.cmdSelectOption(2)\nget frmLearnTarotMain.Loaded\n' |
         QT_QPA_PLATFORM=offscreen bin/quillane-drive | tail -n1)
[ "$answer" = true ] || fail "the installed driver can't open the Tarot window: $answer"

entry=share/applications/$id.desktop
metainfo=share/metainfo/$id.metainfo.xml
if command -v desktop-file-validate >/dev/null; then
  desktop-file-validate "$entry" || fail "$entry"
else
  echo "desktop-file-validate is not installed: the entry is not validated"
fi
if command -v appstreamcli >/dev/null; then
  appstreamcli validate --no-net --pedantic "$metainfo" >/dev/null || {
    appstreamcli validate --no-net --pedantic "$metainfo"
    fail "$metainfo"
  }
else
  echo "appstreamcli is not installed: the metainfo is not validated"
fi
grep -qx "Icon=$id" "$entry" || fail "the entry names another icon"

for size in "$@"; do
  icon=share/icons/hicolor/${size}x${size}/apps/$id.png
  [ -f "$icon" ] || fail "$icon is missing"
  # Width and height stand in the PNG header at bytes 16 to 23.
  read -r w h < <(od -An -tu1 -j16 -N8 "$icon" |
    awk '{print $1*16777216+$2*65536+$3*256+$4, $5*16777216+$6*65536+$7*256+$8}')
  [ "$w" = "$size" ] && [ "$h" = "$size" ] || fail "$icon is ${w}x${h}"
done
[ -f "share/icons/hicolor/scalable/apps/$id.svg" ] || fail "the scalable icon is missing"
for page in quillane quillane-drive; do
  [ -f "share/man/man1/$page.1.gz" ] || fail "the manual page of $page is missing"
done
[ -f share/doc/quillane/changelog.gz ] || fail "the changelog is missing"
echo "1 passed, 0 failed"
