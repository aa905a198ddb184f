#!/usr/bin/env bash
# Builds and runs the demo program. Arguments are passed to the demo.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/build.sh" "$root/build" -DVOR2_BUILD_TESTS=OFF -- vor2_demo
export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}"
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp/runtime-$(id -u)}"
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
exec "$root/build/vor2_demo" "$@"
