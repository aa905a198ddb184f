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

// What a pen is made of, and the last pen made on this thread: nodes of a
// scene mostly share their strokes, and a QPen is a shared value, so the
// same pen is handed out again instead of being built anew.
struct PenKey {
    GLOX::Color color;
    double width;
    double scale;
    StrokeCapStyle cap;
    StrokeJoinStyle join;
    StrokeStyle style;

    bool operator==(PenKey const &o) const
    {
        return color == o.color && width == o.width && scale == o.scale && cap == o.cap && join == o.join &&
               style == o.style;
    }
};

struct LastPen {
    bool valid = false;
    PenKey key;
    QPen pen;
};

// The same for the brush of a solid colour.
struct LastSolidBrush {
    bool valid = false;
    GLOX::Color color;
    QBrush brush;
};

thread_local LastPen lastPen;
thread_local LastSolidBrush lastSolidBrush;
} // namespace

QPen penForStroke(Stroke const &stroke, double scale)
{
    PenKey const key{stroke.color(), stroke.width(scale), scale, stroke.capStyle(), stroke.joinStyle(), stroke.style()};
    if (lastPen.valid && lastPen.key == key) return lastPen.pen;
    QPen pen(GLOX::toQColor(key.color));
    if (stroke.logicalWidth() == 0.0) {
        // A hairline, 1 / scale wide: Qt's own pen of one device pixel is
        // that line, and Qt draws it with its fast line rasteriser at every
        // scale instead of only where width times scale rounds to 1 or less.
        pen.setCosmetic(true);
        pen.setWidthF(1.0);
    } else {
        setPenWidth(pen, key.width, scale);
    }
    pen.setCapStyle(toQtCap(key.cap));
    pen.setJoinStyle(toQtJoin(key.join));
    pen.setStyle(toQtPenStyle(key.style));
    lastPen = {true, key, pen};
    return pen;
}

QBrush brushForFill(Fill const &fill)
{
    switch (int(fill.style())) {
    case 1:
        if (!lastSolidBrush.valid || !(lastSolidBrush.color == fill.color()))
            lastSolidBrush = {true, fill.color(), QBrush(GLOX::toQColor(fill.color()), Qt::SolidPattern)};
        return lastSolidBrush.brush;
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
    // Qt recomputes its rasteriser's state at every hint set, even to the
    // value it has.
    bool const antiAliased = style.isAntiAliased() || isThinLine(pen, scale);
    if (painter->testRenderHint(QPainter::Antialiasing) != antiAliased)
        painter->setRenderHint(QPainter::Antialiasing, antiAliased);
}

} // namespace VOR2
