#pragma once
// GLServices::HostRunLoop: our own loop for the host thread, used by native
// programs and tests (inside a script host, the host's loop takes its place).
// It implements both host services: callbacks posted from any thread and
// timers, all run on the host thread when the loop runs.
//
// Making one on a thread makes that the host thread: the loop names it
// "TARVO", becomes the GLUV wake-up handler of its GLUV::Thread (so GLUV
// deliveries queued to it run in the loop), and makes itself the current
// GLService<EventManagement> and GLService<TarvoTimerService>. Destroying it
// undoes that; timers it made tick no more, and posted work stays queued on
// the thread for whatever runs it next. One loop per process at a time.
//
// The loop waits on a condition variable, woken by posts, until the next
// timer's deadline or the end of the run: it never polls. Timers follow the
// real steady clock, or a ManualClock while one exists.
//
// Callbacks and ticks run from inside the run operations; an exception they
// throw leaves the run operation, with the rest still queued.

#include "GLServices/EventManagement.h"
#include "GLServices/TarvoTimerService.h"

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>

namespace GLUV {
class Thread;
}

namespace GLServices {

class HostTimerQueue;

class HostRunLoop final : public EventManagement, public TarvoTimerService {
public:
    using Milliseconds = std::chrono::milliseconds;

    // The thread that constructs the loop is its host thread.
    HostRunLoop();
    // Host thread.
    ~HostRunLoop() override;

    // Any thread.
    void postCallback(Callback callback) override;
    // Host thread.
    std::shared_ptr<TarvoTimer> createTimer() override;

    // Host thread: runs posted callbacks and GLUV deliveries until none is
    // left, and ticks each timer that is due, each at most once per call (so
    // a zero interval cannot hold the call forever). Returns how many
    // callbacks, deliveries and ticks ran. Never waits.
    int runUntilIdle();
    // Host thread: runs for duration of real time, waiting for work between
    // passes, or until quit(). Returns how much ran.
    int runFor(Milliseconds duration);
    // Host thread: runs until done() answers true (checked after each pass),
    // quit(), or timeout of real time. Returns done() as it last answered.
    bool runUntil(std::function<bool()> const &done, Milliseconds timeout);
    // Any thread: makes the running runFor or runUntil return after its
    // current pass; when none runs, the next one returns after one pass.
    void quit();

    // Host thread: the timers' clock (a ManualClock's time while one exists).
    Milliseconds now() const override;
    // Any thread: the host thread's GLUV object.
    GLUV::Thread *thread() const { return m_thread; }

private:
    friend class ManualClock;
    struct WakeState;

    // Runs passes until done(), quit() or the end; returns what ran.
    int run(std::function<bool()> const &done, Milliseconds timeout, bool *finished);
    // Sleeps until woken by a post or quit(), the next real-clock timer
    // deadline, or until.
    void waitForWork(std::chrono::steady_clock::time_point until);
    bool takeQuit();

    GLUV::Thread *const m_thread;
    std::shared_ptr<WakeState> const m_wake;
    std::shared_ptr<HostTimerQueue> const m_timers;
    std::uint64_t m_passes = 0;
};

} // namespace GLServices
