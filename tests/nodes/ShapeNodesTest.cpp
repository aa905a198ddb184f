// The closed shape nodes (rectangle, rounded rectangle, ellipse, shape):
// the pen and brush rules they share, their outlines at a scale, their own
// setters and what they put on pixels and masks.

#include <ConstantLodScale>
#include <EllipseNode>
#include <RectNode>
#include <RoundedRectNode>
#include <ShapeNode>

#include "nodes/StylePainter.h"
#include "support/NodeStyles.h"
#include "support/PaintNode.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using R = GLOX::GLRect<double>;
using P = GLOX::GLPoint<double>;

namespace {

QPainterPath rectPath(R const &r)
{
    QPainterPath path;
    path.addRect(GLOX::toQRectF(r));
    return path;
}
} // namespace

TEST(StylePainter, ThinLinesAreThoseBelowOneDevicePixel)
{
    EXPECT_TRUE(isThinLine(penForStroke(constantStroke(0.5), 1.0), 1.0));
    EXPECT_FALSE(isThinLine(penForStroke(constantStroke(1.0), 1.0), 1.0)) << "exactly one pixel is not thin";
    EXPECT_FALSE(isThinLine(penForStroke(constantStroke(0.5, NoStroke), 1.0), 1.0));
    QPen cosmetic = penForStroke(constantStroke(0.5), 1.0);
    cosmetic.setCosmetic(true);
    EXPECT_FALSE(isThinLine(cosmetic, 1.0));
    // A hairline is Qt's one-device-pixel pen at every scale, hence never
    // thin.
    for (double scale : {0.5, 1.0, 4.0}) {
        QPen hairline = penForStroke(Stroke(), scale);
        EXPECT_TRUE(hairline.isCosmetic());
        EXPECT_DOUBLE_EQ(hairline.widthF(), 1.0);
        EXPECT_FALSE(isThinLine(hairline, scale));
    }
}

TEST(StylePainter, StyleMappingAndAntialiasing)
{
    EXPECT_EQ(penForStroke(Stroke(GLOX::Color(), 1.0, StrokeStyle(9)), 1.0).style(), Qt::DashDotDotLine);
    EXPECT_EQ(penForStroke(Stroke(GLOX::Color(), 1.0, DotLine, RoundCap, SvgMiterJoin), 1.0).capStyle(), Qt::RoundCap);
    EXPECT_EQ(brushForFill(Fill()).style(), Qt::NoBrush);
    EXPECT_EQ(brushForFill(Fill(GLOX::Color(1, 0, 0))).color(), QColor(255, 0, 0));

    QImage image = transparentImage(4, 4);
    QPainter painter(&image);
    DrawStyle style;
    style.setStroke(constantStroke(0.5));
    applyDrawStyle(&painter, style, 1.0);
    EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing)) << "thin lines are smoothed even when not asked";
    style.setStroke(constantStroke(1.0));
    applyDrawStyle(&painter, style, 1.0);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    style.setIsAntiAliased(true);
    applyDrawStyle(&painter, style, 1.0);
    EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(StylePainter, ARepeatedPenOrBrushStillFollowsEveryArgument)
{
    // Each asked right after the base stroke, from which it differs in one
    // thing only: the pen kept from the call before must not answer for it.
    Stroke const base(GLOX::Color(0.2, 0.4, 0.6), 2.0, DashLine, RoundCap, BevelJoin);
    QPen const first = penForStroke(base, 1.0);
    auto afterBase = [&](Stroke const &other, double scale) {
        penForStroke(base, 1.0);
        return penForStroke(other, scale);
    };
    EXPECT_EQ(afterBase(base, 1.0), first);
    Stroke other = base;
    other.setColor(GLOX::Color(0.2, 0.4, 0.7));
    EXPECT_EQ(afterBase(other, 1.0).color(), GLOX::toQColor(other.color()));
    other = base;
    other.setCapStyle(SquareCap);
    EXPECT_EQ(afterBase(other, 1.0).capStyle(), Qt::SquareCap);
    other = base;
    other.setJoinStyle(MiterJoin);
    EXPECT_EQ(afterBase(other, 1.0).joinStyle(), Qt::MiterJoin);
    other = base;
    other.setStyle(DotLine);
    EXPECT_EQ(afterBase(other, 1.0).style(), Qt::DotLine);
    other = base;
    other.setLogicalWidth(3.0);
    EXPECT_DOUBLE_EQ(afterBase(other, 1.0).widthF(), 3.0);
    EXPECT_DOUBLE_EQ(afterBase(constantStroke(2.0), 0.5).widthF(), 4.0);
    EXPECT_DOUBLE_EQ(penForStroke(constantStroke(2.0), 0.25).widthF(), 8.0) << "a width that follows the scale";

    Fill const red(GLOX::Color(1, 0, 0)), green(GLOX::Color(0, 1, 0));
    EXPECT_EQ(brushForFill(red).color(), QColor(255, 0, 0));
    EXPECT_EQ(brushForFill(red).color(), QColor(255, 0, 0));
    EXPECT_EQ(brushForFill(green).color(), QColor(0, 255, 0));
    EXPECT_EQ(brushForFill(Fill(GLOX::Color(0, 1, 0), NoFill)).style(), Qt::NoBrush);
    EXPECT_EQ(brushForFill(green).style(), Qt::SolidPattern);
}

