#pragma once
// GLUV::EmitterCore: the part of an emitter that does not depend on the
// argument types: the list of its connections under a mutex. Senders take a
// snapshot of the list and deliver outside the lock, so connecting and
// disconnecting from other threads (or from inside a listener) never blocks
// on a delivery. The snapshot is rebuilt only after the list has changed.
//
// Owned through a shared_ptr by its Emitter; connections refer to it weakly.
// All members may be used from any thread.

#include <memory>
#include <mutex>
#include <vector>

namespace GLUV {

class ConnectionCore;
class Listener;

class EmitterCore : public std::enable_shared_from_this<EmitterCore> {
public:
    using List = std::vector<std::shared_ptr<ConnectionCore>>;

    EmitterCore() = default;
    EmitterCore(EmitterCore const &) = delete;
    EmitterCore &operator=(EmitterCore const &) = delete;

    // Links a new connection to this emitter and to its listener. If the
    // listener is already being destroyed, the connection ends at once.
    void connect(std::shared_ptr<ConnectionCore> const &connection);
    // Ends every connection made for listener.
    void disconnect(Listener const *listener);
    void disconnectAll();
    // Connections that are still connected.
    int connectionCount() const;
    // The connections at this moment, or null when there are none. The
    // list is never changed after it is handed out.
    std::shared_ptr<List const> snapshot() const;

private:
    friend class ConnectionCore;
    // Drops connection from the list (it has been disconnected).
    void remove(ConnectionCore const *connection);
    static void endAll(List &connections);

    mutable std::mutex m_mutex;
    List m_connections;
    mutable std::shared_ptr<List const> m_snapshot;
};

} // namespace GLUV
