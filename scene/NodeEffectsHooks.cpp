// NodeImpl: where a node meets its effects: the list kept for it in
// NodeEffectsTable, the double dispatch that paints one effect on it, and
// the scene's selection effect shown while the node is selected.

#include <Node>
#include <NodeEffects>

#include "effects/NodeEffectsImpl.h"
#include "effects/NodeEffectsTable.h"
#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"

namespace VOR2 {

NodeEffectsImpl *NodeImpl::getEffectsImpl() const
{
    return m_hasEffects ? NodeEffectsTable::instance().find(this) : nullptr;
}

NodeEffectsImpl *NodeImpl::obtainEffectsImpl()
{
    m_hasEffects = true;
    return NodeEffectsTable::instance().obtain(this);
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
