#include "WorkerThread.h"

#include "GLUV/Emitter.h"
#include "GLUV/Packet.h"

#include <gtest/gtest.h>
#include <atomic>
#include <future>
#include <memory>
#include <string>
#include <vector>

using namespace GLUV;

namespace {

// Records every value it receives and the thread it received it on.
struct Recorder : Listener {
    void onValue(int v)
    {
        values.push_back(v);
        threads.push_back(std::this_thread::get_id());
    }
    std::vector<int> values;
    std::vector<std::thread::id> threads;
};

// An argument type passed by reference, changed by its listeners.
struct Event {
    int x = 0;
    bool accepted = false;
};

int drainHere()
{
    return Thread::getCurrentThread()->processPosted();
}

} // namespace

TEST(GLUVEmitter, ModesWithinOneThreadFollowConnectionOrder)
{
    Emitter<void (*)(int)> emitter; // SendAuto by default
    EXPECT_EQ(emitter.sendMode(), SendAuto);
    std::vector<std::string> calls;
    auto logAs = [&calls](std::string name) {
        return [&calls, name](int v) { calls.push_back(name + std::to_string(v)); };
    };
    Listener a, b;
    emitter.connect(&a, logAs("a"));
    emitter.connect(&b, logAs("b"));
    emitter.connect(nullptr, logAs("free"));
    EXPECT_EQ(emitter.connectionCount(), 3);

    emitter.send(1);                   // auto, same thread: now
    emitter.sendWith(SendBlocking, 2); // blocking, same thread: now
    emitter.sendWith(SendDirect, 3);
    emitter.sendWith(SendQueued, 4); // queued even on the same thread
    EXPECT_EQ(calls, (std::vector<std::string>{"a1", "b1", "free1", "a2", "b2", "free2", "a3", "b3", "free3"}));
    EXPECT_EQ(drainHere(), 3);
    EXPECT_EQ(calls.size(), 12u);
    EXPECT_EQ(calls.back(), "free4");
}

TEST(GLUVEmitter, QueuedArgumentsAreCopiesWhateverTheSignature)
{
    Emitter<void (*)()> bare(SendQueued);
    Emitter<void (*)(std::string const &, double)> named(SendQueued);
    Emitter<void (*)(Event &)> byReference(SendQueued);
    Listener l;
    int bareCalls = 0;
    std::string lastName;
    std::vector<int> seen;
    bare.connect(&l, [&] { ++bareCalls; });
    named.connect(&l, [&](std::string const &s, double d) { lastName = s + "=" + std::to_string(int(d)); });
    byReference.connect(&l, [&](Event &e) {
        seen.push_back(e.x);
        e.accepted = true;
    });
    {
        std::string temporary = "width";
        named.send(temporary, 3.0);
    } // the queued copy outlives the sender's string
    bare.send();
    Event e;
    e.x = 5;
    byReference.send(e);
    e.x = 6; // after the send: the queued copy keeps 5
    EXPECT_EQ(drainHere(), 3);
    EXPECT_EQ(bareCalls, 1);
    EXPECT_EQ(lastName, "width=3");
    EXPECT_EQ(seen, (std::vector<int>{5}));
    EXPECT_FALSE(e.accepted);

    byReference.sendWith(SendDirect, e); // a direct send passes the object itself
    EXPECT_TRUE(e.accepted);
}

TEST(GLUVEmitter, PacketsCarryTypedPayloads)
{
    Emitter<void (*)(Packet)> emitter;
    std::vector<Packet> received;
    Listener l;
    emitter.connect(&l, [&](Packet p) { received.push_back(p); });
    emitter.send(makeNotification());
    emitter.send(makeValuePacket(std::string("moved")));
    emitter.send(Packet());
    ASSERT_EQ(received.size(), 3u);
    EXPECT_NE(received[0].payload(), nullptr);
    EXPECT_EQ(received[0].payloadAs<ValuePayload<std::string>>(), nullptr);
    ASSERT_NE(received[1].payloadAs<ValuePayload<std::string>>(), nullptr);
    EXPECT_EQ(received[1].payloadAs<ValuePayload<std::string>>()->value(), "moved");
    EXPECT_EQ(received[1].payloadAs<ValuePayload<int>>(), nullptr);
    EXPECT_EQ(received[2].payload(), nullptr);
}

