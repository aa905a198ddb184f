#include <CursorChangeTool>

#include <GLCanvas>
#include <MouseEvent>
#include <Scene>
#include <WidgetEvent>

#include "tools/NodeCursorLookup.h"

namespace VOR2 {

GLOX::StringID CursorChangeTool::staticGetDefaultRole()
{
    static GLOX::StringID const role("CursorChangeTool");
    return role;
}

void CursorChangeTool::handleMouseMoveEvent(MouseEvent &event)
{
    GLCanvas *canvas = event.canvas();
    if (!canvas || m_scene->hasToolOverrideCursor()) return;
    // One indexed hit test; the canvas tells its widget only of a change.
    std::optional<GLOX::Cursor> cursor = cursorShownOver(m_scene->getNodeAt(event.scenePos()));
    cursor ? canvas->setCursor(*cursor) : canvas->unsetCursor();
}

void CursorChangeTool::handleLeaveCanvasEvent(WidgetEvent &event)
{
    GLCanvas *canvas = event.canvas();
    if (canvas && !m_scene->hasToolOverrideCursor()) canvas->unsetCursor();
}

} // namespace VOR2
