#include "nodes/LineEnds.h"

#include "scene/NodeImpl.h"

namespace VOR2 {

void LineEnds::replace(End end, LineEndDecoration const &decoration, NodeImpl *owner)
{
    LineEndDecoration &d = at(end);
    if (d.isValid()) d.getNode().remove();
    d = decoration;
    d.setParent(Node(owner));
}

void LineEnds::place(End end, QPointF const &position, QPointF const &direction)
{
    LineEndDecoration &d = at(end);
    if (!d.isValid()) return;
    d.setPosition(GLOX::toDPoint(position));
    d.setDirection(GLOX::toDPoint(direction));
}

} // namespace VOR2
