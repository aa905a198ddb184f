#pragma once
// GLOX::Cursor: a mouse cursor named by its shape, with the values of
// Qt::CursorShape (0 is the arrow), or one of the custom cursors registered
// by name with CustomCursors (shapes from CustomCursors::FirstShape up). A
// default Cursor is invalid: it names no cursor, and setting it on a node
// removes the node's cursor.

#include <QCursor>

namespace GLOX {

class Cursor {
public:
    static constexpr int InvalidShape = -1;

    Cursor() = default;
    explicit Cursor(int shape) : m_shape(shape) {}

    int shape() const { return m_shape; }
    bool isStandard() const { return m_shape >= 0 && m_shape <= Qt::LastCursor; }
    // A standard shape, or a custom cursor that has been registered.
    bool isValid() const;
    // The Qt cursor; a custom one makes a pixmap, so call it on the GUI
    // thread. The default QCursor for an invalid cursor.
    QCursor toQCursor() const;

    bool operator==(Cursor const &o) const { return m_shape == o.m_shape; }
    bool operator!=(Cursor const &o) const { return m_shape != o.m_shape; }

private:
    int m_shape = InvalidShape;
};

} // namespace GLOX
