// Host timers on the manual clock: they fire exactly when the clock reaches
// their deadlines, in deadline order, until stopped.

#include "GLServices/HostRunLoop.h"
#include "GLServices/ManualClock.h"
#include <HostRuntime>

#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

using GLServices::ManualClock;
using GLServices::TarvoTimer;
using VOR2::HostRuntime;

namespace {

struct Fired {
    std::string name;
    long long at;
    bool operator==(Fired const &o) const { return name == o.name && at == o.at; }
};

std::ostream &operator<<(std::ostream &os, Fired const &f)
{
    return os << f.name << "@" << f.at;
}

class HostTimerTest : public ::testing::Test {
protected:
    void SetUp() override { HostRuntime::loop().runUntilIdle(); } // counts start from an idle loop

    std::shared_ptr<TarvoTimer> make(std::string const &name, std::function<void()> also = {})
    {
        std::shared_ptr<TarvoTimer> timer = HostRuntime::loop().createTimer();
        timer->tick().connect(nullptr, [this, name, also] {
            fired.push_back({name, static_cast<long long>(clock.now().count())});
            if (also) also();
        });
        return timer;
    }

    ManualClock clock{HostRuntime::loop()};
    std::vector<Fired> fired;
};

} // namespace

TEST_F(HostTimerTest, FireInDeadlineOrderThenStartOrderAndRepeat)
{
    auto a = make("a"), b = make("b"), c = make("c");
    a->startRepeating(30);
    b->startRepeating(20);
    c->startRepeating(20);
    EXPECT_TRUE(a->isActive());
    EXPECT_EQ(a->remainingTime(), 30);

    EXPECT_EQ(clock.advance(19), 0);
    EXPECT_TRUE(fired.empty());
    EXPECT_EQ(clock.advance(41), 8);
    EXPECT_EQ(fired, (std::vector<Fired>{{"b", 20}, {"c", 20}, {"a", 30}, {"b", 40}, {"c", 40},
                                         {"a", 60}, {"b", 60}, {"c", 60}}));
    EXPECT_EQ(b->remainingTime(), 20);
}

TEST_F(HostTimerTest, StopRestartAndDestroyFromTicks)
{
    std::shared_ptr<TarvoTimer> b, c;
    auto a = make("a", [&] { c->stop(); }); // stops c although c is due at the same time
    b = make("b", [&] { b.reset(); });      // destroys itself in its tick
    c = make("c");
    a->startRepeating(10);
    b->startRepeating(10);
    c->startRepeating(10);
    clock.advance(25);
    EXPECT_EQ(fired, (std::vector<Fired>{{"a", 10}, {"b", 10}, {"a", 20}}));
    EXPECT_FALSE(c->isActive());
    EXPECT_EQ(c->remainingTime(), -1);

    // A restart counts from now.
    fired.clear();
    a->startRepeating(10);
    clock.advance(9);
    a->stop();
    clock.advance(50);
    EXPECT_TRUE(fired.empty());
}

TEST_F(HostTimerTest, ZeroIntervalFiresOncePerPass)
{
    auto z = make("z");
    z->startRepeating(0);
    EXPECT_EQ(HostRuntime::loop().runUntilIdle(), 1);
    EXPECT_EQ(HostRuntime::loop().runUntilIdle(), 1);
    z->stop();
    EXPECT_EQ(HostRuntime::loop().runUntilIdle(), 0);
}

TEST(HostTimer, KeepsItsDistanceToTheNextTickAcrossClockChanges)
{
    std::shared_ptr<TarvoTimer> timer = HostRuntime::loop().createTimer();
    int ticks = 0;
    timer->tick().connect(nullptr, [&] { ++ticks; });
    {
        ManualClock clock(HostRuntime::loop());
        timer->startRepeating(1000000);
        clock.advance(400000);
    }
    // Back on the real clock, then on a new manual one.
    EXPECT_GT(timer->remainingTime(), 500000);
    ManualClock clock(HostRuntime::loop());
    int const left = timer->remainingTime();
    EXPECT_GT(left, 500000);
    EXPECT_LE(left, 600000);
    clock.advance(left - 1);
    EXPECT_EQ(ticks, 0);
    clock.advance(1);
    EXPECT_EQ(ticks, 1);
}
