#include "nodes/CustomNodeImpl.h"

#include <CustomNode>
#include <Effect>

#include "scene/IndexExtent.h"

#include <QPaintDevice>
#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

char const *const CustomNodeImpl::TYPE_NAME = "VOR2.CustomNode";

CustomNodeImpl::~CustomNodeImpl()
{
    if (m_painter) m_painter->m_node = nullptr;
}

bool CustomNodeImpl::isa(char const *typeName) const
{
    return typeNameMatches(typeName, TYPE_NAME) || NodeImpl::isa(typeName);
}

void CustomNodeImpl::setPainter(CustomNodePainter *painter)
{
    if (painter == m_painter.get()) return;
    prepareItemGeometryChange(); // while Qt can still see the old area
    if (m_painter) m_painter->m_node = nullptr;
    m_painter = painter;
    if (m_painter) m_painter->m_node = this;
    notifyGeometryChanged(false);
}

void CustomNodeImpl::boundsChanging()
{
    prepareItemGeometryChange();
    notifyGeometryChanged(false);
}

Bounds CustomNodeImpl::computeBounds() { return m_painter ? m_painter->getBounds() : Bounds(); }

Bounds CustomNodeImpl::computeStrokedOutline(double scale)
{
    return m_painter ? m_painter->getStrokedOutline(scale) : Bounds();
}

IndexExtent CustomNodeImpl::getIndexExtent()
{
    IndexExtent extent = NodeImpl::getIndexExtent();
    if (m_painter) {
        LodReach const reach = m_painter->getReach();
        extent.reachSceneUnits = reach.sceneUnits;
        extent.reachPixels = reach.pixels;
    }
    return extent;
}

void CustomNodeImpl::paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget)
{
    if (m_painter) m_painter->paint(painter, option, widget);
}

void CustomNodeImpl::paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &rect)
{
    if (m_painter) m_painter->paintMask(painter, scale, rect);
}

void CustomNodeImpl::renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                  QWidget *widget)
{
    if (!effect->renderEffectCustom(this, painter, option, widget))
        effect->renderEffectGeneric(this, painter, option, widget);
}

// ------------------------------------------------------------- the painter

void CustomNodePainter::destroy() { delete this; }

void CustomNodePainter::paintMask(QPainter *painter, double, GLOX::GLRect<double> const &)
{
    painter->setRenderHint(QPainter::Antialiasing, true);
    QStyleOptionGraphicsItem const option;
    paint(painter, &option, nullptr);
    QPaintDevice const *device = painter->device();
    if (!device) return;
    QRectF const whole(0, 0, device->width(), device->height());
    // The device's rectangle in the painter's coordinates, whatever its
    // transform, so that no painted pixel keeps its colour.
    bool invertible = false;
    QTransform const toLocal = painter->worldTransform().inverted(&invertible);
    if (!invertible) return;
    painter->setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter->setPen(Qt::NoPen);
    painter->setBrush(QBrush(QColor(0, 0, 0, 255), Qt::SolidPattern));
    QRectF const cover = toLocal.mapRect(whole);
    painter->drawRects(&cover, 1);
}

Bounds CustomNodePainter::getStrokedOutline(double) { return getBounds(); }

CustomNode CustomNodePainter::getNode() const { return CustomNode(m_node); }

void CustomNodePainter::boundsChanging() const
{
    if (m_node) m_node->boundsChanging();
}

void CustomNodePainter::repaintRequired() const
{
    if (m_node) m_node->notifyRepaint();
}

} // namespace VOR2
