#include <Stroke>

namespace VOR2 {

Stroke::Stroke(GLOX::Color const &color, double logicalWidth, StrokeStyle style, StrokeCapStyle capStyle,
               StrokeJoinStyle joinStyle, LodScale const *scaleFunction)
    : m_color(color), m_logicalWidth(logicalWidth), m_style(style), m_capStyle(capStyle),
      m_joinStyle(joinStyle), m_scaleFunction(scaleFunction ? scaleFunction : LodScale::instance())
{
}

void Stroke::setScaleFunction(LodScale const *function)
{
    m_scaleFunction = function ? function : LodScale::instance();
}

double Stroke::width(double scale) const
{
    if (m_logicalWidth == 0.0) return 1.0 / scale;
    return m_logicalWidth * m_scaleFunction->scale(scale);
}

bool Stroke::operator==(Stroke const &o) const
{
    return m_color == o.m_color && m_logicalWidth == o.m_logicalWidth && m_style == o.m_style &&
           m_capStyle == o.m_capStyle && m_joinStyle == o.m_joinStyle && m_scaleFunction == o.m_scaleFunction;
}

} // namespace VOR2
