// The convex shortcut for a stroked area covers what the boolean union of
// the path and its stroke covers.

#include <ConstantLodScale>
#include <Stroke>

#include "nodes/OutlineStroker.h"

#include <QPainterPath>
#include <gtest/gtest.h>

using namespace VOR2;

namespace {
// The share of grid points inside `r` on which the two areas disagree.
double disagreement(QPainterPath const &a, QPainterPath const &b, QRectF const &r)
{
    int differ = 0, all = 0;
    for (double y = r.top(); y < r.bottom(); y += r.height() / 100)
        for (double x = r.left(); x < r.right(); x += r.width() / 100, ++all)
            differ += a.contains(QPointF(x, y)) != b.contains(QPointF(x, y));
    return double(differ) / all;
}
} // namespace

TEST(OutlineStroker, TheConvexAreaIsTheUnionOfPathAndStroke)
{
    QPainterPath ellipse, rounded;
    ellipse.addEllipse(QRectF(0, 0, 200, 140));
    rounded.addRoundedRect(QRectF(0, 0, 200, 140), 20, 20);
    for (QPainterPath const &path : {ellipse, rounded}) {
        for (double width : {0.0, 8.0}) {
            for (double scale : {0.25, 1.0, 4.0}) {
                Stroke stroke(GLOX::Color(), width, SolidLine, FlatCap, MiterJoin, ConstantLodScale::instance());
                QPainterPath fast = convexStrokedArea(path, stroke, scale);
                QPainterPath exact = strokedArea(path, stroke, scale, StrokerShape::Default);
                QRectF r = exact.boundingRect().adjusted(-5, -5, 5, 5);
                EXPECT_LT(disagreement(fast, exact, r), 0.01) << "width " << width << " at scale " << scale;
                EXPECT_NEAR(fast.boundingRect().width(), exact.boundingRect().width(), 0.5);
            }
        }
    }
}
