// The marquee's normalised band.

#include "tools/MarqueeBand.h"

#include <cmath>

namespace VOR2 {

GLOX::GLRect<double> marqueeBand(GLOX::GLPoint<double> const &anchor, GLOX::GLPoint<double> const &pointer)
{
    return GLOX::GLRect<double>(std::fmin(anchor.x, pointer.x), std::fmin(anchor.y, pointer.y),
                                std::fabs(pointer.x - anchor.x), std::fabs(pointer.y - anchor.y));
}

} // namespace VOR2
