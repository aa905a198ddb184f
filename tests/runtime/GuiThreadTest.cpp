// The GUI thread owns the QApplication and runs work and GLUV deliveries
// sent to it from the host thread.

#include "GLBridge/Bridge.h"
#include "GLUV/Emitter.h"
#include "GLUV/Thread.h"
#include <HostRuntime>

#include <QApplication>
#include <QThread>
#include <gtest/gtest.h>
#include <stdexcept>

using VOR2::HostRuntime;

TEST(GuiThread, OwnsTheApplicationAndRunsWorkThere)
{
    GLBridge::Bridge &bridge = HostRuntime::bridge();
    EXPECT_EQ(GLBridge::getBridge("qt"), &bridge);
    EXPECT_EQ(GLBridge::getBridge("tk"), nullptr);
    ASSERT_TRUE(bridge.isRunning());
    EXPECT_EQ(GLUV::Thread::getNamedThread(GLBridge::Bridge::GUI_THREAD_NAME), bridge.guiThread());
    EXPECT_NE(QThread::currentThread(), qApp->thread());

    bool onGui = false, nestedRanAtOnce = false;
    EXPECT_TRUE(bridge.runOnGui(
        [&] {
            onGui = QThread::currentThread() == qApp->thread() && bridge.guiThread()->isCurrent();
            bool ran = false;
            bridge.runOnGui([&] { ran = true; }, true);
            nestedRanAtOnce = ran;
        },
        true));
    EXPECT_TRUE(onGui);
    EXPECT_TRUE(nestedRanAtOnce);
    EXPECT_THROW(bridge.runOnGui([] { throw std::runtime_error("from the GUI thread"); }, true),
                 std::runtime_error);
}

TEST(GuiThread, GluvDeliversToTheGuiThread)
{
    GLBridge::Bridge &bridge = HostRuntime::bridge();
    GLUV::Emitter<void (*)(int)> emitter(GLUV::SendBlocking);
    int received = 0;
    bool onGui = false;
    emitter.connect(
        nullptr,
        [&](int value) {
            received = value;
            onGui = QThread::currentThread() == qApp->thread();
        },
        bridge.guiThread());
    emitter.send(42); // waits until the GUI thread ran it
    EXPECT_EQ(received, 42);
    EXPECT_TRUE(onGui);
    emitter.disconnectAll();
}
