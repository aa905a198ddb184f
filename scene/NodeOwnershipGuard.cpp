#include "scene/NodeOwnershipGuard.h"

#include "scene/NodeImpl.h"

#include <QSet>

namespace VOR2 {

namespace {
QSet<NodeImpl *> &guardedNodes()
{
    static QSet<NodeImpl *> nodes;
    return nodes;
}
} // namespace

NodeOwnershipGuard::NodeOwnershipGuard(NodeImpl *node)
    : m_node(node), m_nested(guardedNodes().contains(node)), m_wasAttached(node->isAttached())
{
    m_node->ref(); // the guard's own count keeps the node alive to its end
    if (!m_nested) guardedNodes().insert(m_node);
}

NodeOwnershipGuard::~NodeOwnershipGuard()
{
    if (!m_nested) {
        guardedNodes().remove(m_node);
        bool nowAttached = m_node->isAttached();
        if (!m_wasAttached && nowAttached)
            m_node->ref();
        else if (m_wasAttached && !nowAttached)
            m_node->unref();
    }
    m_node->unref();
}

} // namespace VOR2
