#!/usr/bin/env bash
# Installs what is missing, checks the portable builds (scripts/portability.sh),
# builds Quillane with AddressSanitizer and UndefinedBehaviorSanitizer, runs
# every test, and fuzzes each fuzz target for a few seconds. Warnings are
# errors throughout.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/portability.sh
cmake -S . -B build/asan -DCMAKE_BUILD_TYPE=Debug -DQUILLANE_SANITIZE=ON \
  -DCMAKE_COMPILE_WARNING_AS_ERROR=ON >/dev/null
cmake --build build/asan -j"$(nproc)"
# The sanitizers' options come with each test (tests/CMakeLists.txt).
(cd build/asan && ctest --output-on-failure -j"$(nproc)" --timeout 300)

# A few seconds of fuzzing for each target, from its corpus. What it finds new
# goes to a scratch folder, never into tests/fuzz/corpus.
cmake --preset fuzz >/dev/null
cmake --build build/fuzz -j"$(nproc)"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
for target in build/fuzz/bin/fuzz_*; do
  name=$(basename "$target")
  mkdir -p "$scratch/$name"
  if ! "$target" -max_total_time=5 -artifact_prefix=build/fuzz/ "$scratch/$name" \
      "tests/fuzz/corpus/$name" >"$scratch/$name.log" 2>&1; then
    cat "$scratch/$name.log"
    exit 1
  fi
  echo "$name: $(tail -n 1 "$scratch/$name.log")"
done
