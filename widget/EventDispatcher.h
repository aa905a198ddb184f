#pragma once
// EventDispatcher: where a canvas's input meets its base scene. It listens
// to every signal of the canvas's GLCanvasEmitters on the thread that made
// it, the host thread; each delivery becomes a library event, made on the
// stack with its scene position under the view of that moment and handed
// to the handler's operation for it. A lost focus goes to
// handleFocusInEvent like a gained one; the event's type tells them apart.
//
// The canvas makes one when a layer comes to index 0 and deletes it when
// that layer goes; deliveries still queued then are dropped. A scene as
// handler is held for the length of each delivery, so a tool may take it
// off the canvas (and end it) while it handles an event. An error raised by a
// handler is reported as a warning and ends that event only.

#include "GLUV/Listener.h"

namespace VOR2 {

class EventHandler;
struct GLCanvasEmitters;
class Scene;

class EventDispatcher : public GLUV::Listener {
public:
    // Host thread. `handler` is borrowed: the layer keeps the scene alive.
    EventDispatcher(EventHandler *handler, GLCanvasEmitters &emitters);
    ~EventDispatcher() override;

    EventHandler *handler() const { return m_handler; }

private:
    template <typename E, typename Value>
    void deliver(void (EventHandler::*operation)(E &), int type, Value const &value);

    EventHandler *m_handler;
    Scene *m_scene; // the handler, when it is a scene
};

} // namespace VOR2
