#pragma once
// GLUV::Thread: one object per operating-system thread that has used GLUV,
// with a queue of callbacks posted to it from any thread. Nothing runs the
// queue by itself: the thread's own loop calls processPosted(), and may set a
// wake-up handler to learn that something was posted.
//
// Thread objects are created on first use by their thread and are never
// deleted, so a pointer to one stays valid for the life of the process. When
// the operating-system thread ends, its object drops its name and its queue;
// callbacks posted to it after that are destroyed without running.

#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

namespace GLUV {

class Thread {
public:
    Thread(Thread const &) = delete;
    Thread &operator=(Thread const &) = delete;

    // Any thread: the object of the calling thread, created on first use.
    static Thread *getCurrentThread();
    // Any thread: the live thread that carries this name, or null.
    static Thread *getNamedThread(std::string const &name);
    // Any thread: gives the calling thread a name (e.g. "TARVO" for the host
    // thread). A name belongs to one thread at a time: a thread that had it
    // before loses it. An empty name only clears the calling thread's name.
    static void nameCurrentThread(std::string const &name);

    // Any thread: this thread's name, empty when it has none.
    std::string name() const;
    // Any thread: whether the caller runs on this thread.
    bool isCurrent() const;
    // Whether the operating-system thread has ended.
    bool hasFinished() const;

    // Any thread: queues fn to run on this thread at its next
    // processPosted(), then calls the wake-up handler on the calling thread.
    // fn is destroyed without running if this thread has ended.
    void post(std::function<void()> fn);
    // This thread only: runs queued callbacks in the order they were posted,
    // those posted while running included, until the queue is empty. Returns
    // how many ran. An exception from a callback leaves the rest queued.
    int processPosted();
    // Any thread: whether callbacks are waiting.
    bool hasPosted() const;
    // Any thread: fn is called after each post, on the posting thread and
    // outside any lock of this object; an empty fn removes the handler.
    void setWakeUpHandler(std::function<void()> fn);

private:
    friend struct ThreadRegistration;
    Thread() = default;
    ~Thread() = default;
    void finish();

    mutable std::mutex m_mutex;
    std::deque<std::function<void()>> m_posted;
    std::shared_ptr<std::function<void()> const> m_wakeUp;
    bool m_finished = false;
};

} // namespace GLUV
