#include "binding/CursorConvert.h"

#include "binding/BindingRegistry.h"
#include "binding/EnumTables.h"
#include "binding/ObjectConvert.h"

#include "GLOX/CustomCursors.h"

namespace VOR2::script {

Value fromCursor(GLOX::Cursor const &cursor)
{
    if (!cursor.isValid()) return Value::handle("VOR2.Cursor", 0);
    return BindingRegistry::instance().announceCopied(cursor, "VOR2.Cursor");
}

GLOX::Cursor toCursor(Value const &v)
{
    if (v.type() == Value::Type::Handle && v.id() == 0) return GLOX::Cursor();
    if (v.type() == Value::Type::Handle) return toCopied<GLOX::Cursor>(v, "VOR2.Cursor");
    if (v.isEmpty() && v.type() != Value::Type::Char) return GLOX::Cursor();
    if (v.type() == Value::Type::Char) {
        GLOX::Cursor custom = GLOX::CustomCursors::find(v.text());
        if (custom.isValid()) return custom;
    }
    return GLOX::Cursor(toEnum<Qt::CursorShape>(v));
}

std::string cursorName(GLOX::Cursor const &cursor)
{
    if (cursor.isStandard()) return fromEnum(Qt::CursorShape(cursor.shape())).text();
    return GLOX::CustomCursors::name(cursor.shape());
}

} // namespace VOR2::script
