// The glow's blur against its definition: a centred box of side 2r + 1, one
// pass along rows and one along columns, each truncating, with nothing
// beyond the border.

#include "effects/raster/BoxBlur.h"

#include <QImage>
#include <QRandomGenerator>
#include <gtest/gtest.h>
#include <numeric>
#include <vector>

using namespace VOR2;

namespace {

using Plane = std::vector<std::uint8_t>;

// The definition, pixel by pixel.
Plane referenceBlur(Plane const &in, int w, int h, int r)
{
    auto pass = [&](Plane const &src, bool alongRows) {
        Plane out(src.size());
        for (int y = 0; y < h; ++y)
            for (int x = 0; x < w; ++x) {
                unsigned sum = 0;
                for (int k = -r; k <= r; ++k) {
                    int const sx = alongRows ? x + k : x, sy = alongRows ? y : y + k;
                    if (sx >= 0 && sx < w && sy >= 0 && sy < h) sum += src[sy * w + sx];
                }
                out[y * w + x] = std::uint8_t(sum / (2 * r + 1));
            }
        return out;
    };
    return pass(pass(in, true), false);
}

Plane blurred(Plane plane, int w, int h, int r)
{
    boxBlurPlane(plane.data(), w, h, r);
    return plane;
}

} // namespace

TEST(BoxBlurTest, ABrightPixelBecomesACentredSquareOfEqualShares)
{
    int const n = 21, r = 3;
    Plane plane(n * n, 0);
    plane[10 * n + 10] = 245; // 245 / 7 / 7 = 5 exactly: nothing is lost
    Plane const out = blurred(plane, n, n, r);
    for (int y = 0; y < n; ++y)
        for (int x = 0; x < n; ++x) {
            bool const inBox = std::abs(x - 10) <= r && std::abs(y - 10) <= r;
            EXPECT_EQ(out[y * n + x], inBox ? 5 : 0) << x << "," << y;
        }
    EXPECT_EQ(std::accumulate(out.begin(), out.end(), 0), 245) << "total intensity kept";
}

TEST(BoxBlurTest, AHardEdgeBecomesASymmetricLinearRamp)
{
    int const w = 30, h = 20, r = 4, edge = 15; // 255 from x = 15 on
    Plane plane(w * h, 0);
    for (int y = 0; y < h; ++y)
        for (int x = edge; x < w - 0; ++x) plane[y * w + x] = 255;
    Plane const out = blurred(plane, w, h, r);
    int const y = h / 2; // far from the top and bottom borders
    int total = 0;
    for (int x = 0; x < 25; ++x) {
        // The box at x holds x + r - edge + 1 bright samples of 2r + 1.
        int const bright = std::clamp(x + r - edge + 1, 0, 2 * r + 1);
        EXPECT_EQ(out[y * w + x], 255 * bright / (2 * r + 1)) << "x " << x;
        total += out[y * w + x];
    }
    // Symmetric about the edge: what the bright side loses the dark side
    // gains, but for one truncation a pixel.
    for (int k = 0; k < r; ++k)
        EXPECT_NEAR(out[y * w + edge + k] + out[y * w + edge - 1 - k], 255, 1) << "pair " << k;
    EXPECT_NEAR(total, 255 * (25 - edge), 2 * r) << "the ramp keeps the total";
}

TEST(BoxBlurTest, MatchesTheDefinitionOnNoiseAndRepeatsItself)
{
    QRandomGenerator random(15);
    for (int r : {1, 2, 5, 12, 70}) {
        int const w = 23 + r, h = 17 + 2 * r;
        Plane plane(w * h);
        for (auto &v : plane) v = std::uint8_t(random.bounded(256));
        Plane const once = blurred(plane, w, h, r);
        EXPECT_EQ(once, referenceBlur(plane, w, h, r)) << "radius " << r;
        EXPECT_EQ(blurred(plane, w, h, r), once) << "radius " << r;
    }
    Plane plane(50, 7);
    EXPECT_EQ(blurred(plane, 10, 5, 0), plane) << "radius 0 leaves it";
}

TEST(BoxBlurTest, TheImageFormBlursAlphaInItsAreaOnlyAndLeavesBlack)
{
    QImage image(12, 9, QImage::Format_ARGB32_Premultiplied);
    image.fill(qRgba(10, 20, 30, 40)); // outside the area: must stay
    QRect const area(0, 0, 8, 6);
    for (int y = 0; y < area.height(); ++y)
        for (int x = 0; x < area.width(); ++x) image.setPixel(x, y, qRgba(0, 90, 0, (x == 3 && y == 2) ? 90 : 0));
    boxBlurAlpha(image, area.size(), 1);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            QRgb const p = image.pixel(x, y);
            if (!area.contains(x, y)) {
                EXPECT_EQ(p, qRgba(10, 20, 30, 40)) << x << "," << y;
                continue;
            }
            bool const inBox = std::abs(x - 3) <= 1 && std::abs(y - 2) <= 1;
            EXPECT_EQ(p, qRgba(0, 0, 0, inBox ? 10 : 0)) << x << "," << y;
        }
}
