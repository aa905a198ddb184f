#pragma once
// GLServices::EventManagement: the host's service that runs callbacks on the
// host thread (the thread named "TARVO") from its own loop. Whoever owns that
// loop implements it; the current implementation is found through
// GLService<EventManagement>::get().

#include "ut/Assert.h"

#include <functional>
#include <memory>

namespace GLServices {

class EventManagement {
public:
    // A callback made once and posted any number of times.
    using Callback = std::shared_ptr<std::function<void()> const>;

    EventManagement() = default;
    EventManagement(EventManagement const &) = delete;
    EventManagement &operator=(EventManagement const &) = delete;
    virtual ~EventManagement() = default;

    // Any thread: wraps fn, which must not be empty, into a callback.
    Callback createCallback(std::function<void()> fn) const
    {
        ut_assert(fn);
        return std::make_shared<std::function<void()> const>(std::move(fn));
    }

    // Any thread: runs callback once on the host thread at the loop's next
    // chance, and keeps it alive until then. Posted twice, it runs twice.
    virtual void postCallback(Callback callback) = 0;
};

} // namespace GLServices
