#!/usr/bin/env bash
# The builds that keep Quillane portable, each with warnings as errors
# (docs/portability.md):
#   the logic libraries with Clang and libc++, and for Windows with MinGW-w64;
#   the program and its tests in Release with GCC;
#   the program again from a copy of the sources elsewhere (kept in
#   build/copy, brought up to date at each run): the same bytes.
set -euo pipefail
cd "$(dirname "$0")/.."
jobs=$(nproc)
werror=-DCMAKE_COMPILE_WARNING_AS_ERROR=ON

echo "== The logic with Clang and libc++"
CC=clang CXX=clang++ cmake -S . -B build/libcxx -DQUILLANE_LOGIC_ONLY=ON -DCMAKE_BUILD_TYPE=Release \
  -DCMAKE_CXX_FLAGS=-stdlib=libc++ $werror >/dev/null
cmake --build build/libcxx -j"$jobs"

echo "== The logic for Windows with MinGW-w64"
# SQLite's header is the same on every system, and the libraries are static:
# nothing links against a Windows SQLite here.
mkdir -p build/mingw/sqlite
cp /usr/include/sqlite3.h build/mingw/sqlite/
cmake -S . -B build/mingw -DCMAKE_TOOLCHAIN_FILE=cmake/mingw-w64-x86_64.cmake \
  -DQUILLANE_LOGIC_ONLY=ON -DQUILLANE_FORWARDING_INCLUDES=ON -DCMAKE_BUILD_TYPE=Release \
  -DSQLite3_INCLUDE_DIR="$PWD/build/mingw/sqlite" -DSQLite3_LIBRARY=sqlite3 $werror >/dev/null
cmake --build build/mingw -j"$jobs"

echo "== Release with GCC"
cmake -S . -B build/werror -DCMAKE_BUILD_TYPE=Release $werror >/dev/null
cmake --build build/werror -j"$jobs"

echo "== The program again, from a copy of the sources in another folder"
# The copy stays in build/copy between runs and is brought up to date file by
# file: a file copied again takes a new time, as a checkout gives it, and one
# unchanged keeps its own, so each run builds again in the copy what it builds
# again here. Files gone from the sources go from the copy.
copy=$PWD/build/copy
mkdir -p "$copy/sources"
git ls-files -z --cached --others --exclude-standard | sort -z >"$copy/wanted"
(cd "$copy/sources" && find . -type f -printf '%P\0' | sort -z) >"$copy/present"
comm -z -13 "$copy/wanted" "$copy/present" | (cd "$copy/sources" && xargs -0 -r rm -f)
while IFS= read -r -d '' file; do
  if ! cmp -s "$file" "$copy/sources/$file"; then
    mkdir -p "$copy/sources/$(dirname "$file")"
    cp "$file" "$copy/sources/$file"
  fi
done <"$copy/wanted"
cmake -S "$copy/sources" -B "$copy/build" -DCMAKE_BUILD_TYPE=Release $werror >/dev/null
cmake --build "$copy/build" -j"$jobs" --target quillane quillane-drive
for program in quillane quillane-drive; do
  cmp "build/werror/bin/$program" "$copy/build/bin/$program"
done
echo "Both builds of the program are the same, byte for byte"
