// The glow effects' raster steps alone: the silhouette at a level of
// detail, its cut, the tint and the inner band.

#include "effects/raster/InnerBand.h"
#include "effects/raster/Silhouette.h"
#include "effects/raster/Tint.h"

#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>

using namespace VOR2;

namespace {

// A solid black square of node coordinates (10, 10) to (20, 20).
void square(QPainter &painter) { painter.fillRect(QRectF(10, 10, 10, 10), Qt::black); }

int alphaAt(QImage const &image, int x, int y) { return qAlpha(image.pixel(x, y)); }

// A 40 by 40 image holding the square at `lod` with `margin`, seen from the
// node point (5, 5).
QImage silhouette(int margin, double lod)
{
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(qRgba(1, 2, 3, 4));
    paintSilhouette(image, QSize(36, 36), {QPointF(5, 5), margin, lod}, square);
    return image;
}

} // namespace

TEST(GlowRasterTest, TheSilhouetteLandsAtTheLevelOfDetailInsideTheMarginAndAreaOnly)
{
    for (double lod : {1.0, 2.0}) {
        SCOPED_TRACE(lod);
        QImage const image = silhouette(3, lod);
        // Node x 10 is 5 units from the origin: pixel 3 + 5 lod.
        int const first = 3 + int(5 * lod), last = 3 + int(15 * lod) - 1;
        EXPECT_EQ(alphaAt(image, first, first), 255);
        EXPECT_EQ(alphaAt(image, last, last), 255);
        EXPECT_EQ(alphaAt(image, first - 1, first), 0) << "cleared before painting";
        EXPECT_EQ(alphaAt(image, first, last + 1), 0);
        EXPECT_EQ(image.pixel(38, 38), qRgba(1, 2, 3, 4)) << "outside the size: untouched";
    }
    QImage image = silhouette(3, 2.0);
    image.fill(qRgba(0, 0, 0, 255));
    cutSilhouette(image, QSize(36, 36), {QPointF(5, 5), 3, 2.0}, square);
    EXPECT_EQ(alphaAt(image, 20, 20), 0) << "under the node: erased";
    EXPECT_EQ(alphaAt(image, 12, 20), 255);
}

TEST(GlowRasterTest, TintGivesEachPixelTheColourAtItsOwnAlpha)
{
    QImage image(4, 1, QImage::Format_ARGB32_Premultiplied);
    QRgb const alphas[] = {0, 128, 255, 255};
    for (int x = 0; x < 4; ++x) image.setPixel(x, 0, qRgba(0, 0, 0, alphas[x]));
    tintByAlpha(image, QRect(0, 0, 3, 1), qRgb(255, 200, 0));
    EXPECT_EQ(image.pixel(0, 0), qRgba(0, 0, 0, 0));
    EXPECT_EQ(image.pixel(1, 0), qPremultiply(qRgba(255, 200, 0, 128)));
    EXPECT_EQ(image.pixel(2, 0), qRgba(255, 200, 0, 255));
    EXPECT_EQ(image.pixel(3, 0), qRgba(0, 0, 0, 255)) << "outside the area";
}

TEST(GlowRasterTest, TheInnerBandLiesInsideAlongTheEdgeAndTheShiftMovesItToTheTopLeft)
{
    // A square of 20 pixels from (10, 10) in a 40 by 40 silhouette.
    auto band = [](int radius, int shift) {
        QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
        image.fill(0);
        QPainter(&image).fillRect(QRect(10, 10, 20, 20), Qt::black);
        innerBand(image, image.size(), radius, shift);
        return image;
    };
    QImage const glow = band(4, 0);
    for (int y = 0; y < 40; ++y)
        for (int x = 0; x < 40; ++x) {
            if (!QRect(10, 10, 20, 20).contains(x, y)) {
                ASSERT_EQ(glow.pixel(x, y), 0u) << x << "," << y;
            }
        }
    EXPECT_EQ(alphaAt(glow, 20, 20), 0) << "deep inside: no outside reaches";
    EXPECT_EQ(alphaAt(glow, 10, 20), 255 * 4 / 9) << "on the edge, 4 of 9 samples outside";
    EXPECT_EQ(alphaAt(glow, 29, 20), alphaAt(glow, 10, 20)) << "symmetric";
    EXPECT_GT(alphaAt(glow, 11, 20), alphaAt(glow, 12, 20)) << "fades inward";

    QImage const shadow = band(3, 3);
    EXPECT_GT(alphaAt(shadow, 11, 20), 0) << "lit from the top left: dark along the left edge";
    EXPECT_GT(alphaAt(shadow, 20, 11), 0);
    EXPECT_EQ(alphaAt(shadow, 28, 20), 0) << "and not along the right";
    EXPECT_EQ(alphaAt(shadow, 20, 28), 0);
}
