#include "scene/IndexExtent.h"

#include "effects/NodeEffectsImpl.h"
#include "scene/NodeImpl.h"
#include "values/UsableNumber.h"

#include <algorithm>
#include <cmath>

namespace VOR2 {

IndexExtent NodeImpl::getIndexExtent()
{
    IndexExtent extent;
    QRectF const r = GLOX::toQRectF(getBounds().boundingRect());
    if (isUsable(r)) extent.local = r.normalized();
    return extent;
}

namespace {
// The node's own extent, widened by the reach of its effects beyond its
// stroked outline, which the extent already covers.
IndexExtent extentWithEffects(NodeImpl *node)
{
    IndexExtent extent = node->getIndexExtent();
    if (NodeEffectsImpl const *effects = node->getEffectsImpl()) {
        LodReach const reach = effects->reachBound();
        extent.reachSceneUnits += reach.sceneUnits;
        extent.reachPixels += reach.pixels;
    }
    return extent;
}
} // namespace

IndexExtent sceneIndexExtent(NodeImpl *node)
{
    IndexExtent const local = extentWithEffects(node);
    if (local.isEmpty()) return local;
    QTransform const t = node->getGraphicsItem()->sceneTransform();
    IndexExtent scene;
    if (!t.isAffine()) {
        // No constant bounds the growth of a reach: everywhere.
        scene.local = QRectF(-COORDINATE_LIMIT, -COORDINATE_LIMIT, 2 * COORDINATE_LIMIT, 2 * COORDINATE_LIMIT);
        return scene;
    }
    // Half the side of an axis-aligned square of half side g maps to at
    // most g times this on either axis.
    double const stretch =
        std::max(std::abs(t.m11()) + std::abs(t.m21()), std::abs(t.m12()) + std::abs(t.m22()));
    scene.local = t.mapRect(local.local);
    scene.reachSceneUnits = local.reachSceneUnits * stretch;
    scene.reachPixels = local.reachPixels * stretch;
    scene.reachPixelsOverScale = local.reachPixelsOverScale * stretch;
    return scene;
}

} // namespace VOR2
