#include <EventHandler>
#include <WidgetEvent>

#include "tools/EventSource.h"

namespace VOR2 {

WidgetEvent::WidgetEvent(EventType type) : Event(type, nullptr) {}

WidgetEvent::WidgetEvent(EventType type, GLOX::GLWidgetEvent2 const &event) : Event(type, canvasOf(event)) {}

void WidgetEvent::internalAccept(EventHandler &handler)
{
    switch (type()) {
    case EventType::DragLeave: return handler.handleDragLeaveEvent(*this);
    case EventType::EnterCanvas: return handler.handleEnterCanvasEvent(*this);
    case EventType::LeaveCanvas: return handler.handleLeaveCanvasEvent(*this);
    default: unrecognized();
    }
}

} // namespace VOR2
