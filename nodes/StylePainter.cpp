#include "nodes/StylePainter.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>

namespace VOR2 {

namespace {
Qt::PenCapStyle toQtCap(StrokeCapStyle cap)
{
    switch (cap) {
    case SquareCap: return Qt::SquareCap;
    case RoundCap: return Qt::RoundCap;
    default: return Qt::FlatCap;
    }
}

Qt::PenJoinStyle toQtJoin(StrokeJoinStyle join)
{
    switch (join) {
    case BevelJoin: return Qt::BevelJoin;
    case RoundJoin: return Qt::RoundJoin;
    case SvgMiterJoin: return Qt::SvgMiterJoin;
    default: return Qt::MiterJoin;
    }
}

Qt::PenStyle toQtPenStyle(StrokeStyle style)
{
    int s = int(style);
    if (s < 0) return Qt::NoPen;
    return s > 5 ? Qt::DashDotDotLine : Qt::PenStyle(s);
}

// One minus 2^-52: the largest width times scale that counts as thin.
constexpr double THIN_LINE_LIMIT = 0.9999999999999998;

// QPen refuses a width of 2^15 or more, with a warning, and keeps its old
// width; widths stay below it.
constexpr double PEN_WIDTH_LIMIT = 32767.0;

// Gives `pen` the width `w` in scene units at view `scale`. A width QPen
// cannot take (a hairline far out, say) becomes the same width in device
// pixels on a cosmetic pen, which looks the same under a uniform scale.
void setPenWidth(QPen &pen, double w, double scale)
{
    if (w <= PEN_WIDTH_LIMIT) {
        pen.setWidthF(w);
        return;
    }
    double device = w * scale;
    pen.setCosmetic(true);
    pen.setWidthF(device >= 0.0 && device <= PEN_WIDTH_LIMIT ? device : PEN_WIDTH_LIMIT);
}
} // namespace

QPen penForStroke(Stroke const &stroke, double scale)
{
    QPen pen(GLOX::toQColor(stroke.color()));
    setPenWidth(pen, stroke.width(scale), scale);
    pen.setCapStyle(toQtCap(stroke.capStyle()));
    pen.setJoinStyle(toQtJoin(stroke.joinStyle()));
    pen.setStyle(toQtPenStyle(stroke.style()));
    return pen;
}

QBrush brushForFill(Fill const &fill)
{
    switch (int(fill.style())) {
    case 1: return QBrush(GLOX::toQColor(fill.color()), Qt::SolidPattern);
    case 2: {
        QGradient const *gradient = fill.gradient().getGradient();
        return gradient ? QBrush(*gradient) : QBrush();
    }
    default: return QBrush();
    }
}

bool isThinLine(QPen const &pen, double scale)
{
    return pen.widthF() * scale <= THIN_LINE_LIMIT && pen.style() != Qt::NoPen && !pen.isCosmetic();
}

double paintScale(QPainter const *painter)
{
    return QStyleOptionGraphicsItem::levelOfDetailFromTransform(painter->worldTransform());
}

void applyDrawStyle(QPainter *painter, DrawStyle const &style, double scale)
{
    QPen pen = penForStroke(style.stroke(), scale);
    painter->setPen(pen);
    painter->setBrush(brushForFill(style.fill()));
    painter->setRenderHint(QPainter::Antialiasing, style.isAntiAliased() || isThinLine(pen, scale));
}

} // namespace VOR2
