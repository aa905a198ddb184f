#pragma once
// Styles that node tests keep asking for: a solid rectangle without an
// outline, and a stroke of constant on-screen width.

#include <ConstantLodScale>
#include <RectNode>

#include <QColor>

namespace VOR2::test {

// A rectangle node filled with `color` and no stroke.
inline RectNode solidRect(GLOX::GLRect<double> const &r, QColor const &color)
{
    RectNode n(r);
    n.setDrawStyle(DrawStyle(Stroke::NoStroke(), Fill(GLOX::fromQColor(color))));
    return n;
}

// Opaque black, `width` view pixels wide at every scale.
inline Stroke constantStroke(double width, StrokeStyle style = SolidLine, StrokeCapStyle cap = FlatCap)
{
    return Stroke(GLOX::Color(), width, style, cap, MiterJoin, ConstantLodScale::instance());
}

} // namespace VOR2::test
