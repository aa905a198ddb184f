// ScenePrivate: the extent of a scene, cached between geometry changes. A
// node whose extent in the scene is not a rectangle of usable numbers (see
// values/UsableNumber.h) counts for nothing, so that one such node cannot
// spoil the extent of all the others.

#include <GlobalViewerInfo>

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"
#include "values/UsableNumber.h"

namespace VOR2 {

namespace {
// A cached extent counts only when both width and height are positive: an
// empty scene recomputes on each call.
bool isCached(GLOX::GLRect<double> const &r) { return r.width > 0 && r.height > 0; }

bool hasExtent(QGraphicsItem const *item)
{
    QRectF r = item->boundingRect();
    return item->isVisible() && r.width() > 0 && r.height() > 0;
}
} // namespace

GLOX::GLRect<double> ScenePrivate::getNodesBounds()
{
    if (isCached(m_nodesBounds)) return m_nodesBounds;
    QRectF united;
    for (QGraphicsItem *item : items()) {
        if (!hasExtent(item)) continue;
        Bounds inScene = NodeImpl::fromItem(item)->getBounds().transformed(item->sceneTransform());
        QRectF const r = GLOX::toQRectF(inScene.boundingRect());
        if (hasUsableArea(r)) united |= r;
    }
    m_nodesBounds = GLOX::toDRect(united);
    return m_nodesBounds;
}

GLOX::GLRect<double> ScenePrivate::getVisibleItemsRect()
{
    // The index holds every shown node at every scale: its extent at the
    // current view's scale holds them all, a little generously (by at most
    // each node's reach), and costs no walk.
    QRectF const extent = m_index->extent(GlobalViewerInfo::instance()->getViewerScale());
    if (extent.isEmpty() || hasUsableArea(extent)) return GLOX::toDRect(extent);
    // A node beyond usable numbers (see above) would spoil it: walk.
    if (isCached(m_visibleItemsRect)) return m_visibleItemsRect;
    QRectF united;
    for (QGraphicsItem *item : items()) {
        if (!hasExtent(item)) continue;
        QRectF const r = item->sceneBoundingRect();
        if (hasUsableArea(r)) united |= r;
    }
    m_visibleItemsRect = GLOX::toDRect(united);
    return m_visibleItemsRect;
}

} // namespace VOR2
