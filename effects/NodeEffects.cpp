#include <NodeEffects>

#include "effects/NodeEffectsImpl.h"

namespace VOR2 {

NodeEffects::NodeEffects(NodeEffectsImpl *impl) : m_impl(impl) { m_impl->ref(); }

NodeEffects::~NodeEffects() { m_impl->unref(); }

NodeEffects::NodeEffects(NodeEffects const &other) : NodeEffects(other.m_impl) {}

NodeEffects &NodeEffects::operator=(NodeEffects const &other)
{
    other.m_impl->ref();
    m_impl->unref();
    m_impl = other.m_impl;
    return *this;
}

void NodeEffects::add(Effect *effect) { m_impl->add(effect); }
void NodeEffects::add(Effect *effect, GLOX::StringID const &id) { m_impl->add(effect, id); }
bool NodeEffects::remove(GLOX::StringID const &id) { return m_impl->remove(id); }
bool NodeEffects::remove(Effect const *effect) { return m_impl->remove(effect); }
bool NodeEffects::enable(GLOX::StringID const &id) { return m_impl->enable(id); }
bool NodeEffects::enable(Effect const *effect) { return m_impl->enable(effect); }
bool NodeEffects::disable(GLOX::StringID const &id) { return m_impl->disable(id); }
bool NodeEffects::disable(Effect const *effect) { return m_impl->disable(effect); }
void NodeEffects::enableAll() { m_impl->enableAll(); }
void NodeEffects::disableAll() { m_impl->disableAll(); }
Effect *NodeEffects::get(GLOX::StringID const &id) const { return m_impl->get(id); }
void NodeEffects::clear() { m_impl->clear(); }
bool NodeEffects::isIntensiveProcess() const { return m_impl->isIntensiveProcess(); }

char const *NodeEffects::getFullyQualifiedTcosTypeName() { return "VOR2.NodeEffects"; }

} // namespace VOR2
