#include "GLUV/ListenerLinks.h"

#include "GLUV/ConnectionCore.h"

#include <algorithm>

namespace GLUV {

bool ListenerLinks::add(std::shared_ptr<ConnectionCore> const &connection)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_closed) return false;
    // Checked under the lock: a disconnect that cleared the flag earlier has
    // already tried to unlink, and one that clears it later unlinks after us.
    if (connection->isConnected()) m_connections.push_back(connection);
    return true;
}

void ListenerLinks::remove(ConnectionCore const *connection)
{
    std::shared_ptr<ConnectionCore> removed; // released after the lock
    std::lock_guard<std::mutex> lock(m_mutex);
    removed = takeConnection(m_connections, connection);
}

ListenerLinks::List ListenerLinks::takeAll(bool closing)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (closing) m_closed = true;
    List handed;
    handed.swap(m_connections);
    return handed;
}

int ListenerLinks::count() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return int(m_connections.size());
}

} // namespace GLUV
