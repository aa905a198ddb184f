#pragma once
// Whether a raster image of a given extent can be made: both sides positive
// whole pixels, and at four bytes a pixel no more than QImage can hold
// (2^31 - 1 bytes). Renders that would need more give a null image rather
// than ask Qt for what it cannot allocate. Any thread.

#include <QSize>
#include <climits>
#include <cmath>

namespace VOR2 {

// The size of an image `width` by `height` pixels (each rounded up), or an
// empty QSize when no image of that extent can be made.
inline QSize imageExtent(double width, double height)
{
    double const w = std::ceil(width), h = std::ceil(height);
    if (!(w >= 1 && h >= 1) || w * h * 4.0 > double(INT_MAX)) return QSize();
    return QSize(int(w), int(h));
}

} // namespace VOR2
