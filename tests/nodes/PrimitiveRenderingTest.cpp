// What the primitive nodes put on pixels at three zoom levels, against
// reviewed reference images, and the one-device-pixel hairline.

#include <EllipseNode>
#include <LineNode>
#include <RectNode>
#include <RoundedRectNode>
#include <ShapeNode>

#include "support/PaintNode.h"
#include "support/ReferenceImage.h"

#include <QString>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using P = GLOX::GLPoint<double>;
using R = GLOX::GLRect<double>;

namespace {
// Every scene below fits in 24 by 24 units.
constexpr int SIDE = 24;
double const SCALES[] = {0.5, 1.0, 4.0};

DrawStyle styleOf(GLOX::Color fill, GLOX::Color stroke, double width, StrokeJoinStyle join = MiterJoin,
                  StrokeStyle line = SolidLine)
{
    return DrawStyle(Stroke(stroke, width, line, FlatCap, join), Fill(fill), true);
}

GLOX::Shape ringedTriangle()
{
    QPainterPath path;
    path.moveTo(3, 21);
    path.lineTo(12, 3);
    path.lineTo(21, 21);
    path.closeSubpath();
    path.addEllipse(QPointF(12, 15), 3, 3); // a hole by the odd-even rule
    return GLOX::Shape(path);
}
} // namespace

TEST(PrimitiveRendering, EveryPrimitiveMatchesItsReferenceAtThreeScales)
{
    RectNode rect(R(4, 4, 16, 12)); // aliased, with a thick dotted stroke
    rect.setDrawStyle(DrawStyle(Stroke(GLOX::Color(0.1, 0.1, 0.5), 2.0, DotLine), Fill(GLOX::Color(1, 0.9, 0.3)), false));
    RoundedRectNode rounded(R(3, 4, 18, 15), 5.0);
    rounded.setDrawStyle(styleOf(GLOX::Color(1, 0.6, 0.2), GLOX::Color(0.1, 0.2, 0.8), 2.0));
    EllipseNode ellipse(Ellipse(R(2, 5, 20, 14)));
    ellipse.setDrawStyle(styleOf(GLOX::Color(0.3, 0.8, 0.4), GLOX::Color(0.2, 0.2, 0.2), 1.5));
    ShapeNode shape(ringedTriangle());
    shape.setDrawStyle(styleOf(GLOX::Color(0.6, 0.3, 0.8), GLOX::Color(0, 0, 0), 1.5, RoundJoin));
    LineNode line(P(3, 21), P(21, 3));
    line.setDrawStyle(styleOf(GLOX::Color(), GLOX::Color(0.8, 0.1, 0.1), 2.0, MiterJoin, DashLine));

    std::pair<Node, char const *> const cases[] = {
        {rect, "rect"}, {rounded, "roundedrect"}, {ellipse, "ellipse"}, {shape, "shape"}, {line, "line"}};
    for (auto const &[node, kind] : cases)
        for (double scale : SCALES) {
            int side = int(SIDE * scale);
            std::string name = kind + std::string("_scale") + QString::number(scale).toStdString();
            EXPECT_TRUE(matchesReference(paintNodeAtScale(node, scale, side, side), name, 2));
        }
}

TEST(PrimitiveRendering, HairlineIsOneOpaqueDevicePixelAtEveryScale)
{
    // Lines through the centres of device row 10 and column 10.
    for (double scale : SCALES) {
        double centre = 10.5 / scale, from = 2 / scale, to = 22 / scale;
        for (bool horizontal : {true, false}) {
            LineNode n = horizontal ? LineNode(P(from, centre), P(to, centre)) : LineNode(P(centre, from), P(centre, to));
            QImage image = paintNodeAtScale(n, scale, SIDE, SIDE);
            int across = horizontal ? paintedAlong(image, {12, 0}, {0, 1}) : paintedAlong(image, {0, 12}, {1, 0});
            QRgb at = horizontal ? image.pixel(12, 10) : image.pixel(10, 12);
            EXPECT_EQ(across, 1) << "scale " << scale << (horizontal ? " horizontal" : " vertical");
            EXPECT_EQ(qAlpha(at), 255) << "scale " << scale;
        }
    }
}
