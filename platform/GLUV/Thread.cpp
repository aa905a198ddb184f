#include "GLUV/Thread.h"

#include "ut/Assert.h"

#include <map>
#include <vector>

namespace GLUV {

namespace {

// Names and all Thread objects ever made. Never destroyed, so that threads
// may post and look up names during static destruction.
struct Registry {
    std::mutex mutex;
    std::map<std::string, Thread *> byName;
    std::map<Thread const *, std::string> names;
    std::vector<Thread *> all;
};

Registry &registry()
{
    static Registry *r = new Registry;
    return *r;
}

void forgetName(Registry &r, Thread const *thread)
{
    auto it = r.names.find(thread);
    if (it == r.names.end()) return;
    r.byName.erase(it->second);
    r.names.erase(it);
}

} // namespace

// Owned by each operating-system thread through thread_local storage: makes
// the thread's object on first use and marks it finished when the thread ends.
struct ThreadRegistration {
    Thread *thread = nullptr;

    Thread *get()
    {
        if (!thread) {
            thread = new Thread;
            Registry &r = registry();
            std::lock_guard<std::mutex> lock(r.mutex);
            r.all.push_back(thread);
        }
        return thread;
    }
    ~ThreadRegistration()
    {
        if (thread) thread->finish();
    }
};

namespace {
thread_local ThreadRegistration t_registration;
}

Thread *Thread::getCurrentThread()
{
    return t_registration.get();
}

Thread *Thread::getNamedThread(std::string const &name)
{
    Registry &r = registry();
    std::lock_guard<std::mutex> lock(r.mutex);
    auto it = r.byName.find(name);
    return it == r.byName.end() ? nullptr : it->second;
}

void Thread::nameCurrentThread(std::string const &name)
{
    Thread *self = getCurrentThread();
    Registry &r = registry();
    std::lock_guard<std::mutex> lock(r.mutex);
    forgetName(r, self);
    if (name.empty()) return;
    auto previous = r.byName.find(name);
    if (previous != r.byName.end()) forgetName(r, previous->second);
    r.byName[name] = self;
    r.names[self] = name;
}

std::string Thread::name() const
{
    Registry &r = registry();
    std::lock_guard<std::mutex> lock(r.mutex);
    auto it = r.names.find(this);
    return it == r.names.end() ? std::string() : it->second;
}

bool Thread::isCurrent() const
{
    return getCurrentThread() == this;
}

bool Thread::hasFinished() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_finished;
}

void Thread::post(std::function<void()> fn)
{
    std::shared_ptr<std::function<void()> const> wakeUp;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        if (m_finished) return; // fn is destroyed here, outside the lock
        m_posted.push_back(std::move(fn));
        wakeUp = m_wakeUp;
    }
    if (wakeUp) (*wakeUp)();
}

int Thread::processPosted()
{
    ut_assert(isCurrent());
    int ran = 0;
    for (;;) {
        std::function<void()> fn;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            if (m_posted.empty()) return ran;
            fn = std::move(m_posted.front());
            m_posted.pop_front();
        }
        fn();
        ++ran;
    }
}

bool Thread::hasPosted() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return !m_posted.empty();
}

void Thread::setWakeUpHandler(std::function<void()> fn)
{
    auto handler = fn ? std::make_shared<std::function<void()> const>(std::move(fn)) : nullptr;
    std::lock_guard<std::mutex> lock(m_mutex);
    m_wakeUp = std::move(handler);
}

void Thread::finish()
{
    {
        Registry &r = registry();
        std::lock_guard<std::mutex> lock(r.mutex);
        forgetName(r, this);
    }
    std::deque<std::function<void()>> dropped;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_finished = true;
        m_wakeUp.reset();
        dropped.swap(m_posted);
    }
    // Destroyed here, outside the lock: a dropped blocking send wakes its
    // sender from the destructor of what it posted.
}

} // namespace GLUV
