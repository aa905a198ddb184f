#pragma once
// NodeViewCache: what a node computes per view, because stroke widths
// follow the view's scale, and its offscreen image at that view's scale. A Bounds whose rectangle is invalid has not
// been computed yet. The scale is not part of the key: a view that changes
// its scale must use a new key or invalidate the node.

#include <Bounds>

#include "scene/OffscreenPixmap.h"

#include <memory>

namespace VOR2 {

struct NodeViewCache {
    Bounds maximumBounds;
    Bounds strokedOutline;
    Bounds hitBounds;
    // The node's offscreen image for this view, or null.
    std::unique_ptr<OffscreenPixmap> offscreen;
};

} // namespace VOR2
