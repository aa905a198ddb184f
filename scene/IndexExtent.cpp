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

IndexExtent mappedIndexExtent(IndexExtent const &local, QTransform const &t)
{
    IndexExtent mapped;
    if (!t.isAffine()) {
        // No constant bounds the growth of a reach: everywhere.
        mapped.local = QRectF(-COORDINATE_LIMIT, -COORDINATE_LIMIT, 2 * COORDINATE_LIMIT, 2 * COORDINATE_LIMIT);
        return mapped;
    }
    // Half the side of an axis-aligned square of half side g maps to at
    // most g times this on either axis.
    double const stretch =
        std::max(std::abs(t.m11()) + std::abs(t.m21()), std::abs(t.m12()) + std::abs(t.m22()));
    mapped.local = t.mapRect(local.local);
    mapped.reachSceneUnits = local.reachSceneUnits * stretch;
    mapped.reachPixels = local.reachPixels * stretch;
    mapped.reachPixelsOverScale = local.reachPixelsOverScale * stretch;
    return mapped;
}

IndexExtent unitedIndexExtent(IndexExtent const &a, IndexExtent const &b)
{
    IndexExtent u;
    // By the corners: QRectF::united drops a rectangle without area, which
    // here may still be a point or a segment that a reach grows.
    double const left = std::min(a.local.left(), b.local.left());
    double const top = std::min(a.local.top(), b.local.top());
    double const right = std::max(a.local.right(), b.local.right());
    double const bottom = std::max(a.local.bottom(), b.local.bottom());
    u.local = QRectF(left, top, right - left, bottom - top);
    u.reachSceneUnits = std::max(a.reachSceneUnits, b.reachSceneUnits);
    u.reachPixels = std::max(a.reachPixels, b.reachPixels);
    u.reachPixelsOverScale = std::max(a.reachPixelsOverScale, b.reachPixelsOverScale);
    return u;
}

IndexExtent sceneIndexExtent(NodeImpl *node)
{
    IndexExtent const local = extentWithEffects(node);
    if (local.isEmpty()) return local;
    return mappedIndexExtent(local, node->getGraphicsItem()->sceneTransform());
}

} // namespace VOR2
