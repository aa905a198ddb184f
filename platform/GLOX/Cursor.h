#pragma once
// GLOX::Cursor: a mouse cursor named by its shape, with the values of
// Qt::CursorShape (0 is the arrow). A default Cursor is invalid: it names no
// cursor, and setting it on a node removes the node's cursor.

#include <QCursor>

namespace GLOX {

class Cursor {
public:
    static constexpr int InvalidShape = -1;

    Cursor() = default;
    explicit Cursor(int shape) : m_shape(shape) {}

    int shape() const { return m_shape; }
    bool isValid() const { return m_shape >= 0 && m_shape <= Qt::LastCursor; }
    QCursor toQCursor() const { return isValid() ? QCursor(Qt::CursorShape(m_shape)) : QCursor(); }

    bool operator==(Cursor const &o) const { return m_shape == o.m_shape; }
    bool operator!=(Cursor const &o) const { return m_shape != o.m_shape; }

private:
    int m_shape = InvalidShape;
};

} // namespace GLOX
