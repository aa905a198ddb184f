#pragma once
// IndexExtent: where a node can reach at any view scale, in a form that
// does not depend on the scale. At view scale s > 0 (the viewer scale that
// bounding rectangle, shape and hit bounds are computed with) the node's Qt
// bounding rectangle, the union of its maximum and hit bounds in its local
// coordinates, lies inside
//   local.adjusted(-g, -g, g, g),
//   g = reachSceneUnits + reachPixels / s + reachPixelsOverScale / (s * s).
// `local` is the bare geometry with everything measured in scene units; the
// reach holds what follows the zoom: stroke widths through their LodScale,
// hairlines, a line's hit band. The last term is a width in pixels divided
// by the scale once more: only a line's hit band has it (its width in scene
// units is divided by the scale again, deliberately), and no sum of the
// first two terms can bound it as the view zooms out.
//
// An extent is empty when `local` has no area and every reach is 0: the
// node covers nothing at any scale. `local` is normalised (no negative
// side). Pure values; computed on the host thread with the node.

#include <QRectF>
#include <QTransform>

namespace VOR2 {

class NodeImpl;

struct IndexExtent {
    QRectF local;
    double reachSceneUnits = 0.0;
    double reachPixels = 0.0;
    double reachPixelsOverScale = 0.0;

    // g at view scale s > 0, in the extent's own units.
    double reachAt(double s) const { return reachSceneUnits + reachPixels / s + reachPixelsOverScale / (s * s); }
    // `local` grown by g at view scale s > 0.
    QRectF rectAt(double s) const
    {
        double const g = reachAt(s);
        return local.adjusted(-g, -g, g, g);
    }
    bool isEmpty() const
    {
        return local.isEmpty() && reachSceneUnits == 0.0 && reachPixels == 0.0 && reachPixelsOverScale == 0.0;
    }
};

// The extent of `node` in scene coordinates: its local rectangle mapped by
// the item's scene transform, each reach times the largest growth that
// transform gives half the side of an axis-aligned square,
// max(|m11| + |m21|, |m12| + |m22|) (the square turned by 45 degrees
// grows by the square root of 2), so that the contract above holds for the
// item's scene bounding rectangle under rotation, scale and a transformed
// parent. A perspective transform has no such constant: the node is then
// given the whole usable plane. Host thread.
IndexExtent sceneIndexExtent(NodeImpl *node);

// The pieces of sceneIndexExtent, for nodes whose extent is made of others'
// (a composite's of its subtree's): a node's own extent widened by the
// reach of its effects, in its coordinates; an extent mapped by `t` as
// above; and the smallest extent that holds both of two at every scale
// (the rectangle over both, the largest of each reach), a point or a
// segment without area counting as much as any rectangle. Host thread.
IndexExtent extentWithEffects(NodeImpl *node);
IndexExtent mappedIndexExtent(IndexExtent const &extent, QTransform const &t);
IndexExtent unitedIndexExtent(IndexExtent const &a, IndexExtent const &b);

} // namespace VOR2
