#include "support/PixelCompare.h"

#include <cstdio>
#include <cstdlib>

namespace VOR2::test {

QImage transparentImage(int w, int h)
{
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

bool pixelMatches(QImage const &image, int x, int y, QColor const &expected, int tolerance, std::string *why)
{
    QColor got = image.pixelColor(x, y);
    bool ok = std::abs(got.red() - expected.red()) <= tolerance &&
              std::abs(got.green() - expected.green()) <= tolerance &&
              std::abs(got.blue() - expected.blue()) <= tolerance &&
              std::abs(got.alpha() - expected.alpha()) <= tolerance;
    if (!ok && why) {
        char text[128];
        std::snprintf(text, sizeof text, "at (%d, %d): got rgba(%d %d %d %d), expected rgba(%d %d %d %d)", x, y,
                      got.red(), got.green(), got.blue(), got.alpha(), expected.red(), expected.green(),
                      expected.blue(), expected.alpha());
        *why = text;
    }
    return ok;
}

::testing::AssertionResult pixelIs(QImage const &image, int x, int y, QColor const &expected, int tolerance)
{
    std::string why;
    if (pixelMatches(image, x, y, expected, tolerance, &why)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << why;
}

} // namespace VOR2::test
