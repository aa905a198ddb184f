#include "tools/NodeCursorLookup.h"

namespace VOR2 {

std::optional<GLOX::Cursor> cursorShownOver(Node node)
{
    for (; node.isValid(); node = node.getParent())
        if (node.hasCursor()) return node.getCursor();
    return std::nullopt;
}

} // namespace VOR2
