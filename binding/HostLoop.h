#pragma once
// The host loop as a script host drives it. The script host's interpreter
// thread is the host thread: it calls initialize_vor on first use, and then
// runs the loop from the host's input event hook while the prompt waits and
// from scripts that pump it.
//
// Host thread only.

namespace VOR2::script {

// initialize_vor with errors reported by exception; does nothing the second
// time.
void startHostLoop();
// Runs the loop (input, tools, rendering, timers) for `seconds`, or until
// it has no work left.
void runHostLoopFor(double seconds);
void runHostLoopUntilIdle();
// For the host's input event hook: runs the loop while the terminal has no
// input for the host, up to `maxSeconds`, looking at `inputFd` about every
// 10 ms, so that a key typed at the prompt waits at most that long. Returns
// at once when the descriptor is readable (or closed).
void runHostLoopWhileNoInput(int inputFd, double maxSeconds);

} // namespace VOR2::script
