#pragma once
// NodeViewCache: what a node computes per view, because stroke widths
// follow the view's scale, and its offscreen image at that view's scale.
// Entries are keyed by view; an entry filled at another scale than the
// view's present one counts as empty. A Bounds whose rectangle is invalid
// has not been computed yet.

#include <Bounds>

#include "scene/OffscreenPixmap.h"

#include <memory>

namespace VOR2 {

struct NodeViewCache {
    // The viewer scale the entry was filled at; another scale empties it.
    double scale = 0.0;
    Bounds maximumBounds;
    Bounds strokedOutline;
    Bounds hitBounds;
    // The node's offscreen image for this view, or null.
    std::unique_ptr<OffscreenPixmap> offscreen;
};

} // namespace VOR2