TEST(GLUVEmitter, DisconnectingByHandleListenerAndAll)
{
    Emitter<void (*)(int)> emitter;
    Recorder a, b;
    Connection first = emitter.connect(&a, &Recorder::onValue);
    emitter.connect(&a, [&a](int v) { a.values.push_back(-v); });
    Connection ofB = emitter.connect(&b, &Recorder::onValue);
    EXPECT_EQ(a.connectionCount(), 2);

    first.disconnect();
    EXPECT_FALSE(first.isConnected());
    first.disconnect(); // again: nothing
    emitter.send(1);
    EXPECT_EQ(a.values, (std::vector<int>{-1}));

    emitter.disconnect(&a);
    EXPECT_EQ(a.connectionCount(), 0);
    EXPECT_EQ(emitter.connectionCount(), 1);
    EXPECT_TRUE(ofB.isConnected());
    emitter.send(2);
    EXPECT_EQ(a.values, (std::vector<int>{-1}));
    EXPECT_EQ(b.values, (std::vector<int>{1, 2}));

    emitter.disconnectAll();
    EXPECT_FALSE(ofB.isConnected());
    EXPECT_EQ(b.connectionCount(), 0);
    emitter.send(3);
    EXPECT_EQ(b.values, (std::vector<int>{1, 2}));
    EXPECT_FALSE(Connection().isConnected());
}

TEST(GLUVEmitter, QueuedDeliveriesToADeletedListenerOrFromADestroyedEmitterAreDropped)
{
    Emitter<void (*)(int)> direct(SendDirect), queued(SendQueued);
    auto r = std::make_unique<Recorder>();
    Recorder survivor;
    Connection c1 = direct.connect(r.get(), &Recorder::onValue);
    Connection c2 = queued.connect(r.get(), &Recorder::onValue);
    queued.connect(&survivor, &Recorder::onValue);
    queued.send(1);
    r.reset();
    EXPECT_FALSE(c1.isConnected());
    EXPECT_FALSE(c2.isConnected());
    EXPECT_EQ(direct.connectionCount(), 0);
    EXPECT_EQ(queued.connectionCount(), 1);
    direct.send(1); // must not touch the dead listener
    drainHere();
    EXPECT_EQ(survivor.values, (std::vector<int>{1}));

    {
        Emitter<void (*)(int)> doomed(SendQueued);
        doomed.connect(&survivor, &Recorder::onValue);
        doomed.send(2);
        EXPECT_EQ(survivor.connectionCount(), 2);
    }
    EXPECT_EQ(survivor.connectionCount(), 1);
    drainHere();
    EXPECT_EQ(survivor.values, (std::vector<int>{1}));
}

TEST(GLUVEmitter, ListenerDeletedDuringASendIsNotCalledAfterwards)
{
    Emitter<void (*)(int)> emitter;
    auto victim = std::make_unique<Recorder>();
    Listener killer;
    emitter.connect(&killer, [&](int) { victim.reset(); });
    Recorder *raw = victim.get();
    emitter.connect(raw, &Recorder::onValue);
    emitter.send(1); // under ASan a call to the dead recorder is reported
    EXPECT_EQ(victim, nullptr);
    EXPECT_EQ(emitter.connectionCount(), 1);
}

TEST(GLUVEmitter, ListenerMayDisconnectAndConnectDuringASend)
{
    Emitter<void (*)(int)> emitter;
    Recorder late;
    Listener self;
    std::vector<int> selfCalls;
    Connection own;
    own = emitter.connect(&self, [&](int v) {
        selfCalls.push_back(v);
        own.disconnect();
        emitter.connect(&late, &Recorder::onValue);
    });
    emitter.send(1); // the new connection joins from the next send on
    emitter.send(2);
    EXPECT_EQ(selfCalls, (std::vector<int>{1}));
    EXPECT_EQ(late.values, (std::vector<int>{2}));
}

