#include <EventHandler>
#include <FocusEvent>

#include "tools/EventSource.h"

namespace VOR2 {

FocusEvent::FocusEvent(EventType type, GLOX::FocusReason reason) : Event(type, nullptr), m_reason(reason) {}

FocusEvent::FocusEvent(EventType type, GLOX::GLFocusEvent2 const &event)
    : Event(type, canvasOf(event)), m_reason(event.reason())
{
}

void FocusEvent::internalAccept(EventHandler &handler)
{
    switch (type()) {
    case EventType::FocusIn: return handler.handleFocusInEvent(*this);
    case EventType::FocusOut: return handler.handleFocusOutEvent(*this);
    default: unrecognized();
    }
}

} // namespace VOR2
