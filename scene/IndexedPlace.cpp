#include "scene/ScenePrivate.h"

#include "scene/IndexExtent.h"
#include "scene/NodeImpl.h"

#include <QGraphicsItem>

namespace VOR2 {

// The node's extent at every scale (IndexExtent) in scene coordinates: the
// reach in scene units goes into the box, the rest stays a reach.
IndexedPlace ScenePrivate::indexedPlaceOf(NodeImpl *node)
{
    QGraphicsItem const *item = node->getGraphicsItem();
    // Hidden items are neither found nor drawn; showing one (or an
    // ancestor) reports it again.
    if (!item->isVisible()) return {QRectF(0, 0, -1, -1), 0.0, 0.0};
    // Covering nothing (at any scale: emptiness does not follow the zoom),
    // the item still answers a bounding rectangle of its own, -1 in every
    // field, and Qt's tests meet it: so does the index.
    // Geometry with an area is inside the drawn bounds, which then have one
    // too: only a node without such geometry needs Qt's rectangle (which
    // computes the bounds at the current scale) to tell.
    QRectF const geometry = GLOX::toQRectF(node->getBounds().boundingRect());
    if (!(geometry.width() > 0 && geometry.height() > 0)) {
        QRectF const itemRect = item->boundingRect();
        if (itemRect == QRectF(-1, -1, -1, -1))
            return {item->sceneTransform().mapRect(itemRect.normalized()), 0.0, 0.0};
    }
    IndexExtent const e = sceneIndexExtent(node);
    double const g = e.reachSceneUnits;
    return {e.local.adjusted(-g, -g, g, g), e.reachPixels, e.reachPixelsOverScale};
}

} // namespace VOR2
