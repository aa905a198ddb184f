#pragma once
// VOR2::HostRuntime: starts and stops the two threads the library runs on,
// for native programs and tests (a script host starts them its own way).
//
// start(), called on the thread that is to be the host thread (a program's
// main thread) before any Qt object of the process exists:
//   1. starts the widget bridge "qt": the GUI thread, which creates the
//      process's QApplication and runs its event loop;
//   2. makes the HostRunLoop on the calling thread, which names it "TARVO"
//      and provides the host services;
//   3. installs VOREventDispatcher for the calling thread, so QObjects living
//      there get their timers and posted events from the host loop;
//   4. installs the QtWidgetFactory on the GUI thread, so canvases get
//      their widgets there.
// The program then runs the host loop (loop().runFor, runUntil, ...).
// stop(), on the same thread, stops the GUI thread (destroying the
// QApplication) and then the loop. The dispatcher stays installed. Once per
// process.

namespace GLServices {
class HostRunLoop;
}
namespace GLBridge {
class Bridge;
}

namespace VOR2 {

class HostRuntime {
public:
    HostRuntime() = delete;

    static void start();
    static void stop();
    // Any thread.
    static bool isRunning();
    // Host thread, while running.
    static GLServices::HostRunLoop &loop();
    // Any thread: the widget bridge "qt".
    static GLBridge::Bridge &bridge();
};

} // namespace VOR2
