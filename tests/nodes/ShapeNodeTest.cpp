// The shape node: an empty shape draws nothing, and its outline follows the
// stroke's own cap.

#include <ShapeNode>

#include "support/PaintNode.h"
#include "nodes/ShapeNodeImpl.h"

#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

TEST(ShapeNode, EmptyShapeLeavesThePainterUntouched)
{
    ShapeNode n;
    n.setDrawStyle(DrawStyle(Stroke(GLOX::Color(1, 0, 0), 3.0), Fill(GLOX::Color(0, 1, 0)), true));
    QImage image = transparentImage(8, 8);
    QPainter painter(&image);
    QPen pen(Qt::magenta);
    painter.setPen(pen);
    QStyleOptionGraphicsItem option;
    n.getImpl()->paintContents(&painter, &option, nullptr);
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush().style(), Qt::NoBrush);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
}

TEST(ShapeNode, OutlineUsesTheStrokesCap)
{
    QPainterPath segment;
    segment.moveTo(0, 0);
    segment.lineTo(10, 0);
    ShapeNode n{GLOX::Shape(segment)};
    auto right = [&] { return n.getValidShapeNodeImpl()->computeStrokedOutline(1.0).boundingRect().right(); };
    n.setStroke(Stroke(GLOX::Color(), 2.0, SolidLine, FlatCap));
    EXPECT_NEAR(right(), 10.0, 1e-9);
    n.setStroke(Stroke(GLOX::Color(), 2.0, SolidLine, SquareCap));
    EXPECT_NEAR(right(), 11.0, 1e-9);
}
