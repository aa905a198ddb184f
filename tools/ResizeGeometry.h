#pragma once
// The arithmetic of a resize drag, apart from any node or event: from where
// the drag started, which edges the handle drags and where the pointer is
// now, the rectangle the target should take. Pure; any thread.

#include <Alignment>

#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"

namespace VOR2 {

// What was true at the press.
struct ResizeStart {
    GLOX::GLPoint<double> press;    // scene position of the press
    GLOX::GLRect<double> rect;      // the target's bounding rectangle
    GLOX::GLPoint<double> position; // the target's position
};

// The handle: the edges it drags (Center drags neither on that axis) and
// the least width (x) and height (y) it leaves.
struct ResizeGrip {
    HorizontalAlignment h = HorizontalAlignment::Center;
    VerticalAlignment v = VerticalAlignment::Center;
    GLOX::GLPoint<double> minimumSize{20.0, 20.0};
};

// Modifiers of the drag: about the centre (each dragged edge's opposite
// moves the other way by as much), and keeping the start's aspect.
enum ResizeMode : unsigned { ResizeFromEdges = 0, ResizeAboutCentre = 1u << 0, ResizePreserveAspect = 1u << 1 };

// The target's new rectangle: its top left is a position in the target's
// parent's coordinates, and its size the new width and height.
//
// A dragged edge follows the pointer (twice as far about the centre) and
// stops at the minimum size; an axis not dragged keeps its size and is not
// clamped. Keeping the aspect shrinks whichever side is too long for the
// start's ratio, after the clamp, so it may take a side below the minimum;
// a start of zero width or height skips it. The edge opposite the handle
// stays put, or the centre about the centre.
GLOX::GLRect<double> resizedRect(ResizeStart const &start, ResizeGrip const &grip,
                                 GLOX::GLPoint<double> const &pointer, unsigned mode);

} // namespace VOR2
