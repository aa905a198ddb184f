#pragma once
// The timers of a HostRunLoop: HostTimer is the TarvoTimer that the loop
// makes, HostTimerQueue holds the started ones and the loop's clock (the
// real steady clock, or a manual one driven by ManualClock). Everything here
// belongs to the host thread; nothing is locked.

#include "GLServices/TarvoTimer.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace GLServices {

class HostTimerQueue;

class HostTimer final : public TarvoTimer {
public:
    explicit HostTimer(std::weak_ptr<HostTimerQueue> queue);
    ~HostTimer() override;

    void startRepeating(int ms) override;
    void stop() override;
    bool isActive() const override;
    int remainingTime() const override;

private:
    friend class HostTimerQueue;
    std::weak_ptr<HostTimerQueue> const m_queue;
    bool m_active = false;
    std::chrono::milliseconds m_interval{0};
    std::chrono::milliseconds m_deadline{0};
    // Given at each start: orders timers due at the same moment by start,
    // and tells a restarted timer from the one that was due.
    std::uint64_t m_serial = 0;
    // The last pass (see fireDue) in which the timer ticked.
    std::uint64_t m_lastPass = 0;
};

class HostTimerQueue {
public:
    using Milliseconds = std::chrono::milliseconds;

    // The steady clock in milliseconds.
    static Milliseconds realNow();

    // The queue's current time, on the manual clock while one is used.
    Milliseconds now() const;
    bool usesManualClock() const { return m_manual; }
    // Switches between the real and a manual clock starting at 0. Started
    // timers keep their distance to their next tick.
    void useManualClock(bool manual);
    // Moves the manual clock; callers move it forward only.
    void setManualNow(Milliseconds now);

    // Ticks every started timer that is due now and has not ticked in this
    // pass, in the order of their deadlines (then of their starts). Each
    // timer's next deadline is one interval after the one that was due, or
    // one interval from now when the loop is late by more than that, so
    // missed ticks are not made up in a burst. Returns the number of ticks.
    int fireDue(std::uint64_t pass);

    // The earliest deadline later than after among started timers.
    std::optional<Milliseconds> nextDeadlineAfter(Milliseconds after = Milliseconds::min()) const;

private:
    friend class HostTimer;
    void start(HostTimer *timer, Milliseconds interval);
    void stop(HostTimer *timer);

    std::vector<HostTimer *> m_active;
    std::uint64_t m_serials = 0;
    bool m_manual = false;
    Milliseconds m_manualNow{0};
};

} // namespace GLServices
