#pragma once
// GLUV::ListenerLinks (internal): the connections of one listener, shared by
// the listener and its connections so that either side may end first. Every
// member may be used from any thread.

#include <memory>
#include <mutex>
#include <vector>

namespace GLUV {

class ConnectionCore;

class ListenerLinks {
public:
    using List = std::vector<std::shared_ptr<ConnectionCore>>;

    // Keeps connection unless it is no longer connected. Returns false when
    // the listener is already going away, so the caller must disconnect it.
    bool add(std::shared_ptr<ConnectionCore> const &connection);
    void remove(ConnectionCore const *connection);
    // Hands over the connections; with closing set, also marks the listener
    // as going away, so that add() refuses from then on.
    List takeAll(bool closing = false);
    // Connections still linked.
    int count() const;

private:
    mutable std::mutex m_mutex;
    List m_connections;
    bool m_closed = false;
};

} // namespace GLUV
