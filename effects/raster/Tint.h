#pragma once
// Colouring a blurred silhouette: every pixel of an area becomes one colour
// at the pixel's own alpha (premultiplied), whatever colour it had. The
// colour's own alpha is not used here; the effect applies it as opacity
// when it draws the result. Pure function, any thread with its own image.

#include <QRect>
#include <QRgb>

class QImage;

namespace VOR2 {

// `image` is premultiplied ARGB32; `area` is cut to the image.
void tintByAlpha(QImage &image, QRect area, QRgb colour);

} // namespace VOR2
