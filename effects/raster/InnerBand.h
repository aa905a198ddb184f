#pragma once
// The band inside a silhouette where its blurred outside bleeds in: the
// inner glow, and with a shift the inner shadow. From a silhouette image
// (alpha = coverage) it makes, in place,
//   band(x, y) = blur(255 - alpha)(x - shift, y - shift) * alpha(x, y) / 255
// as premultiplied black of that alpha: the outside of the silhouette
// (everything the mask does not cover, the margin included), moved right
// and down by `shift` pixels, blurred with the box of radius `radius`
// (BoxBlur), and kept only where the silhouette covers. Values read from
// beyond the image count as outside. Pure function, any thread with its own
// image.

#include <QSize>

class QImage;

namespace VOR2 {

// On the top-left `size` of premultiplied ARGB32 `image`; a shift below 0
// counts as 0.
void innerBand(QImage &image, QSize size, int radius, int shift);

} // namespace VOR2
