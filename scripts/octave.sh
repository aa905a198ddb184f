#!/usr/bin/env bash
# Builds the Octave package VOR2 (build/octave: the +VOR2 classes and their
# gateway) and starts octave-cli with it on the path: at the prompt with no
# arguments, else running the given script files in turn.
# Usage: scripts/octave.sh [SCRIPT.m ...]
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/build.sh" "$root/build" -DVOR2_BUILD_TESTS=OFF -- vor2_octave
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp/runtime-$(id -u)}"
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
path="addpath('$root/build/octave');"
if [ $# -eq 0 ]; then
  exec octave-cli --norc --quiet --eval "$path" --persist
fi
runs=""
for f in "$@"; do runs+="run('$(cd "$(dirname "$f")" && pwd)/$(basename "$f")');"; done
exec octave-cli --norc --quiet --eval "$path $runs"
