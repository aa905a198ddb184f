#pragma once
// ZOrderingContainer: what stacks a set of sibling nodes: a node for its
// children, a scene for its top-level nodes. A node holds no data; the range
// of z values it has handed out lives in one process-wide table keyed by the
// container (ZRange), so that plain nodes stay small. A scene, which stacks
// every node added to it, keeps its range itself (zRange overridden).
//
// Every z write goes through QGraphicsItem::setZValue. The range only
// grows: z values drift upward and are never renumbered. Host thread only.

#include "GLOX/Containers.h"

namespace VOR2 {

class NodeImpl;

struct ZRange {
    double lowest = 0.0;
    double highest = 0.0;
};

class ZOrderingContainer {
public:
    virtual ~ZOrderingContainer();
    // The nodes this container stacks.
    virtual GLOX::GList<NodeImpl *> getStackedNodes() const = 0;

    // The range of this container, created at zero on first use.
    virtual ZRange &zRange() const;

    void setZValue(NodeImpl *n, double z);
    void stepToTop(NodeImpl *n);
    // As stepToTop, without the repaint report: for a node that has just
    // joined this container and is reported whole by its caller.
    void stackOnTop(NodeImpl *n);
    void toTop(NodeImpl *n);
    void toBottom(NodeImpl *n);
    void placeAbove(NodeImpl *n, NodeImpl *ref);
    void placeBelow(NodeImpl *n, NodeImpl *ref);
    void ensureAbove(NodeImpl *n, NodeImpl *ref);
    void ensureBelow(NodeImpl *n, NodeImpl *ref);

    // List forms: the members keep their relative order.
    void toTop(GLOX::GList<NodeImpl *> nodes);
    void toBottom(GLOX::GList<NodeImpl *> nodes);
    void placeAbove(GLOX::GList<NodeImpl *> nodes, NodeImpl *ref);
    void placeBelow(GLOX::GList<NodeImpl *> nodes, NodeImpl *ref);
    void ensureAbove(GLOX::GList<NodeImpl *> const &nodes, NodeImpl *ref);
    void ensureBelow(GLOX::GList<NodeImpl *> const &nodes, NodeImpl *ref);

private:
    // Raises every stacked node but `except` whose z is above `zr` (or at
    // it, with `inclusive`) by `step`, without reports.
    void shiftStacked(double zr, bool inclusive, double step, NodeImpl *except);
    static void writeZ(NodeImpl *n, double z);
};

} // namespace VOR2
