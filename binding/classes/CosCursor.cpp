// VOR2.Cursor: a mouse cursor, standard or registered from an image file.
#include "binding/ClassBuilder.h"
#include "binding/Convert.h"
#include "binding/CursorConvert.h"
#include "binding/EnumTables.h"
#include "binding/Package.h"

#include "GLOX/CustomCursors.h"

namespace VOR2::script {

namespace {

Value registerCustom(Args const &a, bool withHotSpot)
{
    std::string name = toString(a[0]), path = toString(a[1]);
    int hotX = withHotSpot ? toInt32(a[2]) : -1, hotY = withHotSpot ? toInt32(a[3]) : -1;
    // A standard name stays the standard cursor's.
    if (EnumTable<Qt::CursorShape>::instance().byName.count(name) || name.empty())
        raise("VOR2:InvalidCursorName", "A custom cursor needs a name of its own, not \"" + name + "\"");
    GLOX::Cursor cursor = GLOX::CustomCursors::registerCursor(name, path, hotX, hotY);
    if (!cursor.isValid()) raise("VOR2:InvalidCursorImage", "No cursor image could be read from " + path);
    return fromCursor(cursor);
}

ClassInfo cosCursor()
{
    ClassBuilder c("VOR2.Cursor", ClassKind::CopiedHandle, "",
                   "A mouse cursor for a node. VOR2.Cursor(name) takes a standard cursor by name (Arrow, UpArrow, "
                   "Cross, Wait, IBeam, SizeVer, SizeHor, SizeBDiag, SizeFDiag, SizeAll, Blank, SplitV, SplitH, "
                   "PointingHand, Forbidden, WhatsThis, Busy, OpenHand, ClosedHand, DragCopy, DragMove, DragLink) "
                   "or a custom one made by VOR2.Cursor.registerCustomCursor.");
    c.constructor("name", 1, [](Self &, Args const &a) {
        GLOX::Cursor cursor = toCursor(a[0]);
        if (!cursor.isValid()) wrongType("cursor name", a[0]);
        return fromCursor(cursor);
    });
    c.property("Name", "char", "The cursor's name.",
               [](Self &s) { return Value::string(cursorName(s.copied<GLOX::Cursor>())); });
    c.staticMethod("registerCustomCursor",
                   "Registers the image file at resourcePath as the cursor cursorName, with its hot spot at pixel "
                   "(hotX, hotY) or in the middle; returns the cursor. Registering a name again replaces its "
                   "image, also where it is already in use.")
        .overload("cursorName, resourcePath", 2, [](Self &, Args const &a) { return registerCustom(a, false); })
        .overload("cursorName, resourcePath, hotX, hotY", 4,
                  [](Self &, Args const &a) { return registerCustom(a, true); });
    return c.build();
}

ClassRegistration registration("VOR2.Cursor", &cosCursor);

} // namespace

} // namespace VOR2::script
