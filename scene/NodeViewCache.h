#pragma once
// NodeViewCache: what a node computes per view, because stroke widths
// follow the view's scale. A Bounds whose rectangle is invalid has not
// been computed yet. The scale is not part of the key: a view that changes
// its scale must use a new key or invalidate the node.

#include <Bounds>

namespace VOR2 {

struct NodeViewCache {
    Bounds maximumBounds;
    Bounds strokedOutline;
    Bounds hitBounds;
};

} // namespace VOR2
