#!/usr/bin/env bash
# Builds the benchmark program with -O2 in build-bench/ and runs it: VOR2
# against plain Qt Graphics View (BSP index and no index) and direct QPainter
# drawing, in one run. Prints one table and writes it, with the machine's
# description, into docs/performance.md. Arguments go to the program
# (--quick, --repetitions R, --benchmark_filter=REGEX).
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
BUILD_TYPE=RelWithDebInfo "$root/scripts/build.sh" "$root/build-bench" \
  -DVOR2_BUILD_TESTS=OFF -DVOR2_BUILD_BENCH=ON -- vor2_bench
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp/runtime-$(id -u)}"
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=offscreen
exec "$root/build-bench/bench/vor2_bench" --doc "$root/docs/performance.md" "$@"
