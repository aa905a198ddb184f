#include "GLUV/ConnectionCore.h"

#include "GLUV/EmitterCore.h"
#include "GLUV/ListenerLinks.h"

#include <algorithm>

namespace GLUV {

ConnectionCore::ConnectionCore(Listener *listener, Thread *thread)
    : m_listener(listener), m_thread(thread)
{
}

ConnectionCore::~ConnectionCore() = default;

void ConnectionCore::disconnect()
{
    if (!release()) return;
    unlinkEmitter();
    unlinkListener();
}

void ConnectionCore::unlinkEmitter()
{
    if (std::shared_ptr<EmitterCore> emitter = m_emitter.lock()) emitter->remove(this);
}

void ConnectionCore::unlinkListener()
{
    if (m_links) m_links->remove(this);
}

std::shared_ptr<ConnectionCore> takeConnection(ConnectionList &list, ConnectionCore const *connection)
{
    auto it = std::find_if(list.begin(), list.end(), [connection](auto const &c) { return c.get() == connection; });
    if (it == list.end()) return nullptr;
    std::shared_ptr<ConnectionCore> taken = std::move(*it);
    list.erase(it);
    return taken;
}

} // namespace GLUV
