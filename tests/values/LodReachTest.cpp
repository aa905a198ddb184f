// The reach bounds of the level-of-detail scales: each holds at every view
// scale, across the pieces and at both sides of every breakpoint, and each
// is met or nearly met somewhere, so that a loose bound fails too.

#include <ConstantInLodScale>
#include <ConstantLodScale>
#include <ConstantOutLodScale>
#include <LodScale>
#include <SelectionNonLinearLodScale>
#include <SplitLinearLodScale>
#include <Stroke>

#include <gtest/gtest.h>
#include <cmath>
#include <vector>

using namespace VOR2;

namespace {

std::vector<LodScale const *> family()
{
    return {LodScale::instance(),           ConstantLodScale::instance(),    ConstantOutLodScale::instance(),
            ConstantInLodScale::instance(), SplitLinearLodScale::instance(), SelectionNonLinearLodScale::instance()};
}

// Log-spaced scales from 1e-6 to 1e6, and every breakpoint of the family
// with its neighbouring doubles.
std::vector<double> sampleScales()
{
    std::vector<double> scales;
    for (int i = 0; i <= 1200; ++i) scales.push_back(std::pow(10.0, -6.0 + i / 100.0));
    for (double b : {0.5, 1.0, 4.0, 10.0}) {
        scales.push_back(b);
        scales.push_back(std::nextafter(b, 0.0));
        scales.push_back(std::nextafter(b, 1e9));
        scales.push_back(b * (1 - 1e-9));
        scales.push_back(b * (1 + 1e-9));
    }
    return scales;
}

// How far the bound stands above the factor: bound / factor, >= 1 when the
// bound holds.
double slack(LodScale const *f, double s)
{
    return f->reachBound().at(s) / f->scale(s);
}

} // namespace

TEST(LodReach, EveryFamilyMemberIsBoundedAtEveryScaleAndTheBoundIsTight)
{
    std::vector<double> const scales = sampleScales();
    for (LodScale const *f : family()) {
        LodReach const r = f->reachBound();
        EXPECT_GE(r.sceneUnits, 0.0) << f->name().str();
        EXPECT_GE(r.pixels, 0.0) << f->name().str();
        double tightest = 1e300;
        for (double s : scales) {
            double const k = slack(f, s);
            // One part in 1e12 for the rounding of a + b / s.
            EXPECT_GE(k, 1.0 - 1e-12) << f->name().str() << " at scale " << s;
            tightest = std::min(tightest, k);
        }
        EXPECT_LE(tightest, 1.5) << f->name().str() << " never comes near its bound";
    }
}

TEST(LodReach, BoundsAreTheOnesDerived)
{
    // Pinned so that a change to a function shows up here with its reason.
    EXPECT_EQ(LodScale::instance()->reachBound(), (LodReach{1.0, 0.0}));
    EXPECT_EQ(ConstantLodScale::instance()->reachBound(), (LodReach{0.0, 1.0}));
    EXPECT_EQ(ConstantOutLodScale::instance()->reachBound(), (LodReach{1.0, 1.0}));
    EXPECT_EQ(ConstantInLodScale::instance()->reachBound(), (LodReach{0.0, 1.0}));
    EXPECT_EQ(SplitLinearLodScale::instance()->reachBound(), (LodReach{0.0, 2.0}));
    EXPECT_EQ(SelectionNonLinearLodScale::instance()->reachBound(), (LodReach{0.0, 2.0}));
    EXPECT_DOUBLE_EQ((LodReach{3.0, 2.0}).at(4.0), 3.5);
    EXPECT_EQ((LodReach{3.0, 2.0}).scaled(0.5), (LodReach{1.5, 1.0}));
}

TEST(LodReach, StrokeWidthStaysWithinItsBound)
{
    std::vector<double> const scales = sampleScales();
    Stroke hairline;
    EXPECT_EQ(hairline.widthBound(), (LodReach{0.0, 1.0})) << "a hairline is one pixel whatever its function";
    for (LodScale const *f : family()) {
        for (double w : {0.0, 0.1, 7.0, 40.0}) {
            Stroke const stroke(GLOX::Color(), w, SolidLine, FlatCap, MiterJoin, f);
            LodReach const bound = stroke.widthBound();
            double tightest = 1e300;
            for (double s : scales) {
                EXPECT_LE(stroke.width(s), bound.at(s) * (1 + 1e-12)) << f->name().str() << " width " << w << " at " << s;
                tightest = std::min(tightest, bound.at(s) / stroke.width(s));
            }
            EXPECT_LE(tightest, 1.5) << f->name().str() << " width " << w;
        }
    }
}
