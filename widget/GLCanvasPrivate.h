#pragma once
// GLCanvasPrivate: the host side of a canvas: its layer stack, its scene
// server, the signal that wakes the server for a posted view request, the
// dispatcher of the base scene's input, and the widget made for it on the
// GUI thread.

#include <GLCanvas>
#include <LayerStack>
#include <ViewRequest>

#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"
#include "widget/EventDispatcher.h"
#include "widget/SceneServer.h"

#include <QPointer>
#include <QWidget>
#include <memory>
#include <optional>

namespace VOR2 {

class GLCanvasPrivate : public GLUV::Listener {
public:
    explicit GLCanvasPrivate(GLCanvas *canvas);
    ~GLCanvasPrivate() override;

    // Stores the request as pending and wakes the server on the host
    // thread with a queued signal; nothing for an empty optional.
    void post(std::optional<ViewRequest> const &request);

    GLUV::Emitter<void (*)()> viewRequestPosted{GLUV::SendAuto};
    GLCanvas *canvas;
    LayerStack layerStack;
    SceneServer server; // after the stack: it detaches from it first
    // Input of the base layer's scene; null while layer 0 has none.
    std::unique_ptr<EventDispatcher> dispatcher;
    // The GUI thread's object: it may go first, with its window.
    QPointer<QWidget> widget;
    // The canvas's own cursor; invalid when unset.
    GLOX::Cursor ownCursor;

    // The topmost layer's tool override cursor, else the own cursor, or
    // none, on the widget.
    void updateCursor();

private:
    void onLayerAdded(int index);
    void onLayerRemoved(int index);
};

} // namespace VOR2
