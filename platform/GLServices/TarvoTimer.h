#pragma once
// GLServices::TarvoTimer: a repeating timer of the host's loop. Its tick is
// sent on the host thread, from the loop, each time the interval has passed.
// Made by the current TarvoTimerService; used and destroyed on the host
// thread only.

#include "GLUV/Emitter.h"

namespace GLServices {

class TarvoTimer {
public:
    using TickEmitter = GLUV::Emitter<void (*)()>;

    TarvoTimer() = default;
    TarvoTimer(TarvoTimer const &) = delete;
    TarvoTimer &operator=(TarvoTimer const &) = delete;
    virtual ~TarvoTimer() = default;

    // Host thread: (re)starts the timer: the first tick comes ms after now,
    // then one every ms. A negative ms counts as 0, which ticks at each pass
    // of the loop.
    virtual void startRepeating(int ms) = 0;
    // Host thread: no more ticks until the next start. Safe from a tick.
    virtual void stop() = 0;
    // Host thread: whether the timer is started.
    virtual bool isActive() const = 0;
    // Host thread: milliseconds until the next tick (0 when overdue), or -1
    // when stopped.
    virtual int remainingTime() const = 0;

    // Sent at each tick on the host thread. Listeners may stop, restart or
    // destroy the timer.
    TickEmitter &tick() { return m_tick; }

private:
    TickEmitter m_tick;
};

} // namespace GLServices
