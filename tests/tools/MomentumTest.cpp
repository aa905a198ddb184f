// Momentum: the moving average of the drag's speed and the decay after
// release, fed points and times by hand; then the controller on a host loop
// under a manual clock, ticking a decaying glide until it stops.

#include <MomentumController>

#include "tools/MomentumSampling.h"

#include "GLServices/HostRunLoop.h"
#include "GLServices/ManualClock.h"

#include <gtest/gtest.h>
#include <cmath>
#include <vector>

using namespace VOR2;
using Point = GLOX::GLPoint<double>;

namespace {

constexpr double WINDOW = MomentumController::DEFAULT_VELOCITY_MOVING_AVERAGING_PERIOD_SEC;

// A drag from (0, 0) to the right: the press, then `steps` moves of `step`
// pixels, each `ms` after the one before.
MomentumSampling drag(int steps, double step, double ms)
{
    MomentumSampling s;
    EXPECT_TRUE(s.sample({0, 0}, 5, WINDOW));
    for (int i = 1; i <= steps; ++i) EXPECT_TRUE(s.sample({i * step, 0}, ms, WINDOW));
    return s;
}

} // namespace

TEST(MomentumSampling, AUniformDragAveragesToItsSpeedAndDecaysToAStop)
{
    // 100 pixels in 0.1 s, the press 5 ms after the reset: that first
    // interval has no speed and stays in the window.
    MomentumSampling s = drag(10, 10, 10);
    double const average = 1000.0 * 0.1 / 0.105;
    EXPECT_TRUE(s.hasSamples());
    EXPECT_NEAR(s.releaseMagnitude(), average, 1e-9);
    EXPECT_EQ(s.releaseDirection(), Point(1, 0));

    s.divideMagnitude(MomentumController::DEFAULT_VELOCITY_CONSTANT_DIVISOR);
    double const release = average / 12.0;
    EXPECT_NEAR(s.releaseMagnitude(), release, 1e-9);
    EXPECT_NEAR(s.magnitudeAt(0.030, 8.0), release * std::exp(-0.24), 1e-6);
    Point const first = s.velocityAt(0.030, 8.0);
    EXPECT_NEAR(first.x, release * std::exp(-0.24), 1e-6);
    EXPECT_EQ(first.y, 0.0);
    // The glide falls under the stop velocity 2.0 at ln(release / 2) / 8 s.
    double const end = std::log(release / 2.0) / 8.0;
    EXPECT_GE(s.magnitudeAt(end - 0.001, 8.0), 2.0);
    EXPECT_LT(s.magnitudeAt(end + 0.001, 8.0), 2.0);
}

TEST(MomentumSampling, TheFirstSampleStartsTheWindowAndSamplesWithinAMillisecondAreDropped)
{
    MomentumSampling first;
    EXPECT_TRUE(first.sample({50, 50}, 40, WINDOW));
    EXPECT_FALSE(first.hasSamples());
    EXPECT_DOUBLE_EQ(first.sampledPeriod(), 0.04);

    MomentumSampling s = drag(2, 10, 10);
    double const before = s.releaseMagnitude();
    EXPECT_FALSE(s.sample({500, 500}, 0, WINDOW));
    EXPECT_FALSE(s.sample({500, 500}, 0.5, WINDOW));
    EXPECT_EQ(s.lastLocation(), Point(20, 0));
    EXPECT_EQ(s.releaseMagnitude(), before);
}

TEST(MomentumSampling, EachSampleWeighsByItsDurationInsideTheWindow)
{
    MomentumSampling s;
    s.sample({0, 0}, 5, WINDOW);
    s.sample({100, 0}, 100, WINDOW); // 1000 px/s over 0.1 s, after 5 ms without speed
    EXPECT_DOUBLE_EQ(s.sampledPeriod(), 0.105);
    double const moving = 1000.0 * 0.1 / 0.105;
    EXPECT_NEAR(s.releaseMagnitude(), moving, 1e-9);
    s.sample({100, 0}, 150, WINDOW); // standing still for 0.15 s: 0.05 s of the old average is left
    EXPECT_NEAR(s.sampledPeriod(), 0.2, 1e-12);
    EXPECT_NEAR(s.releaseMagnitude(), moving * 0.05 / 0.2, 1e-9);
    EXPECT_EQ(s.releaseDirection(), Point(1, 0)) << "a standstill keeps the last direction";
}

