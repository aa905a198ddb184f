#pragma once
// The blur of the glow effects: a centred box of side 2r + 1, applied as two
// one-dimensional passes (along rows, then along columns), each a running
// sum divided by 2r + 1 and truncated. Samples outside the plane count as
// 0, so the blur of a shape that stays 2r pixels away from the border keeps
// its total (but for the truncation) and is symmetric about the shape. Time
// is linear in the number of pixels, whatever the radius. Pure functions,
// any thread with its own data.

#include <QSize>
#include <cstdint>

class QImage;

namespace VOR2 {

// Radii above this are taken as it: the box's sums stay exact below it, and
// a blur that wide is larger than any image.
constexpr int MAX_BLUR_RADIUS = 30000;

// Blurs the `width` by `height` bytes of `plane` (rows packed, no padding)
// in place with radius `radius`; a radius of 0 or less leaves them as they
// are.
void boxBlurPlane(std::uint8_t *plane, int width, int height, int radius);

// Blurs the alpha channel of the top-left `size` of `image` (32-bit ARGB,
// premultiplied) and leaves each pixel there premultiplied black of the
// blurred alpha; the colour is put back later by tinting. Pixels outside
// `size` are neither read nor written. A radius of 0 or less leaves the
// image as it is.
void boxBlurAlpha(QImage &image, QSize size, int radius);

} // namespace VOR2
