#include "nodes/CustomNodeImpl.h"

#include <CustomNode>

#include "scene/IndexExtent.h"

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

// ------------------------------------------------------------- the painter

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
