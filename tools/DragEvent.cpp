#include <DragEvent>
#include <EventHandler>

#include "tools/EventSource.h"

namespace VOR2 {

DragEvent::DragEvent(EventType type, GLOX::GLDragEvent2 const &event)
    : Event(type, canvasOf(event)), m_event(event), m_scenePos(viewToScene(canvas(), event.getPos()))
{
}

void DragEvent::internalAccept(EventHandler &handler)
{
    switch (type()) {
    case EventType::DragEnter: return handler.handleDragEnterEvent(*this);
    case EventType::DragMove: return handler.handleDragEvent(*this);
    case EventType::Drop: return handler.handleDropEvent(*this);
    default: unrecognized();
    }
}

} // namespace VOR2
