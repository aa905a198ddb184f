#include "GLUV/EmitterCore.h"

#include "GLUV/ConnectionCore.h"
#include "GLUV/Listener.h"
#include "GLUV/ListenerLinks.h"

#include <algorithm>

namespace GLUV {

void EmitterCore::connect(std::shared_ptr<ConnectionCore> const &connection)
{
    connection->m_emitter = weak_from_this();
    if (Listener *listener = connection->m_listener) connection->m_links = listener->m_links;
    connection->m_connected.store(true, std::memory_order_release);
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        m_connections.push_back(connection);
        m_snapshot.reset();
    }
    if (connection->m_links && !connection->m_links->add(connection)) connection->disconnect();
}

void EmitterCore::disconnect(Listener const *listener)
{
    List ended;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        auto keep = std::stable_partition(m_connections.begin(), m_connections.end(),
                                          [listener](auto const &c) { return c->listener() != listener; });
        if (keep == m_connections.end()) return;
        ended.assign(std::make_move_iterator(keep), std::make_move_iterator(m_connections.end()));
        m_connections.erase(keep, m_connections.end());
        m_snapshot.reset();
    }
    endAll(ended);
}

void EmitterCore::disconnectAll()
{
    List ended;
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        ended.swap(m_connections);
        m_snapshot.reset();
    }
    endAll(ended);
}

void EmitterCore::endAll(List &connections)
{
    for (auto const &c : connections)
        if (c->release()) c->unlinkListener();
}

int EmitterCore::connectionCount() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return int(std::count_if(m_connections.begin(), m_connections.end(),
                             [](auto const &c) { return c->isConnected(); }));
}

std::shared_ptr<EmitterCore::List const> EmitterCore::snapshot() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_connections.empty()) return nullptr;
    if (!m_snapshot) m_snapshot = std::make_shared<List const>(m_connections);
    return m_snapshot;
}

void EmitterCore::remove(ConnectionCore const *connection)
{
    std::shared_ptr<ConnectionCore> removed; // released after the lock
    std::lock_guard<std::mutex> lock(m_mutex);
    removed = takeConnection(m_connections, connection);
    if (removed) m_snapshot.reset();
}

} // namespace GLUV
