#pragma once
// Walks over the descendants of a node with the transform of each into the
// node's coordinates: what a composite needs to measure, search and index
// its subtree as one unit. Host thread.

#include <Bounds>

#include <QTransform>
#include <functional>

namespace VOR2 {

class NodeImpl;

// Calls `visit` for each descendant of `root`, depth first, children in
// Qt's order, with the transform from the descendant's coordinates into
// the root's (its position, then its own transform, then its parent's
// transform into the root). A true answer ends the walk; so does the
// answer of the walk.
bool anyDescendant(NodeImpl *root, std::function<bool(NodeImpl *, QTransform const &)> const &visit);

// The union of `source(descendant)` of every descendant, each mapped into
// the root's coordinates; the root's own bounds are not part of it. The
// zero Bounds for a node without descendants.
Bounds subtreeBounds(NodeImpl *root, std::function<Bounds(NodeImpl *)> const &source);

} // namespace VOR2
