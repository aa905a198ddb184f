// The anchoring arithmetic alone: where an item goes for each flag and
// combination, when its container's rectangle changes.

#include <LayoutConstraints>

#include "scene/LayoutArithmetic.h"

#include <gtest/gtest.h>
#include <initializer_list>

using namespace VOR2;

namespace {
using R = GLOX::GLRect<double>;
using C = LayoutConstraints;

std::uint32_t mask(std::initializer_list<C> flags)
{
    std::uint32_t m = 0;
    for (C c : flags) m |= layoutBit(int(c));
    return m;
}

// A container that grows by 10 in width and 20 in height, and an item in it.
R const before(0, 0, 100, 50), after(0, 0, 110, 70), item(20, 5, 30, 10);

R placed(std::initializer_list<C> flags, R const &from = item) { return anchoredItemRect(mask(flags), after, before, from); }
} // namespace

TEST(LayoutArithmetic, EachFlagAloneTakesTheWholeChangeOfItsAxis)
{
    EXPECT_EQ(placed({C::Left}), item) << "Left alone pins the left side";
    EXPECT_EQ(placed({C::Top}), item) << "Top alone pins the top";
    EXPECT_EQ(placed({C::Right}), R(30, 5, 30, 10)) << "Right alone moves by all of the change";
    EXPECT_EQ(placed({C::Bottom}), R(20, 25, 30, 10));
    EXPECT_EQ(placed({C::FlexibleWidth}), R(20, 5, 40, 10)) << "stretches by all of the change";
    EXPECT_EQ(placed({C::FlexibleHeight}), R(20, 5, 30, 30));
}

TEST(LayoutArithmetic, SetFlagsShareTheChangeEqually)
{
    EXPECT_EQ(placed({C::Left, C::Right}), R(25, 5, 30, 10)) << "Left and Right move by half: centred";
    EXPECT_EQ(placed({C::Top, C::Bottom}), R(20, 15, 30, 10));
    EXPECT_EQ(placed({C::Left, C::FlexibleWidth}), R(20, 5, 35, 10)) << "Left and FlexibleWidth stretch by half";
    EXPECT_EQ(placed({C::Right, C::FlexibleWidth}), R(25, 5, 35, 10));
    R const thirds = placed({C::Left, C::Right, C::FlexibleWidth});
    EXPECT_DOUBLE_EQ(thirds.x, 20 + 10.0 / 3);
    EXPECT_DOUBLE_EQ(thirds.width, 30 + 10.0 / 3);
    EXPECT_EQ(placed({C::Right, C::Bottom, C::FlexibleHeight}), R(30, 15, 30, 20)) << "each axis on its own";
    EXPECT_EQ(placed({C::Left, C::Top, C::Right, C::Bottom, C::FlexibleWidth, C::FlexibleHeight}).y, 5 + 20.0 / 3);
}

TEST(LayoutArithmetic, NoneAndShrinkingAndFirstLayout)
{
    EXPECT_EQ(layoutBit(int(C::None)), 1u) << "None is bit 0";
    EXPECT_EQ(placed({C::None}), item) << "None moves nothing";
    EXPECT_EQ(placed({}), item);

    // A shrinking container moves and narrows the same way, backwards.
    EXPECT_EQ(anchoredItemRect(mask({C::Right, C::FlexibleWidth}), before, after, item), R(15, 5, 25, 10));

    // Measured from the all-zero rectangle a container starts with: the
    // item moves by the container's whole size.
    EXPECT_EQ(anchoredItemRect(mask({C::Right, C::Bottom}), before, R(), item), R(120, 55, 30, 10));
    EXPECT_TRUE(isAllZero(R()));
    EXPECT_FALSE(isAllZero(R(0, 0, 0, 1)));
    EXPECT_FALSE(isAllZero(R(-0.0, 0, 1e-300, 0)));
}

TEST(LayoutArithmetic, AnItemWithoutWidthStretchesFromNothing)
{
    // A vertical line has no width: a stretch gives it the share alone; the
    // node turns that into a scale (a zero extent keeps scale 1).
    R const line(40, 0, 0, 50);
    EXPECT_EQ(placed({C::FlexibleWidth}, line), R(40, 0, 10, 50));
    EXPECT_EQ(placed({C::Left, C::Right}, line), R(45, 0, 0, 50));
}
