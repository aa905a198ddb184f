#include "widget/QtWidgetFactory.h"

#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"
#include "widget/QtCanvas.h"

#include <QMetaObject>
#include <QThread>
#include <memory>

namespace VOR2 {

namespace {
using CreationEmitter = GLUV::Emitter<void (*)(GLCanvas *, QWidget **)>;

CreationEmitter &creationEmitter()
{
    static CreationEmitter *emitter = new CreationEmitter(GLUV::SendBlocking);
    return *emitter;
}

GLUV::Listener *&factoryListener()
{
    static GLUV::Listener *listener = nullptr;
    return listener;
}
} // namespace

void QtWidgetFactory::install()
{
    if (factoryListener()) return;
    factoryListener() = new GLUV::Listener;
    creationEmitter().connect(factoryListener(), [](GLCanvas *canvas, QWidget **made) {
        *made = new QtCanvas(canvas);
    });
}

void QtWidgetFactory::uninstall()
{
    delete factoryListener();
    factoryListener() = nullptr;
}

QWidget *QtWidgetFactory::createWidgetFor(GLCanvas *canvas)
{
    QWidget *made = nullptr;
    creationEmitter().send(canvas, &made);
    return made;
}

void QtWidgetFactory::destroyWidget(QWidget *widget)
{
    if (!widget) return;
    if (widget->thread() == QThread::currentThread())
        delete widget;
    else
        QMetaObject::invokeMethod(widget, [widget] { delete widget; }, Qt::BlockingQueuedConnection);
}

} // namespace VOR2
