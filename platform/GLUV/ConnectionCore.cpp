#include "GLUV/ConnectionCore.h"

#include "GLUV/EmitterCore.h"
#include "GLUV/ListenerLinks.h"

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

} // namespace GLUV
