#include "nodes/ContainerNodeImpl.h"

namespace VOR2 {

char const *const ContainerNodeImpl::TYPE_NAME = "VOR2.ContainerNode";

bool ContainerNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

Bounds ContainerNodeImpl::computeBounds() { return Bounds(); }

void ContainerNodeImpl::renderEffect(Effect *, QPainter *, QStyleOptionGraphicsItem const *, QWidget *) {}

} // namespace VOR2
