#include <Bounds>
#include <Ellipse>
#include <RoundedRect>

#include <gtest/gtest.h>
#include <cmath>

using namespace VOR2;
using Rect = GLOX::GLRect<double>;
using Pt = GLOX::GLPoint<double>;

namespace {
Bounds ellipse(double x, double y, double w, double h)
{
    return Bounds(Ellipse(Rect(x, y, w, h)));
}

// Success when `b` contains every point of `in` and none of `out`.
::testing::AssertionResult splits(Bounds const &b, std::initializer_list<Pt> in, std::initializer_list<Pt> out)
{
    for (Pt const &p : in)
        if (!b.contains(p)) return ::testing::AssertionFailure() << "(" << p.x << ", " << p.y << ") is outside";
    for (Pt const &p : out)
        if (b.contains(p)) return ::testing::AssertionFailure() << "(" << p.x << ", " << p.y << ") is inside";
    return ::testing::AssertionSuccess();
}
} // namespace

TEST(BoundsConstruction, RectanglesStayBareAndShapesAllocate)
{
    Bounds empty;
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_TRUE(empty.isOnlyRect());
    EXPECT_TRUE(empty.boundingRects().isEmpty());

    Bounds e = ellipse(0, 0, 10, 20);
    EXPECT_FALSE(e.isOnlyRect());
    EXPECT_FALSE(e.isEmpty());
    EXPECT_EQ(e.boundingRect(), Rect(0, 0, 10, 20));
    // A corner of the rectangle is inside the rectangle, not the ellipse.
    EXPECT_TRUE(splits(e, {{5, 10}}, {{0, 0}}));
    EXPECT_TRUE(Bounds(Rect(0, 0, 10, 20)).contains(Pt(0, 0)));

    Bounds rounded(RoundedRect(Rect(0, 0, 10, 10), 3, 3));
    EXPECT_FALSE(rounded.isOnlyRect());
    EXPECT_TRUE(splits(rounded, {{5, 0.2}}, {{0.2, 0.2}}));
}

TEST(BoundsConstruction, ShapeConstructorsGiveAShapeEvenWhenItIsARectangleOrNothing)
{
    // Square corners: a rectangular path, still a shape, equal to the bare
    // rectangle.
    for (RoundedRect const &square : {RoundedRect(Rect(0, 0, 10, 10), 0, 3), RoundedRect(Rect(0, 0, 10, 10), 3, 0),
                                      RoundedRect(Rect(0, 0, 10, 10), -1, std::nan(""))}) {
        Bounds b(square);
        EXPECT_FALSE(b.isOnlyRect());
        EXPECT_FALSE(b.isEmpty());
        EXPECT_EQ(b.boundingRect(), Rect(0, 0, 10, 10));
        EXPECT_EQ(b.boundingRects(), GLOX::GList<Rect>{Rect(0, 0, 10, 10)});
        EXPECT_TRUE(splits(b, {{0.2, 0.2}, {9.8, 9.8}}, {{10.2, 5}}));
        EXPECT_EQ(b, Bounds(Rect(0, 0, 10, 10)));
    }

    // Nothing inside, but a shape, keeping the rectangle it was given.
    struct Case {
        char const *what;
        Bounds b;
        Rect rect;
    } const empties[] = {
        {"ellipse of no size", Bounds(Ellipse(Rect(5, 6, 0, 0))), Rect(5, 6, 0, 0)},
        {"flat ellipse", Bounds(Ellipse(Rect(5, 6, 0, 4))), Rect(5, 6, 0, 4)},
        {"inside-out ellipse", Bounds(Ellipse(Rect(5, 6, -4, 4))), Rect(5, 6, -4, 4)},
        {"default ellipse", Bounds(Ellipse()), Rect()},
        {"flat rounded rectangle", Bounds(RoundedRect(Rect(1, 2, 10, 0), 2, 2)), Rect(1, 2, 10, 0)},
        {"empty path", Bounds(QPainterPath()), Rect()},
        {"empty shape", Bounds(GLOX::Shape()), Rect()},
        {"no rectangles", Bounds(GLOX::GList<Rect>()), Rect()},
        {"only empty rectangles", Bounds(GLOX::GList<Rect>{{0, 0, 0, 5}, {0, 0, -3, 5}}), Rect()},
        {"no points", Bounds(GLOX::GList<Pt>()), Rect()},
    };
    for (Case const &c : empties) {
        EXPECT_FALSE(c.b.isOnlyRect()) << c.what;
        EXPECT_TRUE(c.b.isEmpty()) << c.what;
        EXPECT_EQ(c.b.boundingRect(), c.rect) << c.what;
        EXPECT_TRUE(c.b.boundingRects().isEmpty()) << c.what;
        EXPECT_FALSE(c.b.contains(Pt(5, 7))) << c.what;
        EXPECT_FALSE(c.b.intersectsWith(Bounds(Rect(-100, -100, 200, 200)))) << c.what;
        // It adds nothing to a union and takes all from an intersection.
        EXPECT_EQ(Bounds(Rect(0, 0, 3, 3)) | c.b, Bounds(Rect(0, 0, 3, 3))) << c.what;
        EXPECT_TRUE((Bounds(Rect(0, 0, 30, 30)) & c.b).isEmpty()) << c.what;
    }
    EXPECT_NE(Bounds(Ellipse(Rect(5, 6, 0, 0))), Bounds(Ellipse(Rect(7, 6, 0, 0)))) << "rectangles differ";
}

