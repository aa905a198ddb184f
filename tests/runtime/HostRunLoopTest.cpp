// The host loop runs work posted from other threads: host callbacks and GLUV
// deliveries, at once when pumped and by waking a waiting run.

#include "GLBridge/Bridge.h"
#include "GLServices/GLService.h"
#include "GLServices/HostRunLoop.h"
#include "GLUV/Emitter.h"
#include "GLUV/Thread.h"
#include <HostRuntime>

#include <gtest/gtest.h>
#include <vector>

using namespace std::chrono_literals;
using GLServices::HostRunLoop;
using VOR2::HostRuntime;

TEST(HostRunLoop, IsTheNamedHostThreadAndBothCurrentServices)
{
    HostRunLoop &loop = HostRuntime::loop();
    EXPECT_EQ(GLUV::Thread::getNamedThread("TARVO"), GLUV::Thread::getCurrentThread());
    EXPECT_EQ(loop.thread(), GLUV::Thread::getCurrentThread());
    EXPECT_EQ(GLServices::GLService<GLServices::EventManagement>::get(), &loop);
    EXPECT_EQ(GLServices::GLService<GLServices::TarvoTimerService>::get(), &loop);
}

TEST(HostRunLoop, RunsCallbacksAndGluvDeliveriesFromTheGuiThreadOnlyWhenPumped)
{
    HostRunLoop &loop = HostRuntime::loop();
    loop.runUntilIdle(); // start from an idle loop
    std::vector<int> ran;
    GLServices::EventManagement::Callback callback = loop.createCallback([&] { ran.push_back(1); });
    GLUV::Emitter<void (*)(int)> emitter; // connected for this, the host thread
    GLUV::Connection connection = emitter.connect(nullptr, [&](int v) { ran.push_back(v); });

    ASSERT_TRUE(HostRuntime::bridge().runOnGui(
        [&] {
            loop.postCallback(callback);
            emitter.send(7);
            loop.postCallback(callback); // posted twice, runs twice
        },
        true));
    EXPECT_TRUE(ran.empty());
    EXPECT_EQ(loop.runUntilIdle(), 3);
    EXPECT_EQ(ran, (std::vector<int>{1, 7, 1}));
    EXPECT_EQ(loop.runUntilIdle(), 0);

    // Work posted while running runs in the same call.
    loop.postCallback(loop.createCallback([&] { loop.postCallback(callback); }));
    EXPECT_EQ(loop.runUntilIdle(), 2);
    emitter.disconnectAll();
}

TEST(HostRunLoop, AWaitingRunWakesForPostsRealTimersAndQuit)
{
    HostRunLoop &loop = HostRuntime::loop();
    bool posted = false;
    HostRuntime::bridge().runOnGui([&] { loop.postCallback(loop.createCallback([&] { posted = true; })); }, false);
    EXPECT_TRUE(loop.runUntil([&] { return posted; }, 30s));

    // A timer on the real clock ends the wait at its deadline.
    std::shared_ptr<GLServices::TarvoTimer> timer = loop.createTimer();
    int ticks = 0;
    timer->tick().connect(nullptr, [&] { ++ticks; });
    timer->startRepeating(2);
    EXPECT_TRUE(loop.runUntil([&] { return ticks >= 3; }, 30s));
    timer->stop();

    // quit() from another thread ends a run that would otherwise last.
    HostRuntime::bridge().runOnGui([&] { loop.quit(); }, false);
    EXPECT_FALSE(loop.runUntil([] { return false; }, 600s));
}
