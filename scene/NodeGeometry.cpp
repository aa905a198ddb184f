// Node: position, transform, mapping, bounds and hit testing.

#include <Node>

#include "scene/NodeImpl.h"
#include "values/UsableNumber.h"

#include <QtMath>

namespace VOR2 {

namespace {
// Combines `t` with the item's transform and reports; answers false, and
// changes nothing, when the result holds a number that is not usable.
bool combineTransform(NodeImpl *impl, QTransform const &t)
{
    QGraphicsItem *item = impl->getGraphicsItem();
    QTransform const combined = t * item->transform();
    if (!isUsable(combined)) return false;
    impl->holdQtItemUpdates();
    item->setTransform(combined);
    impl->notifyGeometryChanged(true);
    return true;
}
} // namespace

// ---------------------------------------------------------------- position

GLOX::GLPoint<double> Node::getPosition() const { return GLOX::toDPoint(getValidImpl()->getGraphicsItem()->pos()); }

void Node::setPosition(GLOX::GLPoint<double> const &p) const
{
    NodeImpl *impl = getValidImpl();
    if (!isUsable(p)) return;
    QPointF old = impl->getGraphicsItem()->pos();
    if (old.x() == p.x && old.y() == p.y) return;
    impl->holdQtItemUpdates();
    impl->getGraphicsItem()->setPos(p.x, p.y);
    impl->notifyMoved();
}

GLOX::GLPoint<double> Node::getScenePosition() const
{
    Node parent = getParent();
    return parent.isValid() ? parent.mapLocalToScene(getPosition()) : getPosition();
}

void Node::setScenePosition(GLOX::GLPoint<double> const &p) const
{
    Node parent = getParent();
    setPosition(parent.isValid() ? parent.mapSceneToLocal(p) : p);
}

GLOX::GLPoint<double> Node::mapLocalToScene(GLOX::GLPoint<double> const &p) const
{
    return GLOX::toDPoint(getValidImpl()->getGraphicsItem()->mapToScene(GLOX::toQPointF(p)));
}

GLOX::GLPoint<double> Node::mapSceneToLocal(GLOX::GLPoint<double> const &p) const
{
    return GLOX::toDPoint(getValidImpl()->getGraphicsItem()->mapFromScene(GLOX::toQPointF(p)));
}

GLOX::GLPoint<double> Node::mapOtherNodeToLocal(Node const &other, GLOX::GLPoint<double> const &p) const
{
    QGraphicsItem *otherItem = other.getValidImpl()->getGraphicsItem();
    return GLOX::toDPoint(getValidImpl()->getGraphicsItem()->mapFromItem(otherItem, GLOX::toQPointF(p)));
}

Bounds Node::mapLocalToScene(Bounds const &b) const
{
    return b.transformed(getValidImpl()->getGraphicsItem()->sceneTransform());
}

Bounds Node::mapSceneToLocal(Bounds const &b) const
{
    return b.transformed(getValidImpl()->getGraphicsItem()->sceneTransform().inverted());
}

Bounds Node::mapOtherNodeToLocal(Node const &other, Bounds const &b) const
{
    QGraphicsItem *otherItem = other.getValidImpl()->getGraphicsItem();
    return b.transformed(otherItem->itemTransform(getValidImpl()->getGraphicsItem()));
}

// --------------------------------------------------------------- transform

GLOX::Transform Node::getTransform() const { return getValidImpl()->getGraphicsItem()->transform(); }

void Node::setTransform(GLOX::Transform const &t) const
{
    NodeImpl *impl = getValidImpl();
    if (!isUsable(t.toQTransform()) || impl->getGraphicsItem()->transform() == t.toQTransform()) return;
    impl->holdQtItemUpdates();
    impl->getGraphicsItem()->setTransform(t.toQTransform());
    impl->notifyGeometryChanged(true);
}

void Node::clearTransform() const { setTransform(GLOX::Transform()); }

// An angle beyond the coordinate limit has lost every digit that would
// tell one turn from another: it is ignored like a NaN.
void Node::rotateDegrees(double degrees) const
{
    NodeImpl *impl = getValidImpl();
    if (isUsable(degrees)) combineTransform(impl, QTransform().rotate(degrees));
}

void Node::rotateRadians(double radians) const { rotateDegrees(qRadiansToDegrees(radians)); }

void Node::rotateDegreesAroundPoint(double degrees, GLOX::GLPoint<double> const &p) const
{
    NodeImpl *impl = getValidImpl();
    if (!isUsable(degrees) || !isUsable(p)) return;
    // Move the point to the origin, rotate, move it back.
    QTransform t = QTransform::fromTranslate(-p.x, -p.y) * QTransform().rotate(degrees) *
                   QTransform::fromTranslate(p.x, p.y);
    combineTransform(impl, t);
}

void Node::rotateRadiansAroundPoint(double radians, GLOX::GLPoint<double> const &p) const
{
    rotateDegreesAroundPoint(qRadiansToDegrees(radians), p);
}

void Node::translate(double dx, double dy) const
{
    combineTransform(getValidImpl(), QTransform::fromTranslate(dx, dy));
}

void Node::scale(double sx, double sy) const { combineTransform(getValidImpl(), QTransform::fromScale(sx, sy)); }

// These two forms report twice, as they always have.
void Node::translate(GLOX::GLPoint<double> const &d) const
{
    NodeImpl *impl = getValidImpl();
    if (combineTransform(impl, QTransform::fromTranslate(d.x, d.y))) impl->notifyGeometryChanged(true);
}

void Node::scale(double s) const
{
    NodeImpl *impl = getValidImpl();
    if (combineTransform(impl, QTransform::fromScale(s, s))) impl->notifyGeometryChanged(true);
}

// ------------------------------------------------------ bounds, hit tests

Bounds Node::getBounds() const { return getValidImpl()->getBounds(); }

GLOX::GLRect<double> Node::getBoundingRect() const { return getBounds().boundingRect(); }

double Node::getWidth() const { return getBoundingRect().width; }

double Node::getHeight() const { return getBoundingRect().height; }

bool Node::contains(GLOX::GLPoint<double> const &p) const
{
    NodeImpl *impl = getValidImpl();
    return isUsable(p) && impl->contains(p);
}

bool Node::intersects(GLOX::GLRect<double> const &r) const
{
    NodeImpl *impl = getValidImpl();
    return isUsable(r) && impl->intersects(r);
}

bool Node::intersects(Bounds const &b) const
{
    NodeImpl *impl = getValidImpl();
    return isUsable(b.boundingRect()) && impl->intersects(b);
}

void Node::setCustomHitTestFunctor(CustomHitTestFunctor *functor) const
{
    getValidImpl()->setCustomHitTestFunctor(functor);
}

Bounds Node::CustomHitTestFunctor::getHitBounds(Node node, double) { return node.getBounds(); }

} // namespace VOR2
