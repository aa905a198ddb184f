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

} // namespace VOR2::script
