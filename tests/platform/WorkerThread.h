#pragma once
// A real thread that runs its GLUV queue until stopped. It sleeps on a
// condition variable that the queue's wake-up handler signals, so posted
// callbacks run as soon as they arrive.

#include "GLUV/Thread.h"

#include <condition_variable>
#include <functional>
#include <future>
#include <mutex>
#include <thread>

class WorkerThread {
public:
    explicit WorkerThread(std::string const &name = std::string())
    {
        std::promise<GLUV::Thread *> started;
        std::future<GLUV::Thread *> gluv = started.get_future();
        m_thread = std::thread([this, name, &started] {
            m_id = std::this_thread::get_id();
            GLUV::Thread *self = GLUV::Thread::getCurrentThread();
            if (!name.empty()) GLUV::Thread::nameCurrentThread(name);
            self->setWakeUpHandler([this] {
                std::lock_guard<std::mutex> lock(m_mutex);
                m_cv.notify_all();
            });
            started.set_value(self);
            loop(self);
            self->setWakeUpHandler(nullptr);
        });
        m_gluv = gluv.get();
    }
    ~WorkerThread() { stop(); }

    GLUV::Thread *gluv() const { return m_gluv; }
    std::thread::id id() const { return m_id; }

    // Runs fn on the worker and waits for it.
    void run(std::function<void()> const &fn)
    {
        std::promise<void> done;
        m_gluv->post([&] {
            fn();
            done.set_value();
        });
        done.get_future().get();
    }

    // Runs what is still queued, then ends the thread.
    void stop()
    {
        if (!m_thread.joinable()) return;
        {
            std::lock_guard<std::mutex> lock(m_mutex);
            m_stop = true;
            m_cv.notify_all();
        }
        m_thread.join();
    }

private:
    void loop(GLUV::Thread *self)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        for (;;) {
            m_cv.wait(lock, [&] { return m_stop || self->hasPosted(); });
            if (self->hasPosted()) {
                lock.unlock();
                self->processPosted();
                lock.lock();
            } else if (m_stop) {
                return;
            }
        }
    }

    std::mutex m_mutex;
    std::condition_variable m_cv;
    bool m_stop = false;
    std::thread m_thread;
    std::thread::id m_id;
    GLUV::Thread *m_gluv = nullptr;
};
