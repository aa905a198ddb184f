#pragma once
// GLServices::TarvoTimerService: the host's service that makes timers
// delivered on the host thread. The current implementation is found through
// GLService<TarvoTimerService>::get().

#include "GLServices/TarvoTimer.h"

#include <chrono>
#include <memory>

namespace GLServices {

class TarvoTimerService {
public:
    TarvoTimerService() = default;
    TarvoTimerService(TarvoTimerService const &) = delete;
    TarvoTimerService &operator=(TarvoTimerService const &) = delete;
    virtual ~TarvoTimerService() = default;

    // Host thread: a new, stopped timer. It ticks only while the service
    // that made it lives; after that its calls do nothing.
    virtual std::shared_ptr<TarvoTimer> createTimer() = 0;
    // Host thread: the time, in milliseconds from an arbitrary start, of the
    // clock its timers follow. Code that measures time between its own
    // ticks reads this clock, so that it stays in step with them.
    virtual std::chrono::milliseconds now() const = 0;
};

} // namespace GLServices
