// ScenePrivate: the tool factory and the default tool stack of a scene.

#include "scene/ScenePrivate.h"

#include <CursorChangeTool>
#include <MarqueeSelectionTool>
#include <PanZoomTool>
#include <ResizeBehavior>
#include <Scene>
#include <SelectionTool>
#include <TextSelectionTool>
#include <ToolConstructor>
#include <ZoomWheelTool>

#include "ut/Assert.h"

namespace VOR2 {

// Each tool's constructor joins the factory as that tool is built: the
// zoom wheel, pan-zoom, cursor change, selection, text selection, marquee
// and resize tools, in this order.
void ScenePrivate::initializeToolFactory()
{
    Scene *scene = Scene::of(this);
    m_toolFactory.addToolConstructor(new ToolConstructor<ZoomWheelTool, void>());
    m_toolFactory.addToolConstructor(new ToolConstructor<PanZoomTool, Scene *>(scene));
    m_toolFactory.addToolConstructor(new ToolConstructor<CursorChangeTool, Scene *>(scene));
    m_toolFactory.addToolConstructor(new ToolConstructor<SelectionTool, Scene *>(scene));
    m_toolFactory.addToolConstructor(new ToolConstructor<TextSelectionTool, Scene *>(scene));
    m_toolFactory.addToolConstructor(new ToolConstructor<MarqueeSelectionTool, Scene *>(scene));
    m_toolFactory.addToolConstructor(new ToolConstructor<ResizeBehavior, void>());
}

// A new scene stacks the cursor change, zoom wheel and selection tools, the
// last on top, by role; a default role the factory cannot make fails the
// assertion.
void ScenePrivate::initializeToolStack()
{
    for (char const *role : {"CursorChangeTool", "ZoomWheelTool", "SelectionTool"}) {
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
