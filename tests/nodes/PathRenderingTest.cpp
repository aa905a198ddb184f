// The path nodes on pixels: an open curve through its points at scales 1
// and 4 with only its end tangents free, closed paths filled up to their
// straight closing side, short closed polygons that draw nothing but have
// bounds, arrow heads at the ends of open paths with no line showing past
// them, and where open and closed paths are hit.

#include <ClosedCurvedPathNode>
#include <ClosedLinearPathNode>
#include <OpenCurvedPathNode>
#include <OpenLinearPathNode>
#include <ShapeNode>

#include "support/NodeStyles.h"
#include "support/PaintNode.h"
#include "support/SceneFixture.h"

#include <QPainterPath>

using namespace VOR2;
using namespace VOR2::test;
using P = GLOX::GLPoint<double>;

namespace {
using PathRendering = SceneTest;

DrawStyle const FILLED_BLUE(Stroke::NoStroke(), Fill(GLOX::fromQColor(Qt::blue)));

// Opaque enough to be the stroke, not its antialiased fringe.
bool inked(QImage const &image, double x, double y) { return qAlpha(image.pixel(int(x), int(y))) > 200; }

// The scene's 40 by 40 units at `scale`, on its white background.
QImage renderScene(Scene &scene, double scale)
{
    QImage image(int(40 * scale), int(40 * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    scene.render(image, {0, 0, 40, 40}, {0, 0, 40 * scale, 40 * scale});
    return image;
}

// A red arrow head pointing along +x with its tip at its local origin,
// 8 long and 8 wide, that asks the line to stop at its base.
LineEndDecoration arrowHead()
{
    QPainterPath triangle;
    triangle.addPolygon(QPolygonF({{0, 0}, {-8, -4}, {-8, 4}}));
    triangle.closeSubpath();
    ShapeNode head{GLOX::Shape(triangle)};
    head.setDrawStyle(DrawStyle(Stroke::NoStroke(), Fill(GLOX::fromQColor(Qt::red))));
    LineEndDecoration d(head);
    d.setLineBackoff(8.0);
    return d;
}
} // namespace

TEST_F(PathRendering, OpenCurvePassesThroughEachVertexWithOnlyItsEndTangentsFree)
{
    // Points on pixel centres at scale 1, wavy enough that no chord is the
    // curve.
    GLOX::GVector<P> const points = {{5.5, 20.5}, {15.5, 8.5}, {25.5, 30.5}, {35.5, 12.5}};
    OpenCurvedPathNode path;
    for (P const &p : points) path.append(Vertex(p));
    path.setStroke(constantStroke(3.0, SolidLine, RoundCap)); // ink on the end points too
    for (double scale : {1.0, 4.0}) {
        QImage const image = paintNodeAtScale(path, scale, int(40 * scale), int(40 * scale));
        for (P const &p : points) EXPECT_TRUE(inked(image, p.x * scale, p.y * scale)) << p.x << " at " << scale;
        EXPECT_FALSE(inked(image, 15.5 * scale, 20.5 * scale)) << "between the waves";
    }

    QImage const before = paintNodeAtScale(path, 1.0, 40, 40);
    path.setVertexForwardTangent(1, {60, 60});
    path.setVertexBackwardTangent(2, {-60, 0});
    path.updateDecorations();
    EXPECT_EQ(paintNodeAtScale(path, 1.0, 40, 40), before) << "interior tangents are worked out anew";
    path.setVertexForwardTangent(0, {0, 60});
    path.updateDecorations();
    EXPECT_NE(paintNodeAtScale(path, 1.0, 40, 40), before) << "the first forward tangent shapes the curve";
}

TEST_F(PathRendering, TwoVerticesWithoutTangentsDrawAStraightLine)
{
    OpenCurvedPathNode path({Vertex({5, 10.5}), Vertex({35, 10.5})});
    path.setStroke(constantStroke(1.0));
    QImage const image = paintNodeAtScale(path, 1.0, 40, 20);
    EXPECT_EQ(paintedAlong(image, {0, 10}, {1, 0}), 30);
    EXPECT_EQ(paintedAlong(image, {20, 0}, {0, 1}), 1);
}

TEST_F(PathRendering, ClosedPathsFillTheirInteriorUpToAStraightClosingSide)
{
    ClosedLinearPathNode triangle({{5, 35}, {20, 5}, {35, 35}});
    // An arch: curved through the top, closed by a straight side along
    // y = 30 that the curve is not smoothed across.
    ClosedCurvedPathNode arch({Vertex({10, 30}), Vertex({20, 10}), Vertex({30, 30})});
    for (Node n : {Node(triangle), Node(arch)}) {
        n.setDrawStyle(FILLED_BLUE);
        for (double scale : {1.0, 4.0}) {
            QImage const image = paintNodeAtScale(n, scale, int(40 * scale), int(40 * scale));
            EXPECT_TRUE(pixelIs(image, int(20 * scale), int(25 * scale), Qt::blue)) << "inside at " << scale;
            EXPECT_EQ(qAlpha(image.pixel(int(2 * scale), int(2 * scale))), 0) << "outside at " << scale;
        }
    }
    // A thick outline is part of what a closed path covers, so that moving
    // it repaints all of it.
    triangle.setDrawStyle(DrawStyle(constantStroke(4.0), Fill(GLOX::fromQColor(Qt::blue))));
    EXPECT_LE(triangle.getImpl()->getGraphicsItem()->boundingRect().left(), 5 - 2);
    QImage const image = paintNodeAtScale(arch, 4.0, 160, 160);
    EXPECT_TRUE(pixelIs(image, 80, 119, Qt::blue)) << "just inside the closing side";
    EXPECT_EQ(qAlpha(image.pixel(80, 121)), 0) << "nothing bulges past it";
}

TEST_F(PathRendering, ClosedPolygonOfOneOrTwoPointsDrawsNothingButHasBounds)
{
    ClosedLinearPathNode polygon({{5, 5}, {20, 15}});
    polygon.setDrawStyle(DrawStyle(constantStroke(4.0), Fill(GLOX::fromQColor(Qt::blue))));
    EXPECT_EQ(polygon.getBounds().boundingRect(), (GLOX::GLRect<double>(5, 5, 15, 10)));
    EXPECT_EQ(paintedAlong(paintNodeAtScale(polygon, 1.0, 30, 30), {0, 0}, {1, 1}), 0);
    polygon.setPoints({{7, 9}});
    EXPECT_EQ(polygon.getBounds().boundingRect(), (GLOX::GLRect<double>(7, 9, 0, 0)));
    EXPECT_EQ(paintedAlong(paintNodeAtScale(polygon, 1.0, 30, 30), {7, 9}, {1, 0}), 0);
    polygon.append({20, 5});
    polygon.append({20, 20});
    EXPECT_GT(paintedAlong(paintNodeAtScale(polygon, 1.0, 30, 30), {0, 0}, {1, 1}), 0) << "three points draw";
}

TEST_F(PathRendering, ArrowHeadSitsAtTheEndWithNoLinePokingOutPastIt)
{
    OpenLinearPathNode linear({{4, 10}, {20, 10}, {32, 10}});
    // Ends heading along +x: the last vertex's forward tangent points on.
    OpenCurvedPathNode curved({Vertex({4, 30}, {10, 0}, {}), Vertex({18, 26}), Vertex({32, 30}, {12, 0}, {-6, 0})});
    for (Node n : {Node(linear), Node(curved)}) n.setStroke(constantStroke(2.0));
    linear.setEndDecoration(arrowHead());
    curved.setEndDecoration(arrowHead());
    added(linear);
    added(curved);
    for (double scale : {1.0, 4.0}) {
        QImage const image = renderScene(*scene, scale);
        for (double y : {10.0, 30.0}) {
            SCOPED_TRACE(testing::Message() << "path at y " << y << ", scale " << scale);
            auto px = [&](double x, double dy) { return QPoint(int(x * scale), int((y + dy) * scale)); };
            auto is = [&](double x, double dy, QColor c) { return pixelIs(image, px(x, dy).x(), px(x, dy).y(), c); };
            // Rows just above the axis, where the head covers whole pixels.
            for (double x = 24.5; x < 30; x += 0.5) EXPECT_TRUE(is(x, -0.25, Qt::red)) << "the head at " << x;
            EXPECT_TRUE(is(33, -0.25, Qt::white)) << "nothing past the tip";
            EXPECT_TRUE(is(35, -0.25, Qt::white));
            // Beside the narrow tip, a line drawn to the end would show.
            EXPECT_GT(qGray(image.pixel(px(31, -0.9))), 128) << "no line beside the tip";
            EXPECT_TRUE(is(6, -0.2 / scale, Qt::black)) << "the line itself, 2 pixels wide";
        }
    }
    EXPECT_EQ(linear.getBounds().boundingRect().right(), 24) << "the measured path stops at the base too";
}

TEST_F(PathRendering, OpenPathsHitAlongTheirStrokeClosedPathsInside)
{
    OpenLinearPathNode open = added(OpenLinearPathNode({{0, 0}, {20, 0}, {20, 20}}));
    open.setStroke(constantStroke(1.0));
    EXPECT_TRUE(open.contains({10, 3.5})) << "within the tolerance on a scene";
    EXPECT_FALSE(open.contains({10, 5}));
    EXPECT_TRUE(open.contains({16.5, 10})) << "along the second segment";
    EXPECT_FALSE(open.contains({10, 10})) << "an open path has no inside";

    ClosedLinearPathNode closed = added(ClosedLinearPathNode({{0, 0}, {20, 0}, {20, 20}}));
    closed.setDrawStyle(FILLED_BLUE);
    EXPECT_TRUE(closed.contains({15, 5}));
    EXPECT_FALSE(closed.contains({5, 15}));
}
