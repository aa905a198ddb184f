#include "GLOX/Color.h"
#include "GLOX/GLRect.h"
#include "GLOX/Holder.h"
#include "GLOX/ReferencedTemplate.h"
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

TEST(GLRect, ValidityFollowsTheCacheRule)
{
    EXPECT_TRUE(GLRect<double>(0, 0, 1, 1).isValid());
    EXPECT_FALSE(GLRect<double>(0, 0, 0, 1).isValid());
    EXPECT_FALSE(GLRect<double>(0, 0, -1, 1).isValid());
    EXPECT_FALSE(GLRect<double>(std::nan(""), 0, 1, 1).isValid());
    EXPECT_FALSE(GLRect<double>(0, 0, INFINITY, 1).isValid());
    GLRect<double> a(0, 0, 10, 10), b(5, 5, 10, 10);
    EXPECT_EQ(a.united(b), GLRect<double>(0, 0, 15, 15));
    EXPECT_EQ(a.intersected(b), GLRect<double>(5, 5, 5, 5));
    EXPECT_EQ(a.intersected(GLRect<double>(20, 20, 1, 1)), GLRect<double>());
    EXPECT_EQ(a.united(GLRect<double>()), a);
}

namespace {
struct Counted : ReferencedTemplate<unsigned int> {
    explicit Counted(int *deaths) : deaths(deaths) {}
    ~Counted() override { ++*deaths; }
    int *deaths;
};
} // namespace

TEST(Holder, LastHolderDestroysTheObject)
{
    int deaths = 0;
    {
        Holder<Counted> a(new Counted(&deaths));
        Holder<Counted> b = a;
        EXPECT_EQ(a->refCount(), 2u);
        a.reset();
        EXPECT_EQ(deaths, 0);
    }
    EXPECT_EQ(deaths, 1);
}
