#!/usr/bin/env bash
# Builds the test binaries that run the host thread and the GUI thread
# together (test_runtime, test_widget, test_lifecycle) with
# ThreadSanitizer, in a build folder of its own, and runs them. Fails on any
# report.
#
# Qt's libraries are not instrumented, and their locks (futexes) are
# invisible to TSan, so allocations and copies that Qt makes itself are not
# checked (ignore_noninstrumented_modules). Data of ours must therefore
# cross threads through our own locks (GLUV, std::mutex), never as the
# payload of a Qt queued call: TSan could not see that hand-over.
# Usage: scripts/test-tsan.sh [BUILD_DIR]   (default: build-tsan)
set -euo pipefail
root="$(cd "$(dirname "$0")/.." && pwd)"
dir="${1:-$root/build-tsan}"
flags=-fsanitize=thread
targets=(test_runtime test_widget test_lifecycle)

export TSAN_OPTIONS="ignore_noninstrumented_modules=1 halt_on_error=1 second_deadlock_stack=1"
export QT_QPA_PLATFORM=offscreen
export XDG_RUNTIME_DIR="${XDG_RUNTIME_DIR:-/tmp/runtime-$(id -u)}"
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
# TSan needs the usual address-space layout; some kernels randomise more
# than it can map, so run without randomisation where setarch allows it.
norandom=()
if setarch "$(uname -m)" -R true 2>/dev/null; then norandom=(setarch "$(uname -m)" -R); fi

"${norandom[@]}" "$root/scripts/build.sh" "$dir" -DVOR2_BUILD_TESTS=ON \
  -DCMAKE_CXX_FLAGS="$flags" -DCMAKE_EXE_LINKER_FLAGS="$flags" -DCMAKE_SHARED_LINKER_FLAGS="$flags" \
  -- "${targets[@]}"
for t in test_runtime test_widget; do
  echo "== $t under ThreadSanitizer"
  "${norandom[@]}" "$dir/tests/$t"
done
# The life-cycle tests need a process each.
for name in $("$dir/tests/test_lifecycle" --gtest_list_tests | awk '/^[^ ]/ {suite=$1} /^  / {print suite $1}'); do
  echo "== test_lifecycle $name under ThreadSanitizer"
  "${norandom[@]}" "$dir/tests/test_lifecycle" --gtest_filter="$name"
done
