#include <EventType>

#include <ostream>

namespace VOR2 {

char const *EventType::name() const
{
    switch (m_value) {
    case MousePress: return "MousePress";
    case MouseDoubleClick: return "MouseDoubleClick";
    case MouseMove: return "MouseMove";
    case MouseRelease: return "MouseRelease";
    case Wheel: return "Wheel";
    case UserDragInit: return "UserDragInit";
    case DragEnter: return "DragEnter";
    case DragLeave: return "DragLeave";
    case DragMove: return "DragMove";
    case Drop: return "Drop";
    case KeyPress: return "KeyPress";
    case KeyRelease: return "KeyRelease";
    case ContextMenu: return "ContextMenu";
    case FocusIn: return "FocusIn";
    case FocusOut: return "FocusOut";
    case EnterCanvas: return "EnterCanvas";
    case LeaveCanvas: return "LeaveCanvas";
    default: return "Unknown";
    }
}

std::ostream &operator<<(std::ostream &out, EventType type) { return out << type.name() << '(' << type.value() << ')'; }

} // namespace VOR2
