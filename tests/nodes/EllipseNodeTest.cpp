// The ellipse node: its rectangle setters, which report nothing, and its
// mask.

#include <EllipseNode>

#include "nodes/EllipseNodeImpl.h"
#include "support/PaintNode.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;
using R = GLOX::GLRect<double>;
using P = GLOX::GLPoint<double>;

TEST(EllipseNode, SettersKeepTopLeftOrCentre)
{
    EllipseNode n(Ellipse(R(2, 4, 10, 20)));
    EXPECT_EQ(n.getCenter(), P(7, 14));
    n.setWidth(6);
    n.setHeight(8);
    EXPECT_EQ(n.getEllipse().rect(), R(2, 4, 6, 8));
    n.setSize(GLOX::Size<double>(4, 2));
    EXPECT_EQ(n.getEllipse().rect(), R(2, 4, 4, 2));
    n.setCenter(P(0, 0));
    EXPECT_EQ(n.getEllipse().rect(), R(-2, -1, 4, 2));
    EXPECT_EQ(n.getImpl()->getGraphicsItem()->type(), 65540);
}

TEST(EllipseNode, SettersLeaveCachedBoundsUntilTheNextReport)
{
    EllipseNode n(Ellipse(R(0, 0, 10, 10)));
    EXPECT_EQ(n.getBounds().boundingRect(), R(0, 0, 10, 10));
    n.setWidth(30);
    EXPECT_EQ(n.getBounds().boundingRect(), R(0, 0, 10, 10));
    n.setStroke(Stroke(GLOX::Color(), 3.0)); // a geometry report drops the cache
    EXPECT_EQ(n.getBounds().boundingRect(), R(0, 0, 30, 10));
    EXPECT_FALSE(n.getBounds().contains(P(0.5, 0.5))) << "an ellipse, not its rectangle";
}

TEST(EllipseNode, MaskIsOpaqueBlackIncludingTheStroke)
{
    EllipseNode n(Ellipse(R(4, 4, 16, 16)));
    n.setDrawStyle(DrawStyle(Stroke(GLOX::Color(0, 0, 1, 0.5), 4.0), Fill::NoFill()));
    QImage image = transparentImage(24, 24);
    QPainter painter(&image);
    n.getImpl()->paintMask(&painter, 1.0, R());
    painter.end();
    std::string why;
    EXPECT_TRUE(pixelMatches(image, 12, 12, QColor(0, 0, 0, 255), 0, &why)) << "filled though the style is not: " << why;
    EXPECT_TRUE(pixelMatches(image, 2, 12, QColor(0, 0, 0, 255), 0, &why)) << "outer half of the stroke: " << why;
    EXPECT_TRUE(pixelMatches(image, 4, 4, QColor(0, 0, 0, 0), 0, &why)) << why;
}
