#!/usr/bin/env bash
# Configures and builds VOR2 with Ninja into a build folder.
# Usage: scripts/build.sh BUILD_DIR [cmake options...] [-- ninja targets...]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="$1"; shift
cmake_args=(); targets=()
while [ $# -gt 0 ]; do
  if [ "$1" = "--" ]; then shift; targets=("$@"); break; fi
  cmake_args+=("$1"); shift
done
"$root/scripts/setup.sh"
cmake -S "$root" -B "$dir" -G Ninja -DCMAKE_BUILD_TYPE="${BUILD_TYPE:-RelWithDebInfo}" "${cmake_args[@]}" >/dev/null
cmake --build "$dir" -- "${targets[@]}"
