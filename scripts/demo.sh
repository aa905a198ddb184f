#!/usr/bin/env bash
# Builds and runs the demo: the tour of the scene spine, then the gallery
# written to build/demo-gallery.png (and .pdf), shown in a window when a
# display is there. Arguments, when given, go to the demo instead.
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
"$root/scripts/build.sh" "$root/build" -DVOR2_BUILD_TESTS=OFF -- vor2_demo
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp/runtime-$(id -u)}"
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || export QT_QPA_PLATFORM="${QT_QPA_PLATFORM:-offscreen}"
if [ $# -gt 0 ]; then
  exec "$root/build/vor2_demo" "$@"
fi
exec "$root/build/vor2_demo" --tour --render "$root/build/demo-gallery.png" --pdf "$root/build/demo-gallery.pdf" --show
