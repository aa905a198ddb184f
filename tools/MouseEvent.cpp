#include <EventHandler>
#include <GLCanvas>
#include <MouseEvent>

#include "tools/EventSource.h"

namespace VOR2 {

MouseEvent::MouseEvent(EventType type, GLOX::GLMouseEvent2 const &event)
    : Event(type, canvasOf(event)), m_event(event), m_scenePos(viewToScene(canvas(), event.viewportPos()))
{
}

MouseEvent::MouseEvent(EventType type, GLCanvas *canvas, Point const &pos, Point const &viewportPos,
                       Point const &globalPos, int rotation, GLOX::MouseButton button,
                       GLOX::GLFlags<GLOX::MouseButton> buttons, GLOX::GLFlags<GLOX::Modifier> modifiers)
    : MouseEvent(type, GLOX::GLMouseEvent2(canvas, pos, viewportPos, globalPos, rotation, button, buttons, modifiers))
{
}

void MouseEvent::internalAccept(EventHandler &handler)
{
    switch (type()) {
    case EventType::MousePress: return handler.handleMousePressEvent(*this);
    case EventType::MouseDoubleClick: return handler.handleMouseDoubleClickEvent(*this);
    case EventType::MouseMove: return handler.handleMouseMoveEvent(*this);
    case EventType::MouseRelease: return handler.handleMouseReleaseEvent(*this);
    case EventType::Wheel: return handler.handleWheelEvent(*this);
    case EventType::UserDragInit: return handler.handleUserDragInitEvent(*this);
    default: unrecognized();
    }
}

} // namespace VOR2
