#include "tools/FocusBracketGeometry.h"

#include <SelectionNonLinearLodScale>

namespace VOR2 {

namespace {
// Where the box starts on one axis, for alignment 0 (left, top), 1 or 2.
double boxOrigin(int alignment, double size)
{
    switch (alignment) {
    case 0: return -size - 0.5;
    case 2: return 0.5;
    default: return -0.5 * size;
    }
}
} // namespace

double focusBracketSize(double scale) { return SelectionNonLinearLodScale::instance()->apply(scale) * 8.0; }

QRectF focusBracketBox(HorizontalAlignment h, VerticalAlignment v, double scale)
{
    double const s = focusBracketSize(scale);
    return QRectF(boxOrigin(int(h), s), boxOrigin(int(v), s), s, s);
}

std::vector<QRectF> focusBracketStrips(HorizontalAlignment h, VerticalAlignment v, QRectF const &box)
{
    double const x = box.x(), y = box.y(), w = box.width(), hh = box.height();
    std::vector<QRectF> strips;
    if (h == HorizontalAlignment::Left) strips.emplace_back(x, y, 0.333 * w, hh);
    if (v == VerticalAlignment::Top) strips.emplace_back(x, y, w, 0.333 * hh);
    if (h == HorizontalAlignment::Right) strips.emplace_back(x + 0.667 * w, y, 0.333 * w, hh);
    if (v == VerticalAlignment::Bottom) strips.emplace_back(x, y + 0.667 * hh, w, 0.333 * hh);
    return strips;
}

} // namespace VOR2
