#include <ContextMenuEvent>
#include <EventHandler>
#include <GLCanvas>

#include "tools/EventSource.h"

namespace VOR2 {

namespace {
// The menu's screen position less the canvas's, in scene coordinates.
GLOX::GLPoint<double> menuScenePos(GLCanvas *canvas, GLOX::GLPoint<int> const &globalPos)
{
    if (!canvas) return {};
    GLOX::GLPoint<double> topLeft = canvas->getGlobalPosition().topLeft();
    return canvas->viewPointToScenePoint(GLOX::GLPoint<double>(globalPos.x, globalPos.y) - topLeft);
}
} // namespace

ContextMenuEvent::ContextMenuEvent(EventType type) : Event(type, nullptr) {}

ContextMenuEvent::ContextMenuEvent(EventType type, GLOX::GLContextMenuEvent2 const &event)
    : Event(type, canvasOf(event)), m_event(event), m_scenePos(menuScenePos(canvas(), event.globalPos()))
{
}

void ContextMenuEvent::internalAccept(EventHandler &handler)
{
    if (type() != EventType::ContextMenu) unrecognized();
    handler.handleContextMenuEvent(*this);
}

} // namespace VOR2
