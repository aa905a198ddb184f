// The selection tool's drag threshold in whole widget pixels.

#include "tools/DragThreshold.h"

#include <cmath>

namespace VOR2 {

bool hasLeftPress(GLOX::GLPoint<double> const &press, GLOX::GLPoint<double> const &now)
{
    // Widget positions are small; anything beyond a billion pixels, or not
    // a number, is taken as far away rather than overflowing the integers.
    auto usable = [](double v) { return std::fabs(v) < 1e9; };
    if (!usable(press.x) || !usable(press.y) || !usable(now.x) || !usable(now.y)) return true;
    long long dx = static_cast<long long>(now.x) - static_cast<long long>(press.x);
    long long dy = static_cast<long long>(now.y) - static_cast<long long>(press.y);
    long long distance = static_cast<long long>(std::sqrt(static_cast<double>(dx * dx + dy * dy)));
    return distance >= DRAG_THRESHOLD_PIXELS;
}

} // namespace VOR2
