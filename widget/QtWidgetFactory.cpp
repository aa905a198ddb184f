#include "widget/QtWidgetFactory.h"

#include <GLCanvas>

#include "GLBridge/Bridge.h"
#include "GLOX/GLObject.h"
#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"
#include "widget/QtCanvas.h"

#include <algorithm>
#include <vector>

namespace VOR2 {

namespace {
using CreationEmitter = GLUV::Emitter<void (*)(GLCanvas *, GLOX::GLObject const *, QWidget **)>;

CreationEmitter &creationEmitter()
{
    static CreationEmitter *emitter = new CreationEmitter(GLUV::SendBlocking);
    return *emitter;
}

// GUI thread: the factory's listener and the widgets it made.
struct Factory : GLUV::Listener {
    std::vector<QPointer<QWidget>> made;
};

Factory *&factory()
{
    static Factory *installed = nullptr;
    return installed;
}
} // namespace

void QtWidgetFactory::install()
{
    if (factory()) return;
    factory() = new Factory;
    creationEmitter().connect(factory(), [](GLCanvas *canvas, GLOX::GLObject const *parent, QWidget **made) {
        auto *parentWidget = qobject_cast<QWidget *>(GLOX::lookup(parent));
        *made = new QtCanvas(canvas, parentWidget);
        GLOX::registerGui(canvas, *made);
        auto &widgets = factory()->made;
        widgets.erase(std::remove(widgets.begin(), widgets.end(), QPointer<QWidget>()), widgets.end());
        widgets.push_back(*made);
    });
}

void QtWidgetFactory::uninstall()
{
    Factory *installed = factory();
    if (!installed) return;
    factory() = nullptr;
    // A canvas may outlive the GUI thread: its widget must not outlive it.
    for (QPointer<QWidget> const &widget : installed->made) delete widget.data();
    delete installed;
}

QWidget *QtWidgetFactory::createWidgetFor(GLCanvas *canvas, GLOX::GLObject const *parent)
{
    QWidget *made = nullptr;
    creationEmitter().send(canvas, parent, &made);
    return made;
}

void QtWidgetFactory::destroyWidget(QPointer<QWidget> const &widget)
{
    if (widget.isNull()) return;
    // The pointer is read where the widget lives: it may have gone with its
    // window in the meantime. A bridge that has stopped deleted it already.
    GLBridge::getBridge("qt")->runOnGui([widget] { delete widget.data(); }, true);
}

} // namespace VOR2
