#include "scene/NodeCursorTable.h"

namespace VOR2 {

NodeCursorTable &NodeCursorTable::instance()
{
    static NodeCursorTable table;
    return table;
}

void NodeCursorTable::set(NodeImpl const *node, GLOX::Cursor const &cursor)
{
    if (cursor.isValid())
        m_cursors.insert(node, cursor);
    else
        m_cursors.remove(node);
}

} // namespace VOR2
