// The border's value conversions, without the script host.
#include "binding/Convert.h"
#include "binding/EnumTables.h"
#include "tests/binding/BorderError.h"

#include <gtest/gtest.h>

using namespace VOR2::script;

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

TEST(Convert, ShapesOtherThanTheOnesTakenGiveTheirOwnIdAndText)
{
    using Error = std::pair<std::string, std::string>;
    Error const rect{"DRect:InvalidValue", "DRect requires exactly four doubles. Ex: rect = [1.0, 2.3, 3.5, -0.3]"};
    Error const point{"DPoint:InvalidValue", "DPoint requires exactly two doubles. Ex: rect = [1.0, 2.3]"};
    Error const size{"DSize:InvalidValue", "DSize requires exactly two doubles. Ex: rect = [1.0, 2.3]"};
    Error const colour{"Color:InvalidValue", "Color requires three or four doubles between 0.0 and 1.0, "
                                             "[red,green,blue,(alpha)]. Example: color = [0 1 0 1]"};
    // A right count in the wrong shape or type is refused as well as a wrong count.
    EXPECT_EQ(errorOf([] { toRect(Value::row({1, 2, 3})); }), rect);
    EXPECT_EQ(errorOf([] { toRect(Value::matrix(2, 2, {1, 2, 3, 4})); }), rect);
    EXPECT_EQ(errorOf([] { toRect(Value::string("abcd")); }), rect);
    EXPECT_EQ(errorOf([] { toPoint(Value::row({1, 2, 3})); }), point);
    EXPECT_EQ(errorOf([] { toPoint(Value::scalar(1)); }), point);
    EXPECT_EQ(errorOf([] { toSize(Value::row({1})); }), size);
    EXPECT_EQ(errorOf([] { toSize(Value()); }), size);
    EXPECT_EQ(errorOf([] { toColor(Value::row({0.5, 0.5})); }), colour);
    EXPECT_EQ(errorOf([] { toColor(Value::matrix(2, 2, {0, 0, 0, 0})); }), colour);
    EXPECT_EQ(errorOf([] { toColor(Value::string("red")); }), colour);
    // A column vector is a vector.
    EXPECT_EQ(toRect(Value::matrix(4, 1, {1, 2, 3, 4})).height, 4);
    EXPECT_EQ(toPoint(Value::matrix(2, 1, {5, 6})).y, 6);
}

TEST(Convert, TransformsAndPointListsRaiseTheCatalogueErrors)
{
    EXPECT_EQ(errorOf([] { toTransform(Value::matrix(2, 3, std::vector<double>(6, 0.0))); }),
              std::make_pair(std::string("VOR2:Expected3By3"), std::string("Transform requires a 3x3 matrix")));
    EXPECT_EQ(errorOf([] { toTransform(Value::row(std::vector<double>(9, 1.0))); }).first, "VOR2:Expected3By3");
    EXPECT_EQ(errorOf([] { toPoints(Value::row({1, 2, 3})); }),
              std::make_pair(std::string("VOR2:Expected2By2"),
                             std::string("Expected either a [2 x n] or [n x 2] array")));
    EXPECT_EQ(errorOf([] { toPoints(Value::string("xy")); }).first, "VOR2:Expected2By2");

    // The matrix maps [x; y; 1]: a translation sits in the third column, and
    // it survives the way back.
    Value moved = Value::matrix(3, 3, {1, 0, 0, 0, 1, 0, 5, 7, 1});
    GLOX::Transform t = toTransform(moved);
    QPointF p = t.toQTransform().map(QPointF(1, 1));
    EXPECT_EQ(p, QPointF(6, 8));
    EXPECT_EQ(fromTransform(t).numbers(), moved.numbers());
}

TEST(Convert, ScalarsAndStringsNameWhatTheyExpectAndWhatTheyGot)
{
    EXPECT_EQ(errorOf([] { toDouble(Value::row({1, 2, 3})); }),
              std::make_pair(std::string("VOR2:WrongType"), std::string("Expected double scalar, got 1x3 double")));
    EXPECT_EQ(errorOf([] { toBool(Value::string("yes")); }).second, "Expected logical scalar, got 1x3 char");
    EXPECT_EQ(errorOf([] { toInt32(Value::scalar(1.5)); }).first, "VOR2:WrongType");
    EXPECT_EQ(errorOf([] { toInt32(Value::scalar(3e9)); }).first, "VOR2:WrongType");
    EXPECT_EQ(errorOf([] { toUInt32(Value::scalar(-1)); }).first, "VOR2:WrongType");
    EXPECT_EQ(errorOf([] { toString(Value::scalar(1)); }).second, "Expected char, got 1x1 double");
    EXPECT_EQ(toInt32(Value::scalar(-7)), -7);
    EXPECT_EQ(toString(Value()), "");
}

TEST(Convert, EnumerationsAreToldByName)
{
    EXPECT_EQ(toEnum<VOR2::StrokeCapStyle>(Value::string("RoundCap")), VOR2::RoundCap);
    EXPECT_EQ(fromEnum(VOR2::SquareCap).text(), "SquareCap");
    // A wrong name, or no name at all, lists every name in the order of the table.
    auto expected = std::make_pair(std::string("VOR2:ExpectedEnumValue"),
                                   std::string("Expected one of the following values: FlatCap, SquareCap, RoundCap"));
    EXPECT_EQ(errorOf([] { toEnum<VOR2::StrokeCapStyle>(Value::string("roundcap")); }), expected);
    EXPECT_EQ(errorOf([] { toEnum<VOR2::StrokeCapStyle>(Value::scalar(2)); }), expected);
    // A value the table does not name shows as Invalid.
    EXPECT_EQ(fromEnum(static_cast<VOR2::StrokeCapStyle>(42)).text(), "Invalid");
    EXPECT_EQ(fromEnum(static_cast<GLOX::Gradient::Type>(-1)).text(), "Invalid");
}
