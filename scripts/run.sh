#!/usr/bin/env bash
# Installs what is missing, builds Quillane and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/install-deps.sh
cmake -S . -B build/release -DCMAKE_BUILD_TYPE=Release -DQUILLANE_TESTS=OFF -DQUILLANE_BENCH=OFF >/dev/null
cmake --build build/release -j"$(nproc)"
exec build/release/bin/quillane "$@"
