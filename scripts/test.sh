#!/usr/bin/env bash
# Installs what is missing, builds Quillane with AddressSanitizer and
# UndefinedBehaviorSanitizer, and runs every test.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build/asan -DCMAKE_BUILD_TYPE=Debug -DQUILLANE_SANITIZE=ON >/dev/null
cmake --build build/asan -j"$(nproc)"
# The sanitizers' options come with each test (tests/CMakeLists.txt).
cd build/asan
ctest --output-on-failure -j"$(nproc)" --timeout 300
