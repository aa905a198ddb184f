#include <ToolStack>

#include <ContextMenuEvent>
#include <DragEvent>
#include <FocusEvent>
#include <KeyEvent>
#include <MouseEvent>
#include <Scene>
#include <WidgetEvent>

#include "scene/ScenePrivate.h"

#include <string>

namespace VOR2 {

// The stack is torn down with its scene, after clearToolStack: whatever is
// left goes without callbacks.
ToolStack::~ToolStack() = default;

void ToolStack::addTool(Tool *tool)
{
    if (tool) addTool(tool, tool->getDefaultRole());
}

void ToolStack::addTool(Tool *tool, GLOX::StringID const &role)
{
    if (!tool) return;
    GLOX::Holder<Tool> keep(tool);
    bool const joins = !hasTool(tool);
    GLOX::Holder<Tool> previous(getToolByRole(role));
    int at = previous ? m_tools.indexOf(previous) : -1;
    if (at >= 0)
        m_tools[at] = keep; // in the old tool's place; it goes without a word
    else
        m_tools.prepend(keep);
    // A tool is offered each event once: it keeps its topmost place only.
    int const top = m_tools.indexOf(keep);
    for (int i = m_tools.size() - 1; i > top; --i)
        if (m_tools[i] == keep) m_tools.removeAt(i);
    if (previous && previous != keep) forgetRoles(previous.get());
    if (previous != keep) m_roles.insert(role, RoleEntry{tool, ++m_roleSerial});
    if (!joins) return; // one more role: the tool was told when it joined
    tool->toolAdded.send();
    tool->onAddToStack();
}

void ToolStack::delegateToTool(Tool *tool, Event &event)
{
    if (!tool) return;
    event.accept(*tool);
    std::optional<GLOX::Cursor> cursor = tool->overrideCursor();
    m_hasCursor = cursor.has_value();
    if (cursor) m_cursor = *cursor;
}

GLOX::StringID ToolStack::getUniqueToolRoleBasedOn(GLOX::StringID const &role)
{
    if (!m_roles.contains(role)) return role;
    for (int n = 2;; ++n) {
        GLOX::StringID candidate(role.str() + std::to_string(n));
        if (!m_roles.contains(candidate)) return candidate;
    }
}

bool ToolStack::hasTool(Tool *tool) const
{
    for (GLOX::Holder<Tool> const &t : m_tools)
        if (t.get() == tool) return true;
    return false;
}

bool ToolStack::removeTool(Tool *tool)
{
    if (!tool) return false;
    GLOX::Holder<Tool> keep(tool);
    forgetRoles(tool);
    if (!m_tools.removeAll(keep)) return false;
    tool->onRemoveFromStack();
    tool->toolRemoved.send();
    return true;
}

bool ToolStack::removeToolByRole(GLOX::StringID const &role)
{
    Tool *tool = getToolByRole(role);
    return tool && removeTool(tool);
}

Tool *ToolStack::getToolByRole(GLOX::StringID const &role) const
{
    RoleEntry const *entry = findRole(role);
    return entry ? entry->tool : nullptr;
}

GLOX::StringID ToolStack::getRoleByTool(Tool *tool)
{
    GLOX::StringID first;
    std::uint64_t firstSerial = 0;
    for (auto it = m_roles.cbegin(); it != m_roles.cend(); ++it) {
        if (it.value().tool != tool) continue;
        if (firstSerial == 0 || it.value().serial < firstSerial) {
            first = it.key();
            firstSerial = it.value().serial;
        }
    }
    return first;
}

ToolStack::RoleEntry const *ToolStack::findRole(GLOX::StringID const &role) const
{
    auto it = m_roles.constFind(role);
    return it == m_roles.cend() ? nullptr : &it.value();
}

void ToolStack::clearToolStack()
{
    while (!m_tools.isEmpty()) retire(m_tools.first().get());
}

GLOX::GList<Tool *> ToolStack::getTools() const
{
    GLOX::GList<Tool *> tools;
    for (GLOX::Holder<Tool> const &t : m_tools) tools.append(t.get());
    return tools;
}

void ToolStack::retire(Tool *tool)
{
    GLOX::Holder<Tool> keep(tool);
    tool->onRemoveFromStack();
    tool->toolRemoved.send();
    forgetRoles(tool);
    m_tools.removeAll(keep);
}

void ToolStack::forgetRoles(Tool *tool)
{
    for (auto it = m_roles.begin(); it != m_roles.end();) {
        if (it.value().tool == tool)
            it = m_roles.erase(it);
        else
            ++it;
    }
}

void ToolStack::dispatch(Event &event, bool isAutoRepeat)
{
    m_hasCursor = false;
    // Tools may add or remove tools while they handle the event: walk the
    // stack as it was, and pass over tools that have left it meanwhile.
    GLOX::GList<GLOX::Holder<Tool>> const tools = m_tools;
    for (GLOX::Holder<Tool> const &tool : tools) {
        if (event.isConsumed()) break;
        if (!hasTool(tool.get())) continue;
        if (!isAutoRepeat || tool->requiresKeyAutoRepeat()) event.accept(*tool);
        if (!m_hasCursor && !tool->isDone()) {
            if (std::optional<GLOX::Cursor> cursor = tool->overrideCursor()) {
                m_cursor = *cursor;
                m_hasCursor = true;
            }
        }
    }
    // A tool leaving may take others with it: retire each at most once.
    for (GLOX::Holder<Tool> const &tool : GLOX::GList<GLOX::Holder<Tool>>(m_tools))
        if (tool->isDone() && hasTool(tool.get())) retire(tool.get());
    if (Scene *scene = event.scene()) {
        if (ScenePrivate *d = scene->getPrivate())
            m_hasCursor ? d->setToolOverrideCursor(m_cursor) : d->clearToolOverrideCursor();
    }
}

void ToolStack::handleMouseMoveEvent(MouseEvent &e) { dispatch(e, false); }
void ToolStack::handleMousePressEvent(MouseEvent &e) { dispatch(e, false); }
void ToolStack::handleMouseReleaseEvent(MouseEvent &e) { dispatch(e, false); }
void ToolStack::handleMouseDoubleClickEvent(MouseEvent &e) { dispatch(e, false); }
void ToolStack::handleUserDragInitEvent(MouseEvent &e) { dispatch(e, false); }
void ToolStack::handleDragEnterEvent(DragEvent &e) { dispatch(e, false); }
void ToolStack::handleDragLeaveEvent(WidgetEvent &e) { dispatch(e, false); }
void ToolStack::handleDragEvent(DragEvent &e) { dispatch(e, false); }
void ToolStack::handleDropEvent(DragEvent &e) { dispatch(e, false); }
void ToolStack::handleFocusInEvent(FocusEvent &e) { dispatch(e, false); }
void ToolStack::handleFocusOutEvent(FocusEvent &e) { dispatch(e, false); }
void ToolStack::handleEnterCanvasEvent(WidgetEvent &e) { dispatch(e, false); }
void ToolStack::handleLeaveCanvasEvent(WidgetEvent &e) { dispatch(e, false); }
void ToolStack::handleContextMenuEvent(ContextMenuEvent &e) { dispatch(e, false); }
void ToolStack::handleWheelEvent(MouseEvent &e) { dispatch(e, false); }
void ToolStack::handleKeyPressEvent(KeyEvent &e) { dispatch(e, e.isAutoRepeat()); }
void ToolStack::handleKeyReleaseEvent(KeyEvent &e) { dispatch(e, e.isAutoRepeat()); }

} // namespace VOR2
