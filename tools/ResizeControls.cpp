#include <CustomNode>
#include <LayoutConstraints>
#include <ResizeBehavior>
#include <ResizeControls>
#include <ResizeHandlePainter>

#include "GLOX/Cursor.h"

#include <initializer_list>
#include <optional>

namespace VOR2 {

namespace {
using H = HorizontalAlignment;
using V = VerticalAlignment;
using L = LayoutConstraints;

// One handle: the edges it drags, where it sits (none: the parent's
// origin), the anchors that keep it there and the cursor over it.
struct HandlePlace {
    H h;
    V v;
    std::optional<GLOX::GLPoint<double>> at;
    std::initializer_list<L> anchors;
    Qt::CursorShape cursor;
};

GLOX::StringID const &cornerTag()
{
    static GLOX::StringID const id("CornerResizeHandle");
    return id;
}

GLOX::StringID const &sideTag()
{
    static GLOX::StringID const id("SideResizeHandle");
    return id;
}

void removeHandles(Node const &node, GLOX::StringID const &tag)
{
    for (Node const &handle : node.getChildrenWithTag(tag)) {
        handle.clearBehavior();
        handle.remove();
    }
}

bool installHandles(Node const &node, bool visible, GLOX::StringID const &tag, HandlePlace const (&places)[4])
{
    int const count = node.getChildrenWithTag(tag).size();
    if (count == 4) return true;
    if (count > 0) removeHandles(node, tag);
    for (HandlePlace const &place : places) {
        CustomNode handle;
        handle.setPainter(new ResizeHandlePainter(node, visible, place.h, place.v));
        if (place.at) handle.setPosition(*place.at);
        handle.setParent(node);
        GLOX::Holder<ResizeBehavior> behavior = ResizeBehavior::create(node, place.h, place.v);
        if (!behavior) {
            handle.remove();
            removeResizeControls(node);
            return false;
        }
        handle.setBehavior(behavior.get());
        for (L anchor : place.anchors) handle.setLayoutConstraintFlag(anchor, true);
        handle.addTag(tag);
        handle.setCursor(GLOX::Cursor(place.cursor));
    }
    return true;
}
} // namespace

bool installCornerResizeControls(Node const &node, bool visible)
{
    GLOX::GLRect<double> const r = node.getBoundingRect();
    HandlePlace const places[4] = {
        {H::Left, V::Top, std::nullopt, {L::Top, L::Left}, Qt::SizeFDiagCursor},
        {H::Right, V::Top, GLOX::GLPoint<double>(r.x + r.width, r.y), {L::Top, L::Right}, Qt::SizeBDiagCursor},
        {H::Right, V::Bottom, GLOX::GLPoint<double>(r.x + r.width, r.y + r.height), {L::Bottom, L::Right},
         Qt::SizeFDiagCursor},
        {H::Left, V::Bottom, GLOX::GLPoint<double>(r.x, r.y + r.height), {L::Bottom, L::Left}, Qt::SizeBDiagCursor},
    };
    return installHandles(node, visible, cornerTag(), places);
}

// Side handles sit at the middles of a rectangle of the node's size from
// the origin, not from the bounding rectangle's corner.
bool installSideResizeControls(Node const &node, bool visible)
{
    GLOX::GLRect<double> const r = node.getBoundingRect();
    double const w = r.width, h = r.height;
    HandlePlace const places[4] = {
        {H::Left, V::Center, GLOX::GLPoint<double>(0.0, 0.5 * h), {L::Top, L::Bottom, L::Left}, Qt::SizeHorCursor},
        {H::Center, V::Top, GLOX::GLPoint<double>(0.5 * w, 0.0), {L::Top, L::Left, L::Right}, Qt::SizeVerCursor},
        {H::Right, V::Center, GLOX::GLPoint<double>(w, 0.5 * h), {L::Top, L::Bottom, L::Right}, Qt::SizeHorCursor},
        {H::Center, V::Bottom, GLOX::GLPoint<double>(0.5 * w, h), {L::Bottom, L::Left, L::Right}, Qt::SizeVerCursor},
    };
    return installHandles(node, visible, sideTag(), places);
}

bool installResizeControls(Node const &node, bool visible)
{
    return installCornerResizeControls(node, visible) && installSideResizeControls(node, visible);
}

void removeCornerResizeControls(Node const &node) { removeHandles(node, cornerTag()); }
void removeSideResizeControls(Node const &node) { removeHandles(node, sideTag()); }

void removeResizeControls(Node const &node)
{
    removeCornerResizeControls(node);
    removeSideResizeControls(node);
}

} // namespace VOR2
