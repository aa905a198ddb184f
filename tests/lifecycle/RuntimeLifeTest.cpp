// How a process starts and ends the library: each test is a process of its
// own, and each ends within CTest's time limit or fails. None may hang,
// crash, or leave the library half started.

#include <GLCanvas>
#include <HostRuntime>
#include <RectNode>
#include <Error>
#include <Image>
#include <Scene>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "widget/SceneServer.h"

#include <QApplication>
#include <QPointer>
#include <QThread>
#include <QWidget>
#include <future>
#include <gtest/gtest.h>
#include <thread>

using namespace VOR2;
using namespace VOR2::test;

namespace {
// Shows a red square through a canvas and answers whether it rendered.
bool rendersASquare(GLCanvas &canvas, Scene &scene)
{
    scene.addNode(solidRect({0, 0, 10, 10}, Qt::red));
    canvas.setScene(&scene);
    canvas.setInitialSceneOriginAndScale({0, 0}, 1.0);
    return pixelIs(canvas.getSceneServer().getImage(0), 0, 0, Qt::red);
}
} // namespace

TEST(RuntimeLife, ACanvasOutlivingTheRuntimeEndsWithoutWaitingForIt)
{
    HostRuntime::start();
    auto scene = Scene::createScene();
    auto *canvas = new GLCanvas;
    ASSERT_NE(canvas->getWidget(), nullptr);
    HostRuntime::loop().runUntilIdle();
    HostRuntime::stop();
    EXPECT_EQ(canvas->getWidget(), nullptr) << "stopping took the widget";
    EXPECT_TRUE(rendersASquare(*canvas, *scene)) << "the canvas works on, with no window";
    delete canvas;
}

TEST(RuntimeLife, ACanvasWhoseWindowWentFirstEndsQuietly)
{
    HostRuntime::start();
    auto scene = Scene::createScene();
    auto *canvas = new GLCanvas;
    QWidget *widget = canvas->getWidget();
    QPointer<QWidget> window;
    HostRuntime::bridge().runOnGui([&] {
        window = new QWidget;
        widget->setParent(window);
        window->show();
    }, true);
    EXPECT_TRUE(rendersASquare(*canvas, *scene));
    HostRuntime::loop().runUntilIdle();
    HostRuntime::bridge().runOnGui([&] { delete window.data(); }, true);
    HostRuntime::loop().runUntilIdle();
    EXPECT_EQ(canvas->getWidget(), nullptr);
    delete canvas;
    HostRuntime::stop();
}

TEST(RuntimeLife, StartingTwiceOnTheHostThreadIsHarmlessAndAgainAfterAStopIsRefused)
{
    HostRuntime::start();
    GLUV::Thread *gui = HostRuntime::bridge().guiThread();
    HostRuntime::start();
    EXPECT_TRUE(HostRuntime::isRunning());
    EXPECT_EQ(HostRuntime::bridge().guiThread(), gui) << "the same GUI thread";

    std::thread other([] { EXPECT_THROW(HostRuntime::start(), std::logic_error) << "another host thread"; });
    other.join();

    HostRuntime::stop();
    HostRuntime::stop();
    EXPECT_FALSE(HostRuntime::isRunning());
    EXPECT_THROW(HostRuntime::start(), std::logic_error) << "Qt allows one GUI thread per process";
    EXPECT_FALSE(HostRuntime::isRunning()) << "a refused start changes nothing";
    EXPECT_FALSE(HostRuntime::bridge().isRunning());
}

TEST(RuntimeLife, StartingOnTheThreadOfTheClientsApplicationIsRefused)
{
    int argc = 1;
    char name[] = "test";
    char *argv[] = {name, nullptr};
    QApplication app(argc, argv);
    EXPECT_THROW(HostRuntime::start(), std::logic_error);
    EXPECT_FALSE(HostRuntime::isRunning());
    EXPECT_FALSE(HostRuntime::bridge().isRunning());
    // The client's own single-thread use goes on working.
    auto scene = Scene::createScene();
    scene->addNode(solidRect({0, 0, 10, 10}, Qt::red));
    EXPECT_TRUE(pixelIs(*scene->render()->asQImage(), 25, 25, Qt::red));
}

TEST(RuntimeLife, TheRuntimeLivesBesideAnApplicationOnAnotherThread)
{
    // A host with a Qt GUI of its own: its application runs on a thread of
    // its own, and the library is started from another.
    std::promise<QApplication *> made;
    std::thread guiThread([&made] {
        int argc = 1;
        char name[] = "host";
        char *argv[] = {name, nullptr};
        QApplication app(argc, argv);
        made.set_value(&app);
        QApplication::exec();
    });
    QApplication *app = made.get_future().get();

    HostRuntime::start();
    EXPECT_TRUE(HostRuntime::bridge().isAdopted());
    {
        auto scene = Scene::createScene();
        GLCanvas canvas;
        QWidget *widget = canvas.getWidget();
        ASSERT_NE(widget, nullptr);
        EXPECT_EQ(widget->thread(), app->thread()) << "the widget lives on the application's thread";
        EXPECT_TRUE(rendersASquare(canvas, *scene));
        HostRuntime::loop().runUntilIdle();
    }
    HostRuntime::stop();
    EXPECT_FALSE(HostRuntime::bridge().isRunning());

    // The application runs on, and the library may start beside it again.
    HostRuntime::start();
    EXPECT_TRUE(HostRuntime::bridge().isRunning());
    HostRuntime::stop();
    QMetaObject::invokeMethod(app, "quit", Qt::QueuedConnection);
    guiThread.join();
}

TEST(RuntimeLife, ASceneWithoutAnApplicationIsRefusedClearly)
{
    try {
        auto scene = Scene::createScene();
        FAIL() << "a scene needs a QApplication";
    } catch (Error const &e) {
        EXPECT_EQ(e.code(), VOR2_InvalidScene);
    }
}
