#include "WorkerThread.h"

#include "GLUV/Thread.h"
#include "ut/Assert.h"

#include <gtest/gtest.h>
#include <memory>
#include <vector>

using GLUV::Thread;

TEST(GLUVThread, EachThreadHasOneObjectAndNamesFindLiveThreads)
{
    Thread *main = Thread::getCurrentThread();
    EXPECT_EQ(Thread::getCurrentThread(), main);
    EXPECT_TRUE(main->isCurrent());

    Thread *worker = nullptr;
    {
        WorkerThread w("gluv-test-worker");
        worker = w.gluv();
        EXPECT_NE(worker, main);
        EXPECT_FALSE(worker->isCurrent());
        EXPECT_EQ(Thread::getNamedThread("gluv-test-worker"), worker);
        EXPECT_EQ(worker->name(), "gluv-test-worker");
        w.run([worker] { EXPECT_EQ(Thread::getCurrentThread(), worker); });

        // A name belongs to one thread: taking it moves it.
        w.run([] { Thread::nameCurrentThread("gluv-test-other"); });
        EXPECT_EQ(Thread::getNamedThread("gluv-test-worker"), nullptr);
        Thread::nameCurrentThread("gluv-test-moving");
        w.run([] { Thread::nameCurrentThread("gluv-test-moving"); });
        EXPECT_EQ(Thread::getNamedThread("gluv-test-moving"), worker);
        EXPECT_EQ(main->name(), "");
    }
    // An ended thread gives up its name.
    EXPECT_TRUE(worker->hasFinished());
    EXPECT_EQ(Thread::getNamedThread("gluv-test-moving"), nullptr);
    EXPECT_EQ(Thread::getNamedThread("no such thread"), nullptr);
}

TEST(GLUVThread, ProcessPostedRunsInOrderIncludingLatePostsAndStopsAtAThrow)
{
    Thread *self = Thread::getCurrentThread();
    std::vector<int> ran;
    self->post([&] {
        ran.push_back(1);
        self->post([&] { ran.push_back(3); });
    });
    self->post([&] { ran.push_back(2); });
    EXPECT_TRUE(self->hasPosted());
    EXPECT_EQ(self->processPosted(), 3);
    EXPECT_EQ(ran, (std::vector<int>{1, 2, 3}));
    EXPECT_FALSE(self->hasPosted());

    // A throwing callback leaves the rest queued.
    self->post([] { throw std::runtime_error("callback failed"); });
    self->post([&] { ran.push_back(4); });
    EXPECT_THROW(self->processPosted(), std::runtime_error);
    EXPECT_EQ(ran.size(), 3u);
    EXPECT_EQ(self->processPosted(), 1);
    EXPECT_EQ(ran.back(), 4);
    EXPECT_EQ(self->processPosted(), 0);
}

TEST(GLUVThread, WakeUpHandlerRunsOnThePostingThread)
{
    WorkerThread w;
    Thread *main = Thread::getCurrentThread();
    std::vector<Thread *> wokenOn;
    main->setWakeUpHandler([&] { wokenOn.push_back(Thread::getCurrentThread()); });
    w.run([main] { main->post([] {}); });
    main->post([] {});
    main->setWakeUpHandler(nullptr);
    main->post([] {});
    EXPECT_EQ(wokenOn, (std::vector<Thread *>{w.gluv(), main}));
    EXPECT_EQ(main->processPosted(), 3);
}

TEST(GLUVThread, AnotherThreadsQueueIsNotForThisOneAndPostsAfterItEndsAreDestroyedUnrun)
{
    Thread *ended = nullptr;
    auto token = std::make_shared<int>(0);
    {
        WorkerThread w;
        ended = w.gluv();
        EXPECT_THROW(ended->processPosted(), ut::AssertionError);
    }
    bool ran = false;
    ended->post([token, &ran] { ran = true; });
    EXPECT_FALSE(ran);
    EXPECT_EQ(token.use_count(), 1);
    EXPECT_FALSE(ended->hasPosted());
}
