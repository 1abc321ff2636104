#!/bin/sh
# Builds the calculator for Windows and runs its tests under wine, where the developer has configured such a build.
# Usage: run_tests.sh BUILD   status 77 where there is none, or where compiler or wine are missing
skip() {
  echo "Skipped: $1. docs/PORTING.md tells how to test the Windows build."
  exit 77
}
[ -f "$1/CMakeCache.txt" ] || skip "no build in $1"
for tool in x86_64-w64-mingw32-g++-posix wine wineserver; do
  command -v $tool >/dev/null || skip "$tool is missing"
done
cmake --build "$1" && ctest --test-dir "$1" --output-on-failure -j 2
