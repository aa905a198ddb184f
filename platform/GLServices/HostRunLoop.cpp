#include "GLServices/HostRunLoop.h"

#include "GLServices/GLService.h"
#include "GLServices/HostTimerQueue.h"
#include "GLUV/Thread.h"

#include <algorithm>
#include <condition_variable>
#include <mutex>

namespace GLServices {

using std::chrono::steady_clock;

// Shared with the GLUV wake-up handler, which another thread may still be
// calling while the loop goes away.
struct HostRunLoop::WakeState {
    std::mutex mutex;
    std::condition_variable cv;
    bool woken = false;
    bool quit = false;
};

HostRunLoop::HostRunLoop()
    : m_thread(GLUV::Thread::getCurrentThread()), m_wake(std::make_shared<WakeState>()),
      m_timers(std::make_shared<HostTimerQueue>())
{
    GLUV::Thread::nameCurrentThread("TARVO");
    m_thread->setWakeUpHandler([wake = m_wake] {
        std::lock_guard<std::mutex> lock(wake->mutex);
        wake->woken = true;
        wake->cv.notify_all();
    });
    GLService<EventManagement>::set(this);
    GLService<TarvoTimerService>::set(this);
}

HostRunLoop::~HostRunLoop()
{
    ut_assert(m_thread->isCurrent());
    if (GLService<EventManagement>::get() == this) GLService<EventManagement>::set(nullptr);
    if (GLService<TarvoTimerService>::get() == this) GLService<TarvoTimerService>::set(nullptr);
    m_thread->setWakeUpHandler(nullptr);
}

void HostRunLoop::postCallback(Callback callback)
{
    ut_assert(callback);
    m_thread->post([callback = std::move(callback)] { (*callback)(); });
}

std::shared_ptr<TarvoTimer> HostRunLoop::createTimer()
{
    ut_assert(m_thread->isCurrent());
    return std::make_shared<HostTimer>(m_timers);
}

int HostRunLoop::runUntilIdle()
{
    ut_assert(m_thread->isCurrent());
    std::uint64_t const pass = ++m_passes;
    int ran = 0;
    for (;;) {
        {
            std::lock_guard<std::mutex> lock(m_wake->mutex);
            m_wake->woken = false; // a post from here on wakes the next wait
        }
        int const n = m_thread->processPosted() + m_timers->fireDue(pass);
        if (n == 0) return ran;
        ran += n;
    }
}

int HostRunLoop::runFor(Milliseconds duration)
{
    return run([] { return false; }, duration, nullptr);
}

bool HostRunLoop::runUntil(std::function<bool()> const &done, Milliseconds timeout)
{
    bool finished = false;
    run(done, timeout, &finished);
    return finished;
}

int HostRunLoop::run(std::function<bool()> const &done, Milliseconds timeout, bool *finished)
{
    ut_assert(m_thread->isCurrent());
    steady_clock::time_point const end = steady_clock::now() + timeout;
    int ran = 0;
    for (;;) {
        ran += runUntilIdle();
        bool const isDone = done();
        if (finished) *finished = isDone;
        if (isDone || takeQuit() || steady_clock::now() >= end) return ran;
        waitForWork(end);
    }
}

void HostRunLoop::waitForWork(steady_clock::time_point until)
{
    if (!m_timers->usesManualClock()) {
        if (std::optional<Milliseconds> next = m_timers->nextDeadlineAfter()) {
            steady_clock::time_point const deadline(std::chrono::duration_cast<steady_clock::duration>(*next));
            until = std::min(until, deadline);
        }
    }
    std::unique_lock<std::mutex> lock(m_wake->mutex);
    m_wake->cv.wait_until(lock, until, [this] { return m_wake->woken || m_wake->quit; });
}

bool HostRunLoop::takeQuit()
{
    std::lock_guard<std::mutex> lock(m_wake->mutex);
    bool const quit = m_wake->quit;
    m_wake->quit = false;
    return quit;
}

void HostRunLoop::quit()
{
    std::lock_guard<std::mutex> lock(m_wake->mutex);
    m_wake->quit = true;
    m_wake->cv.notify_all();
}

HostRunLoop::Milliseconds HostRunLoop::now() const
{
    return m_timers->now();
}

} // namespace GLServices
