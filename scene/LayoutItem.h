#pragma once
// LayoutItem: the side of a node that its parent's layout arranges. The
// item carries a mask of LayoutConstraints bits (bit 1 << value), 0 at
// start; only items with a non-zero mask are laid out. Host thread only.

#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"

#include <cstdint>

namespace VOR2 {

class LayoutItem {
public:
    virtual ~LayoutItem() = default;
    // The item's rectangle in its container's coordinates.
    virtual GLOX::GLRect<double> getLayoutBounds() = 0;
    // Makes the item `width` by `height` in its container's coordinates.
    virtual void setLayoutSize(double width, double height) = 0;
    // Moves the item so that the top left of its layout bounds is `p`.
    virtual void setLayoutPosition(GLOX::GLPoint<double> const &p) = 0;

    // Moves and sizes the item for a container whose rectangle went from
    // `lastRect` to `rect` (see anchoredItemRect). An item whose layout
    // bounds are all zero is left alone. Both setters are called even when
    // nothing moves: position first, then size.
    void layOut(GLOX::GLRect<double> const &rect, GLOX::GLRect<double> const &lastRect);

    std::uint32_t constraints = 0;
};

} // namespace VOR2
