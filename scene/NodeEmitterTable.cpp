#include "scene/NodeEmitterTable.h"

namespace VOR2 {

NodeEmitterTable &NodeEmitterTable::instance()
{
    static NodeEmitterTable table;
    return table;
}

GLUV::SendMode NodeEmitterTable::sendMode(MouseSignal which)
{
    return which == MouseMove ? GLUV::SendDirect : GLUV::SendBlocking;
}

template <typename E>
E *NodeEmitterTable::lookup(Table<E> &table, NodeImpl const *node, bool create)
{
    auto it = table.find(node);
    if (it != table.end()) return it->get();
    if (!create) return nullptr;
    auto emitter = std::make_shared<E>(GLUV::SendAuto);
    table.insert(node, emitter);
    m_nodes.insert(node);
    return emitter.get();
}

NodeEmitterTable::MouseEmitter *NodeEmitterTable::mouse(MouseSignal which, NodeImpl const *node, bool create)
{
    return lookup(m_mouse[which], node, create);
}

NodeEmitterTable::KeyEmitter *NodeEmitterTable::key(KeySignal which, NodeImpl const *node, bool create)
{
    return lookup(m_key[which], node, create);
}

NodeEmitterTable::FocusEmitter *NodeEmitterTable::focus(FocusSignal which, NodeImpl const *node, bool create)
{
    return lookup(m_focus[which], node, create);
}

NodeEmitterTable::NotifyEmitter *NodeEmitterTable::text(TextSignal which, NodeImpl const *node, bool create)
{
    return lookup(m_text[which], node, create);
}

void NodeEmitterTable::removeAll(NodeImpl const *node)
{
    if (!m_nodes.remove(node)) return;
    for (auto &t : m_mouse) t.remove(node);
    for (auto &t : m_key) t.remove(node);
    for (auto &t : m_focus) t.remove(node);
    for (auto &t : m_text) t.remove(node);
}

bool NodeEmitterTable::hasAny(NodeImpl const *node) const { return m_nodes.contains(node); }

} // namespace VOR2
