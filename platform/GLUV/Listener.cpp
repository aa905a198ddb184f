#include "GLUV/Listener.h"

#include "GLUV/ConnectionCore.h"
#include "GLUV/ListenerLinks.h"

namespace GLUV {

Listener::Listener() : m_links(std::make_shared<ListenerLinks>()) {}

Listener::~Listener()
{
    for (auto const &c : m_links->takeAll(true))
        if (c->release()) c->unlinkEmitter();
}

void Listener::disconnectAll()
{
    for (auto const &c : m_links->takeAll())
        if (c->release()) c->unlinkEmitter();
}

int Listener::connectionCount() const
{
    return m_links->count();
}

} // namespace GLUV
