// Scene: tools and input, forwarded to the private part.

#include <Scene>

#include "scene/ScenePrivate.h"

namespace VOR2 {

void Scene::addTool(Tool *tool) { d->addTool(tool); }
void Scene::addTool(Tool *tool, GLOX::StringID const &role) { d->addTool(tool, role); }
void Scene::delegateToTool(Tool *tool, Event &event) { d->delegateToTool(tool, event); }
GLOX::StringID Scene::getUniqueToolRoleBasedOn(GLOX::StringID const &role) { return d->getUniqueToolRoleBasedOn(role); }
bool Scene::hasTool(Tool *tool) const { return d->hasTool(tool); }
bool Scene::removeTool(Tool *tool) { return d->removeTool(tool); }
bool Scene::removeToolByRole(GLOX::StringID const &role) { return d->removeToolByRole(role); }
Tool *Scene::getToolByRole(GLOX::StringID const &role) const { return d->getToolByRole(role); }
GLOX::StringID Scene::getRoleByTool(Tool *tool) { return d->getRoleByTool(tool); }
void Scene::clearToolStack() { d->clearToolStack(); }
ToolFactory &Scene::getToolFactory() { return d->getToolFactory(); }
void Scene::addToolConstructor(BaseToolConstructor *constructor) { d->getToolFactory().addToolConstructor(constructor); }
Tool *Scene::addToolByRole(GLOX::StringID const &role) { return d->addToolByRole(role); }

void Scene::handleMouseMoveEvent(MouseEvent &e) { d->handleMouseMoveEvent(e); }
void Scene::handleMousePressEvent(MouseEvent &e) { d->handleMousePressEvent(e); }
void Scene::handleMouseReleaseEvent(MouseEvent &e) { d->handleMouseReleaseEvent(e); }
void Scene::handleMouseDoubleClickEvent(MouseEvent &e) { d->handleMouseDoubleClickEvent(e); }
void Scene::handleUserDragInitEvent(MouseEvent &e) { d->handleUserDragInitEvent(e); }
void Scene::handleDragEnterEvent(DragEvent &e) { d->handleDragEnterEvent(e); }
void Scene::handleDragLeaveEvent(WidgetEvent &e) { d->handleDragLeaveEvent(e); }
void Scene::handleDragEvent(DragEvent &e) { d->handleDragEvent(e); }
void Scene::handleDropEvent(DragEvent &e) { d->handleDropEvent(e); }
void Scene::handleFocusInEvent(FocusEvent &e) { d->handleFocusInEvent(e); }
void Scene::handleFocusOutEvent(FocusEvent &e) { d->handleFocusOutEvent(e); }
void Scene::handleEnterCanvasEvent(WidgetEvent &e) { d->handleEnterCanvasEvent(e); }
void Scene::handleLeaveCanvasEvent(WidgetEvent &e) { d->handleLeaveCanvasEvent(e); }
void Scene::handleContextMenuEvent(ContextMenuEvent &e) { d->handleContextMenuEvent(e); }
void Scene::handleWheelEvent(MouseEvent &e) { d->handleWheelEvent(e); }
void Scene::handleKeyPressEvent(KeyEvent &e) { d->handleKeyPressEvent(e); }
void Scene::handleKeyReleaseEvent(KeyEvent &e) { d->handleKeyReleaseEvent(e); }

void Scene::passMousePressEventToNode(MouseEvent &e) { d->passMousePressEventToNode(e); }
void Scene::passMouseMoveEventToNode(MouseEvent &e) { d->passMouseMoveEventToNode(e); }
void Scene::passMouseReleaseEventToNode(MouseEvent &e) { d->passMouseReleaseEventToNode(e); }
void Scene::passKeyPressEventToNode(KeyEvent &e) { d->passKeyPressEventToNode(e); }

} // namespace VOR2
