#pragma once
// The arithmetic of views: conversions between view pixels and scene
// coordinates, and the placements a canvas asks for. Pure functions of a
// ViewInfo; the placements answer the ViewRequest to post, or nothing when
// the input leaves the view as it is. A placement whose input or result
// holds a NaN or an infinity, or whose scale is not positive, answers
// nothing: no such number ever reaches a view.

#include <ViewInfo>
#include <ViewRequest>

#include "GLOX/GLPoint.h"
#include "GLOX/GLRect.h"

#include <optional>

namespace VOR2::view {

using Point = GLOX::GLPoint<double>;
using Rect = GLOX::GLRect<double>;

Point viewToScene(ViewInfo const &v, Point const &p);
Point sceneToView(ViewInfo const &v, Point const &p);
Rect viewToScene(ViewInfo const &v, Rect const &r);
Rect sceneToView(ViewInfo const &v, Rect const &r);
// The scene rectangle the viewport shows.
Rect visibleSceneRect(ViewInfo const &v);

// Whether a request can be applied: a positive finite scale, and a finite
// origin and size.
bool isUsable(ViewRequest const &request);
// Whether every number of `r` is finite.
bool isFinite(Rect const &r);

// The view with `request` applied: scale, origin and size from the
// request, offsets reset.
ViewInfo overlaid(ViewInfo v, ViewRequest const &request);

// Fits `r` into a view of `width` by `height`, centred along the axis with
// room to spare. A rectangle without area gives scale 1 at its corner; an
// unknown size gives scale 1 and size (-1, -1).
ViewRequest fitRect(Rect const &r, double width, double height);

// showSceneRect: the fit of `r` into the view, or nothing for a rectangle
// without area.
std::optional<ViewRequest> showSceneRect(ViewInfo const &v, Rect const &r);

// Puts scene point `p` at view point `q` at `scale`; nothing for a scale
// that is not positive or a view of unknown size.
std::optional<ViewRequest> showScenePointAtViewPoint(ViewInfo const &v, Point const &p, Point const &q,
                                                     double scale);
// Zoom about the centre of the view.
std::optional<ViewRequest> setScale(ViewInfo const &v, double scale);
// Zoom keeping scene point `p` where it is in the view.
std::optional<ViewRequest> setScaleAroundScenePoint(ViewInfo const &v, double scale, Point const &p);
// Moves the origin by (-dx, -dy) scene units, whatever the scale.
std::optional<ViewRequest> translate(ViewInfo const &v, double dx, double dy);
// Fits all content with the margins; nothing for an empty scene or a view
// without available size.
std::optional<ViewRequest> zoomToSceneRect(ViewInfo const &v);
// Scale 1, keeping the scene near the view; nothing for an empty scene or
// a view without size.
std::optional<ViewRequest> zoomToActualSize(ViewInfo const &v);

} // namespace VOR2::view
