#include <EffectStroke>

#include "effects/InsetBand.h"
#include "nodes/CustomNodeImpl.h"
#include "nodes/TextNodeImpl.h"
#include "nodes/OutlineStroker.h"
#include "scene/NodeImpl.h"

#include <QPainter>
#include <QImage>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

namespace {
GLOX::StringID const &strokeID()
{
    static GLOX::StringID const id("Stroke");
    return id;
}

Qt::PenJoinStyle qtJoin(StrokeJoinStyle join)
{
    switch (join) {
    case StrokeJoinStyle::BevelJoin: return Qt::BevelJoin;
    case StrokeJoinStyle::RoundJoin: return Qt::RoundJoin;
    case StrokeJoinStyle::SvgMiterJoin: return Qt::SvgMiterJoin;
    default: return Qt::MiterJoin;
    }
}

Qt::PenCapStyle qtCap(StrokeCapStyle cap)
{
    switch (cap) {
    case StrokeCapStyle::SquareCap: return Qt::SquareCap;
    case StrokeCapStyle::RoundCap: return Qt::RoundCap;
    default: return Qt::FlatCap;
    }
}

// How far outside the bounds' rectangle the outline reaches, in widths.
double outsideWidths(StrokeInsetType inset)
{
    switch (inset) {
    case Inner: return 0.0;
    case Center: return 0.5;
    default: return 1.0;
    }
}
} // namespace

EffectStroke::EffectStroke() : m_stroke(GLOX::Color(1.0, 0.0, 0.0, 0.75), 3.0) {}

EffectStroke::EffectStroke(Stroke const &stroke, StrokeInsetType inset) : m_stroke(stroke), m_inset(inset) {}

void EffectStroke::setStroke(Stroke const &stroke)
{
    if (stroke == m_stroke) return;
    m_stroke = stroke;
    notifyPropertyChanged();
}

void EffectStroke::setStrokeInsetType(StrokeInsetType const &inset)
{
    if (inset == m_inset) return;
    m_inset = inset;
    notifyPropertyChanged();
}

double EffectStroke::getOpacity() const { return m_stroke.color().alphaByte() / 255.0; }

void EffectStroke::setOpacity(double opacity)
{
    if (opacity == getOpacity()) return;
    GLOX::Color const &c = m_stroke.color();
    m_stroke.setColor(GLOX::Color(c.red(), c.green(), c.blue(), opacity));
    notifyPropertyChanged();
}

double EffectStroke::effectiveWidth(double levelOfDetail) const
{
    // Stroke::width answers one device pixel for width 0 and never a value
    // that would spoil the bounds.
    return m_stroke.width(levelOfDetail);
}

Bounds EffectStroke::computeBounds(Bounds const &bounds, double levelOfDetail)
{
    // A shape with nothing inside (the outline of an ellipse without area)
    // has no place of its own and nothing to outline. A bare rectangle
    // without area is still outlined where it stands.
    if (bounds.isEmpty() && !bounds.isOnlyRect()) return bounds;
    double const d = effectiveWidth(levelOfDetail) * outsideWidths(m_inset);
    GLOX::GLRect<double> const r = bounds.boundingRect();
    return Bounds(GLOX::GLRect<double>(r.x - d, r.y - d, r.width + 2 * d, r.height + 2 * d));
}

LodReach EffectStroke::reachBound() const { return m_stroke.widthBound().scaled(outsideWidths(m_inset)); }

GLOX::StringID EffectStroke::getEffectID() const { return strokeID(); }

char const *EffectStroke::getFullyQualifiedTcosTypeName() const { return "VOR2.EffectStroke"; }

void EffectStroke::renderPrivate(Bounds const &bounds, StrokeInsetType inset, bool antialias, QPainter *painter,
                                 QStyleOptionGraphicsItem const *option, QWidget *)
{
    // Only the region's edge is drawn, not where its contours overlap.
    QPainterPath path = asOneRegion(bounds.asQPainterPath());
    double const w = effectiveWidth(option->levelOfDetail);
    // The painter's origin is the top-left of the bounds.
    GLOX::GLRect<double> const r = bounds.boundingRect();
    path = QTransform::fromTranslate(-r.x, -r.y).map(path);
    QPen pen(GLOX::toQColor(m_stroke.color()));
    pen.setJoinStyle(qtJoin(m_stroke.joinStyle()));
    pen.setCapStyle(qtCap(m_stroke.capStyle()));
    painter->setRenderHint(QPainter::Antialiasing, antialias);
    if (inset == Center) {
        pen.setWidthF(w);
        painter->setPen(pen);
        painter->setBrush(Qt::NoBrush);
        painter->drawPath(path);
    } else if (inset == Inner || inset == Outer) {
        // A band twice as wide, of which the half inside or outside shows.
        pen.setWidthF(2 * w);
        QRect const device = insetBandDeviceRect(*painter, path, pen);
        if (device.isEmpty()) return;
        QImage &scratch = getScratchBuffer({device.width(), device.height()}, false);
        drawInsetBand(*painter, scratch, path, pen, inset == Inner ? BandSide::Inside : BandSide::Outside, antialias);
    } else {
        // An inset of no known kind: a default pen along the edge.
        painter->setPen(QPen());
        painter->setBrush(QBrush());
        painter->drawPath(path);
    }
}

void EffectStroke::renderEffectGeneric(NodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                       QWidget *widget)
{
    renderPrivate(node->getCachedStrokedOutline(option->levelOfDetail), m_inset,
                  node->getDrawStyle().isAntiAliased(), painter, option, widget);
}

bool EffectStroke::renderEffectCustom(CustomNodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                      QWidget *widget)
{
    renderPrivate(node->getCachedStrokedOutline(option->levelOfDetail), m_inset, true, painter, option, widget);
    return true;
}

// Text: a frame around the text's rectangle, by default the same at every
// level of detail.
bool EffectStroke::renderEffectText(TextNodeImpl *node, QPainter *painter, QStyleOptionGraphicsItem const *option,
                                    QWidget *widget)
{
    Bounds const bounds = getOutlineType() == PlainBoundsOutline ? node->getBounds()
                                                                 : node->getCachedStrokedOutline(option->levelOfDetail);
    renderPrivate(bounds, m_inset, true, painter, option, widget);
    return true;
}

} // namespace VOR2
