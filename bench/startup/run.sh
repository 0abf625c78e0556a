#!/usr/bin/env bash
# Start-up benchmark: the medians of the time from the start of the process
# until its main window is on the screen, and of the peak memory, for Quillane
# and two floors (floor.cpp), the three in turn under a private X server, and
# the ratios. Targets against the text floor: 1.15 times its time, 1.25 times
# its memory.
#   quillane-bench-startup [RUNS]        (from the build's bin folder)
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
runs=${1:-7}
# The X server must not reset when its last client leaves, between two
# runs, or the next run may find no server to connect to.
if [ -z "${DISPLAY:-}" ]; then
  exec xvfb-run -a -s "-screen 0 1600x900x24 -noreset" "$0" "$@"
fi
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
export XDG_CONFIG_HOME=$scratch/config XDG_RUNTIME_DIR=$scratch/run XDG_DATA_HOME=$scratch/data
mkdir -p "$XDG_RUNTIME_DIR" && chmod 700 "$XDG_RUNTIME_DIR"

# One run: milliseconds until the window is mapped, and the peak resident set
# in KiB once the window is up and the event loop is idle.
measure() {
  local program=$1 title=$2 start pid ms
  shift 2
  start=$(date +%s%N)
  "$program" "$@" >/dev/null 2>"$scratch/stderr" &
  pid=$!
  # A tight poll: xdotool's own --sync waits half a second between looks.
  until xdotool search --onlyvisible --name "$title" >/dev/null 2>&1; do
    if ! kill -0 "$pid" 2>/dev/null || [ $(( $(date +%s%N) - start )) -gt 30000000000 ]; then
      echo "$program did not show its window:" >&2
      cat "$scratch/stderr" >&2
      exit 1
    fi
    sleep 0.005
  done
  ms=$(( ($(date +%s%N) - start) / 1000000 ))
  sleep 0.5
  kb=$(awk '/VmHWM/ {print $2}' "/proc/$pid/status")
  kill "$pid"; wait "$pid" 2>/dev/null || true
  echo "$ms $kb"
}

median() { sort -n | awk '{a[NR]=$1} END {print (NR % 2) ? a[(NR+1)/2] : (a[NR/2] + a[NR/2+1]) / 2}'; }

# The three in turn: a round to warm up, then the runs.
for run in $(seq 0 "$runs"); do
  out() { if [ "$run" -eq 0 ]; then echo /dev/null; else echo "$scratch/$1"; fi; }
  measure "$here/quillane" '^Quillane v1\.20$' >>"$(out q)"
  measure "$here/quillane-bench-floor" '^Floor$' >>"$(out f)"
  measure "$here/quillane-bench-floor" '^Text floor$' text >>"$(out t)"
done
qt=$(cut -d' ' -f1 "$scratch/q" | median); qm=$(cut -d' ' -f2 "$scratch/q" | median)
ft=$(cut -d' ' -f1 "$scratch/f" | median); fm=$(cut -d' ' -f2 "$scratch/f" | median)
tt=$(cut -d' ' -f1 "$scratch/t" | median); tm=$(cut -d' ' -f2 "$scratch/t" | median)
printf 'runs: %s each, alternating, medians\n' "$runs"
printf '%-12s %10s %12s\n' "" "start ms" "peak KiB" quillane "$qt" "$qm" "text floor" "$tt" "$tm" \
  "bare floor" "$ft" "$fm"
awk -v qt="$qt" -v tt="$tt" -v ft="$ft" -v qm="$qm" -v tm="$tm" -v fm="$fm" 'BEGIN {
  printf "ratio / text %10.2f %12.2f   (targets: 1.15 and 1.25)\n", qt / tt, qm / tm
  printf "ratio / bare %10.2f %12.2f\n", qt / ft, qm / fm }'
