// A node's input signals and how they reach listeners of another thread:
// presses, releases and hovering wait for them and hand them the event
// itself; moves, keys and focus call every listener at once on the sending
// thread.

#include <FocusEvent>
#include <KeyEvent>
#include <MouseEvent>
#include <RectNode>

#include "GLUV/Listener.h"
#include "platform/WorkerThread.h"
#include "scene/NodeEmitterTable.h"
#include "scene/NodeImpl.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace VOR2;

namespace {

MouseEvent mouse(EventType type)
{
    return MouseEvent(type, nullptr, {5, 5}, {5, 5}, {}, 0, Qt::LeftButton, Qt::LeftButton, {});
}

// What one listener saw: on which thread, and whether it ran at all.
struct Seen {
    std::atomic<bool> ran{false};
    std::thread::id thread;
};

// A node, a listener and a worker thread the listener's connections are
// made for. The worker goes first when the fixture ends, so nothing it
// still has queued outlives what it writes to.
struct NodeSignalsTest : ::testing::Test {
    RectNode node{GLOX::GLRect<double>(0, 0, 10, 10)};
    GLUV::Listener listener;
    Seen seen;
    WorkerThread worker{"node signals worker"};

    // A recorder that also consumes the event it is given.
    template <typename E>
    std::function<void(E &)> recorder()
    {
        return [this](E &e) {
            seen.thread = std::this_thread::get_id();
            e.consume();
            seen.ran = true;
        };
    }

    void TearDown() override { worker.stop(); }
};

} // namespace

TEST_F(NodeSignalsTest, PressReleaseAndHoverWaitForAListenerOfAnotherThread)
{
    struct Case {
        char const *what;
        NodeEmitterTable::MouseSignal which;
        EventType type;
        void (NodeImpl::*fire)(MouseEvent &);
    } const cases[] = {
        {"press", NodeEmitterTable::MousePress, EventType::MousePress, &NodeImpl::emitMousePressEvent},
        {"release", NodeEmitterTable::MouseRelease, EventType::MouseRelease, &NodeImpl::emitMouseReleaseEvent},
        {"hover enter", NodeEmitterTable::HoverEnter, EventType::MouseMove, &NodeImpl::emitHoverEnterEvent},
        {"hover exit", NodeEmitterTable::HoverExit, EventType::MouseMove, &NodeImpl::emitHoverExitEvent},
        {"hover move", NodeEmitterTable::HoverMove, EventType::MouseMove, &NodeImpl::emitHoverMoveEvent},
    };
    for (Case const &c : cases) {
        NodeEmitterTable::instance()
            .mouse(c.which, node.getImpl(), true)
            ->connect(&listener, recorder<MouseEvent>(), worker.gluv());
        seen.ran = false;
        MouseEvent e = mouse(c.type);
        (node.getImpl()->*c.fire)(e);
        EXPECT_TRUE(seen.ran) << c.what << ": handled before the send returned";
        EXPECT_EQ(seen.thread, worker.id()) << c.what << ": on the listener's thread";
        EXPECT_TRUE(e.isConsumed()) << c.what << ": the listener had the event itself, not a copy";
    }
}

TEST_F(NodeSignalsTest, MovesKeysAndFocusReachEveryListenerAtOnceOnTheSendersThread)
{
    auto &table = NodeEmitterTable::instance();
    NodeImpl *impl = node.getImpl();
    std::thread::id const here = std::this_thread::get_id();
    auto check = [&](char const *what, Event &e, auto send) {
        seen.ran = false;
        seen.thread = std::thread::id();
        send();
        EXPECT_TRUE(seen.ran) << what;
        EXPECT_EQ(seen.thread, here) << what << ": on the sender's thread, not the listener's";
        EXPECT_TRUE(e.isConsumed()) << what;
    };

    table.mouse(NodeEmitterTable::MouseMove, impl, true)->connect(&listener, recorder<MouseEvent>(), worker.gluv());
    MouseEvent move = mouse(EventType::MouseMove);
    check("move", move, [&] { impl->emitMouseMoveEvent(move); });

    table.key(NodeEmitterTable::KeyPress, impl, true)->connect(&listener, recorder<KeyEvent>(), worker.gluv());
    table.key(NodeEmitterTable::KeyRelease, impl, true)->connect(&listener, recorder<KeyEvent>(), worker.gluv());
    KeyEvent press(EventType::KeyPress, nullptr, Qt::Key_A, {}, "a", false, {});
    check("key press", press, [&] { impl->emitKeyPressEvent(press); });
    KeyEvent release(EventType::KeyRelease, nullptr, Qt::Key_A, {}, "a", false, {});
    check("key release", release, [&] { impl->emitKeyReleaseEvent(release); });

    table.focus(NodeEmitterTable::FocusIn, impl, true)->connect(&listener, recorder<FocusEvent>(), worker.gluv());
    table.focus(NodeEmitterTable::FocusOut, impl, true)->connect(&listener, recorder<FocusEvent>(), worker.gluv());
    FocusEvent in(EventType::FocusIn, GLOX::TabFocusReason);
    check("focus in", in, [&] { impl->emitFocusInEvent(in); });
    FocusEvent out(EventType::FocusOut, GLOX::TabFocusReason);
    check("focus out", out, [&] { impl->emitFocusOutEvent(out); });

    // Nothing was left queued for the worker either.
    seen.ran = false;
    worker.run([] {});
    EXPECT_FALSE(seen.ran);
}

TEST_F(NodeSignalsTest, ListenersOfTheSendingThreadAreCalledAtOnceWhateverTheMode)
{
    NodeImpl *impl = node.getImpl();
    auto &table = NodeEmitterTable::instance();
    int calls = 0;
    for (auto which : {NodeEmitterTable::MousePress, NodeEmitterTable::MouseMove, NodeEmitterTable::HoverEnter})
        table.mouse(which, impl, true)->connect(&listener, [&](MouseEvent &) { ++calls; });
    MouseEvent press = mouse(EventType::MousePress), move = mouse(EventType::MouseMove),
               enter = mouse(EventType::MouseMove), release = mouse(EventType::MouseRelease);
    impl->emitMousePressEvent(press);
    impl->emitMouseMoveEvent(move);
    impl->emitHoverEnterEvent(enter);
    impl->emitMouseReleaseEvent(release); // nobody connected: no emitter is made
    EXPECT_EQ(calls, 3);
    EXPECT_EQ(table.mouse(NodeEmitterTable::MouseRelease, impl, false), nullptr);
}
