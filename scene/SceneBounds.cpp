// ScenePrivate: the extent of a scene, cached between geometry changes.

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"

namespace VOR2 {

namespace {
// Usable only when both width and height are positive: an empty scene
// recomputes on each call.
bool usable(GLOX::GLRect<double> const &r) { return r.width > 0 && r.height > 0; }

bool hasExtent(QGraphicsItem const *item)
{
    QRectF r = item->boundingRect();
    return item->isVisible() && r.width() > 0 && r.height() > 0;
}
} // namespace

GLOX::GLRect<double> ScenePrivate::getNodesBounds()
{
    if (usable(m_nodesBounds)) return m_nodesBounds;
    QRectF united;
    for (QGraphicsItem *item : items()) {
        if (!hasExtent(item)) continue;
        Bounds inScene = NodeImpl::fromItem(item)->getBounds().transformed(item->sceneTransform());
        united |= GLOX::toQRectF(inScene.boundingRect());
    }
    m_nodesBounds = GLOX::toDRect(united);
    return m_nodesBounds;
}

GLOX::GLRect<double> ScenePrivate::getVisibleItemsRect()
{
    if (usable(m_visibleItemsRect)) return m_visibleItemsRect;
    QRectF united;
    for (QGraphicsItem *item : items())
        if (hasExtent(item)) united |= item->sceneBoundingRect();
    m_visibleItemsRect = GLOX::toDRect(united);
    return m_visibleItemsRect;
}

} // namespace VOR2
