#include "DemoInputTool.h"

#include <GLCanvas>
#include <HostRuntime>
#include <MouseEvent>

#include "GLBridge/Bridge.h"

#include <QString>
#include <QWidget>
#include <cmath>

namespace demo {

void DemoInputTool::handleMouseMoveEvent(VOR2::MouseEvent &event)
{
    VOR2::Node node = m_scene->getNodeAt(event.scenePos());
    m_cursor = node.isValid() ? std::optional<GLOX::Cursor>(GLOX::Cursor(Qt::PointingHandCursor)) : std::nullopt;
    QString title = QString("VOR2 gallery: (%1, %2)").arg(event.scenePos().x, 0, 'f', 1).arg(event.scenePos().y, 0, 'f', 1);
    if (node.isValid()) title += QString(" over %1").arg(node.getFullyQualifiedTcosTypeName());
    QPointer<QWidget> window = m_window;
    VOR2::HostRuntime::bridge().runOnGui([window, title] {
        if (window) window->setWindowTitle(title);
    }, false);
}

void DemoInputTool::handleWheelEvent(VOR2::MouseEvent &event)
{
    if (VOR2::GLCanvas *canvas = event.canvas())
        canvas->setScaleAroundScenePoint(canvas->getScale() * std::pow(1.3, event.rotation() / 15.0), event.scenePos());
    event.consume();
}

} // namespace demo
