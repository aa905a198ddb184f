#pragma once
// GLOX::WidgetEventCode: the foundation's numbers for the events of a native
// widget, by which a GLWidget2 says which of them it handles itself
// (consumed: the widget's own default handling does not follow) and which
// its widget broadcasts to the host.

namespace GLOX {

enum class WidgetEventCode : int {
    None = 0,
    Resize = 1,
    Move = 2,
    Show = 3,
    Hide = 4,
    Close = 5,
    MouseDoubleClick = 6,
    KeyPress = 7,
    KeyRelease = 8,
    MousePress = 9,
    MouseRelease = 10,
    MouseMove = 11,
    Drop = 12,
    Wheel = 13,
    Enter = 14,
    Leave = 15,
    FocusIn = 16,
    ContextMenu = 17,
    FocusOut = 18,
    DragEnter = 19,
    DragMove = 20,
    DragLeave = 21,
};

// One past the largest code.
constexpr int WIDGET_EVENT_CODE_COUNT = 22;

} // namespace GLOX
