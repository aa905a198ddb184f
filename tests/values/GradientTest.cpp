#include "GLOX/Gradient.h"

#include <QGradient>
#include <gtest/gtest.h>

using namespace GLOX;

TEST(Gradient, BuildsTheMatchingQtGradient)
{
    Gradient lin = Gradient::linear({0, 0}, {100, 0});
    lin.addStop(1.0, Color(0, 0, 1));
    lin.addStop(0.0, Color(1, 0, 0));
    lin.addStop(7.0, Color(0, 1, 0)); // clamped onto 1, replacing the blue stop
    lin.setSpread(Gradient::Spread::Reflect);
    lin.setCoordinateMode(Gradient::CoordinateMode::ObjectBoundingBox);
    ASSERT_TRUE(lin.isValid());
    QGradient const *q = lin.getGradient();
    ASSERT_NE(q, nullptr);
    ASSERT_EQ(q->type(), QGradient::LinearGradient);
    auto const *ql = static_cast<QLinearGradient const *>(q);
    EXPECT_EQ(ql->start(), QPointF(0, 0));
    EXPECT_EQ(ql->finalStop(), QPointF(100, 0));
    EXPECT_EQ(q->spread(), QGradient::ReflectSpread);
    EXPECT_EQ(q->coordinateMode(), QGradient::ObjectBoundingMode);
    ASSERT_EQ(q->stops().size(), 2);
    EXPECT_EQ(q->stops()[0].first, 0.0);
    EXPECT_EQ(q->stops()[0].second, QColor(255, 0, 0));
    EXPECT_EQ(q->stops()[1].second, QColor(0, 255, 0));
    EXPECT_EQ(lin.stops()[2].position, 1.0);

    Gradient rad = Gradient::radial({5, 6}, 7);
    ASSERT_EQ(rad.getGradient()->type(), QGradient::RadialGradient);
    auto const *qr = static_cast<QRadialGradient const *>(rad.getGradient());
    EXPECT_EQ(qr->center(), QPointF(5, 6));
    EXPECT_EQ(qr->focalPoint(), QPointF(5, 6));
    EXPECT_EQ(qr->radius(), 7.0);

    Gradient con = Gradient::conical({1, 2}, 90);
    ASSERT_EQ(con.getGradient()->type(), QGradient::ConicalGradient);
    EXPECT_EQ(static_cast<QConicalGradient const *>(con.getGradient())->angle(), 90.0);
}

TEST(Gradient, BuiltGradientFollowsChangesAndSurvivesCopies)
{
    Gradient none; // no type: no Qt gradient, stops or not
    EXPECT_FALSE(none.isValid());
    none.addStop(0.5, Color());
    EXPECT_EQ(none.getGradient(), nullptr);
    EXPECT_NE(none, Gradient());

    Gradient g = Gradient::linear({0, 0}, {1, 1});
    g.addStop(0, Color());
    QGradient const *first = g.getGradient();
    EXPECT_EQ(g.getGradient(), first); // built once

    Gradient copy = g;
    copy.addStop(1, Color(1, 1, 1));
    copy.setEnd({2, 2});
    EXPECT_EQ(g.getGradient(), first);
    EXPECT_EQ(first->stops().size(), 1);
    EXPECT_EQ(copy.getGradient()->stops().size(), 2);
    EXPECT_EQ(static_cast<QLinearGradient const *>(copy.getGradient())->finalStop(), QPointF(2, 2));

    // The cache is not part of the value.
    Gradient fresh = Gradient::linear({0, 0}, {1, 1});
    fresh.addStop(0, Color());
    EXPECT_EQ(fresh, g);
    fresh.setSpread(Gradient::Spread::Repeat);
    EXPECT_NE(fresh, g);
    copy.clearStops();
    EXPECT_EQ(copy.stopCount(), 0);
    copy.addStop(0.25, Color(0, 0, 1));
    ASSERT_EQ(copy.getGradient()->stops().size(), 1);
    EXPECT_EQ(copy.getGradient()->stops()[0].first, 0.25);
}
