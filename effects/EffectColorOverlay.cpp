#include <EffectColorOverlay>

#include "scene/NodeImpl.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

namespace {
GLOX::Color const &defaultOverlayColor()
{
    static GLOX::Color const color(1.0, 0.0, 0.0, 0.75);
    return color;
}
} // namespace

EffectColorOverlay::EffectColorOverlay() : m_color(defaultOverlayColor()) {}

void EffectColorOverlay::setColor(GLOX::Color const &color) { assignAndNotify(m_color, color); }

double EffectColorOverlay::getOpacity() const { return m_color.alphaByte() / 255.0; }

void EffectColorOverlay::setOpacity(double opacity)
{
    if (opacity == getOpacity()) return;
    m_color = GLOX::Color(m_color.red(), m_color.green(), m_color.blue(), opacity);
    notifyPropertyChanged();
}

void EffectColorOverlay::renderEffectGeneric(NodeImpl *node, QPainter *painter,
                                             QStyleOptionGraphicsItem const *option, QWidget *)
{
    Bounds const bounds = node->getCachedStrokedOutline(option->levelOfDetail);
    // The painter already stands at the bounds' top-left.
    QPointF const origin = GLOX::toQRectF(bounds.boundingRect()).topLeft();
    painter->setPen(Qt::NoPen);
    painter->setBrush(QBrush(GLOX::toQColor(m_color)));
    painter->setRenderHint(QPainter::Antialiasing, node->getDrawStyle().isAntiAliased());
    if (bounds.isOnlyRect()) {
        QRectF const rect = GLOX::toQRectF(bounds.boundingRect()).translated(-origin);
        painter->drawRects(&rect, 1);
    } else {
        painter->drawPath(bounds.asQPainterPath().translated(-origin));
    }
}

GLOX::StringID EffectColorOverlay::getEffectID() const
{
    static GLOX::StringID const id("ColorOverlay");
    return id;
}

char const *EffectColorOverlay::getFullyQualifiedTcosTypeName() const { return "VOR2.EffectColorOverlay"; }

} // namespace VOR2
