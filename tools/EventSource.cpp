#include "tools/EventSource.h"

#include <GLCanvas>

namespace VOR2 {

GLCanvas *canvasOf(GLOX::GLWidgetEvent2 const &event) { return dynamic_cast<GLCanvas *>(event.source()); }

GLOX::GLPoint<double> viewToScene(GLCanvas *canvas, GLOX::GLPoint<double> const &viewPoint)
{
    return canvas ? canvas->viewPointToScenePoint(viewPoint) : viewPoint;
}

} // namespace VOR2
