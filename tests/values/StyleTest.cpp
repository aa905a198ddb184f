#include <Background>
#include <ConstantLodScale>
#include <DrawStyle>
#include <SplitLinearLodScale>

#include <Qt>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

using namespace VOR2;
using GLOX::Color;

TEST(Stroke, DefaultsAndEnumeratorValues)
{
    Stroke s;
    EXPECT_EQ(s.color(), Color(0, 0, 0, 1));
    EXPECT_EQ(s.logicalWidth(), 0.0);
    EXPECT_EQ(s.style(), SolidLine);
    EXPECT_EQ(s.capStyle(), FlatCap);
    EXPECT_EQ(s.joinStyle(), MiterJoin);
    EXPECT_EQ(s.scaleFunction(), LodScale::instance());
    EXPECT_FALSE(s.isNoStroke());
    EXPECT_TRUE(Stroke::NoStroke().isNoStroke());
    EXPECT_EQ(Stroke(DashLine).style(), DashLine);
    EXPECT_EQ(Stroke(DashLine).logicalWidth(), 0.0);

    // Line styles follow Qt's pen styles; caps and joins their listed order.
    EXPECT_EQ(int(NoStroke), int(Qt::NoPen));
    EXPECT_EQ(int(DotLine), int(Qt::DotLine));
    EXPECT_EQ(int(DashDotDotLine), int(Qt::DashDotDotLine));
    EXPECT_EQ(int(RoundCap), 2);
    EXPECT_EQ(int(BevelJoin), 1);
    EXPECT_EQ(int(SvgMiterJoin), 3);
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
    EXPECT_EQ(Stroke(Color(), 1, SolidLine, FlatCap, MiterJoin, nullptr).scaleFunction(), LodScale::instance());
}

TEST(Stroke, EveryFieldTakesPartInEquality)
{
    std::vector<std::function<void(Stroke &)>> const changes = {
        [](Stroke &s) { s.setColor(Color(1, 0, 0)); },
        [](Stroke &s) { s.setLogicalWidth(1.5); },
        [](Stroke &s) { s.setStyle(DotLine); },
        [](Stroke &s) { s.setCapStyle(RoundCap); },
        [](Stroke &s) { s.setJoinStyle(BevelJoin); },
        [](Stroke &s) { s.setScaleFunction(ConstantLodScale::instance()); },
    };
    for (size_t i = 0; i < changes.size(); ++i) {
        Stroke s;
        changes[i](s);
        EXPECT_NE(s, Stroke()) << "change " << i;
        EXPECT_FALSE(s == Stroke()) << "change " << i;
    }
    EXPECT_EQ(Stroke(), Stroke(Color(), 0.0));
}

TEST(Fill, StylesFromConstructorsAndEquality)
{
    EXPECT_EQ(Fill(), Fill::NoFill());
    EXPECT_TRUE(Fill().isNoFill());
    EXPECT_EQ(Fill().color(), Color(0, 0, 0, 1));
    EXPECT_EQ(Fill(Color(1, 0, 0)).style(), Solid);
    EXPECT_FALSE(Fill(Color(1, 0, 0)).isNoFill());
    EXPECT_EQ(Fill(Color(1, 0, 0), NoFill).style(), NoFill);
    GLOX::Gradient g = GLOX::Gradient::linear({0, 0}, {1, 0});
    EXPECT_EQ(Fill(g).style(), GradientFill);
    EXPECT_EQ(Fill(g).gradient(), g);

    Fill f;
    f.setColor(Color(0, 1, 0));
    EXPECT_NE(f, Fill());
    EXPECT_TRUE(f.isNoFill());
    f = Fill();
    f.setGradient(g);
    EXPECT_NE(f, Fill());
    f = Fill();
    f.setStyle(Solid);
    EXPECT_NE(f, Fill());
}

TEST(DrawStyle, EveryFieldTakesPartInEquality)
{
    EXPECT_NE(DrawStyle(Stroke(), Fill(), true), DrawStyle());
    EXPECT_NE(DrawStyle(Stroke::NoStroke(), Fill()), DrawStyle());
    EXPECT_NE(DrawStyle(Stroke(), Fill(Color())), DrawStyle());
    EXPECT_EQ(DrawStyle(Stroke(), Fill()), DrawStyle());
}

TEST(Background, PresenceOfColourGradientAndImage)
{
    Background b;
    EXPECT_FALSE(b.hasColor());
    EXPECT_FALSE(b.hasGradient());
    EXPECT_FALSE(b.hasImage());
    EXPECT_EQ(b.getColor(), Color(1, 1, 1, 0));
    EXPECT_EQ(b.getImagePlacement(), 0u);

    EXPECT_TRUE(Background(Color(0, 0, 0, 0.5)).hasColor());
    EXPECT_FALSE(Background(Color(1, 0, 0, 0)).hasColor());
    EXPECT_TRUE(Background(GLOX::Gradient::radial({0, 0}, 1)).hasGradient());
    EXPECT_TRUE(Background(std::string("paper.png")).hasImage());

    Background all(Color(0.2, 0.4, 0.6));
    all.setGradient(GLOX::Gradient::linear({0, 0}, {0, 1}));
    all.setImage("paper.png");
    EXPECT_TRUE(all.hasColor() && all.hasGradient() && all.hasImage());
    all.clearColor();
    EXPECT_FALSE(all.hasColor());
    all.clearGradient();
    EXPECT_FALSE(all.hasGradient());
    all.clearImage();
    EXPECT_FALSE(all.hasImage());
    EXPECT_EQ(all, Background());
    all.setImagePlacement(3);
    EXPECT_NE(all, Background());
}
