#pragma once
// GLServices::GLService<T>: the current implementation of the host service T
// (EventManagement, TarvoTimerService), or null while none is set. The
// implementation sets itself when it starts and clears itself when it ends.

#include <atomic>

namespace GLServices {

template <class T>
class GLService {
public:
    // Any thread: the current implementation, or null.
    static T *get() { return s_current.load(std::memory_order_acquire); }
    // Any thread: makes service (may be null) the current implementation.
    static void set(T *service) { s_current.store(service, std::memory_order_release); }

private:
    static inline std::atomic<T *> s_current{nullptr};
};

} // namespace GLServices
