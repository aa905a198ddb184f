#include <ZoomWheelTool>

#include <GLCanvas>
#include <MouseEvent>

#include <cmath>

namespace VOR2 {

GLOX::StringID ZoomWheelTool::staticGetDefaultRole()
{
    static GLOX::StringID const role("ZoomWheelTool");
    return role;
}

double ZoomWheelTool::zoomFactor(int rotationDegrees) { return std::pow(1.3, double(rotationDegrees) / 15.0); }

void ZoomWheelTool::handleWheelEvent(MouseEvent &event)
{
    GLCanvas *canvas = event.canvas();
    if (!canvas) return;
    canvas->setScaleAroundScenePoint(canvas->getScale() * zoomFactor(event.rotation()), event.scenePos());
}

} // namespace VOR2
