#pragma once
// Where an event comes from: the canvas behind a widget event value, and a
// viewport point of that canvas in scene coordinates. Host thread.

#include "GLOX/GLPoint.h"
#include "GLOX/GLWidgetEvents2.h"

namespace VOR2 {

class GLCanvas;

// The event's source as a canvas, or null.
GLCanvas *canvasOf(GLOX::GLWidgetEvent2 const &event);
// Through the canvas's effective view; the point itself without a canvas.
GLOX::GLPoint<double> viewToScene(GLCanvas *canvas, GLOX::GLPoint<double> const &viewPoint);

} // namespace VOR2