TEST(BoundsConstruction, PolygonsAndRectangleLists)
{
    Bounds triangle(GLOX::GList<Pt>{{0, 0}, {10, 0}, {0, 10}});
    EXPECT_EQ(triangle.boundingRect(), Rect(0, 0, 10, 10));
    EXPECT_TRUE(splits(triangle, {{2, 2}}, {{8, 8}}));
    EXPECT_TRUE(splits(Bounds(Pt(5, 0), Pt(10, 5), Pt(5, 10), Pt(0, 5)), {{5, 5}}, {{1, 1}}));

    // Rectangles that add up to one rectangle are still a path of all of
    // them; its pieces are the rectangles, less those inside another.
    Bounds strips(GLOX::GList<Rect>{{0, 0, 10, 5}, {0, 5, 10, 5}, {2, 2, 3, 3}, {0, 0, 0, 0}});
    EXPECT_FALSE(strips.isOnlyRect());
    EXPECT_EQ(strips.boundingRect(), Rect(0, 0, 10, 10));
    EXPECT_EQ(strips.boundingRects(), (GLOX::GList<Rect>{{0, 0, 10, 5}, {0, 5, 10, 5}}));
    EXPECT_TRUE(splits(strips, {{5, 2}, {5, 7}, {3, 3}}, {{11, 5}}));
    Bounds one(GLOX::GList<Rect>{{1, 2, 3, 4}});
    EXPECT_FALSE(one.isOnlyRect());
    EXPECT_EQ(one, Bounds(Rect(1, 2, 3, 4)));

    // An L of overlapping rectangles: the overlap is inside, the notch is not.
    Bounds ell(GLOX::GList<Rect>{{0, 0, 10, 4}, {0, 0, 4, 10}});
    EXPECT_FALSE(ell.isOnlyRect());
    EXPECT_EQ(ell.boundingRect(), Rect(0, 0, 10, 10));
    EXPECT_TRUE(splits(ell, {{2, 2}, {8, 2}, {2, 8}}, {{8, 8}}));
    EXPECT_EQ(ell.boundingRects(), (GLOX::GList<Rect>{{0, 0, 10, 4}, {0, 0, 4, 10}}));

    // Polygons are shapes even when they are rectangles.
    Bounds box(Pt(0, 0), Pt(4, 0), Pt(4, 3), Pt(0, 3));
    EXPECT_FALSE(box.isOnlyRect());
    EXPECT_EQ(box.boundingRects(), GLOX::GList<Rect>{Rect(0, 0, 4, 3)});
    EXPECT_FALSE(Bounds(GLOX::GList<Pt>{{0, 0}, {4, 0}, {4, 3}, {0, 3}}).isOnlyRect());
    QPainterPath square;
    square.addRect(0, 0, 4, 3);
    EXPECT_FALSE(Bounds(square).isOnlyRect());
    EXPECT_FALSE(Bounds(GLOX::Shape(square)).isOnlyRect());
}

