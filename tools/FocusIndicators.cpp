#include <FocusIndicators>

#include <CustomNode>
#include <FocusIndicatorsPainter>

#include "GLOX/Cursor.h"

namespace VOR2 {

namespace {
GLOX::StringID const &tag()
{
    static GLOX::StringID const id("FocusIndicator");
    return id;
}
} // namespace

bool installFocusIndicators(Node const &node)
{
    int const count = node.getChildrenWithTag(tag()).size();
    if (count == 4) return true;
    if (count > 0) removeFocusIndicators(node);

    GLOX::GLRect<double> const r = node.getBoundingRect();
    struct Corner {
        HorizontalAlignment h;
        VerticalAlignment v;
        GLOX::GLPoint<double> at;
        Qt::CursorShape cursor;
    };
    using H = HorizontalAlignment;
    using V = VerticalAlignment;
    Corner const corners[] = {
        {H::Left, V::Top, {r.x, r.y}, Qt::SizeFDiagCursor},
        {H::Right, V::Top, {r.x + r.width, r.y}, Qt::SizeBDiagCursor},
        {H::Right, V::Bottom, {r.x + r.width, r.y + r.height}, Qt::SizeFDiagCursor},
        {H::Left, V::Bottom, {r.x, r.y + r.height}, Qt::SizeBDiagCursor},
    };
    for (Corner const &c : corners) {
        CustomNode bracket;
        bracket.setPainter(new FocusIndicatorsPainter(c.h, c.v));
        bracket.setPosition(c.at);
        bracket.setParent(node);
        bracket.addTag(tag());
        bracket.setCursor(GLOX::Cursor(c.cursor));
    }
    return true;
}

void removeFocusIndicators(Node const &node)
{
    for (Node const &bracket : node.getChildrenWithTag(tag())) bracket.remove();
}

} // namespace VOR2
