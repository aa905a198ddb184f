#include <ResizeBehavior>

#include <MouseEvent>
#include <RectNode>
#include <Scene>
#include <ToolFactory>

#include "tools/ResizeGeometry.h"
#include "ut/Assert.h"

namespace VOR2 {

GLOX::Holder<ResizeBehavior> ResizeBehavior::create(Node const &target, HorizontalAlignment h, VerticalAlignment v)
{
    Scene *scene = target.getScene();
    if (!scene) return nullptr;
    GLOX::Holder<Tool> tool = scene->getToolFactory().createTool(staticGetDefaultRole());
    GLOX::Holder<ResizeBehavior> behavior(dynamic_cast<ResizeBehavior *>(tool.get()));
    ut_assert(behavior.get() != nullptr);
    behavior->setTargetNode(target);
    behavior->setCorner(h, v);
    return behavior;
}

void ResizeBehavior::handleMousePressEvent(MouseEvent &event)
{
    if (event.button() == Qt::LeftButton) {
        m_active = true;
        m_done = false;
        recordStartingConditions(event);
    }
    event.consume();
}

void ResizeBehavior::handleMouseMoveEvent(MouseEvent &event)
{
    if (!m_active) return;
    modifyTarget(calculateRect(event));
    event.consume();
}

void ResizeBehavior::handleMouseReleaseEvent(MouseEvent &event)
{
    if (event.button() == Qt::LeftButton) {
        commit(calculateRect(event));
        m_done = true;
        m_active = false;
    }
    event.consume();
}

void ResizeBehavior::recordStartingConditions(MouseEvent &event)
{
    m_pressPosition = event.scenePos();
    Node const target = m_targetNode.promote();
    if (!target.isValid()) return;
    m_startPosition = target.getPosition();
    m_startRect = target.getBoundingRect();
}

GLOX::GLRect<double> ResizeBehavior::calculateRect(MouseEvent &event)
{
    unsigned mode = ResizeFromEdges;
    if (shouldResizeAboutCenter(event)) mode |= ResizeAboutCentre;
    if (shouldPreserveAspect(event)) mode |= ResizePreserveAspect;
    return resizedRect({m_pressPosition, m_startRect, m_startPosition}, {m_h, m_v, m_minimumSize}, event.scenePos(),
                       mode);
}

void ResizeBehavior::modifyTarget(GLOX::GLRect<double> const &rect)
{
    RectNode target(m_targetNode.promote().getImpl());
    if (!target.isValid()) return;
    target.setRect({m_startRect.x, m_startRect.y, rect.width, rect.height});
    target.setPosition({rect.x, rect.y});
}

bool ResizeBehavior::shouldResizeAboutCenter(MouseEvent const &event) const
{
    return event.modifiers().testFlag(Qt::AltModifier);
}

bool ResizeBehavior::shouldPreserveAspect(MouseEvent const &event) const
{
    return event.modifiers().testFlag(Qt::ShiftModifier);
}

} // namespace VOR2
