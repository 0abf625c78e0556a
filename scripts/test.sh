#!/usr/bin/env bash
# The gates that CI runs (.ci/run), warnings as errors throughout:
#   installs what is missing (scripts/install-deps.sh);
#   the format of every source (clang-format, .clang-format);
#   the portable builds (scripts/portability.sh);
#   Quillane with AddressSanitizer and UndefinedBehaviorSanitizer, and every
#   test (ctest --preset asan);
#   clang-tidy (.clang-tidy) over the sources changed since main, or over all
#   of them with QUILLANE_TIDY_ALL=1 or where there is no main to compare with;
#   a few seconds of fuzzing for each fuzz target.
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)
scripts/install-deps.sh

echo "== Format"
git ls-files -z -- src tests bench deck | grep -zE '\.(cpp|h)$' | xargs -0 clang-format --dry-run -Werror

scripts/portability.sh

echo "== The sanitizers' build and every test"
cmake --preset asan >/dev/null
cmake --build build/asan -j"$jobs"
# The sanitizers' options come with each test (tests/CMakeLists.txt).
ctest --preset asan -j"$jobs"

echo "== clang-tidy"
# The build's compile commands without GCC's precompiled header of the tests,
# which clang can't read: each file is checked with its own includes.
mkdir -p build/asan/tidy
sed -e 's| -Winvalid-pch||g' -e 's| -include [^ ]*/cmake_pch\.hxx||g' \
  build/asan/compile_commands.json >build/asan/tidy/compile_commands.json
# The files the build compiles.
compiled=$(sed -n 's|^ *"file": "\(.*\)",*$|\1|p' build/asan/compile_commands.json |
  grep -E "^$PWD/(src|tests|bench|deck)/" | sort -u)
base=""
for main in main origin/main; do
  base=$(git merge-base HEAD "$main" 2>/dev/null) && break
done
# On main itself, what the newest commit changed (all of a merge's branch).
if [ "$base" = "$(git rev-parse HEAD)" ]; then
  base=$(git rev-parse -q --verify HEAD~1 || true)
fi
if [ -z "${QUILLANE_TIDY_ALL:-}" ] && [ -n "$base" ]; then
  # A changed header counts as a change of the sources of the same name.
  changed=$(git diff --name-only --diff-filter=d "$base" -- src tests bench deck |
    sed -n 's/\.\(cpp\|h\)$//p' | sed "s|^|$PWD/|" | sort -u)
  all=$compiled
  compiled=$(for stem in $changed; do printf '%s\n' "$all" | grep -xF "$stem.cpp" || true; done)
fi
if [ -n "$compiled" ]; then
  echo "$(printf '%s\n' "$compiled" | wc -l) files"
  # Each file's count of the warnings in code not ours is left out.
  printf '%s\n' "$compiled" | xargs -P "$jobs" -n 1 bash -c \
    'set -o pipefail; clang-tidy -p build/asan/tidy --quiet "$0" 2>&1 | { grep -v "generated\.$" || true; }'
fi

echo "== Fuzzing"
# A few seconds of fuzzing for each target, from its corpus. What it finds new
# goes to a scratch folder, never into tests/fuzz/corpus.
cmake --preset fuzz >/dev/null
cmake --build build/fuzz -j"$jobs"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
# The targets run side by side, one to a processor.
for target in build/fuzz/bin/fuzz_*; do
  name=$(basename "$target")
  mkdir -p "$scratch/$name"
  while [ "$(jobs -rp | wc -l)" -ge "$jobs" ]; do wait -n || true; done
  { if "$target" -max_total_time=5 -artifact_prefix=build/fuzz/ "$scratch/$name" \
      "tests/fuzz/corpus/$name" >"$scratch/$name.log" 2>&1; then
      echo passed >"$scratch/$name.status"
    else
      echo failed >"$scratch/$name.status"
    fi; } &
done
wait
for target in build/fuzz/bin/fuzz_*; do
  name=$(basename "$target")
  if [ "$(cat "$scratch/$name.status")" != passed ]; then
    cat "$scratch/$name.log"
    exit 1
  fi
  echo "$name: $(tail -n 1 "$scratch/$name.log")"
done
