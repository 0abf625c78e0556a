#!/usr/bin/env bash
# Installs what is missing, checks the portable builds (scripts/portability.sh),
# builds Quillane with AddressSanitizer and UndefinedBehaviorSanitizer, and
# runs every test. Warnings are errors throughout.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
scripts/portability.sh
cmake -S . -B build/asan -DCMAKE_BUILD_TYPE=Debug -DQUILLANE_SANITIZE=ON \
  -DCMAKE_COMPILE_WARNING_AS_ERROR=ON >/dev/null
cmake --build build/asan -j"$(nproc)"
export ASAN_OPTIONS="detect_leaks=1:abort_on_error=0"
export LSAN_OPTIONS="suppressions=$PWD/tests/lsan.supp:print_suppressions=0"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
cd build/asan
ctest --output-on-failure -j"$(nproc)" --timeout 300
