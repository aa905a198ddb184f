#pragma once
// Cursors at the script border. A cursor is a VOR2.Cursor object (a copied
// handle owning its GLOX::Cursor) or, where one is taken, its name: a
// standard cursor by Qt's name without the word Cursor ("Arrow",
// "PointingHand", "IBeam", ...) or a custom cursor registered under that
// name. No cursor is the empty array.

#include "binding/ScriptValue.h"

#include "GLOX/Cursor.h"

#include <string>

namespace VOR2::script {

// A new VOR2.Cursor object; the empty array for an invalid cursor.
Value fromCursor(GLOX::Cursor const &cursor);
// A VOR2.Cursor, a name or the empty array (an invalid cursor). A name that
// is neither registered nor standard throws VOR2_ExpectedEnumValue with the
// standard names.
GLOX::Cursor toCursor(Value const &v);
// The cursor's name: the standard or registered one, "" for none.
std::string cursorName(GLOX::Cursor const &cursor);

} // namespace VOR2::script
