// NodeImpl: where a node meets its effects: its list, made on first
// demand, the double dispatch that paints one effect on it, and
// the scene's selection effect shown while the node is selected.

#include <Node>
#include <NodeEffects>

#include "effects/NodeEffectsImpl.h"
#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"

#include <utility>

namespace VOR2 {

NodeEffectsImpl *NodeImpl::obtainEffectsImpl()
{
    if (!m_effects) {
        m_effects = new NodeEffectsImpl(this);
        m_effects->ref();
    }
    return m_effects;
}

void NodeImpl::releaseEffects()
{
    // Handles may keep the list: it forgets the node, which is going.
    if (NodeEffectsImpl *effects = std::exchange(m_effects, nullptr)) {
        effects->onNodeInvalidated();
        effects->unref();
    }
}

void NodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                            QWidget *widget)
{
    effect->renderEffectGeneric(this, painter, option, widget);
}

// Runs inside Qt's setSelected for each real change, clearSelection too.
// With node selection switched off the node keeps whatever it shows: a
// node selected while it was on keeps its stroke until it changes state
// with it on again, on purpose.
void NodeImpl::onSelectedHasChanged(bool selected)
{
    ScenePrivate *scene = getScenePrivate();
    if (!scene || !scene->usesNodeSelection()) return;
    NodeEffectsImpl *effects = obtainEffectsImpl();
    if (selected)
        effects->add(scene->getSelectionEffect(), ScenePrivate::selectionEffectID());
    else
        effects->remove(ScenePrivate::selectionEffectID());
}

NodeEffects Node::getEffects() const { return NodeEffects(getValidImpl()->obtainEffectsImpl()); }

} // namespace VOR2
