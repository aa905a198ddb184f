#include <HostRuntime>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "ut/Assert.h"
#include "widget/QtWidgetFactory.h"
#include "widget/VOREventDispatcher.h"

#include <atomic>

namespace VOR2 {

namespace {
std::atomic<GLServices::HostRunLoop *> s_loop{nullptr};
}

void HostRuntime::start()
{
    ut_assert(!s_loop);
    bridge().start();
    s_loop = new GLServices::HostRunLoop;
    VOREventDispatcher::install();
    // Canvases made from now on get their widgets on the GUI thread.
    bridge().runOnGui([] { QtWidgetFactory::install(); }, true);
}

void HostRuntime::stop()
{
    GLServices::HostRunLoop *loop = s_loop;
    if (!loop) return;
    bridge().runOnGui([] { QtWidgetFactory::uninstall(); }, true);
    bridge().stop();
    s_loop = nullptr;
    delete loop;
}

bool HostRuntime::isRunning()
{
    return s_loop != nullptr;
}

GLServices::HostRunLoop &HostRuntime::loop()
{
    GLServices::HostRunLoop *loop = s_loop;
    ut_assert(loop);
    return *loop;
}

GLBridge::Bridge &HostRuntime::bridge()
{
    return *GLBridge::getBridge("qt");
}

} // namespace VOR2
