// The border's value conversions, without the script host.
#include "Error"
#include "binding/Convert.h"
#include "binding/ScriptError.h"

#include <gtest/gtest.h>

using namespace VOR2::script;

namespace {

template <class F>
std::pair<std::string, std::string> errorOf(F &&f)
{
    try {
        f();
    } catch (ScriptError const &e) {
        return {e.id(), e.what()};
    } catch (VOR2::Error const &e) {
        return {e.id(), e.text()};
    }
    return {"", ""};
}

} // namespace

TEST(Convert, AColourTakesThreeOrFourDoublesBetweenZeroAndOne)
{
    GLOX::Color c = toColor(Value::row({0.0, 1.0, 0.0}));
    EXPECT_EQ(c.greenByte(), 255);
    EXPECT_EQ(c.alphaByte(), 255);
    EXPECT_EQ(toColor(Value::row({1, 0, 0, 0.5})).alphaByte(), 128);

    auto tooMany = errorOf([] { toColor(Value::row({0, 0, 0, 0, 0})); });
    EXPECT_EQ(tooMany.first, "Color:InvalidValue");
    EXPECT_EQ(tooMany.second, "Color requires three or four doubles between 0.0 and 1.0, [red,green,blue,(alpha)]. "
                              "Example: color = [0 1 0 1]");
    // Four elements with one out of range give the second text.
    auto outOfRange = errorOf([] { toColor(Value::row({0, 0, 1.5, 1})); });
    EXPECT_EQ(outOfRange.first, "Color:InvalidValue");
    EXPECT_EQ(outOfRange.second,
              "Color requires values between 0.0 and 1.0, specified in a double vector as follows: [red green blue alpha]");
    EXPECT_EQ(errorOf([] { toColor(Value::row({0, std::nan(""), 0})); }).first, "Color:InvalidValue");
}

TEST(Convert, PointsReadColumnsWhenTheFirstDimensionIsTwo)
{
    // [1 2; 3 4] column-major is 1 3 2 4: columns (1,3) and (2,4) are the points.
    auto points = toPoints(Value::matrix(2, 2, {1, 3, 2, 4}));
    ASSERT_EQ(points.size(), 2);
    EXPECT_EQ(points[0].x, 1);
    EXPECT_EQ(points[0].y, 3);
    auto rows = toPoints(Value::matrix(3, 2, {1, 2, 3, 10, 20, 30}));
    ASSERT_EQ(rows.size(), 3);
    EXPECT_EQ(rows[2].x, 3);
    EXPECT_EQ(rows[2].y, 30);
    EXPECT_EQ(errorOf([] { toPoints(Value::matrix(3, 3, std::vector<double>(9, 0.0))); }).first, "VOR2:Expected2By2");
}
