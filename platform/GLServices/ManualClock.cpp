#include "GLServices/ManualClock.h"

#include "GLServices/HostTimerQueue.h"
#include "GLUV/Thread.h"

#include <algorithm>

namespace GLServices {

using Milliseconds = HostRunLoop::Milliseconds;

ManualClock::ManualClock(HostRunLoop &loop) : m_loop(loop)
{
    ut_assert(m_loop.thread()->isCurrent());
    ut_assert(!m_loop.m_timers->usesManualClock());
    m_loop.m_timers->useManualClock(true);
}

ManualClock::~ManualClock()
{
    m_loop.m_timers->useManualClock(false);
}

Milliseconds ManualClock::now() const
{
    return m_loop.m_timers->now();
}

int ManualClock::advance(Milliseconds ms)
{
    ut_assert(m_loop.thread()->isCurrent());
    HostTimerQueue &timers = *m_loop.m_timers;
    Milliseconds const target = timers.now() + std::max(ms, Milliseconds(0));
    int ran = 0;
    for (;;) {
        std::optional<Milliseconds> next = timers.nextDeadlineAfter(timers.now());
        if (!next || *next > target) break;
        timers.setManualNow(*next);
        ran += m_loop.runUntilIdle();
    }
    timers.setManualNow(target);
    return ran + m_loop.runUntilIdle();
}

} // namespace GLServices