TEST(ShapeNodes, StrokedOutlineGrowsByHalfTheWidthAtTheScale)
{
    R const r(20, 0, 10, 10);
    RectNode rect(r);
    RoundedRectNode rounded(r, 2.0);
    EllipseNode ellipse{Ellipse(r)};
    ShapeNode shape{GLOX::Shape(rectPath(r))};
    for (Node node : {Node(rect), Node(rounded), Node(ellipse), Node(shape)}) {
        char const *kind = node.getFullyQualifiedTcosTypeName();
        auto outline = [&] { return node.getImpl()->computeStrokedOutline(4.0).boundingRect(); };
        EXPECT_NEAR(outline().x, 19.875, 1e-3) << kind << ": a hairline is a quarter unit at scale 4";
        node.setStroke(constantStroke(2.0));
        EXPECT_NEAR(outline().x, 19.75, 1e-3) << kind;
        EXPECT_NEAR(outline().right(), 30.25, 1e-3) << kind;
        node.setStroke(Stroke::NoStroke());
        EXPECT_EQ(outline(), r) << kind;
    }
}

TEST(ShapeNodes, ShapeOutlineUsesTheStrokesCapAndAnEmptyShapeLeavesThePainterUntouched)
{
    QPainterPath segment;
    segment.moveTo(0, 0);
    segment.lineTo(10, 0);
    ShapeNode n{GLOX::Shape(segment)};
    auto right = [&] { return n.getImpl()->computeStrokedOutline(1.0).boundingRect().right(); };
    n.setStroke(constantStroke(2.0, SolidLine, FlatCap));
    EXPECT_NEAR(right(), 10.0, 1e-9);
    n.setStroke(constantStroke(2.0, SolidLine, SquareCap));
    EXPECT_NEAR(right(), 11.0, 1e-9);

    ShapeNode empty;
    empty.setDrawStyle(DrawStyle(Stroke(GLOX::Color(1, 0, 0), 3.0), Fill(GLOX::Color(0, 1, 0)), true));
    QImage image = transparentImage(8, 8);
    QPainter painter(&image);
    QPen pen(Qt::magenta);
    painter.setPen(pen);
    QStyleOptionGraphicsItem option;
    empty.getImpl()->paintContents(&painter, &option, nullptr);
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush().style(), Qt::NoBrush);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(RectNode, PaintsItsFillAndAOnePixelHairlineAtEveryScale)
{
    RectNode n(R(2, 2, 6, 6));
    n.setDrawStyle(DrawStyle(Stroke(GLOX::Color(0, 0, 1), 0.0), Fill(GLOX::Color(1, 0, 0))));
    for (double scale : {1.0, 4.0}) {
        int side = int(12 * scale);
        QImage image = paintNodeAtScale(n, scale, side, side);
        int inner = int(5 * scale), edge = int(2 * scale);
        EXPECT_TRUE(pixelIs(image, inner, inner, QColor(255, 0, 0), 0));
        EXPECT_TRUE(pixelIs(image, edge, inner, QColor(0, 0, 255), 0)) << "scale " << scale;
        EXPECT_TRUE(pixelIs(image, edge + 1, inner, QColor(255, 0, 0), 0))
            << "scale " << scale << ": the hairline is one device pixel wide";
        EXPECT_TRUE(pixelIs(image, 0, 0, QColor(0, 0, 0, 0), 0));
    }
    EXPECT_EQ(RectNode().getRect(), R());
}

