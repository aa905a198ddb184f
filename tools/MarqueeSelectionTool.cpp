// MarqueeSelectionTool: the band follows the pointer, the selection
// follows the band.

#include <MarqueeSelectionTool>

#include <GLCanvas>
#include <KeyEvent>
#include <MouseEvent>
#include <Scene>
#include <SelectionTool>

#include "tools/MarqueeBand.h"
#include "tools/MarqueeRule.h"

namespace VOR2 {

namespace {

// The rule's view of the scene: states from the nodes, changes through the
// selection tool (straight to the node when a client took that tool away,
// rather than failing on a missing tool), acceptance from the marquee tool.
struct SceneSelectionModel {
    SelectionTool const *selection;
    MarqueeSelectionTool &marquee;
    GLOX::GLRect<double> band;

    bool isSelected(Node const &n) const { return n.isSelected(); }
    bool isSelectable(Node const &n) const { return n.isSelectable(); }
    bool accepts(Node const &n) const { return marquee.isNodeSelectable(n, band); }
    void setSelected(Node const &n, bool on) const
    {
        selection ? selection->setNodeSelected(n, on) : n.setSelected(on);
    }
};

} // namespace

MarqueeSelectionTool::MarqueeSelectionTool(Scene *scene)
    : m_scene(scene), m_initialSelection(scene->getAllSelectedNodes())
{
}

MarqueeSelectionTool::MarqueeSelectionTool(MarqueeSelectionTool const &other)
    : Tool(), m_scene(other.m_scene), m_done(other.m_done), m_initialPosition(other.m_initialPosition),
      m_initialSelection(other.m_initialSelection)
{
}

MarqueeSelectionTool &MarqueeSelectionTool::operator=(MarqueeSelectionTool const &other)
{
    m_scene = other.m_scene;
    m_done = other.m_done;
    m_initialPosition = other.m_initialPosition;
    m_initialSelection = other.m_initialSelection;
    return *this;
}

void MarqueeSelectionTool::handleMouseMoveEvent(MouseEvent &event)
{
    auto *selection = dynamic_cast<SelectionTool *>(m_scene->getToolByRole(SelectionTool::staticGetDefaultRole()));
    GLOX::GLRect<double> band = marqueeBand(m_initialPosition, event.scenePos());
    if (GLCanvas *canvas = event.canvas()) canvas->setMarquee(band);
    SceneSelectionModel model{selection, *this, band};
    applyMarqueeRule(m_scene->getAllSelectedNodes(), m_scene->getNodesIntersectingRect(band), m_initialSelection,
                     model);
    event.consume();
}

void MarqueeSelectionTool::handleMouseReleaseEvent(MouseEvent &event)
{
    m_done = true;
    if (GLCanvas *canvas = event.canvas()) canvas->setMarquee(GLOX::GLRect<double>(0, 0, 0, 0));
    event.consume();
}

void MarqueeSelectionTool::handleKeyPressEvent(KeyEvent &event) { event.consume(); }
void MarqueeSelectionTool::handleKeyReleaseEvent(KeyEvent &event) { event.consume(); }

bool MarqueeSelectionTool::isNodeSelectable(Node const &node, GLOX::GLRect<double> const &)
{
    return node.isSelectable();
}

} // namespace VOR2
