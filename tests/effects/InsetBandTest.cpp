// The inside and outside halves of a band, drawn through an image, against
// the geometric answer Qt's path clipper gives.

#include "effects/InsetBand.h"
#include "support/PixelCompare.h"

#include <QImage>
#include <QPainter>
#include <QPainterPathStroker>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {

// The largest difference of any channel between two images of one size.
int largestDifference(QImage const &a, QImage const &b)
{
    int worst = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            worst = std::max({worst, std::abs(qRed(p) - qRed(q)), std::abs(qGreen(p) - qGreen(q)),
                              std::abs(qBlue(p) - qBlue(q)), std::abs(qAlpha(p) - qAlpha(q))});
        }
    return worst;
}

QImage drawn(double scale, std::function<void(QPainter &)> draw)
{
    QImage image = transparentImage(int(60 * scale), int(60 * scale));
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    painter.translate(3, 2); // the transform is kept, translation included
    draw(painter);
    EXPECT_EQ(painter.worldTransform(), QTransform::fromScale(scale, scale).translate(3, 2));
    return image;
}

} // namespace

TEST(InsetBand, DrawsTheSameHalvesAsThePathClipperAtEveryScale)
{
    QPainterPath square, circle, notch;
    square.addRect(10, 10, 30, 20);
    circle.addEllipse(QPointF(25, 25), 15, 12);
    notch.addPolygon(QPolygonF({{10, 10}, {45, 10}, {25, 25}, {45, 40}, {10, 40}}));
    notch.closeSubpath();
    QPen pen(QColor(200, 30, 30, 220));
    pen.setWidthF(6);
    pen.setJoinStyle(Qt::MiterJoin);
    QImage scratch(400, 400, QImage::Format_ARGB32_Premultiplied);
    scratch.fill(Qt::green); // stale contents must not show
    for (QPainterPath const &path : {square, circle, notch})
        for (BandSide side : {BandSide::Inside, BandSide::Outside})
            for (double scale : {1.0, 3.0}) {
                SCOPED_TRACE(testing::Message() << "side " << int(side) << " scale " << scale);
                QImage viaImage = drawn(scale, [&](QPainter &p) { drawInsetBand(p, scratch, path, pen, side, true); });
                QImage geometric = drawn(scale, [&](QPainter &p) {
                    QPainterPathStroker stroker(pen);
                    QPainterPath band = stroker.createStroke(path);
                    p.fillPath(side == BandSide::Inside ? band.intersected(path) : band.subtracted(path), pen.color());
                });
                EXPECT_LE(largestDifference(viaImage, geometric), 24) << "edge pixels differ by a little";
                QImage blank = transparentImage(viaImage.width(), viaImage.height());
                EXPECT_GT(largestDifference(viaImage, blank), 200) << "something was drawn";
            }
}

TEST(InsetBand, TheDeviceRectangleStaysInsideTheClipAndTheDevice)
{
    QImage image = transparentImage(100, 80);
    QPainter painter(&image);
    painter.scale(2, 2);
    QPainterPath path;
    path.addRect(-100, -100, 1000, 1000);
    QPen pen;
    pen.setWidthF(4);
    EXPECT_EQ(insetBandDeviceRect(painter, path, pen), QRect(0, 0, 100, 80));
    painter.setClipRect(QRectF(10, 10, 5, 5));
    EXPECT_EQ(insetBandDeviceRect(painter, path, pen), QRect(19, 19, 12, 12)) << "the clip, a pixel grown";
}
