#include <Stroke>

#include "values/UsableNumber.h"

namespace VOR2 {

namespace {
// A logical width a stroke can hold: a usable number, not negative.
bool isWidth(double w) { return isUsable(w) && w >= 0.0; }
} // namespace

Stroke::Stroke(GLOX::Color const &color, double logicalWidth, StrokeStyle style, StrokeCapStyle capStyle,
               StrokeJoinStyle joinStyle, LodScale const *scaleFunction)
    : m_color(color), m_logicalWidth(isWidth(logicalWidth) ? logicalWidth : 0.0), m_style(style), m_capStyle(capStyle),
      m_joinStyle(joinStyle), m_scaleFunction(scaleFunction ? scaleFunction : LodScale::instance())
{
}

void Stroke::setScaleFunction(LodScale const *function)
{
    m_scaleFunction = function ? function : LodScale::instance();
}

void Stroke::setLogicalWidth(double width)
{
    if (isWidth(width)) m_logicalWidth = width;
}

double Stroke::width(double scale) const
{
    double const w = m_logicalWidth == 0.0 ? 1.0 / scale : m_logicalWidth * m_scaleFunction->scale(scale);
    return isWidth(w) ? w : 0.0;
}

LodReach Stroke::widthBound() const
{
    if (m_logicalWidth == 0.0) return {0.0, 1.0};
    return m_scaleFunction->reachBound().scaled(m_logicalWidth);
}

bool Stroke::operator==(Stroke const &o) const
{
    return m_color == o.m_color && m_logicalWidth == o.m_logicalWidth && m_style == o.m_style &&
           m_capStyle == o.m_capStyle && m_joinStyle == o.m_joinStyle && m_scaleFunction == o.m_scaleFunction;
}

} // namespace VOR2
