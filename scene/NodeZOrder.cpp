// Node: z-order. Each operation works in the node's z container (its
// parent, else its scene); a node with neither is left alone. A reference
// node from another container is compared by its z value all the same.

#include <Node>

#include "scene/NodeImpl.h"

#include <cmath>

namespace VOR2 {

namespace {
// The stacking operations step z values by one; beyond 2^53 a step of one
// is lost to rounding, and infinities or NaN never order. Such a z value
// would tie every node stacked on top later, so it is refused.
constexpr double Z_LIMIT = 9007199254740992.0; // 2^53

bool isSteppableZ(double z) { return std::isfinite(z) && std::fabs(z) <= Z_LIMIT; }

GLOX::GList<NodeImpl *> validImpls(GLOX::GList<Node> const &nodes)
{
    GLOX::GList<NodeImpl *> impls;
    for (Node const &n : nodes)
        if (n.isValid()) impls.append(n.getImpl());
    return impls;
}

// The container of the first node of a list, which must be valid.
ZOrderingContainer *firstContainer(GLOX::GList<Node> const &nodes)
{
    if (nodes.isEmpty() || !nodes.first().isValid()) return nullptr;
    return nodes.first().getImpl()->getZContainer();
}
} // namespace

void Node::setZValue(double z) const
{
    NodeImpl *impl = getValidImpl();
    if (!isSteppableZ(z)) return;
    if (ZOrderingContainer *c = impl->getZContainer()) c->setZValue(impl, z);
}

double Node::getZValue() const { return getValidImpl()->getGraphicsItem()->zValue(); }

void Node::toTop() const
{
    NodeImpl *impl = getValidImpl();
    if (ZOrderingContainer *c = impl->getZContainer()) c->toTop(impl);
}

void Node::toBottom() const
{
    NodeImpl *impl = getValidImpl();
    if (ZOrderingContainer *c = impl->getZContainer()) c->toBottom(impl);
}

void Node::ensureAbove(Node const &ref) const
{
    NodeImpl *impl = getValidImpl();
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = impl->getZContainer()) c->ensureAbove(impl, r);
}

void Node::ensureBelow(Node const &ref) const
{
    NodeImpl *impl = getValidImpl();
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = impl->getZContainer()) c->ensureBelow(impl, r);
}

void Node::placeAbove(Node const &ref) const
{
    NodeImpl *impl = getValidImpl();
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = impl->getZContainer()) c->placeAbove(impl, r);
}

void Node::placeBelow(Node const &ref) const
{
    NodeImpl *impl = getValidImpl();
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = impl->getZContainer()) c->placeBelow(impl, r);
}

void Node::toTop(GLOX::GList<Node> const &nodes)
{
    if (ZOrderingContainer *c = firstContainer(nodes)) c->toTop(validImpls(nodes));
}

void Node::toBottom(GLOX::GList<Node> const &nodes)
{
    if (ZOrderingContainer *c = firstContainer(nodes)) c->toBottom(validImpls(nodes));
}

void Node::ensureAbove(GLOX::GList<Node> const &nodes, Node const &ref)
{
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = r->getZContainer()) c->ensureAbove(validImpls(nodes), r);
}

void Node::ensureBelow(GLOX::GList<Node> const &nodes, Node const &ref)
{
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = r->getZContainer()) c->ensureBelow(validImpls(nodes), r);
}

void Node::placeAbove(GLOX::GList<Node> const &nodes, Node const &ref)
{
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = r->getZContainer()) c->placeAbove(validImpls(nodes), r);
}

void Node::placeBelow(GLOX::GList<Node> const &nodes, Node const &ref)
{
    NodeImpl *r = ref.getValidImpl();
    if (ZOrderingContainer *c = r->getZContainer()) c->placeBelow(validImpls(nodes), r);
}

} // namespace VOR2
