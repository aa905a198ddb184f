#pragma once
// GLServices::ManualClock: while it exists, the timers of a HostRunLoop follow
// this clock instead of the real one, so that tests decide when timers fire.
// It starts at 0; started timers keep their distance to their next tick when
// it is made and when it goes. Host thread only; one at a time per loop.

#include "GLServices/HostRunLoop.h"

namespace GLServices {

class ManualClock {
public:
    explicit ManualClock(HostRunLoop &loop);
    ~ManualClock();
    ManualClock(ManualClock const &) = delete;
    ManualClock &operator=(ManualClock const &) = delete;

    // The clock's time.
    HostRunLoop::Milliseconds now() const;

    // Moves the clock forward by ms (negative counts as 0), stopping at each
    // timer deadline on the way: at each stop, and at the end, it runs the
    // loop until idle, so every timer fires exactly when the clock reaches
    // its deadline, in deadline order, and work they post runs before the
    // clock moves on. Returns how much ran.
    int advance(HostRunLoop::Milliseconds ms);
    int advance(int ms) { return advance(HostRunLoop::Milliseconds(ms)); }

private:
    HostRunLoop &m_loop;
};

} // namespace GLServices
