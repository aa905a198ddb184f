#include <ConstantInLodScale>
#include <ConstantLodScale>
#include <ConstantOutLodScale>
#include <LodScale>
#include <SelectionNonLinearLodScale>
#include <SplitLinearLodScale>

#include <gtest/gtest.h>
#include <cmath>
#include <limits>

using namespace VOR2;

namespace {
struct Sample {
    LodScale const *function;
    double x;
    double expected;
};
} // namespace

TEST(LodScale, FactorsAtTheListedScales)
{
    double const above = 1e-9; // just past a breakpoint
    Sample const samples[] = {
        {LodScale::instance(), 4, 1.0},
        {LodScale::instance(), 0.1, 1.0},
        {ConstantLodScale::instance(), 4, 0.25},
        {ConstantLodScale::instance(), 0.5, 2.0},
        {ConstantOutLodScale::instance(), 0.5, 2.0},
        {ConstantOutLodScale::instance(), 1, 1.0},
        {ConstantOutLodScale::instance(), 2, 1.0},
        {ConstantInLodScale::instance(), 0.5, 1.0},
        {ConstantInLodScale::instance(), 1, 1.0},
        {ConstantInLodScale::instance(), 2, 0.5},
        {SplitLinearLodScale::instance(), 0.5, 0.5},
        {SplitLinearLodScale::instance(), 1, 1.0},
        {SplitLinearLodScale::instance(), 1 + above, (1 + 2.0 / 11) / 1.0}, // the wanted step
        {SplitLinearLodScale::instance(), 2, (1 + 3.0 / 11) / 2},
        {SplitLinearLodScale::instance(), 10, 0.2}, // t reaches 2 here
        {SplitLinearLodScale::instance(), 20, 0.1},
        {SelectionNonLinearLodScale::instance(), 0.25, 2.0},
        {SelectionNonLinearLodScale::instance(), 0.5, 1.0},
        {SelectionNonLinearLodScale::instance(), 0.5 + above, 1.5}, // the wanted jump
        {SelectionNonLinearLodScale::instance(), 0.75, 1.2},
        {SelectionNonLinearLodScale::instance(), 1, 1.0},
        {SelectionNonLinearLodScale::instance(), 1 + above, 1.0},
        {SelectionNonLinearLodScale::instance(), 2.5, 1.0 / 1.5},
        {SelectionNonLinearLodScale::instance(), 4 - above, 0.5},
        {SelectionNonLinearLodScale::instance(), 4, 0.5},
        {SelectionNonLinearLodScale::instance(), 8, 0.25},
    };
    for (Sample const &s : samples)
        EXPECT_NEAR(s.function->scale(s.x), s.expected, 1e-6) << s.function->name().str() << " at " << s.x;
}

TEST(LodScale, ZeroAndNaNPassThrough)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isinf(ConstantLodScale::instance()->scale(0)));
    EXPECT_TRUE(std::isinf(ConstantOutLodScale::instance()->scale(0)));
    EXPECT_TRUE(std::isnan(SplitLinearLodScale::instance()->scale(nan)));
    EXPECT_EQ(LodScale::instance()->scale(nan), 1.0);
    EXPECT_EQ(SplitLinearLodScale::instance()->apply(2), SplitLinearLodScale::instance()->scale(2));
}

TEST(LodScale, SingletonsAreNamedAndFoundByName)
{
    struct Named {
        LodScale const *function;
        char const *name;
    } const all[] = {
        {LodScale::instance(), "None"},
        {ConstantLodScale::instance(), "Constant"},
        {SplitLinearLodScale::instance(), "SplitLinear"},
        {ConstantOutLodScale::instance(), "ConstantOut"},
        {ConstantInLodScale::instance(), "ConstantIn"},
        {SelectionNonLinearLodScale::instance(), "SelectionNonLinear"},
    };
    for (Named const &n : all) {
        EXPECT_EQ(n.function->name(), GLOX::StringID(n.name));
        EXPECT_EQ(LodScale::byName(GLOX::StringID(n.name)), n.function) << n.name;
    }
    EXPECT_EQ(LodScale::byName(GLOX::StringID("Linear")), nullptr);
    EXPECT_EQ(LodScale::byName(GLOX::StringID("constant")), nullptr); // names are case-sensitive
    EXPECT_EQ(LodScale::byName(GLOX::StringID()), nullptr);
}
