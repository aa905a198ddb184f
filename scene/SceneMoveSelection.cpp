// Scene: the client's switch to the selection tool that moves nodes.

#include <MoveSelectionTool>
#include <Scene>
#include <ToolConstructor>

namespace VOR2 {

void Scene::useMoveSelectionTool()
{
    addToolConstructor(new ToolConstructor<MoveSelectionTool, Scene *>(this));
    // A new tool under the role takes the old one's place in the stack.
    if (getToolByRole(MoveSelectionTool::staticGetDefaultRole()))
        addToolByRole(MoveSelectionTool::staticGetDefaultRole());
}

} // namespace VOR2
