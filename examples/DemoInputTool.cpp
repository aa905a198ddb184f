#include "DemoInputTool.h"

#include <HostRuntime>
#include <MouseEvent>

#include "GLBridge/Bridge.h"

#include <QString>
#include <QWidget>

namespace demo {

void DemoInputTool::handleMouseMoveEvent(VOR2::MouseEvent &event)
{
    VOR2::Node node = m_scene->getNodeAt(event.scenePos());
    QString title = QString("VOR2 gallery: (%1, %2)").arg(event.scenePos().x, 0, 'f', 1).arg(event.scenePos().y, 0, 'f', 1);
    if (node.isValid()) title += QString(" over %1").arg(node.getFullyQualifiedTcosTypeName());
    QPointer<QWidget> window = m_window;
    VOR2::HostRuntime::bridge().runOnGui([window, title] {
        if (window) window->setWindowTitle(title);
    }, false);
}

} // namespace demo
