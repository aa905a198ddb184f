#include "scene/NodeOwnershipGuard.h"

#include "scene/NodeImpl.h"

namespace VOR2 {

NodeOwnershipGuard::NodeOwnershipGuard(NodeImpl *node)
    : m_node(node), m_nested(node->ownershipGuarded()), m_wasAttached(node->isAttached())
{
    m_node->ref(); // the guard's own count keeps the node alive to its end
    m_node->ownershipGuarded() = true;
}

NodeOwnershipGuard::~NodeOwnershipGuard()
{
    if (!m_nested) {
        m_node->ownershipGuarded() = false;
        bool nowAttached = m_node->isAttached();
        if (!m_wasAttached && nowAttached)
            m_node->ref();
        else if (m_wasAttached && !nowAttached)
            m_node->unref();
    }
    m_node->unref();
}

} // namespace VOR2