TEST(BoundsRects, PointTestsCountEdgesAndTolerance)
{
    Bounds r(Rect(0, 0, 10, 10));
    EXPECT_TRUE(splits(r, {{10, 10}, {0, 5}}, {{10.001, 5}}));
    EXPECT_TRUE(r.intersectsWith(Pt(10.5, 5), 1.0));
    EXPECT_TRUE(r.intersectsWith(Pt(-1, -1), 1.0)); // corner of the square touches the corner
    EXPECT_FALSE(r.intersectsWith(Pt(10.5, 5), 0.4));
    EXPECT_FALSE(r.intersectsWith(Pt(10.5, 5), -3.0));
    EXPECT_FALSE(Bounds(Rect(0, 0, 0, 10)).intersectsWith(Pt(0, 5), 1.0));

    Bounds e = ellipse(0, 0, 10, 10);
    EXPECT_FALSE(e.intersectsWith(Pt(0.5, 0.5), 0.5));
    EXPECT_TRUE(e.intersectsWith(Pt(5, -0.5), 1.0));
    EXPECT_FALSE(e.intersectsWith(Pt(5, -0.5), 0.0));
}

TEST(BoundsRects, ArithmeticStaysBareWherePossible)
{
    Rect const a(0, 0, 10, 10);
    EXPECT_EQ((Bounds(a) & Bounds(Rect(5, 5, 10, 10))).boundingRect(), Rect(5, 5, 5, 5));
    EXPECT_TRUE((Bounds(a) & Bounds(Rect(20, 0, 5, 5))).isEmpty());
    EXPECT_TRUE((Bounds(a) & Bounds(Rect(10, 0, 5, 5))).isEmpty()); // touching only

    // Unions that are one rectangle stay bare.
    struct Case {
        Rect other, united;
    } const bare[] = {{Rect(2, 2, 3, 3), a}, {Rect(0, 10, 10, 5), Rect(0, 0, 10, 15)}, {Rect(), a}};
    for (Case const &c : bare)
        for (Bounds const &u : {Bounds(a) | Bounds(c.other), Bounds(c.other) | Bounds(a)}) {
            EXPECT_TRUE(u.isOnlyRect()) << c.other.x << "," << c.other.y;
            EXPECT_EQ(u.boundingRect(), c.united) << c.other.x << "," << c.other.y;
        }

    // Not one rectangle: an exact path of both.
    Bounds apart = Bounds(a) | Bounds(Rect(20, 0, 10, 10));
    EXPECT_FALSE(apart.isOnlyRect());
    EXPECT_EQ(apart.boundingRect(), Rect(0, 0, 30, 10));
    EXPECT_TRUE(splits(apart, {{25, 5}}, {{15, 5}}));
    GLOX::GList<Rect> pieces = apart.boundingRects();
    EXPECT_EQ(pieces.size(), 2);
    EXPECT_TRUE(pieces.contains(a) && pieces.contains(Rect(20, 0, 10, 10)));

    Bounds cross = Bounds(Rect(0, 4, 10, 2)) | Bounds(Rect(4, 0, 2, 10));
    EXPECT_FALSE(cross.isOnlyRect());
    EXPECT_TRUE(splits(cross, {{5, 5}, {1, 5}}, {{1, 1}}));
}

