#pragma once
// GLOX::GLWindow2: a top-level native window holding one child widget. The
// host-side object lives on the thread that makes it; its widget lives on
// the GUI thread of the widget bridge "qt", and every operation reaches it
// there, waiting until it has run. With no GUI thread running the window is
// headless: it keeps its state and shows nothing.
//
// Visibility is the host side's view: show() makes it visible, hide() and a
// close of the window (by the user, the window manager or the program) make
// it hidden. A close reaches the host thread through getCloseEmitter(),
// after the window has hidden itself; the window's own visibility changes
// before any other listener hears of it.
//
// The window's widget is deleted with the object, and so is the child's
// widget inside it. When the GUI thread ends first, the widget goes with it.
//
// All operations: the host thread (the one that made the window).

#include "GLOX/GLWidget2.h"
#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"

#include <QPointer>
#include <QWidget>
#include <string>

namespace GLOX {

class GLWindow2 : public GLWidget2, public GLUV::Listener {
public:
    explicit GLWindow2(StringID const &id = StringID(), GLObject *parent = nullptr);
    ~GLWindow2() override;

    // Puts the widget of `child` into the window, filling it, in place of
    // any child before. Nothing for a child without a widget.
    void addWidget(GLWidget2 *child);
    // The window's drawing area at (x, y) on the screen, width by height
    // pixels.
    void setPosition(int x, int y, int width, int height);
    void setTitle(std::string const &title);
    void show();
    void hide();
    bool isVisible() const { return m_visible; }

    // Sent on the GUI thread when the window has closed; connections of the
    // host thread hear it there once the host loop runs.
    GLUV::Emitter<void (*)()> &getCloseEmitter() { return m_closed; }
    // The native window, or null when headless or once it is gone. Touch it
    // on the GUI thread only.
    QWidget *getWidget() const { return m_widget.data(); }

private:
    // Runs fn with the widget on the GUI thread, and waits for it.
    template <typename F>
    void onGui(F fn);

    GLUV::Emitter<void (*)()> m_closed{GLUV::SendAuto};
    QPointer<QWidget> m_widget;
    bool m_visible = false;
};

} // namespace GLOX
