// Scene: adding and removing, the creation style stack, the background and
// cursor signals, and what a scene says as it goes.

#include <Error>

#include "GLUV/Listener.h"
#include "scene/NodeEmitterTable.h"
#include "support/SceneFixture.h"

using namespace VOR2;
using namespace VOR2::test;

using SceneBasics = SceneTest;

namespace {
DrawStyle redFilled()
{
    DrawStyle style;
    style.setFill(Fill(GLOX::Color(1, 0, 0)));
    return style;
}
} // namespace

TEST_F(SceneBasics, AddingTwiceKeepsZAndStyle)
{
    RectNode n = added(rect(0, 0)), other = added(rect(0, 0));
    scene->pushCreationDrawStyle(redFilled());
    EXPECT_EQ(scene->addNode(n), n);
    EXPECT_EQ(n.getZValue(), 1);
    EXPECT_EQ(n.getDrawStyle(), DrawStyle());
    EXPECT_THROW(scene->addNode(Node()), Error);
    EXPECT_EQ(scene->getAllNodes().size(), 2);
}

TEST_F(SceneBasics, CreationStylesApplyToNewNodesOnly)
{
    auto other = Scene::createScene();
    DrawStyle own(Stroke(), Fill(), true);
    RectNode fresh = rect(0, 0), moved = rect(0, 0), plain = rect(0, 0);
    moved.setDrawStyle(own);
    plain.setDrawStyle(own);
    other->addNode(moved);

    scene->pushCreationDrawStyle(redFilled());
    scene->addNode(fresh);
    scene->addNode(moved);
    EXPECT_EQ(fresh.getDrawStyle(), redFilled());
    EXPECT_EQ(moved.getDrawStyle(), own) << "a node from another scene keeps its style";

    EXPECT_EQ(scene->popCreationDrawStyle(), redFilled());
    EXPECT_EQ(scene->getCreationDrawStyle(), DrawStyle());
    EXPECT_EQ(scene->popCreationDrawStyle(), DrawStyle()) << "an empty stack gives the default";
    scene->addNode(plain);
    EXPECT_EQ(plain.getDrawStyle(), own) << "with an empty stack a node keeps its own";
}

TEST_F(SceneBasics, RemovingFromTheWrongSceneOnlyCutsListenersAndDyingNodesLeaveNoEmitters)
{
    auto other = Scene::createScene();
    NodeImpl *impl;
    {
        RectNode n = added(rect(0, 0));
        impl = n.getImpl();
        GLUV::Listener listener;
        auto *changed = NodeEmitterTable::instance().text(NodeEmitterTable::TextChanged, impl, true);
        changed->connect(&listener, [] {});

        EXPECT_FALSE(other->removeNode(n).isValid());
        EXPECT_FALSE(other->removeNode(Node()).isValid());
        EXPECT_EQ(n.getScene(), scene.get());
        EXPECT_EQ(listener.connectionCount(), 0);
        EXPECT_EQ(NodeEmitterTable::instance().text(NodeEmitterTable::TextChanged, impl, false), nullptr);

        NodeEmitterTable::instance().mouse(NodeEmitterTable::MousePress, impl, true);
        EXPECT_TRUE(NodeEmitterTable::instance().hasAny(impl));
        n.remove();
    }
    EXPECT_FALSE(NodeEmitterTable::instance().hasAny(impl));
}

TEST_F(SceneBasics, BackgroundAndOverrideCursorSignalRealChangesOnly)
{
    ScenePrivate *d = scene->getPrivate();
    GLUV::Listener listener;
    int backgrounds = 0, cursors = 0;
    ScenePrivate *payload = nullptr;
    d->backgroundChanged.connect(&listener, [&](ScenePrivate *p) { ++backgrounds; payload = p; });
    d->toolOverrideCursorChanged.connect(&listener, [&] { ++cursors; });

    scene->setBackground(Background());
    EXPECT_EQ(backgrounds, 0);
    scene->setBackground(Background(GLOX::Color(0, 0, 1)));
    EXPECT_EQ(backgrounds, 1);
    EXPECT_EQ(payload, d);
    EXPECT_TRUE(scene->getBackground().hasColor());

    d->setToolOverrideCursor(GLOX::Cursor(Qt::CrossCursor));
    d->setToolOverrideCursor(GLOX::Cursor(Qt::CrossCursor));
    EXPECT_EQ(cursors, 1);
    EXPECT_TRUE(scene->hasToolOverrideCursor());
    d->clearToolOverrideCursor();
    d->clearToolOverrideCursor();
    EXPECT_EQ(cursors, 2);
    EXPECT_FALSE(scene->hasToolOverrideCursor());
    EXPECT_EQ(scene->getToolOverrideCursor(), GLOX::Cursor(0));
}

TEST_F(SceneBasics, ASceneAnnouncesItsEndThenFreesItsNodes)
{
    GLUV::Listener listener;
    std::vector<std::string> said;
    WeakRef weak;
    {
        auto doomed = Scene::createScene();
        {
            RectNode n = rect(0, 0);
            weak = n;
            doomed->addNode(n);
        }
        doomed->getDestroyedEmitter().connect(&listener, [&] {
            said.push_back(weak.isValid() ? "destroyed, node alive" : "destroyed, node gone");
        });
        doomed->getPrivate()->aboutToDestroy.connect(&listener, [&] { said.push_back("about to destroy"); });
        EXPECT_EQ(Scene::of(doomed->getPrivate()), doomed.get());
    }
    EXPECT_EQ(said, (std::vector<std::string>{"destroyed, node alive", "about to destroy"}));
    EXPECT_FALSE(weak.isValid());
    EXPECT_EQ(Scene::of(nullptr), nullptr);
}
