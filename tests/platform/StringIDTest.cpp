// The small GLOX values the rest builds on. Rectangle arithmetic is covered
// through Bounds, and Holder through the node and scene ownership tests.

#include "GLOX/Color.h"
#include "GLOX/GLRect.h"
#include "GLOX/StringID.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

using namespace GLOX;

TEST(StringID, EqualTextsShareOneEntryAcrossThreads)
{
    std::vector<std::string const *> keys(4);
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&keys, i] { keys[i] = StringID(std::string("Sel") + "ection").key(); });
    for (auto &t : threads) t.join();
    for (auto *k : keys) EXPECT_EQ(k, StringID("Selection").key());
    EXPECT_EQ(StringID(), StringID(""));
    EXPECT_NE(StringID("a"), StringID("b"));
    EXPECT_TRUE(StringID().isEmpty());
}

TEST(Color, BytesRunAlphaBlueGreenRedFromTheLowByteUp)
{
    Color c = Color::fromBytes(0x11, 0x22, 0x33, 0x44);
    EXPECT_EQ(c.value(), 0x11223344u);
    EXPECT_EQ(Color(0.0, 1.0, 0.0, 0.5).value(), 0x00ff0080u);
    EXPECT_EQ(Color(), Color(0, 0, 0, 1));
    EXPECT_EQ(fromQColor(toQColor(c)), c);
    EXPECT_EQ(Color(-1.0, 2.0, std::nan(""), 1.0).value(), 0x00ff00ffu); // clamped, NaN to 0
}

TEST(GLRect, ValidityNeedsAPositiveFiniteExtentAndANumberPosition)
{
    EXPECT_TRUE(GLRect<double>(0, 0, 1, 1).isValid());
    EXPECT_FALSE(GLRect<double>(0, 0, 0, 1).isValid());
    EXPECT_FALSE(GLRect<double>(0, 0, -1, 1).isValid());
    EXPECT_FALSE(GLRect<double>(std::nan(""), 0, 1, 1).isValid());
    EXPECT_FALSE(GLRect<double>(0, 0, INFINITY, 1).isValid());
}
