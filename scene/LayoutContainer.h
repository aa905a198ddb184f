#pragma once
// LayoutContainer: what arranges a set of LayoutItems inside a rectangle.
// layoutContents runs after a geometry change of the container, when a
// child is added and when the container gets a new parent. It lays out the
// items with a non-zero constraint mask against the change of the
// container's rectangle since the last layout, and remembers the rectangle.
// Host thread only.
//
// Deliberate: lastRect starts all zero, so the first layout with items and
// a non-zero rectangle moves constrained items by the whole rectangle.

#include "GLOX/GLRect.h"
#include "scene/LayoutItem.h"

#include <QList>

namespace VOR2 {

class LayoutContainer {
public:
    virtual ~LayoutContainer() = default;
    // The items to arrange, constrained or not.
    virtual QList<LayoutItem *> getLayoutItems() = 0;
    // The rectangle the items are anchored to, in the items' container
    // coordinates.
    virtual GLOX::GLRect<double> getLayoutRect() = 0;

    // With no items, or an all-zero rectangle, nothing happens and lastRect
    // stays. Otherwise each constrained item is laid out and lastRect
    // becomes the rectangle. A layout started while one runs on the same
    // container (an item whose change changes the container's rectangle,
    // as in a composite) is ignored, and lastRect is then read again after
    // the items moved, so that the next layout does not move them a second
    // time for their own moves.
    void layoutContents();
    // The same, for a container known to have items (one just joined): it
    // does not ask hasLayoutItems, which may cost a look at every item.
    void layoutItems();

    GLOX::GLRect<double> lastRect;

protected:
    // Cheap answers a container may give so that a layout without work
    // costs no walk of its items: whether it has items at all, and whether
    // any of them may be constrained. The defaults ask getLayoutItems.
    virtual bool hasLayoutItems() { return !getLayoutItems().isEmpty(); }
    virtual bool mayHaveConstrainedItems() { return true; }
    // Told when a walk of the items found none constrained.
    virtual void noConstrainedItemsFound() {}

private:
    bool m_layingOut = false;
};

} // namespace VOR2