TEST(RoundedRectNode, RadiusGuardAndCachedOutline)
{
    RoundedRectNode n(R(0, 0, 10, 10), 0.0);
    EXPECT_FALSE(n.getBounds().isOnlyRect()) << "no radius: still the shape of its kind";
    EXPECT_TRUE(n.getBounds().contains(P(0.5, 0.5))) << "no radius: square corners";
    EXPECT_EQ(n.getBounds(), Bounds(R(0, 0, 10, 10)));
    n.setRadius(4.0);
    EXPECT_FALSE(n.getBounds().contains(P(0.5, 0.5))) << "corner cut away";
    n.setRect(R(20, 0, 10, 10));
    EXPECT_EQ(n.getBounds().boundingRect(), R(20, 0, 10, 10));

    // The setter ignores radii that are not positive; the constructor does not.
    n.setRadius(0.0);
    n.setRadius(-1.0);
    EXPECT_EQ(n.getRadius(), 4.0);
    EXPECT_EQ(RoundedRectNode(R(0, 0, 10, 10), -2.0).getRadius(), -2.0);
    EXPECT_FALSE(RoundedRectNode(RectNode().getImpl()).isValid());
    EXPECT_TRUE(RoundedRectNode(n.getImpl()).isValid());
}

TEST(EllipseNode, SettersKeepTopLeftOrCentreAndLeaveCachedBoundsUntilTheNextReport)
{
    EllipseNode n(Ellipse(R(2, 4, 10, 20)));
    EXPECT_EQ(n.getBounds().boundingRect(), R(2, 4, 10, 20));
    EXPECT_EQ(n.getCenter(), P(7, 14));
    n.setWidth(6);
    n.setHeight(8);
    EXPECT_EQ(n.getEllipse().rect(), R(2, 4, 6, 8));
    n.setSize(GLOX::Size<double>(4, 2));
    EXPECT_EQ(n.getEllipse().rect(), R(2, 4, 4, 2));
    n.setCenter(P(0, 0));
    EXPECT_EQ(n.getEllipse().rect(), R(-2, -1, 4, 2));

    EXPECT_EQ(n.getBounds().boundingRect(), R(2, 4, 10, 20)) << "the setters report nothing";
    n.setStroke(Stroke(GLOX::Color(), 3.0)); // a geometry report drops the cache
    EXPECT_EQ(n.getBounds().boundingRect(), R(-2, -1, 4, 2));
    EXPECT_FALSE(n.getBounds().contains(P(-1.9, -0.9))) << "an ellipse, not its rectangle";
}

TEST(EllipseNode, MaskIsOpaqueBlackIncludingTheStroke)
{
    EllipseNode n(Ellipse(R(4, 4, 16, 16)));
    n.setDrawStyle(DrawStyle(Stroke(GLOX::Color(0, 0, 1, 0.5), 4.0), Fill::NoFill()));
    QImage image = transparentImage(24, 24);
    QPainter painter(&image);
    n.getImpl()->paintMask(&painter, 1.0, R());
    painter.end();
    EXPECT_TRUE(pixelIs(image, 12, 12, QColor(0, 0, 0, 255), 0)) << "filled though the style is not";
    EXPECT_TRUE(pixelIs(image, 2, 12, QColor(0, 0, 0, 255), 0)) << "outer half of the stroke";
    EXPECT_TRUE(pixelIs(image, 4, 4, QColor(0, 0, 0, 0), 0));
}
