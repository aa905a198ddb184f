#include "GalleryTextRow.h"

#include <VOR2>

using namespace VOR2;

namespace demo {

namespace {
// A small cross where a text is anchored.
void markAnchor(Scene &scene, GLOX::GLPoint<double> p)
{
    DrawStyle mark(Stroke(GLOX::Color(0.85, 0.2, 0.1), 1.0), Fill(), true);
    LineNode across({p.x - 4, p.y}, {p.x + 4, p.y});
    LineNode down({p.x, p.y - 4}, {p.x, p.y + 4});
    for (LineNode const &l : {across, down}) {
        l.setDrawStyle(mark);
        scene.addNode(l);
    }
}

TextNode editableText(Scene &scene, std::string const &s, GLOX::GLPoint<double> p, GLOX::TextHAlign h,
                      GLOX::TextVAlign v)
{
    TextNode text(s, p);
    text.setFont(GLOX::Font("DejaVu Sans", 13));
    text.setHorizontalAlignment(h);
    text.setVerticalAlignment(v);
    text.setEditable(true);
    text.setSelectable(true);
    scene.addNode(text);
    markAnchor(scene, p);
    return text;
}
} // namespace

void galleryTextRow(Scene &scene, double top)
{
    double const y = top + 30;
    editableText(scene, "Click and type", {20, y}, GLOX::TextHAlign::LEFT_TEXT, GLOX::TextVAlign::BOTTOM_TEXT);
    TextNode centred = editableText(scene, "centred over", {280, y}, GLOX::TextHAlign::H_CENTER_TEXT,
                                    GLOX::TextVAlign::TOP_TEXT);
    centred.setColor(GLOX::Color(0.1, 0.3, 0.8));
    TextNode right = editableText(scene, "right, gjpqy", {500, y}, GLOX::TextHAlign::RIGHT_TEXT,
                                  GLOX::TextVAlign::V_CENTER_TEXT);
    right.setBackgroundColor(GLOX::Color(1.0, 0.95, 0.7));
    TextNode framed = editableText(scene, "Framed, selects all", {540, y}, GLOX::TextHAlign::LEFT_TEXT,
                                   GLOX::TextVAlign::BOTTOM_TEXT);
    framed.setFocusSelectAll(true);
    GLOX::Holder<EffectStroke> frame(new EffectStroke(Stroke(GLOX::Color(0.1, 0.6, 0.3), 2.0), Outer));
    framed.getEffects().add(frame.get());
}

} // namespace demo