TEST(MomentumSampling, APauseLongerThanTheWindowReplacesTheAverage)
{
    MomentumSampling s = drag(10, 10, 10);
    s.sample({100, 3}, 300, WINDOW); // 3 pixels down in 0.3 s
    EXPECT_NEAR(s.releaseMagnitude(), 10.0, 1e-9);
    EXPECT_EQ(s.releaseDirection(), Point(0, 1));
    s.divideMagnitude(12.0);
    EXPECT_LT(s.magnitudeAt(0.03, 8.0), 2.0) << "too slow to glide at all";
}

TEST(MomentumSampling, DirectionIsAUnitVectorAndResetKeepsTheLastLocation)
{
    MomentumSampling s;
    s.sample({0, 0}, 5, WINDOW);
    s.sample({-30, 40}, 10, WINDOW);
    EXPECT_NEAR(s.releaseDirection().x, -0.6, 1e-12);
    EXPECT_NEAR(s.releaseDirection().y, 0.8, 1e-12);
    double const speed = 5000.0 * 0.01 / 0.015;
    EXPECT_NEAR(s.releaseMagnitude(), speed, 1e-9);
    s.multiplyMagnitude(0.6);
    EXPECT_NEAR(s.releaseMagnitude(), speed * 0.6, 1e-9);

    s.reset();
    EXPECT_FALSE(s.hasSamples());
    EXPECT_EQ(s.sampledPeriod(), 0.0);
    EXPECT_EQ(s.releaseMagnitude(), 0.0);
    EXPECT_EQ(s.releaseDirection(), Point());
    EXPECT_EQ(s.lastLocation(), Point(-30, 40));
}

namespace {

// A controller on a host loop of its own, under a manual clock, recording
// what it sends.
struct GlidingController : ::testing::Test {
    GLServices::HostRunLoop loop;
    GLServices::ManualClock clock{loop};
    MomentumController momentum;
    std::vector<Point> steps;
    std::vector<long long> stepTimes;
    int started = 0, ended = 0;

    void SetUp() override
    {
        momentum.velocityEmitter.connect(nullptr, [this](Point v) {
            steps.push_back(v);
            stepTimes.push_back(clock.now().count());
        });
        momentum.momentumStartedEmitter.connect(nullptr, [this] { ++started; });
        momentum.momentumEndedEmitter.connect(nullptr, [this] { ++ended; });
    }

    // 100 pixels to the right in 0.1 s, in moves 10 ms apart.
    void dragRight()
    {
        clock.advance(5);
        momentum.sampleLocation({0, 0});
        for (int i = 1; i <= 10; ++i) {
            clock.advance(10);
            ASSERT_TRUE(momentum.sampleLocation({i * 10.0, 0}));
        }
    }
};

} // namespace

TEST_F(GlidingController, AReleaseGlidesWithDecayingStepsUntilTheStopVelocity)
{
    dragRight();
    momentum.beginMomentumNotifications();
    EXPECT_TRUE(momentum.isNotifying());
    EXPECT_EQ(started, 1);
    double const release = 1000.0 * 0.1 / 0.105 / 12.0;
    EXPECT_NEAR(momentum.getReleaseMagnitude(), release, 1e-9);
    EXPECT_FALSE(momentum.sampleLocation({500, 0})) << "no sampling during the glide";

    clock.advance(2000);
    ASSERT_FALSE(steps.empty());
    EXPECT_NEAR(steps.front().x, release * std::pow(MomentumController::E, -0.24), 1e-9);
    EXPECT_EQ(stepTimes.front(), 105 + 30) << "the first tick 30 ms after the release";
    for (std::size_t i = 1; i < steps.size(); ++i) {
        EXPECT_LT(steps[i].x, steps[i - 1].x) << "decaying, at step " << i;
        EXPECT_EQ(steps[i].y, 0.0);
        EXPECT_EQ(stepTimes[i] - stepTimes[i - 1], 30);
    }
    EXPECT_GE(steps.back().x, 2.0);
    EXPECT_EQ(steps.size(), 15u) << "the 16th tick, at 0.48 s, is under 2.0";
    EXPECT_EQ(ended, 1);
    EXPECT_FALSE(momentum.isNotifying());
    EXPECT_FALSE(momentum.hasSamples()) << "the end resets the sampling";
}

TEST_F(GlidingController, AZeroDivisorEndsTheGlideInsteadOfGlidingForEver)
{
    momentum.setVelocityConstantDivisor(0.0);
    dragRight();
    momentum.beginMomentumNotifications();
    clock.advance(100);
    EXPECT_TRUE(steps.empty());
    EXPECT_EQ(ended, 1);
}
