// ScenePrivate: the tool factory and the default tool stack of a scene.

#include "scene/ScenePrivate.h"

#include <PanZoomTool>
#include <ZoomWheelTool>

#include "ut/Assert.h"

namespace VOR2 {

// Each tool's constructor joins the factory as that tool is built: the
// zoom wheel, pan-zoom, cursor change, selection, text selection, marquee
// and resize tools, in this order.
void ScenePrivate::initializeToolFactory()
{
    m_toolFactory.addToolConstructor(new ToolConstructor<ZoomWheelTool, void>());
    m_toolFactory.addToolConstructor(new ToolConstructor<PanZoomTool, Scene *>(m_scene));
}

// A new scene stacks the cursor change, zoom wheel and selection tools, the
// last on top, by role. Roles the factory does not know yet are left out
// until their tools exist.
void ScenePrivate::initializeToolStack()
{
    for (char const *role : {"CursorChangeTool", "ZoomWheelTool", "SelectionTool"}) {
        if (!m_toolFactory.hasRole(role)) continue;
        ut_assert_text(addToolByRole(role) != nullptr, ": tool,", "include\\Scene", 117);
    }
}

Tool *ScenePrivate::addToolByRole(GLOX::StringID const &role)
{
    GLOX::Holder<Tool> tool = m_toolFactory.createTool(role);
    if (!tool) return nullptr;
    m_toolStack.addTool(tool.get(), role);
    return tool.get();
}

} // namespace VOR2
