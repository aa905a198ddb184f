#include "scene/ScenePrivate.h"

#include "scene/NodeImpl.h"

#include <QGraphicsItem>

namespace VOR2 {

// Provisional: the bounding rectangle at the current view's scale, with a
// reach so wide that every query finds the node. Correct, not yet quick.
IndexedPlace ScenePrivate::indexedPlaceOf(NodeImpl *node)
{
    QGraphicsItem const *item = node->getGraphicsItem();
    return {item->sceneTransform().mapRect(item->boundingRect().normalized()), 1e6};
}

} // namespace VOR2
