#include "GLOX/Cursor.h"

#include "GLOX/CustomCursors.h"

namespace GLOX {

bool Cursor::isValid() const { return isStandard() || CustomCursors::contains(m_shape); }

QCursor Cursor::toQCursor() const
{
    if (isStandard()) return QCursor(Qt::CursorShape(m_shape));
    return CustomCursors::toQCursor(m_shape);
}

} // namespace GLOX
