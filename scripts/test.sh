#!/usr/bin/env bash
# Builds and runs every test. With --sanitize, under AddressSanitizer and
# UndefinedBehaviorSanitizer in a build folder of its own.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="$root/build-tests"; opts=(-DVOR2_BUILD_TESTS=ON)
if [ "${1:-}" = "--sanitize" ]; then
  dir="$root/build-asan"; opts+=(-DVOR2_SANITIZE=ON -DCMAKE_BUILD_TYPE=Debug)
  export ASAN_OPTIONS="detect_leaks=1:abort_on_error=1"
  export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1"
  export LSAN_OPTIONS="suppressions=$root/scripts/lsan.supp"
fi
"$root/scripts/build.sh" "$dir" "${opts[@]}"
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp/runtime-$(id -u)}"
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
cd "$dir" && ctest --output-on-failure -j2
