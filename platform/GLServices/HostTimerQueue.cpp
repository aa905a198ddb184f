#include "GLServices/HostTimerQueue.h"

#include <algorithm>
#include <limits>

namespace GLServices {

using Milliseconds = HostTimerQueue::Milliseconds;

HostTimer::HostTimer(std::weak_ptr<HostTimerQueue> queue) : m_queue(std::move(queue)) {}

HostTimer::~HostTimer()
{
    stop();
}

void HostTimer::startRepeating(int ms)
{
    if (std::shared_ptr<HostTimerQueue> queue = m_queue.lock()) queue->start(this, Milliseconds(std::max(ms, 0)));
}

void HostTimer::stop()
{
    if (!m_active) return;
    if (std::shared_ptr<HostTimerQueue> queue = m_queue.lock()) queue->stop(this);
    m_active = false;
}

bool HostTimer::isActive() const
{
    return m_active && !m_queue.expired();
}

int HostTimer::remainingTime() const
{
    std::shared_ptr<HostTimerQueue> queue = m_queue.lock();
    if (!m_active || !queue) return -1;
    auto const left = std::max(m_deadline - queue->now(), Milliseconds(0)).count();
    return static_cast<int>(std::min<decltype(left)>(left, std::numeric_limits<int>::max()));
}

Milliseconds HostTimerQueue::realNow()
{
    return std::chrono::duration_cast<Milliseconds>(std::chrono::steady_clock::now().time_since_epoch());
}

Milliseconds HostTimerQueue::now() const
{
    return m_manual ? m_manualNow : realNow();
}

void HostTimerQueue::useManualClock(bool manual)
{
    if (manual == m_manual) return;
    Milliseconds const before = now();
    m_manual = manual;
    m_manualNow = Milliseconds(0);
    Milliseconds const after = now();
    for (HostTimer *timer : m_active) timer->m_deadline = after + (timer->m_deadline - before);
}

void HostTimerQueue::setManualNow(Milliseconds now)
{
    m_manualNow = now;
}

void HostTimerQueue::start(HostTimer *timer, Milliseconds interval)
{
    if (!timer->m_active) m_active.push_back(timer);
    timer->m_active = true;
    timer->m_interval = interval;
    timer->m_deadline = now() + interval;
    timer->m_serial = ++m_serials;
    timer->m_lastPass = 0;
}

void HostTimerQueue::stop(HostTimer *timer)
{
    m_active.erase(std::remove(m_active.begin(), m_active.end(), timer), m_active.end());
}

int HostTimerQueue::fireDue(std::uint64_t pass)
{
    struct Due {
        HostTimer *timer;
        Milliseconds deadline;
        std::uint64_t serial;
    };
    Milliseconds const t = now();
    std::vector<Due> due;
    for (HostTimer *timer : m_active)
        if (timer->m_deadline <= t && timer->m_lastPass != pass)
            due.push_back({timer, timer->m_deadline, timer->m_serial});
    std::sort(due.begin(), due.end(), [](Due const &a, Due const &b) {
        return a.deadline != b.deadline ? a.deadline < b.deadline : a.serial < b.serial;
    });

    int ticks = 0;
    for (Due const &d : due) {
        // An earlier tick may have stopped, restarted or destroyed this
        // timer: only one still started with the same serial is due.
        if (std::find(m_active.begin(), m_active.end(), d.timer) == m_active.end()) continue;
        HostTimer *timer = d.timer;
        if (timer->m_serial != d.serial) continue;
        timer->m_lastPass = pass;
        Milliseconds next = timer->m_deadline + timer->m_interval;
        if (next <= t) next = t + timer->m_interval;
        timer->m_deadline = next;
        ++ticks;
        timer->tick().send(); // the timer may be gone from here on
    }
    return ticks;
}

std::optional<Milliseconds> HostTimerQueue::nextDeadlineAfter(Milliseconds after) const
{
    std::optional<Milliseconds> next;
    for (HostTimer const *timer : m_active)
        if (timer->m_deadline > after && (!next || timer->m_deadline < *next)) next = timer->m_deadline;
    return next;
}

} // namespace GLServices
