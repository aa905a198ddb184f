#pragma once
// QtWidgetFactory: makes the Qt widget of a canvas on the GUI thread. The
// host thread asks through one process-wide emitter with send mode 3, so
// the canvas's constructor waits until its widget exists. With no factory
// installed (no GUI thread) canvases are headless: they render, and
// nothing shows them.

#include <QPointer>
#include <QWidget>

namespace GLOX {
class GLObject;
}

namespace VOR2 {

class GLCanvas;

class QtWidgetFactory {
public:
    // GUI thread: from now on canvases get widgets made on this thread.
    static void install();
    // GUI thread: canvases made from now on are headless, and the widgets
    // made so far are deleted (their canvases show nothing from now on).
    static void uninstall();
    // Host thread: the canvas's widget, made on the GUI thread inside the
    // widget of `parent` if it has one, or null.
    static QWidget *createWidgetFor(GLCanvas *canvas, GLOX::GLObject const *parent);
    // Any thread: deletes the widget on the GUI thread and waits for it;
    // nothing when it is gone already or no GUI thread runs any more.
    static void destroyWidget(QPointer<QWidget> const &widget);
};

} // namespace VOR2
