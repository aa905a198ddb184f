#pragma once
// NodeCursorTable: the cursors that nodes show, kept outside the nodes
// because few nodes have one. Host thread only.

#include "GLOX/Containers.h"
#include "GLOX/Cursor.h"

namespace VOR2 {

class NodeImpl;

class NodeCursorTable {
public:
    static NodeCursorTable &instance();

    bool has(NodeImpl const *node) const { return m_cursors.contains(node); }
    // The node's cursor, or an invalid Cursor.
    GLOX::Cursor get(NodeImpl const *node) const { return m_cursors.value(node); }
    // An invalid cursor removes the entry.
    void set(NodeImpl const *node, GLOX::Cursor const &cursor);
    void remove(NodeImpl const *node) { m_cursors.remove(node); }

private:
    GLOX::GHash<NodeImpl const *, GLOX::Cursor> m_cursors;
};

} // namespace VOR2
