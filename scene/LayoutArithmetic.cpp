#include "scene/LayoutArithmetic.h"

#include <LayoutConstraints>

namespace VOR2 {

namespace {
bool has(std::uint32_t constraints, LayoutConstraints c) { return constraints & layoutBit(int(c)); }

// How many of the three flags are set.
int countOf(std::uint32_t constraints, LayoutConstraints a, LayoutConstraints b, LayoutConstraints c)
{
    return int(has(constraints, a)) + int(has(constraints, b)) + int(has(constraints, c));
}
} // namespace

bool isAllZero(GLOX::GLRect<double> const &r) { return r.x == 0 && r.y == 0 && r.width == 0 && r.height == 0; }

GLOX::GLRect<double> anchoredItemRect(std::uint32_t constraints, GLOX::GLRect<double> const &rect,
                                      GLOX::GLRect<double> const &lastRect, GLOX::GLRect<double> item)
{
    using C = LayoutConstraints;
    if (int n = countOf(constraints, C::FlexibleWidth, C::Left, C::Right)) {
        double const d = (rect.width - lastRect.width) / n;
        if (has(constraints, C::FlexibleWidth)) item.width += d;
        if (has(constraints, C::Right)) item.x += d;
    }
    if (int m = countOf(constraints, C::FlexibleHeight, C::Top, C::Bottom)) {
        double const d = (rect.height - lastRect.height) / m;
        if (has(constraints, C::FlexibleHeight)) item.height += d;
        if (has(constraints, C::Bottom)) item.y += d;
    }
    return item;
}

} // namespace VOR2
