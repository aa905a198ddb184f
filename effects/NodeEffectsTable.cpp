#include "effects/NodeEffectsTable.h"

#include "effects/NodeEffectsImpl.h"

namespace VOR2 {

NodeEffectsTable &NodeEffectsTable::instance()
{
    static NodeEffectsTable *table = new NodeEffectsTable; // nodes may die at exit
    return *table;
}

NodeEffectsImpl *NodeEffectsTable::find(NodeImpl const *node) const
{
    auto it = m_lists.find(node);
    return it == m_lists.end() ? nullptr : it->second;
}

NodeEffectsImpl *NodeEffectsTable::obtain(NodeImpl *node)
{
    NodeEffectsImpl *&list = m_lists[node];
    if (!list) {
        list = new NodeEffectsImpl(node);
        list->ref();
    }
    return list;
}

void NodeEffectsTable::nodeDestroyed(NodeImpl const *node)
{
    auto it = m_lists.find(node);
    if (it == m_lists.end()) return;
    NodeEffectsImpl *list = it->second;
    m_lists.erase(it);
    list->onNodeInvalidated();
    list->unref();
}

} // namespace VOR2
