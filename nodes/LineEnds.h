#pragma once
// LineEnds: the start and end decorations of a line or an open path, kept
// by the node that draws the line. The node tells where each end is and
// which way it points; the decorations place their nodes there and say how
// far the drawn line stops short. Host thread.

#include <LineEndDecoration>

#include <QPointF>

namespace VOR2 {

class NodeImpl;

class LineEnds {
public:
    enum End { Start, Finish };

    LineEndDecoration const &decoration(End end) const { return end == Start ? m_start : m_finish; }

    // Takes the present decoration's node out of the tree, keeps
    // `decoration` and makes its node a child of `owner`. The caller places
    // it next.
    void replace(End end, LineEndDecoration const &decoration, NodeImpl *owner);

    // Puts a valid decoration's node at `position`, turned to point along
    // `direction` (outward from the line). Nothing for an invalid one.
    void place(End end, QPointF const &position, QPointF const &direction);

    // How far the drawn end moves back from the geometric end; (0, 0)
    // without a valid decoration or a backoff.
    QPointF backoff(End end) const { return GLOX::toQPointF(decoration(end).getBackoffVector()); }

    // How many of the decorations hold `node`.
    int handlesOn(NodeImpl const *node) const
    {
        return (m_start.getNode().getImpl() == node) + (m_finish.getNode().getImpl() == node);
    }

private:
    LineEndDecoration &at(End end) { return end == Start ? m_start : m_finish; }

    LineEndDecoration m_start;
    LineEndDecoration m_finish;
};

} // namespace VOR2
