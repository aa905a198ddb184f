#include "support/PixelCompare.h"

#include <cstdlib>

namespace VOR2::test {

QImage transparentImage(int w, int h)
{
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

::testing::AssertionResult pixelIs(QImage const &image, int x, int y, QColor const &expected, int tolerance)
{
    QColor got = image.pixelColor(x, y);
    if (std::abs(got.red() - expected.red()) <= tolerance && std::abs(got.green() - expected.green()) <= tolerance &&
        std::abs(got.blue() - expected.blue()) <= tolerance && std::abs(got.alpha() - expected.alpha()) <= tolerance)
        return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "at (" << x << ", " << y << "): got rgba(" << got.red() << " "
                                         << got.green() << " " << got.blue() << " " << got.alpha()
                                         << "), expected rgba(" << expected.red() << " " << expected.green() << " "
                                         << expected.blue() << " " << expected.alpha() << ")";
}

} // namespace VOR2::test
