#include <HostRuntime>

#include "GLBridge/Bridge.h"
#include "GLServices/HostRunLoop.h"
#include "GLUV/Thread.h"
#include "ut/Assert.h"
#include "widget/QtWidgetFactory.h"
#include "widget/VOREventDispatcher.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QThread>
#include <atomic>
#include <stdexcept>

namespace VOR2 {

namespace {
std::atomic<GLServices::HostRunLoop *> s_loop{nullptr};
// The host thread kept a Qt dispatcher of its own (see VOREventDispatcher).
bool s_foreignDispatcher = false;
}

void HostRuntime::start()
{
    if (s_loop) {
        if (GLUV::Thread::getNamedThread("TARVO") == GLUV::Thread::getCurrentThread()) return;
        throw std::logic_error("HostRuntime::start: the runtime runs already, with another host thread");
    }
    // Qt's dispatcher of the host thread stays installed after a stop.
    if (VOREventDispatcher *installed = VOREventDispatcher::instance())
        if (installed->thread() != QThread::currentThread())
            throw std::logic_error("HostRuntime::start: the host thread cannot change once the runtime has run");
    bridge().start(); // may refuse, with nothing changed
    s_loop = new GLServices::HostRunLoop;
    s_foreignDispatcher = VOREventDispatcher::install() == nullptr;
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

void HostRuntime::processHostQtEvents()
{
    if (!s_foreignDispatcher) return;
    QCoreApplication::sendPostedEvents();
    if (QAbstractEventDispatcher *d = QThread::currentThread()->eventDispatcher())
        d->processEvents(QEventLoop::AllEvents);
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
