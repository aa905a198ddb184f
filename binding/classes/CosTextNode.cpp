// VOR2.TextNode: text, editable or not, aligned around its position.
#include "TextNode"
#include "binding/ClassBuilder.h"
#include "binding/EnumTables.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"
#include "binding/ValueConvert.h"

namespace VOR2::script {

namespace {

using GLOX::TextHAlign;
using GLOX::TextVAlign;

using BoolGetter = bool (TextNode::*)() const;
using BoolSetter = void (TextNode::*)(bool) const;

void flag(ClassBuilder &c, char const *name, char const *help, BoolGetter get, BoolSetter set)
{
    c.property(
        name, "logical scalar", help, [get](Self &s) { return Value::logical((s.node<TextNode>().*get)()); },
        [set](Self &s, Value const &v) {
            bool b = toBool(v);
            (s.node<TextNode>().*set)(b);
        });
}

using ColorGetter = GLOX::Color (TextNode::*)() const;
using ColorSetter = void (TextNode::*)(GLOX::Color const &) const;

void color(ClassBuilder &c, char const *name, char const *help, ColorGetter get, ColorSetter set)
{
    c.property(
        name, "double vector", help, [get](Self &s) { return fromColor((s.node<TextNode>().*get)()); },
        [set](Self &s, Value const &v) {
            auto color = toColor(v);
            (s.node<TextNode>().*set)(color);
        });
}

// The alignments and the auto-size mode by name, through adapters: the
// library keeps them as values that may carry any integer, which reads back
// as "Invalid".
void addLayoutStrings(ClassBuilder &c)
{
    c.property(
        "HorizontalAlignment", "char",
        "Where the position sits on the text: 'LEFT_TEXT', 'H_CENTER_TEXT' or 'RIGHT_TEXT'.",
        [](Self &s) { return fromEnum(TextHAlign::Value(s.node<TextNode>().getHorizontalAlignment().value())); },
        [](Self &s, Value const &v) {
            auto align = toEnum<TextHAlign::Value>(v);
            s.node<TextNode>().setHorizontalAlignment(TextHAlign(align));
        });
    c.property(
        "VerticalAlignment", "char",
        "Where the text stands around the position: 'TOP_TEXT' (above it), 'V_CENTER_TEXT' or 'BOTTOM_TEXT' "
        "(hanging below it); 'BASELINE_TEXT' and 'BOTTOM_BASELINE_TEXT' are names the library rejects with "
        "VOR2:InvalidConversion.",
        [](Self &s) { return fromEnum(TextVAlign::Value(s.node<TextNode>().getVerticalAlignment().value())); },
        [](Self &s, Value const &v) {
            auto align = toEnum<TextVAlign::Value>(v);
            s.node<TextNode>().setVerticalAlignment(TextVAlign(align));
        });
    c.property(
        "WidthAutoSize", "char",
        "'Expanding': the text is as wide as its longest line; 'Fixed': the width set by TextDocumentWidth.",
        [](Self &s) { return fromEnum(s.node<TextNode>().getWidthAutoSize()); },
        [](Self &s, Value const &v) {
            auto mode = toEnum<AutoSizeMode>(v);
            s.node<TextNode>().setWidthAutoSize(mode);
        });
    c.property(
        "TextDocumentWidth", "int32 scalar",
        "The width of the text, whole units; setting it fixes the width and turns WidthAutoSize to 'Fixed'.",
        [](Self &s) { return Value::int32(s.node<TextNode>().getTextDocumentWidth()); },
        [](Self &s, Value const &v) {
            int width = toInt32(v);
            s.node<TextNode>().setTextDocumentWidth(width);
        });
}

ClassInfo cosTextNode()
{
    ClassBuilder c("VOR2.TextNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "Text, aligned around the node's position; an editable text is edited in place, and its Text "
                   "changes when the editing ends. VOR2.TextNode(), VOR2.TextNode(text) or VOR2.TextNode(text, [x y]).");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(TextNode(std::string())); });
    c.constructor("text", 1, [](Self &, Args const &a) {
        std::string text = toString(a[0]);
        return fromNode(TextNode(text));
    });
    c.constructor("text, position", 2, [](Self &, Args const &a) {
        std::string text = toString(a[0]);
        auto p = toPoint(a[1]);
        return fromNode(TextNode(text, p));
    });
    c.property(
        "Text", "char", "The plain text.", [](Self &s) { return Value::string(s.node<TextNode>().getText()); },
        [](Self &s, Value const &v) {
            std::string text = toString(v);
            s.node<TextNode>().setText(text);
        });
    flag(c, "Editable", "Whether the user may edit the text.", &TextNode::isEditable, &TextNode::setEditable);
    flag(c, "FocusSelect", "Whether the whole text is selected when editing starts, so that typing replaces it.",
         &TextNode::isFocusSelectAll, &TextNode::setFocusSelectAll);
    c.property(
        "DeleteButtonNode", "VOR2.Node",
        "A node shown at the text's top-left corner while it is edited; a press on it removes the text. Empty "
        "for none. The text does not own it: add it to the scene yourself.",
        [](Self &s) { return fromNode(s.node<TextNode>().getDeleteButtonNode()); },
        [](Self &s, Value const &v) {
            Node button = toNode(v);
            s.node<TextNode>().setDeleteButtonNode(button);
        });
    c.property(
        "Font", "VOR2.Font", "The font, a VOR2.Font value.",
        [](Self &s) { return fromValueOf(s.node<TextNode>().getFont(), "VOR2.Font"); },
        [](Self &s, Value const &v) {
            auto font = toValueOf<GLOX::Font>(v, "VOR2.Font");
            s.node<TextNode>().setFont(font);
        });
    flag(c, "UseTex", "Whether the text is read as TeX markup.", &TextNode::isUsingTex, &TextNode::setUseTex);
    color(c, "Color", "The text colour [red green blue alpha], each from 0 to 1.", &TextNode::getColor,
          &TextNode::setColor);
    color(c, "BackgroundColor", "The colour behind the text [red green blue alpha]; transparent for none.",
          &TextNode::getBackgroundColor, &TextNode::setBackgroundColor);
    addLayoutStrings(c);
    return c.build();
}

ClassRegistration registration("VOR2.TextNode", &cosTextNode);

} // namespace

} // namespace VOR2::script
