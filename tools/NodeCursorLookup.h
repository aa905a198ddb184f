#pragma once
// The cursor a pointer over a node shows: the node's own, else that of its
// nearest ancestor with one; none when neither the node nor any ancestor
// has a cursor, or for an empty handle. Host thread.

#include <Node>

#include "GLOX/Cursor.h"

#include <optional>

namespace VOR2 {

std::optional<GLOX::Cursor> cursorShownOver(Node node);

} // namespace VOR2
