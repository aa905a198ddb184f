#include "tools/ResizeGeometry.h"

#include <algorithm>

namespace VOR2 {

namespace {
// The new length of one axis: the near edge (0) moves against the pointer,
// the far edge (2) with it, the middle (1) not at all.
double resizedLength(int alignment, double length, double delta, double step, double minimum)
{
    if (alignment == 0) return std::max(length - step * delta, minimum);
    if (alignment == 2) return std::max(length + step * delta, minimum);
    return length;
}
} // namespace

GLOX::GLRect<double> resizedRect(ResizeStart const &start, ResizeGrip const &grip,
                                 GLOX::GLPoint<double> const &pointer, unsigned mode)
{
    double const dx = pointer.x - start.press.x, dy = pointer.y - start.press.y;
    double const w = start.rect.width, h = start.rect.height;
    double const x = start.position.x, y = start.position.y;
    double const right = x + w, bottom = y + h;
    bool const aboutCentre = (mode & ResizeAboutCentre) != 0;
    double const step = aboutCentre ? 2.0 : 1.0;

    double newHeight = resizedLength(int(grip.v), h, dy, step, grip.minimumSize.y);
    double newWidth = resizedLength(int(grip.h), w, dx, step, grip.minimumSize.x);

    if ((mode & ResizePreserveAspect) && w != 0.0 && h != 0.0) {
        double const ratio = h / w;
        if (newHeight > newWidth * ratio)
            newHeight = newWidth * ratio;
        else if (newWidth > newHeight / ratio)
            newWidth = newHeight / ratio;
    }

    if (aboutCentre) return {(x + right - newWidth) * 0.5, (y + bottom - newHeight) * 0.5, newWidth, newHeight};
    double const left = grip.h == HorizontalAlignment::Left ? right - newWidth : x;
    double const top = grip.v == VerticalAlignment::Top ? bottom - newHeight : y;
    return {left, top, newWidth, newHeight};
}

} // namespace VOR2