TEST(GLUVEmitter, AutoAndQueuedCrossToTheConnectionsThread)
{
    WorkerThread w;
    Emitter<void (*)(int)> emitter;
    Recorder r, home;
    emitter.connect(&r, &Recorder::onValue, w.gluv());

    emitter.send(1);                  // auto, other thread: queued there
    emitter.sendWith(SendQueued, 2);
    w.run([] {});                     // the worker has run everything posted before
    emitter.sendWith(SendDirect, 3);  // direct: runs here
    ASSERT_EQ(r.values, (std::vector<int>{1, 2, 3}));
    EXPECT_EQ(r.threads[0], w.id());
    EXPECT_EQ(r.threads[1], w.id());
    EXPECT_EQ(r.threads[2], std::this_thread::get_id());

    // Sent from the worker to a connection made for this thread: it comes
    // home and runs when this thread processes its queue.
    Emitter<void (*)(int)> toHome;
    toHome.connect(&home, &Recorder::onValue);
    w.run([&] { toHome.send(4); });
    EXPECT_TRUE(home.values.empty());
    EXPECT_EQ(drainHere(), 1);
    EXPECT_EQ(home.values, (std::vector<int>{4}));
    EXPECT_EQ(home.threads[0], std::this_thread::get_id());
}

TEST(GLUVEmitter, BlockingSendWaitsForTheListenerAndPassesReferences)
{
    WorkerThread w;
    Emitter<void (*)(Event &)> emitter(SendBlocking);
    Listener l;
    std::thread::id ranOn;
    emitter.connect(&l, [&](Event &e) {
        ranOn = std::this_thread::get_id();
        e.x *= 10;
        e.accepted = true;
    }, w.gluv());

    // The sender must still be waiting while the listeners run.
    std::atomic<bool> senderReturned{false};
    bool returnedBeforeListener = true;
    emitter.connect(&l, [&](Event &) { returnedBeforeListener = senderReturned.load(); }, w.gluv());

    Event e;
    e.x = 3;
    std::thread sender([&] {
        emitter.send(e);
        senderReturned = true;
    });
    sender.join();
    EXPECT_EQ(ranOn, w.id());
    EXPECT_EQ(e.x, 30);
    EXPECT_TRUE(e.accepted);
    EXPECT_FALSE(returnedBeforeListener);
}

TEST(GLUVEmitter, BlockingSendToAnEndedThreadReturns)
{
    Emitter<void (*)(int)> emitter(SendBlocking);
    Recorder r;
    {
        WorkerThread w;
        emitter.connect(&r, &Recorder::onValue, w.gluv());
    }
    emitter.send(1); // dropped by the ended thread: the sender is released
    EXPECT_TRUE(r.values.empty());
}

TEST(GLUVEmitter, ConnectingAndDisconnectingWhileAnotherThreadSends)
{
    Emitter<void (*)(int)> emitter(SendDirect);
    std::atomic<int> steady{0};
    std::atomic<int> churned{0};
    Listener anchor;
    emitter.connect(&anchor, [&](int) { ++steady; });

    constexpr int sends = 2000;
    std::promise<void> go;
    std::shared_future<void> started = go.get_future().share();
    std::thread sender([&] {
        started.wait();
        for (int i = 0; i < sends; ++i) emitter.send(i);
    });
    go.set_value();
    for (int i = 0; i < 300; ++i) {
        Listener transient;
        Connection c = emitter.connect(&transient, [&](int) { ++churned; });
        if (i % 2) c.disconnect();
        // odd ones end by disconnect, even ones with the listener
    }
    sender.join();
    EXPECT_EQ(steady.load(), sends);
    EXPECT_EQ(emitter.connectionCount(), 1);
}
