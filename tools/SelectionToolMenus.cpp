// SelectionTool: asking the canvas for a context menu, from the right
// button or from the Menu key.

#include <SelectionTool>

#include <GLCanvas>
#include <KeyEvent>
#include <MouseEvent>
#include <Scene>

#include "widget/GLCanvasEmitters.h"

#include <cmath>
#include <limits>

namespace VOR2 {

namespace {

// Sends the request now, on this thread, as the widget would have.
void requestMenu(GLCanvas *canvas, int globalX, int globalY, int reason)
{
    canvas->getEmitters().contextMenu.sendWith(GLUV::SendDirect,
                                               GLOX::GLContextMenuEvent2(canvas, globalX, globalY, reason));
}

// Screen coordinates are ints; a point beyond them is pinned to their end.
int toScreen(double v)
{
    double const limit = std::numeric_limits<int>::max();
    return static_cast<int>(std::isnan(v) ? 0.0 : std::fmax(-limit, std::fmin(limit, v)));
}

} // namespace

void SelectionTool::invokeContextMenu(MouseEvent &event)
{
    GLCanvas *canvas = event.canvas();
    if (!canvas) return;
    requestMenu(canvas, toScreen(event.globalPos().x), toScreen(event.globalPos().y), GLOX::GLContextMenuEvent2::Mouse);
}

void SelectionTool::invokeContextMenu(KeyEvent &event)
{
    GLCanvas *canvas = event.canvas();
    if (!canvas) return;
    GLOX::GLPoint<double> p = canvas->scenePointToViewPoint(getScenePosOfPrimarySelection());
    GLOX::GLPoint<double> extents = canvas->getViewExtents();
    // The view, in its own pixels; bounds count as inside. Nothing selected
    // gives a point far outside it, hence the centre.
    bool inside = p.x >= 0 && p.x <= extents.x && p.y >= 0 && p.y <= extents.y;
    if (!inside) p = GLOX::GLPoint<double>(0.5 * extents.x, 0.5 * extents.y);
    GLOX::GLRect<double> screen = canvas->getGlobalPosition();
    requestMenu(canvas, toScreen(p.x + screen.x), toScreen(p.y + screen.y), GLOX::GLContextMenuEvent2::Keyboard);
}

GLOX::GLPoint<double> SelectionTool::getScenePosOfPrimarySelection()
{
    GLOX::GList<Node> selected = m_scene->getAllSelectedNodes();
    if (selected.isEmpty()) {
        double const lowest = -std::numeric_limits<double>::max();
        return GLOX::GLPoint<double>(lowest, lowest);
    }
    return selected.first().getPosition();
}

} // namespace VOR2
