// The style values: the stroke width rule at a scale, the few rules of
// their constructors, and equality over every field.

#include <Background>
#include <ConstantLodScale>
#include <DrawStyle>
#include <SplitLinearLodScale>

#include <functional>
#include <gtest/gtest.h>
#include <vector>

using namespace VOR2;
using GLOX::Color;

namespace {
// Each change makes a default value unequal to the default.
template <typename T>
void expectEveryChangeMatters(std::vector<std::function<void(T &)>> const &changes)
{
    for (size_t i = 0; i < changes.size(); ++i) {
        T value;
        changes[i](value);
        EXPECT_NE(value, T()) << "change " << i;
        EXPECT_FALSE(value == T()) << "change " << i;
    }
}
} // namespace

TEST(StyleValues, DefaultsAndConstructors)
{
    EXPECT_EQ(Stroke(), Stroke(Color(0, 0, 0, 1), 0.0, SolidLine, FlatCap, MiterJoin, LodScale::instance()));
    EXPECT_EQ(Stroke(), Stroke(Color(), 0.0));
    EXPECT_FALSE(Stroke().isNoStroke());
    EXPECT_TRUE(Stroke::NoStroke().isNoStroke());
    EXPECT_EQ(Stroke(DashLine), Stroke(Color(), 0.0, DashLine));
    EXPECT_EQ(Stroke(Color(), 1, SolidLine, FlatCap, MiterJoin, nullptr).scaleFunction(), LodScale::instance());

    EXPECT_EQ(Fill(), Fill::NoFill());
    EXPECT_TRUE(Fill().isNoFill());
    EXPECT_EQ(Fill().color(), Color(0, 0, 0, 1));
    EXPECT_EQ(Fill(Color(1, 0, 0)).style(), Solid);
    EXPECT_EQ(Fill(Color(1, 0, 0), NoFill).style(), NoFill);
    GLOX::Gradient g = GLOX::Gradient::linear({0, 0}, {1, 0});
    EXPECT_EQ(Fill(g).style(), GradientFill);
    EXPECT_EQ(Fill(g).gradient(), g);
}

TEST(Stroke, WidthAtAScale)
{
    EXPECT_DOUBLE_EQ(Stroke().width(4), 0.25); // hairline: one view pixel
    Stroke hair(Color(), 0.0, SolidLine, FlatCap, MiterJoin, SplitLinearLodScale::instance());
    EXPECT_DOUBLE_EQ(hair.width(2), 0.5); // whatever the function

    Stroke s(Color(), 2.0, SolidLine, FlatCap, MiterJoin, ConstantLodScale::instance());
    EXPECT_DOUBLE_EQ(s.width(4), 0.5);
    s.setScaleFunction(SplitLinearLodScale::instance());
    EXPECT_NEAR(s.width(2), 2 * 0.6364, 1e-4);
    s.setScaleFunction(nullptr);
    EXPECT_EQ(s.scaleFunction(), LodScale::instance());
    EXPECT_DOUBLE_EQ(s.width(4), 2.0);
}

TEST(StyleValues, EveryFieldTakesPartInEquality)
{
    expectEveryChangeMatters<Stroke>({
        [](Stroke &s) { s.setColor(Color(1, 0, 0)); },
        [](Stroke &s) { s.setLogicalWidth(1.5); },
        [](Stroke &s) { s.setStyle(DotLine); },
        [](Stroke &s) { s.setCapStyle(RoundCap); },
        [](Stroke &s) { s.setJoinStyle(BevelJoin); },
        [](Stroke &s) { s.setScaleFunction(ConstantLodScale::instance()); },
    });
    expectEveryChangeMatters<Fill>({
        [](Fill &f) { f.setColor(Color(0, 1, 0)); },
        [](Fill &f) { f.setGradient(GLOX::Gradient::linear({0, 0}, {1, 0})); },
        [](Fill &f) { f.setStyle(Solid); },
    });
    expectEveryChangeMatters<DrawStyle>({
        [](DrawStyle &d) { d.setStroke(Stroke::NoStroke()); },
        [](DrawStyle &d) { d.setFill(Fill(Color())); },
        [](DrawStyle &d) { d.setIsAntiAliased(true); },
    });
    expectEveryChangeMatters<Background>({
        [](Background &b) { b.setColor(Color(0.2, 0.4, 0.6)); },
        [](Background &b) { b.setGradient(GLOX::Gradient::linear({0, 0}, {0, 1})); },
        [](Background &b) { b.setImage("paper.png"); },
        [](Background &b) { b.setImagePlacement(3); },
    });
}

TEST(Background, PresenceOfColourGradientAndImage)
{
    Background b;
    EXPECT_FALSE(b.hasColor() || b.hasGradient() || b.hasImage());
    EXPECT_EQ(b.getColor(), Color(1, 1, 1, 0));
    EXPECT_EQ(b.getImagePlacement(), 0u);

    EXPECT_TRUE(Background(Color(0, 0, 0, 0.5)).hasColor());
    EXPECT_FALSE(Background(Color(1, 0, 0, 0)).hasColor()) << "a transparent colour is none";
    EXPECT_TRUE(Background(GLOX::Gradient::radial({0, 0}, 1)).hasGradient());
    EXPECT_TRUE(Background(std::string("paper.png")).hasImage());

    Background all(Color(0.2, 0.4, 0.6));
    all.setGradient(GLOX::Gradient::linear({0, 0}, {0, 1}));
    all.setImage("paper.png");
    all.clearColor();
    all.clearGradient();
    all.clearImage();
    EXPECT_EQ(all, Background());
}