TEST(BoundsDispatch, IntersectsWithAndContainsAllFourWays)
{
    Bounds e = ellipse(0, 0, 10, 10);
    Bounds corner(Rect(0, 0, 1, 1)); // inside the ellipse's rectangle, outside the ellipse
    Bounds middle(Rect(4, 4, 2, 2));
    struct Case {
        Bounds a, b;
        bool intersects, contains;
    } const cases[] = {
        {Bounds(Rect(0, 0, 10, 10)), corner, true, true},
        {Bounds(Rect(1, 0, 1, 1)), corner, false, false},
        {Bounds(Rect(0, 0, 10, 10)), Bounds(Rect(5, 5, 10, 1)), true, false},
        {e, corner, false, false},
        {e, middle, true, true},
        {e, Bounds(Rect(0, 0, 2, 2)), true, false},
        {corner, e, false, false},
        {middle, e, true, false},
        {Bounds(Rect(0, 0, 10, 10)), e, true, true},
        {Bounds(Rect(1, 0, 9, 10)), e, true, false},
        {e, ellipse(9, 9, 10, 10), false, false}, // rectangles overlap, ellipses do not
        {e, ellipse(5, 0, 10, 10), true, false},
        {e, ellipse(3, 3, 4, 4), true, true},
        {ellipse(3, 3, 4, 4), e, true, false},
        {e, e, true, true},
        {e, Bounds(), false, false},
        {Bounds(), e, false, false},
        {Bounds(), Bounds(), false, false},
    };
    for (size_t i = 0; i < std::size(cases); ++i) {
        EXPECT_EQ(cases[i].a.intersectsWith(cases[i].b), cases[i].intersects) << "case " << i;
        EXPECT_EQ(cases[i].a.contains(cases[i].b), cases[i].contains) << "case " << i;
    }
}

TEST(BoundsDispatch, IntersectAllFourWays)
{
    Bounds e = ellipse(0, 0, 10, 10);
    Rect const rightHalf(5, -5, 10, 20);

    Bounds shapeRect = e & Bounds(rightHalf);
    EXPECT_FALSE(shapeRect.isOnlyRect());
    EXPECT_NEAR(shapeRect.boundingRect().x, 5, 1e-9);
    EXPECT_NEAR(shapeRect.boundingRect().width, 5, 1e-6);
    EXPECT_TRUE(splits(shapeRect, {{9, 5}}, {{9.5, 0.5}, {2, 5}}));
    EXPECT_EQ(Bounds(rightHalf) & e, shapeRect);

    // Shape inside the rectangle, or rectangle inside the shape: no path work.
    EXPECT_EQ(e & Bounds(Rect(-1, -1, 20, 20)), e);
    EXPECT_EQ(Bounds(Rect(-1, -1, 20, 20)) & e, e);
    Bounds inner = e & Bounds(Rect(4, 4, 2, 2));
    EXPECT_TRUE(inner.isOnlyRect());
    EXPECT_EQ(inner.boundingRect(), Rect(4, 4, 2, 2));
    EXPECT_TRUE((e & Bounds(Rect(20, 20, 1, 1))).isEmpty());
    EXPECT_TRUE((e & Bounds()).isEmpty());

    Bounds lens = e & ellipse(5, 0, 10, 10);
    EXPECT_FALSE(lens.isOnlyRect());
    EXPECT_NEAR(lens.boundingRect().x, 5, 1e-6);
    EXPECT_NEAR(lens.boundingRect().right(), 10, 1e-6);
    EXPECT_TRUE(splits(lens, {{7.5, 5}}, {{7.5, 0.5}}));
    Bounds apart = e & ellipse(9, 9, 10, 10);
    EXPECT_TRUE(apart.isEmpty());
    EXPECT_TRUE(apart.isOnlyRect());
}

TEST(BoundsDispatch, UnionAllFourWays)
{
    Bounds e = ellipse(0, 0, 10, 10);
    Rect const side(10, 4, 5, 2);
    for (Bounds const &u : {e | Bounds(side), Bounds(side) | e}) {
        EXPECT_FALSE(u.isOnlyRect());
        EXPECT_EQ(u.boundingRect(), Rect(0, 0, 15, 10));
        EXPECT_TRUE(splits(u, {{14, 5}, {5, 5}}, {{12, 1}, {0.5, 0.5}}));
    }

    // A rectangle holding the shape swallows it.
    EXPECT_EQ(e | Bounds(Rect(0, 0, 10, 10)), Bounds(Rect(0, 0, 10, 10)));
    EXPECT_TRUE((e | Bounds(Rect(0, 0, 10, 10))).isOnlyRect());
    EXPECT_TRUE((Bounds(Rect(-5, -5, 20, 20)) | e).isOnlyRect());
    EXPECT_EQ(e | Bounds(), e);

    Bounds pair = e | ellipse(20, 0, 10, 10);
    EXPECT_EQ(pair.boundingRect(), Rect(0, 0, 30, 10));
    EXPECT_TRUE(splits(pair, {{25, 5}}, {{15, 5}}));
    EXPECT_EQ(pair.boundingRects().size(), 2);
}

