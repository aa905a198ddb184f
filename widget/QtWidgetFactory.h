#pragma once
// QtWidgetFactory: makes the Qt widget of a canvas on the GUI thread. The
// host thread asks through one process-wide emitter with send mode 3, so
// the canvas's constructor waits until its widget exists. With no factory
// installed (no GUI thread) canvases are headless: they render, and
// nothing shows them.

class QWidget;

namespace VOR2 {

class GLCanvas;

class QtWidgetFactory {
public:
    // GUI thread: from now on canvases get widgets made on this thread.
    static void install();
    // GUI thread: canvases made from now on are headless.
    static void uninstall();
    // Host thread: the canvas's widget, made on the GUI thread, or null.
    static QWidget *createWidgetFor(GLCanvas *canvas);
    // Any thread: deletes the widget on its own thread and waits for it.
    static void destroyWidget(QWidget *widget);
};

} // namespace VOR2
