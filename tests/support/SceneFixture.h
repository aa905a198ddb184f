#pragma once
// Helpers shared by the scene tests: node liveness observed through weak
// references, the element count register, and a turn of the host loop.

#include <Diagnostics>
#include <Node>
#include <RectNode>
#include <Scene>
#include <WeakRef>

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

namespace VOR2::test {

inline int liveNodeCount() { return Diagnostics::intValue("Node:Node instance count"); }

// A rectangle node at (x, y) of size w by h.
inline RectNode rect(double x, double y, double w = 10, double h = 10)
{
    return RectNode(GLOX::GLRect<double>(x, y, w, h));
}

// Runs the queued calls of the current thread, as one turn of the host
// loop would.
inline void runHostLoopTurn() { QCoreApplication::processEvents(); }

// The pending change kind recorded for `node`, or -1 when there is none.
inline int pendingKind(Scene &scene, Node const &node)
{
    std::optional<PendingChangeKind> kind = scene.getPrivate()->pendingKindOf(node.getImpl());
    return kind ? int(*kind) : -1;
}

// Gives each test a scene, and checks that no node outlives the test body
// and that scene.
class SceneTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        runHostLoopTurn();
        m_liveAtStart = liveNodeCount();
        scene = Scene::createScene();
    }
    void TearDown() override
    {
        scene.reset();
        EXPECT_EQ(liveNodeCount(), m_liveAtStart) << "nodes leaked or died twice";
    }

    // Adds `node` to the test's scene and hands it back.
    template <typename N>
    N added(N node)
    {
        scene->addNode(node);
        return node;
    }

    GLOX::Holder<Scene> scene;

private:
    int m_liveAtStart = 0;
};

} // namespace VOR2::test
