#pragma once
// How a DrawStyle reaches a QPainter: the pen of a Stroke at a view scale,
// the brush of a Fill, and the antialiasing rule for thin lines. Pure
// functions of their arguments; each thread keeps the last pen and the last
// solid brush it made and hands them out again for the same arguments.

#include <DrawStyle>
#include <Fill>
#include <Stroke>

#include <QBrush>
#include <QPen>

class QPainter;

namespace VOR2 {

// The pen of `stroke` at view `scale`: its colour, the width of
// Stroke::width(scale), its cap, join and line style. A hairline (logical
// width 0, one device pixel wide) is Qt's cosmetic pen of one pixel, the
// same line drawn by Qt's fast rasteriser. A width of 2^15 or more, which
// QPen refuses, is given in device pixels on a cosmetic pen (at most 32767
// of them).
QPen penForStroke(Stroke const &stroke, double scale);

// The brush of `fill`: none, a solid colour, or its gradient.
QBrush brushForFill(Fill const &fill);

// True when `pen` draws a line thinner than one device pixel at `scale`.
// A line of exactly one pixel is not thin; nor is a cosmetic pen or none.
bool isThinLine(QPen const &pen, double scale);

// The view scale a painter paints at: the level of detail of its world
// transform. Painting reads the scale here, so that a node paints alike in
// a view, an offscreen image and a render of the node alone.
double paintScale(QPainter const *painter);

// Gives the painter the style's pen and brush at `scale`, and antialiasing
// exactly when the style asks for it or the line is thin.
void applyDrawStyle(QPainter *painter, DrawStyle const &style, double scale);

} // namespace VOR2
