#include <EventHandler>
#include <KeyEvent>

#include "tools/EventSource.h"

namespace VOR2 {

KeyEvent::KeyEvent(EventType type, GLOX::GLKeyEvent2 const &event)
    : KeyEvent(type, canvasOf(event), event.key(), event.modifiers(), event.text(), event.isAutoRepeat(),
               event.buttons())
{
}

KeyEvent::KeyEvent(EventType type, GLCanvas *canvas, GLOX::Key key, GLOX::GLFlags<GLOX::Modifier> modifiers,
                   std::string const &text, bool autoRepeat, GLOX::GLFlags<GLOX::MouseButton> buttons)
    : Event(type, canvas), m_key(key), m_modifiers(modifiers), m_text(text), m_autoRepeat(autoRepeat),
      m_buttons(buttons)
{
}

void KeyEvent::internalAccept(EventHandler &handler)
{
    switch (type()) {
    case EventType::KeyPress: return handler.handleKeyPressEvent(*this);
    case EventType::KeyRelease: return handler.handleKeyReleaseEvent(*this);
    default: unrecognized();
    }
}

} // namespace VOR2
