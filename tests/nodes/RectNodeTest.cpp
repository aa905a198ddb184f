// The rectangle node: its outline at a scale, the pen and brush rules every
// shape shares, and what it puts on pixels.

#include <ConstantLodScale>
#include <RectNode>

#include "nodes/RectNodeImpl.h"
#include "nodes/StylePainter.h"
#include "support/PaintNode.h"
#include "support/PixelCompare.h"

#include <QPainter>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {
Stroke strokeOf(double width, StrokeStyle style = SolidLine)
{
    return Stroke(GLOX::Color(), width, style);
}

} // namespace

TEST(StylePainter, ThinLinesAreThoseBelowOneDevicePixel)
{
    EXPECT_TRUE(isThinLine(penForStroke(strokeOf(0.5), 1.0), 1.0));
    EXPECT_FALSE(isThinLine(penForStroke(strokeOf(1.0), 1.0), 1.0)) << "exactly one pixel is not thin";
    EXPECT_FALSE(isThinLine(penForStroke(strokeOf(0.5, NoStroke), 1.0), 1.0));
    QPen cosmetic = penForStroke(strokeOf(0.5), 1.0);
    cosmetic.setCosmetic(true);
    EXPECT_FALSE(isThinLine(cosmetic, 1.0));
    // A hairline is one device pixel at every scale, hence never thin.
    for (double scale : {0.5, 1.0, 4.0}) {
        QPen hairline = penForStroke(Stroke(), scale);
        EXPECT_DOUBLE_EQ(hairline.widthF(), 1.0 / scale);
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
    style.setStroke(strokeOf(0.5));
    applyDrawStyle(&painter, style, 1.0);
    EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing)) << "thin lines are smoothed even when not asked";
    style.setStroke(strokeOf(1.0));
    applyDrawStyle(&painter, style, 1.0);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    style.setIsAntiAliased(true);
    applyDrawStyle(&painter, style, 1.0);
    EXPECT_TRUE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(RectNode, StrokedOutlineGrowsByHalfTheWidthAtTheScale)
{
    RectNode n(GLOX::GLRect<double>(0, 0, 10, 10));
    auto *impl = n.getValidRectNodeImpl();
    EXPECT_EQ(impl->computeStrokedOutline(4.0).boundingRect(), (GLOX::GLRect<double>(-0.125, -0.125, 10.25, 10.25)));
    n.setStroke(Stroke(GLOX::Color(), 2.0, SolidLine, FlatCap, MiterJoin, ConstantLodScale::instance()));
    EXPECT_EQ(impl->computeStrokedOutline(4.0).boundingRect(), (GLOX::GLRect<double>(-0.25, -0.25, 10.5, 10.5)));
    n.setStroke(Stroke::NoStroke());
    EXPECT_EQ(impl->computeStrokedOutline(4.0).boundingRect(), (GLOX::GLRect<double>(0, 0, 10, 10)));
    EXPECT_EQ(RectNode().getRect(), GLOX::GLRect<double>());
}

TEST(RectNode, PaintsItsFillAndAOnePixelHairlineAtEveryScale)
{
    RectNode n(GLOX::GLRect<double>(2, 2, 6, 6));
    DrawStyle style;
    style.setFill(Fill(GLOX::Color(1, 0, 0)));
    style.setStroke(Stroke(GLOX::Color(0, 0, 1), 0.0));
    n.setDrawStyle(style);
    std::string why;
    for (double scale : {1.0, 4.0}) {
        int side = int(12 * scale);
        QImage image = paintNodeAtScale(n, scale, side, side);
        int inner = int(5 * scale), edge = int(2 * scale);
        EXPECT_TRUE(pixelMatches(image, inner, inner, QColor(255, 0, 0), 0, &why)) << why;
        EXPECT_TRUE(pixelMatches(image, edge, inner, QColor(0, 0, 255), 0, &why)) << "scale " << scale << ": " << why;
        EXPECT_TRUE(pixelMatches(image, edge + 1, inner, QColor(255, 0, 0), 0, &why))
            << "scale " << scale << ": the hairline is one device pixel wide; " << why;
        EXPECT_TRUE(pixelMatches(image, 0, 0, QColor(0, 0, 0, 0), 0, &why)) << why;
    }
}
