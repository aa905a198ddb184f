#include <EllipseNode>

#include "nodes/EllipseNodeImpl.h"
#include "values/UsableNumber.h"

namespace VOR2 {

EllipseNode::EllipseNode() : Node(new EllipseNodeImpl) {}

EllipseNode::EllipseNode(Ellipse const &ellipse) : EllipseNode() { setEllipse(ellipse); }

EllipseNode::EllipseNode(NodeImpl *impl)
    : Node(impl && impl->isa(EllipseNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

namespace {
// Every change of the rectangle comes here: one that is not usable is
// ignored.
void setUsableRect(EllipseNodeImpl *impl, QRectF const &r)
{
    if (isUsable(r)) impl->setRect(r);
}
} // namespace

char const *EllipseNode::staticGetFullyQualifiedTcosTypeName() { return EllipseNodeImpl::TYPE_NAME; }

double EllipseNode::getWidth() const { return getValidEllipseNodeImpl()->rect().width(); }

double EllipseNode::getHeight() const { return getValidEllipseNodeImpl()->rect().height(); }

void EllipseNode::setWidth(double width) const
{
    EllipseNodeImpl *impl = getValidEllipseNodeImpl();
    QRectF r = impl->rect();
    r.setWidth(width);
    setUsableRect(impl, r);
}

void EllipseNode::setHeight(double height) const
{
    EllipseNodeImpl *impl = getValidEllipseNodeImpl();
    QRectF r = impl->rect();
    r.setHeight(height);
    setUsableRect(impl, r);
}

GLOX::Size<double> EllipseNode::getSize() const { return GLOX::toDSize(getValidEllipseNodeImpl()->rect().size()); }

void EllipseNode::setSize(GLOX::Size<double> const &size) const
{
    EllipseNodeImpl *impl = getValidEllipseNodeImpl();
    setUsableRect(impl, QRectF(impl->rect().topLeft(), GLOX::toQSizeF(size)));
}

GLOX::GLPoint<double> EllipseNode::getCenter() const
{
    QRectF r = getValidEllipseNodeImpl()->rect();
    return GLOX::toDPoint(r.topLeft() + 0.5 * QPointF(r.width(), r.height()));
}

void EllipseNode::setCenter(GLOX::GLPoint<double> const &center) const
{
    EllipseNodeImpl *impl = getValidEllipseNodeImpl();
    QSizeF size = impl->rect().size();
    QPointF topLeft = GLOX::toQPointF(center) - 0.5 * QPointF(size.width(), size.height());
    if (isUsable(center)) setUsableRect(impl, QRectF(topLeft, size));
}

Ellipse EllipseNode::getEllipse() const { return Ellipse(GLOX::toDRect(getValidEllipseNodeImpl()->rect())); }

void EllipseNode::setEllipse(Ellipse const &ellipse) const
{
    setUsableRect(getValidEllipseNodeImpl(), GLOX::toQRectF(ellipse.rect()));
}

EllipseNodeImpl *EllipseNode::getEllipseNodeImpl() const { return static_cast<EllipseNodeImpl *>(getImpl()); }

EllipseNodeImpl *EllipseNode::getValidEllipseNodeImpl() const
{
    return static_cast<EllipseNodeImpl *>(getValidImpl());
}

} // namespace VOR2
