#pragma once
// UserDragStart: the start of a drag by the user on a canvas widget: where
// the button went down, and the buttons and modifiers at the moment the
// pointer had moved far enough. Sent from the GUI thread by value.

#include <QPoint>
#include <Qt>

namespace VOR2 {

struct UserDragStart {
    QPoint pos;        // widget coordinates of the press
    QPoint globalPos;  // screen coordinates of the press
    QPoint topLevelPos; // the press in the top-level window's coordinates
    Qt::MouseButton button = Qt::NoButton;
    Qt::MouseButtons buttons;
    Qt::KeyboardModifiers modifiers;
};

} // namespace VOR2
