#pragma once
// GLUV::ConnectionCore: one link from an emitter to a function, made for a
// listener (or none) and a thread. It is shared by the emitter's list, the
// listener's links, the Connection handles (weakly) and deliveries waiting in
// a thread's queue; a delivery runs only while the connection is connected.
//
// Once disconnected a connection never connects again. All members may be
// used from any thread.

#include <atomic>
#include <memory>
#include <vector>

namespace GLUV {

class EmitterCore;
class Listener;
class ListenerLinks;
class Thread;

class ConnectionCore {
public:
    ConnectionCore(Listener *listener, Thread *thread);
    ConnectionCore(ConnectionCore const &) = delete;
    ConnectionCore &operator=(ConnectionCore const &) = delete;
    virtual ~ConnectionCore();

    Listener *listener() const { return m_listener; }
    // The thread that deliveries in modes 1 to 3 run on.
    Thread *thread() const { return m_thread; }
    bool isConnected() const { return m_connected.load(std::memory_order_acquire); }

    // Ends the connection and unlinks it from its emitter and its listener.
    // Idempotent. The caller holds a shared_ptr to this connection.
    void disconnect();

private:
    friend class EmitterCore;
    friend class Listener;

    // Clears the connected flag; true when this call cleared it.
    bool release() { return m_connected.exchange(false, std::memory_order_acq_rel); }
    void unlinkEmitter();
    void unlinkListener();

    std::atomic<bool> m_connected{false};
    Listener *const m_listener;
    Thread *const m_thread;
    // Set by EmitterCore::connect before the connection is published.
    std::weak_ptr<EmitterCore> m_emitter;
    std::shared_ptr<ListenerLinks> m_links;
};

using ConnectionList = std::vector<std::shared_ptr<ConnectionCore>>;

// Takes `connection` out of `list` and hands it back (null when absent), so
// the caller can let it go after releasing its lock.
std::shared_ptr<ConnectionCore> takeConnection(ConnectionList &list, ConnectionCore const *connection);

} // namespace GLUV
