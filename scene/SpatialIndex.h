#pragma once
// SpatialIndex: where a scene's nodes are, at every view scale at once, so
// that a query or a render looks at the nodes near its area only.
//
// Each node is kept by its place without the scale (IndexedPlace): a box in
// scene coordinates, grown by what it reaches in scene units, and a reach in
// device pixels, which becomes reach / scale in scene units at a view's
// scale. Nodes are filed by that pixel reach in classes of powers of two
// (up to 1, 2, 4, ... pixels), one R-tree each, so a query grows its area
// per class by that class's reach at the query's scale: a node of wide
// reach does not widen every query. Nodes that also reach in pixels over
// the scale are filed apart, in classes by the sum R of both reaches, grown
// by R / s at scales from 1 up and R / s^2 below, which bounds the two
// terms together. A zoom changes nothing here.
//
// Changes are marked (markDirty) and applied before the next query
// (flush): a node that changes many times between two queries is filed
// once. What the index keeps about a node lives in the node (IndexSlot), so
// marking one costs no hashing, and until the first query, or once many
// nodes changed, marking is a flag and an append: the next query files
// everything anew, each tree packed in one go. Candidates are a superset of
// the nodes whose bounding rectangle at the given scale meets the area; the
// caller runs the exact test.
//
// Host thread only. Nodes are referred to by pointer; a node is in one
// index at a time and must be removed (remove) before it dies or joins
// another.

#include <QRectF>
#include <cstddef>
#include <functional>
#include <memory>

namespace VOR2 {

class NodeImpl;

// Where a node is, whatever the scale: `box` in scene coordinates, already
// grown by all it reaches in scene units, and what it reaches beyond that at
// view scale s: reachPixels / s + reachPixelsOverScale / s^2 scene units (a
// width in pixels, and one in pixels divided by the scale once more, as a
// line's hit band is). A box of negative or NaN size: the node is nowhere.
// (A box of zero width or height is somewhere: a line, a point.)
struct IndexedPlace {
    QRectF box;
    double reachPixels = 0.0;
    double reachPixelsOverScale = 0.0;
};

class SpatialIndex {
public:
    // `placeOf` computes a node's place when it is filed (host thread).
    using PlaceOf = std::function<IndexedPlace(NodeImpl *)>;

    explicit SpatialIndex(PlaceOf placeOf);
    ~SpatialIndex();
    SpatialIndex(SpatialIndex const &) = delete;
    SpatialIndex &operator=(SpatialIndex const &) = delete;

    // The node's place is to be (re)computed before the next query.
    void markDirty(NodeImpl *node);
    // The node leaves the index at once (it may die right after).
    void remove(NodeImpl *node);
    // Files every node marked dirty.
    void flush();
    // Every node the index holds or will hold once flushed.
    std::size_t size() const;
    // Forgets every node at once, without looking at any.
    void clear();

    // A rectangle that holds every filed node as drawn at view scale
    // `scale`: the boxes' union, each class grown by its reach at that
    // scale. Empty when no node is filed. Flushes first.
    QRectF extent(double scale);

    // Calls `visit` once for each node that may meet `area` (scene
    // coordinates) when drawn or hit-tested at view scale `scale`. Flushes
    // first.
    void forEachCandidate(QRectF const &area, double scale, std::function<void(NodeImpl *)> const &visit);

private:
    struct Data;
    std::unique_ptr<Data> d;
};

} // namespace VOR2
