#include <WeakRef>

#include "GLOX/Containers.h"

namespace VOR2 {

namespace {
using WeakSet = GLOX::GHash<WeakRef *, bool>;

GLOX::GHash<NodeImpl *, WeakSet> &weakTable()
{
    static GLOX::GHash<NodeImpl *, WeakSet> table;
    return table;
}
} // namespace

WeakRef::WeakRef(Node const &node) : m_impl(node.getImpl()) { registerSelf(); }

WeakRef::WeakRef(WeakRef const &other) : m_impl(other.m_impl) { registerSelf(); }

WeakRef::~WeakRef() { unregisterSelf(); }

WeakRef &WeakRef::operator=(WeakRef const &other)
{
    if (m_impl == other.m_impl) return *this;
    unregisterSelf();
    m_impl = other.m_impl;
    registerSelf();
    return *this;
}

WeakRef &WeakRef::operator=(Node const &node)
{
    WeakRef temporary(node);
    return *this = temporary;
}

void WeakRef::clear()
{
    unregisterSelf();
    m_impl = nullptr;
}

void WeakRef::registerSelf()
{
    if (m_impl) weakTable()[m_impl].insert(this, true);
}

void WeakRef::unregisterSelf()
{
    if (!m_impl) return;
    auto it = weakTable().find(m_impl);
    if (it != weakTable().end()) it->remove(this);
}

void WeakRef::implDestroyed(NodeImpl *impl)
{
    if (!impl) return;
    auto it = weakTable().find(impl);
    if (it == weakTable().end()) return;
    WeakSet refs = *it;
    for (auto r = refs.keyBegin(); r != refs.keyEnd(); ++r) (*r)->m_impl = nullptr;
    weakTable().erase(it);
}

} // namespace VOR2
