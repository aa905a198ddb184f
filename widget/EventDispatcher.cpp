#include "widget/EventDispatcher.h"

#include <ContextMenuEvent>
#include <DragEvent>
#include <EventHandler>
#include <FocusEvent>
#include <KeyEvent>
#include <MouseEvent>
#include <Scene>
#include <WidgetEvent>

#include "widget/GLCanvasEmitters.h"

#include <QtGlobal>
#include <exception>

namespace VOR2 {

EventDispatcher::EventDispatcher(EventHandler *handler, GLCanvasEmitters &emitters)
    : m_handler(handler), m_scene(dynamic_cast<Scene *>(handler))
{
    using H = EventHandler;
    auto on = [this](auto &emitter, auto operation, int type) {
        emitter.connect(this, [this, operation, type](auto const &value) { deliver(operation, type, value); });
    };
    // The thread that makes the dispatcher is the thread of every delivery.
    on(emitters.mouseMoved, &H::handleMouseMoveEvent, EventType::MouseMove);
    on(emitters.mouseDoubleClicked, &H::handleMouseDoubleClickEvent, EventType::MouseDoubleClick);
    on(emitters.mousePressed, &H::handleMousePressEvent, EventType::MousePress);
    on(emitters.mouseReleased, &H::handleMouseReleaseEvent, EventType::MouseRelease);
    on(emitters.wheel, &H::handleWheelEvent, EventType::Wheel);
    on(emitters.contextMenu, &H::handleContextMenuEvent, EventType::ContextMenu);
    on(emitters.userDragInit, &H::handleUserDragInitEvent, EventType::UserDragInit);
    on(emitters.dragEntered, &H::handleDragEnterEvent, EventType::DragEnter);
    on(emitters.dragMoved, &H::handleDragEvent, EventType::DragMove);
    on(emitters.dropped, &H::handleDropEvent, EventType::Drop);
    on(emitters.dragLeft, &H::handleDragLeaveEvent, EventType::DragLeave);
    on(emitters.keyPressed, &H::handleKeyPressEvent, EventType::KeyPress);
    on(emitters.keyReleased, &H::handleKeyReleaseEvent, EventType::KeyRelease);
    on(emitters.focusGained, &H::handleFocusInEvent, EventType::FocusIn);
    on(emitters.focusLost, &H::handleFocusInEvent, EventType::FocusOut);
    on(emitters.pointerEntered, &H::handleEnterCanvasEvent, EventType::EnterCanvas);
    on(emitters.pointerLeft, &H::handleLeaveCanvasEvent, EventType::LeaveCanvas);
}

EventDispatcher::~EventDispatcher() { disconnectAll(); }

template <typename E, typename Value>
void EventDispatcher::deliver(void (EventHandler::*operation)(E &), int type, Value const &value)
{
    // `this` may go during the call; the scene may not.
    EventHandler *handler = m_handler;
    GLOX::Holder<Scene> keep(m_scene);
    try {
        E event(type, value);
        (handler->*operation)(event);
    } catch (std::exception const &error) {
        qWarning("VOR2: an input event handler failed: %s", error.what());
    }
}

} // namespace VOR2
