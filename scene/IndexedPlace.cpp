#include "scene/ScenePrivate.h"

#include "scene/NodeImpl.h"

#include <QGraphicsItem>

namespace VOR2 {

// Provisional: the bounding rectangle at the current view's scale, with a
// reach so wide that every query finds the node. Correct, not yet quick.
IndexedPlace ScenePrivate::indexedPlaceOf(NodeImpl *node)
{
    QGraphicsItem const *item = node->getGraphicsItem();
    // Hidden items are neither found nor drawn; showing one (or an
    // ancestor) reports it again.
    if (!item->isVisible()) return {QRectF(0, 0, -1, -1), 0.0};
    return {item->sceneTransform().mapRect(item->boundingRect().normalized()), 1e6};
}

} // namespace VOR2
