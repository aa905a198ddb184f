#pragma once
// GLUV::Emitter<void (*)(Args...)>: a signal with the given arguments. Each
// connection calls one function, is made for a listener (which may be null:
// the connection then lasts until it is disconnected or the emitter goes),
// and belongs to a thread, by default the one that connects.
//
// send() delivers with the emitter's mode, sendWith() with an explicit one
// (see SendMode). Deliveries that are queued carry copies of the arguments
// (std::decay_t of each, so a reference argument is copied too; argument
// types must be copyable); a blocking send across threads passes the
// arguments by reference, since the sender waits. Listeners are called in
// the order they were connected, each with the arguments as given.
//
// Threads: connect, disconnect and send may be called from any thread at
// once. A send delivers to the connections of the moment it starts and
// skips any that end while it runs, so a listener destroyed by an earlier
// listener on the same thread is not called. Destroying the emitter ends all
// its connections; deliveries of it still queued are dropped. Do not
// destroy an emitter while another thread is inside one of its calls.
//
// A blocking send waits until the target thread has run the delivery, or
// has dropped it because the connection ended or the thread finished. Two
// threads that send blocking to each other at once wait forever.

#include "GLUV/Connection.h"
#include "GLUV/ConnectionCore.h"
#include "GLUV/EmitterCore.h"
#include "GLUV/Listener.h"
#include "GLUV/SendMode.h"
#include "GLUV/Thread.h"

#include "ut/Assert.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <tuple>
#include <type_traits>
#include <utility>

namespace GLUV {

namespace detail {

// A connection with its typed function.
template <typename... Args>
class TypedConnection : public ConnectionCore {
public:
    TypedConnection(Listener *listener, Thread *thread, std::function<void(Args...)> fn)
        : ConnectionCore(listener, thread), m_fn(std::move(fn))
    {
    }

    // Calls the function unless the connection has ended.
    template <typename... A>
    void invoke(A &&...args) const
    {
        if (isConnected()) m_fn(std::forward<A>(args)...);
    }

private:
    std::function<void(Args...)> const m_fn;
};

// Wakes a blocked sender when the delivery it posted is destroyed: after it
// ran, when it threw, or when the target thread dropped it.
class BlockingDone {
public:
    void wait()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_cv.wait(lock, [this] { return m_done; });
    }
    void signal()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_done = true;
        m_cv.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_cv;
    bool m_done = false;
};

class BlockingSignaller {
public:
    explicit BlockingSignaller(std::shared_ptr<BlockingDone> done) : m_done(std::move(done)) {}
    BlockingSignaller(BlockingSignaller const &) = delete;
    BlockingSignaller &operator=(BlockingSignaller const &) = delete;
    ~BlockingSignaller() { m_done->signal(); }

private:
    std::shared_ptr<BlockingDone> m_done;
};

} // namespace detail

template <typename Signature>
class Emitter;

template <typename... Args>
class Emitter<void (*)(Args...)> {
    static_assert(!std::disjunction_v<std::is_rvalue_reference<Args>...>,
                  "signal arguments may not be rvalue references");

public:
    using Function = std::function<void(Args...)>;

    // Any thread.
    explicit Emitter(SendMode mode = SendAuto) : m_mode(mode), m_core(std::make_shared<EmitterCore>()) {}
    ~Emitter() { m_core->disconnectAll(); }
    Emitter(Emitter const &) = delete;
    Emitter &operator=(Emitter const &) = delete;

    SendMode sendMode() const { return m_mode; }

    // Any thread: connects fn, which must not be empty, for listener (may be
    // null) and thread (null: the calling thread).
    Connection connect(Listener *listener, Function fn, Thread *thread = Thread::getCurrentThread())
    {
        ut_assert(fn);
        auto connection = std::make_shared<detail::TypedConnection<Args...>>(
            listener, thread ? thread : Thread::getCurrentThread(), std::move(fn));
        m_core->connect(connection);
        return Connection(connection);
    }

    // Any thread: connects a member function of listener.
    template <class L>
    Connection connect(L *listener, void (L::*method)(Args...), Thread *thread = Thread::getCurrentThread())
    {
        static_assert(std::is_base_of_v<Listener, L>, "the object of a member function must be a Listener");
        ut_assert(listener && method);
        return connect(static_cast<Listener *>(listener),
                       Function([listener, method](Args... args) { (listener->*method)(std::forward<Args>(args)...); }),
                       thread);
    }

    // Any thread: ends every connection made for listener.
    void disconnect(Listener *listener) { m_core->disconnect(listener); }
    // Any thread: ends every connection.
    void disconnectAll() { m_core->disconnectAll(); }
    // Any thread: connections that have not ended.
    int connectionCount() const { return m_core->connectionCount(); }

    // Any thread: delivers to every connection with the emitter's mode.
    void send(Args... args) const { sendWith(m_mode, std::forward<Args>(args)...); }

    // Any thread: delivers to every connection with mode (an unknown value
    // counts as SendAuto).
    void sendWith(SendMode mode, Args... args) const
    {
        // Only locals from here on: a listener may destroy this emitter.
        std::shared_ptr<EmitterCore::List const> list = m_core->snapshot();
        if (!list) return;
        Thread *const current = Thread::getCurrentThread();
        for (std::shared_ptr<ConnectionCore> const &c : *list) {
            if (!c->isConnected()) continue;
            auto *typed = static_cast<detail::TypedConnection<Args...> const *>(c.get());
            bool const local = c->thread() == current;
            switch (mode) {
            case SendDirect:
                typed->invoke(args...);
                break;
            case SendQueued:
                queue(c, args...);
                break;
            case SendBlocking:
                if (local)
                    typed->invoke(args...);
                else
                    sendBlocking(c, args...);
                break;
            case SendAuto:
            default:
                if (local)
                    typed->invoke(args...);
                else
                    queue(c, args...);
                break;
            }
        }
    }

private:
    using Typed = detail::TypedConnection<Args...>;

    static void queue(std::shared_ptr<ConnectionCore> const &c, Args const &...args)
    {
        std::shared_ptr<Typed const> typed = std::static_pointer_cast<Typed const>(c);
        std::tuple<std::decay_t<Args>...> copies(args...);
        c->thread()->post([typed, copies]() mutable {
            std::apply([&typed](auto &...a) { typed->invoke(a...); }, copies);
        });
    }

    static void sendBlocking(std::shared_ptr<ConnectionCore> const &c, Args &...args)
    {
        std::shared_ptr<Typed const> typed = std::static_pointer_cast<Typed const>(c);
        auto done = std::make_shared<detail::BlockingDone>();
        auto signaller = std::make_shared<detail::BlockingSignaller>(done);
        std::tuple<Args &...> refs(args...);
        c->thread()->post([typed, refs, signaller]() {
            std::apply([&typed](auto &...a) { typed->invoke(a...); }, refs);
        });
        signaller.reset(); // the posted call now holds the only reference
        done->wait();
    }

    SendMode const m_mode;
    std::shared_ptr<EmitterCore> const m_core;
};

} // namespace GLUV
