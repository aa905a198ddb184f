// Qt's timers and posted events on the host thread, served by the host loop
// through the event dispatcher with no Qt event loop running there.

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "GLServices/ManualClock.h"
#include <HostRuntime>
#include "widget/VOREventDispatcher.h"

#include <QCoreApplication>
#include <QGraphicsScene>
#include <QPointer>
#include <QThread>
#include <QTimer>
#include <QTimerEvent>
#include <gtest/gtest.h>
#include <vector>

using GLServices::ManualClock;
using VOR2::HostRuntime;
using VOR2::VOREventDispatcher;

namespace {

class Receiver : public QObject {
public:
    std::vector<int> timerIds;
    int customEvents = 0;
    size_t killAfter = 0; // kills the timer from its own event after that many

protected:
    void timerEvent(QTimerEvent *event) override
    {
        timerIds.push_back(event->timerId());
        if (timerIds.size() == killAfter) killTimer(event->timerId());
    }
    void customEvent(QEvent *) override { ++customEvents; }
};

} // namespace

TEST(VOREventDispatcher, IsInstalledForTheHostThreadAndRunsNoLoopOfItsOwn)
{
    VOREventDispatcher *dispatcher = VOREventDispatcher::instance();
    ASSERT_NE(dispatcher, nullptr);
    EXPECT_EQ(QThread::currentThread()->eventDispatcher(), dispatcher);
    EXPECT_NE(QThread::currentThread(), qApp->thread());
    EXPECT_FALSE(dispatcher->processEvents(QEventLoop::AllEvents));
    EXPECT_FALSE(dispatcher->hasPendingEvents());
    EXPECT_FALSE(dispatcher->unregisterTimer(123456));
    EXPECT_EQ(dispatcher->remainingTime(123456), -1);
}

TEST(VOREventDispatcher, PostedEventsArriveThroughOnePendingCallback)
{
    GLServices::HostRunLoop &loop = HostRuntime::loop();
    loop.runUntilIdle(); // start from an idle loop
    Receiver receiver;
    bool invoked = false;
    QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
    QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User));
    HostRuntime::bridge().runOnGui([&] { QCoreApplication::postEvent(&receiver, new QEvent(QEvent::User)); }, true);
    QMetaObject::invokeMethod(&receiver, [&] { invoked = QThread::currentThread() == receiver.thread(); },
                              Qt::QueuedConnection);
    EXPECT_EQ(receiver.customEvents, 0);
    EXPECT_EQ(loop.runUntilIdle(), 1); // one callback delivered all four
    EXPECT_EQ(receiver.customEvents, 3);
    EXPECT_TRUE(invoked);

    VOREventDispatcher::instance()->wakeUp();
    VOREventDispatcher::instance()->wakeUp();
    EXPECT_EQ(loop.runUntilIdle(), 1);

    // deleteLater outside any event handler, and from inside one.
    QPointer<QObject> top = new QObject;
    QPointer<QObject> nested = new QObject;
    top->deleteLater();
    QMetaObject::invokeMethod(nested, [&] { nested->deleteLater(); }, Qt::QueuedConnection);
    loop.runUntilIdle();
    EXPECT_TRUE(top.isNull());
    EXPECT_TRUE(nested.isNull());
}

TEST(VOREventDispatcher, TimersSendTimerEventsUntilKilled)
{
    VOREventDispatcher *dispatcher = VOREventDispatcher::instance();
    ManualClock clock(HostRuntime::loop());
    Receiver receiver;
    int const id = receiver.startTimer(10);
    ASSERT_GT(id, 0);
    QList<QAbstractEventDispatcher::TimerInfo> timers = dispatcher->registeredTimers(&receiver);
    ASSERT_EQ(timers.size(), 1);
    EXPECT_EQ(timers[0].timerId, id);
    EXPECT_EQ(timers[0].interval, 10);
    EXPECT_EQ(dispatcher->remainingTime(id), 10);
    clock.advance(35);
    EXPECT_EQ(receiver.timerIds, (std::vector<int>{id, id, id}));
    receiver.killTimer(id);
    EXPECT_TRUE(dispatcher->registeredTimers(&receiver).isEmpty());

    Receiver selfKilling;
    selfKilling.killAfter = 2;
    selfKilling.startTimer(5);

    int timeouts = 0, singleShots = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] { ++timeouts; });
    timer.start(20);
    QTimer::singleShot(30, [&] { ++singleShots; });
    {
        Receiver dying; // its timer goes with it
        dying.startTimer(1);
    }
    clock.advance(45);
    EXPECT_EQ(receiver.timerIds.size(), 3u);
    EXPECT_EQ(selfKilling.timerIds.size(), 2u);
    EXPECT_EQ(timeouts, 2);
    EXPECT_EQ(singleShots, 1);
    timer.stop();
    EXPECT_EQ(clock.advance(1000), 0); // no timer left
}

TEST(VOREventDispatcher, SceneOnTheHostThreadEmitsChangedWhenTheLoopRuns)
{
    QGraphicsScene scene;
    HostRuntime::loop().runUntilIdle(); // the scene's own first update
    QList<QRectF> changed;
    QObject::connect(&scene, &QGraphicsScene::changed, [&](QList<QRectF> const &rects) { changed += rects; });
    scene.update(QRectF(10, 20, 30, 40));
    EXPECT_TRUE(changed.isEmpty()); // queued
    HostRuntime::loop().runUntilIdle();
    EXPECT_EQ(changed, (QList<QRectF>{QRectF(10, 20, 30, 40)}));

    changed.clear();
    scene.addRect(0, 0, 5, 5);
    HostRuntime::loop().runUntilIdle();
    QRectF all;
    for (QRectF const &r : changed) all |= r;
    EXPECT_TRUE(all.contains(QRectF(0, 0, 5, 5)));
}
