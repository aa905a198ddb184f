#include "effects/NodeEffectsImpl.h"

#include <Error>

#include "nodes/StylePainter.h"
#include "scene/NodeImpl.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>

namespace VOR2 {

void checkEffectHandle(Effect const *effect)
{
    if (!effect) throwError(VOR2_InvalidEffectHandle);
}

void checkEffectID(GLOX::StringID const &id)
{
    if (id.isEmpty()) throwError(VOR2_InvalidEffectID);
}

NodeEffectsImpl::NodeEffectsImpl(NodeImpl *node) : m_node(node) {}

NodeEffectsImpl::~NodeEffectsImpl()
{
    stopListening();
    // Empty once the node has died, and the node holds a count while it
    // lives; released here all the same, so that no path leaks an effect.
    for (NodeBoundEffect *binding : m_effects) release(binding);
}

void NodeEffectsImpl::checkValidNodeReference() const
{
    if (!m_node) throwError(VOR2_EffectReferencesInvalidNode);
}

void NodeEffectsImpl::release(NodeBoundEffect *binding)
{
    binding->effect->unref();
    delete binding;
}

NodeEffectsImpl::NodeBoundEffect *NodeEffectsImpl::find(GLOX::StringID const &id) const
{
    for (NodeBoundEffect *binding : m_effects)
        if (binding->effectID == id) return binding;
    return nullptr;
}

std::vector<NodeEffectsImpl::NodeBoundEffect *> NodeEffectsImpl::bindingsOf(Effect const *effect) const
{
    std::vector<NodeBoundEffect *> found;
    for (NodeBoundEffect *binding : m_effects)
        if (binding->effect == effect) found.push_back(binding);
    return found;
}

void NodeEffectsImpl::repaintNode()
{
    m_boundsDirty = true;
    if (m_node) m_node->notifyGeometryChanged(false);
}

void NodeEffectsImpl::onEffectPropertyChanged(GLUV::Packet) { repaintNode(); }

bool NodeEffectsImpl::hears(Effect const *effect) const
{
    if (m_firstRegistration.effect == effect) return true;
    for (auto const &r : m_moreRegistrations)
        if (r->effect == effect) return true;
    return false;
}

void NodeEffectsImpl::listenTo(Effect *effect)
{
    if (hears(effect)) return;
    EffectRegistration *r = &m_firstRegistration;
    if (r->effect) {
        m_moreRegistrations.push_back(std::make_unique<EffectRegistration>());
        r = m_moreRegistrations.back().get();
    }
    r->list = this;
    effect->m_boundLists->link(r, effect);
}

void NodeEffectsImpl::stopListening()
{
    if (m_firstRegistration.effect) m_firstRegistration.effect->m_boundLists->unlink(&m_firstRegistration);
    for (auto const &r : m_moreRegistrations)
        if (r->effect) r->effect->m_boundLists->unlink(r.get());
    m_moreRegistrations.clear();
}

void NodeEffectsImpl::add(Effect *effect)
{
    checkValidNodeReference();
    checkEffectHandle(effect);
    add(effect, effect->getEffectID());
}

void NodeEffectsImpl::add(Effect *effect, GLOX::StringID const &id)
{
    checkValidNodeReference();
    checkEffectID(id);
    checkEffectHandle(effect);
    NodeBoundEffect *present = find(id);
    if (present && present->effect == effect) return;
    // Counted before the old binding goes: it may hold the last count of
    // an effect the caller reaches only through it.
    effect->ref();
    remove(id);
    auto *binding = new NodeBoundEffect;
    binding->effectID = id;
    binding->effect = effect;
    m_effects.push_back(binding);
    listenTo(effect);
    repaintNode();
    updateIntensiveProcessingFlag();
}

bool NodeEffectsImpl::remove(GLOX::StringID const &id)
{
    checkValidNodeReference();
    checkEffectID(id);
    auto it = std::find_if(m_effects.begin(), m_effects.end(),
                           [&](NodeBoundEffect *b) { return b->effectID == id; });
    if (it == m_effects.end()) return false;
    NodeBoundEffect *binding = *it;
    m_effects.erase(it);
    release(binding);
    repaintNode();
    return true;
}

bool NodeEffectsImpl::remove(Effect const *effect)
{
    checkValidNodeReference();
    checkEffectHandle(effect);
    std::vector<NodeBoundEffect *> const found = bindingsOf(effect);
    if (found.empty()) return false;
    m_effects.erase(std::remove_if(m_effects.begin(), m_effects.end(),
                                   [&](NodeBoundEffect *b) { return b->effect == effect; }),
                    m_effects.end());
    for (NodeBoundEffect *binding : found) release(binding);
    repaintNode();
    return true;
}

bool NodeEffectsImpl::setEnabled(GLOX::StringID const &id, bool on)
{
    checkValidNodeReference();
    checkEffectID(id);
    NodeBoundEffect *binding = find(id);
    if (!binding) return false;
    if (binding->enabled != int(on)) {
        binding->enabled = on;
        repaintNode();
    }
    return true;
}

bool NodeEffectsImpl::setEnabled(Effect const *effect, bool on)
{
    checkValidNodeReference();
    checkEffectHandle(effect);
    std::vector<NodeBoundEffect *> const found = bindingsOf(effect);
    for (NodeBoundEffect *binding : found) binding->enabled = on;
    repaintNode();
    return !found.empty();
}

void NodeEffectsImpl::setAllEnabled(bool on)
{
    checkValidNodeReference();
    for (NodeBoundEffect *binding : m_effects) binding->enabled = on;
    repaintNode();
}

Effect *NodeEffectsImpl::get(GLOX::StringID const &id) const
{
    checkValidNodeReference();
    checkEffectID(id);
    NodeBoundEffect *binding = find(id);
    return binding ? binding->effect : nullptr;
}

void NodeEffectsImpl::clear()
{
    checkValidNodeReference();
    while (!m_effects.empty()) {
        NodeBoundEffect *binding = m_effects.back();
        m_effects.pop_back();
        release(binding);
    }
    repaintNode();
}

void NodeEffectsImpl::onNodeInvalidated()
{
    // As clear(), without the report: the node is being destroyed.
    while (!m_effects.empty()) {
        NodeBoundEffect *binding = m_effects.back();
        m_effects.pop_back();
        release(binding);
    }
    m_boundsDirty = true;
    m_node = nullptr;
    stopListening();
}

void NodeEffectsImpl::updateIntensiveProcessingFlag()
{
    m_intensiveProcessing =
        std::any_of(m_effects.begin(), m_effects.end(), [](NodeBoundEffect *b) { return b->effect->isIntensiveProcess(); });
}

void NodeEffectsImpl::draw(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    checkValidNodeReference();
    std::size_t const count = m_effects.size();
    if (count == 0) return;
    // Qt leaves the option's level of detail unset: the painter knows it.
    QStyleOptionGraphicsItem effectOption(*option);
    effectOption.levelOfDetail = paintScale(painter);
    QPointF const origin = GLOX::toQRectF(m_node->getCachedStrokedOutline(effectOption.levelOfDetail).boundingRect()).topLeft();
    painter->translate(origin);
    for (std::size_t i = 0; i < count; ++i) {
        NodeBoundEffect const *binding = m_effects[i];
        if (!binding->enabled || !(binding->effect->getOpacity() > 0.0)) continue;
        m_node->renderEffect(binding->effect, painter, &effectOption, widget);
    }
    painter->translate(-origin);
}

Bounds NodeEffectsImpl::computeEffectsMaximumBounds(Bounds const &bounds, double levelOfDetail)
{
    Bounds result = bounds;
    for (NodeBoundEffect *binding : m_effects) result.unionWith(binding->effect->computeBounds(bounds, levelOfDetail));
    m_boundsDirty = false;
    m_cachedBounds = result;
    return result;
}

LodReach NodeEffectsImpl::reachBound() const
{
    LodReach reach;
    for (NodeBoundEffect const *binding : m_effects) {
        LodReach const r = binding->effect->reachBound();
        reach.sceneUnits = std::max(reach.sceneUnits, r.sceneUnits);
        reach.pixels = std::max(reach.pixels, r.pixels);
    }
    return reach;
}

} // namespace VOR2
