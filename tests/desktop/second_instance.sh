#!/usr/bin/env bash
# A second start of the desktop program says "Application is already running"
# and ends; the first launcher stays, alone. Runs under its own X server.
set -euo pipefail
app=$1
scratch=$(mktemp -d)
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch/run XDG_DATA_HOME=$scratch/data
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"
unset QT_QPA_PLATFORM

fail() { echo "FAIL: $*"; exit 1; }
windows() { xdotool search --onlyvisible --name "$1" 2>/dev/null | wc -l; }

"$app" &
first=$!
timeout 20 xdotool search --sync --onlyvisible --name '^Quillane v1\.20$' >/dev/null || fail "no launcher"

"$app" &
second=$!
box=$(timeout 20 xdotool search --sync --onlyvisible --name '^Quillane$' | head -n1) || fail "no message box"
[ "$(windows '^Quillane v1\.20$')" -eq 1 ] || fail "a second launcher came up"
xdotool windowfocus --sync "$box" key Return
for _ in $(seq 100); do kill -0 "$second" 2>/dev/null || break; sleep 0.2; done
kill -0 "$second" 2>/dev/null && fail "the second instance did not end"
wait "$second" || fail "the second instance ended with an error"
kill -0 "$first" 2>/dev/null || fail "the first instance ended"
[ "$(windows '^Quillane v1\.20$')" -eq 1 ] || fail "the first launcher is gone"
echo "1 passed, 0 failed"
