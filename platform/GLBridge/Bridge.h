#pragma once
// GLBridge::Bridge: the widget bridge named "qt". It owns the GUI thread: a
// thread of its own that creates the process's QApplication and runs its
// event loop. The QApplication lives on that thread for its whole life, so
// every widget of the process belongs there; Qt takes that thread for its
// main thread, which is why the bridge must start before any other Qt object
// of the process exists (even before any other thread asks Qt which thread
// it is).
//
// The GUI thread is registered with GLUV under the name "GUI", with a
// wake-up handler that makes the Qt loop run its GLUV queue, so GLUV
// deliveries to that thread work.
//
// When the process already has a QApplication (a host with a Qt GUI of its
// own), start() makes no thread and no application: the application's
// thread becomes the GUI thread, and stop() gives it back untouched. The
// application must run its event loop on a thread other than the caller's.
//
// A GUI thread of the bridge's own starts once per process: after a stop it
// cannot start again, since Qt allows one GUI thread per process.

#include <functional>
#include <memory>
#include <string>

namespace GLUV {
class Thread;
}

namespace GLBridge {

class Bridge {
public:
    // The GLUV name of the GUI thread.
    static constexpr char const *GUI_THREAD_NAME = "GUI";

    Bridge(Bridge const &) = delete;
    Bridge &operator=(Bridge const &) = delete;

    std::string name() const { return "qt"; }

    // Any thread but the GUI thread: starts the GUI thread and returns once
    // its QApplication exists, or takes the existing QApplication's thread
    // for it. Does nothing while running. Throws std::logic_error, having
    // changed nothing, when the process has a QCoreApplication that is no
    // QApplication, when the caller's thread runs the QApplication, when the
    // QApplication's thread does not answer within ten seconds (its event
    // loop does not run), or when its own GUI thread has stopped before.
    void start();
    // Any thread but the GUI thread: quits the Qt loop, destroys the
    // QApplication and waits for the GUI thread to end; an adopted
    // application only loses the bridge's hold and runs on. Work still queued
    // for the GUI thread is dropped. Does nothing when not running.
    void stop();
    // Any thread: true while the GUI thread is an application's the bridge
    // did not make.
    bool isAdopted() const;
    // Any thread.
    bool isRunning() const;
    // Any thread: the GUI thread's GLUV object, null when not running.
    GLUV::Thread *guiThread() const;

    // Any thread: runs fn on the GUI thread. Without wait, queues it and
    // returns; fn must not throw then, since nothing could catch it but Qt's
    // loop. With wait, returns after fn ran (at once on the GUI thread
    // itself) and throws what fn threw. Returns false when the bridge is not
    // running or stopped before fn could run; fn did not run then.
    bool runOnGui(std::function<void()> fn, bool wait);

private:
    friend Bridge *getBridge(std::string const &name);
    struct State;
    Bridge();
    ~Bridge();

    std::unique_ptr<State> const m_state;
};

// Any thread: the bridge of that name ("qt" is the only one), or null.
Bridge *getBridge(std::string const &name);

} // namespace GLBridge