TEST(BoundsTransform, ScalesKeepRectanglesAndRotationsMakePaths)
{
    Bounds r(Rect(0, 0, 10, 10));
    Bounds moved = r.transformed(GLOX::Transform::fromTranslate(5, -2));
    EXPECT_TRUE(moved.isOnlyRect());
    EXPECT_EQ(moved.boundingRect(), Rect(5, -2, 10, 10));
    Bounds flipped = r.transformed(GLOX::Transform::fromScale(-2, 1));
    EXPECT_TRUE(flipped.isOnlyRect());
    EXPECT_EQ(flipped.boundingRect(), Rect(-20, 0, 20, 10));

    Bounds turned = r.transformed(GLOX::Transform::fromRotateDegrees(45));
    EXPECT_FALSE(turned.isOnlyRect());
    double const d = 10 / std::sqrt(2.0);
    EXPECT_NEAR(turned.boundingRect().x, -d, 1e-9);
    EXPECT_NEAR(turned.boundingRect().height, 2 * d, 1e-9);
    EXPECT_TRUE(splits(turned, {{0, 7}}, {{-d + 1, 1}})); // in the bounding rectangle only
    EXPECT_TRUE(Bounds(Rect(3, 0, 0, 10)).transformed(GLOX::Transform::fromRotateDegrees(30)).isEmpty());

    Bounds e = ellipse(0, 0, 10, 10);
    e.transform(GLOX::Transform::fromTranslate(100, 0));
    EXPECT_EQ(e.boundingRect(), Rect(100, 0, 10, 10));
    EXPECT_TRUE(splits(e, {{105, 5}}, {{100.5, 0.5}}));
}

TEST(BoundsValue, EqualityPathsPiecesAndSimplification)
{
    QPainterPath square;
    square.addRect(0, 0, 10, 10);
    EXPECT_EQ(Bounds(square), Bounds(Rect(0, 0, 10, 10)));
    EXPECT_EQ(Bounds(Rect(0, 0, 10, 10)), Bounds(square));
    EXPECT_NE(Bounds(Rect(0, 0, 10, 10)), ellipse(0, 0, 10, 10));
    EXPECT_NE(ellipse(0, 0, 10, 10), Bounds(Rect(0, 0, 10, 10)));
    EXPECT_EQ(ellipse(0, 0, 10, 10), ellipse(0, 0, 10, 10));
    EXPECT_NE(ellipse(0, 0, 10, 10), ellipse(0, 0, 10, 11));
    EXPECT_NE(Bounds(Rect(0, 0, 10, 10)), Bounds(Rect(0, 0, 10, 11)));

    Bounds e = ellipse(1, 2, 3, 4);
    EXPECT_TRUE(e.asQPainterPath().contains(QPointF(2.5, 4)));
    EXPECT_FALSE(e.asQPainterPath().contains(QPointF(1.1, 2.1)));
    EXPECT_EQ(e.asShape().getPath(), e.asQPainterPath());
    EXPECT_EQ(Bounds(Rect(1, 2, 3, 4)).asQPainterPath().boundingRect(), QRectF(1, 2, 3, 4));
    EXPECT_EQ(Bounds(e.asShape()), e);

    e.simplifyToRect();
    EXPECT_TRUE(e.isOnlyRect());
    EXPECT_EQ(e.boundingRect(), Rect(1, 2, 3, 4));
    EXPECT_TRUE(e.contains(Pt(1, 2)));
    e.clear();
    EXPECT_EQ(e, Bounds());

    QPainterPath ring = square;
    ring.addRect(3, 3, 4, 4); // hole under the odd-even rule
    EXPECT_TRUE(splits(Bounds(ring), {{1, 5}}, {{5, 5}}));
    EXPECT_EQ(Bounds(ring).boundingRects(), GLOX::GList<Rect>{Rect(0, 0, 10, 10)});
    EXPECT_EQ(Bounds(Rect(1, 1, 2, 2)).boundingRects(), GLOX::GList<Rect>{Rect(1, 1, 2, 2)});
}
