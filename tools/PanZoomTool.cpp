#include <PanZoomTool>

#include <GLCanvas>
#include <KeyEvent>
#include <MouseEvent>

#include "tools/PanGeometry.h"

#include "GLUV/Thread.h"

#include <cmath>

namespace VOR2 {

namespace {

// Share of a glide's speed that a bounce off the margin keeps, per axis hit.
constexpr double BOUNCE_KEEPS = 0.6;

GLUV::Thread *hostThread() { return GLUV::Thread::getNamedThread("TARVO"); }

GLOX::GLPoint<int> widgetPixel(MouseEvent const &event)
{
    return {int(std::lround(event.x())), int(std::lround(event.y()))};
}

} // namespace

PanZoomTool::PanZoomTool(Scene *scene) : m_scene(scene)
{
    m_momentum.velocityEmitter.connect(this, &PanZoomTool::onMomentumVelocity, hostThread());
    m_momentum.momentumEndedEmitter.connect(this, &PanZoomTool::onMomentumEnded, hostThread());
}

PanZoomTool::~PanZoomTool() { GLUV::Listener::disconnectAll(); }

GLOX::StringID PanZoomTool::staticGetDefaultRole()
{
    static GLOX::StringID const role("PanZoomTool");
    return role;
}

std::optional<GLOX::Cursor> PanZoomTool::overrideCursor()
{
    return GLOX::Cursor(m_panning ? Qt::ClosedHandCursor : Qt::OpenHandCursor);
}

void PanZoomTool::handleMousePressEvent(MouseEvent &event)
{
    m_xDirection = m_yDirection = 1.0;
    bool const left = !isDone() && !m_finishAfterMomentum && event.button() == Qt::LeftButton;
    bool const middle = event.button() == Qt::MiddleButton;
    if (!m_panning && (left || middle)) {
        m_done = false;
        m_panning = true;
        m_lastPosition = widgetPixel(event);
        m_pressButton = event.button();
        m_finishAfterMomentum = false;
        m_momentum.endMomentumNotifications();
        m_momentum.sampleLocation({double(m_lastPosition.x), double(m_lastPosition.y)});
    } else if (m_finishAfterMomentum && !middle) {
        // A click during the glide stops it, and the glide's end ends the tool.
        m_momentum.endMomentumNotifications();
    }
    if (!isDone()) event.consume();
}

void PanZoomTool::handleMouseMoveEvent(MouseEvent &event)
{
    followCanvas(event.canvas());
    if (m_panning) {
        GLOX::GLPoint<int> const at = widgetPixel(event);
        pan(at.x - m_lastPosition.x, at.y - m_lastPosition.y, false);
        m_lastPosition = at;
        m_hasDragged = true;
        m_momentum.sampleLocation({double(at.x), double(at.y)});
    }
    event.consume();
}

void PanZoomTool::handleMouseReleaseEvent(MouseEvent &event)
{
    // Only the release of the button that started the pan ends it.
    if (m_panning && event.button() == m_pressButton) {
        m_panning = false;
        if (!m_spaceHeld && m_pressButton == Qt::MiddleButton) {
            if (m_hasDragged)
                m_finishAfterMomentum = true;
            else
                m_done = true;
        }
        if (!isDone()) {
            GLOX::GLPoint<int> const at = widgetPixel(event);
            m_momentum.sampleLocation({double(at.x), double(at.y)});
            m_momentum.beginMomentumNotifications();
        }
    }
    event.consume();
}

void PanZoomTool::handleKeyPressEvent(KeyEvent &event)
{
    if (!(isDone() || m_finishAfterMomentum) || event.key() != Qt::Key_Space) return;
    m_done = false;
    m_spaceHeld = true;
    m_finishAfterMomentum = false;
    event.consume();
}

void PanZoomTool::handleKeyReleaseEvent(KeyEvent &event)
{
    if (event.key() != Qt::Key_Space) return;
    m_momentum.endMomentumNotifications();
    if (m_spaceHeld) {
        m_done = true;
        GLCanvas *canvas = event.canvas();
        if (!m_hasDragged && canvas) {
            // A tap of Space.
            if (event.modifiers() & Qt::AltModifier)
                canvas->zoomToActualSize();
            else
                canvas->zoomToSceneRect();
        }
    }
    event.consume();
}

void PanZoomTool::pan(double dx, double dy, bool fromMomentum)
{
    if (!m_canvas) return;
    double const s = m_canvas->getScale();
    GLOX::GLPoint<double> const delta(dx / (s * m_xDirection), dy / (s * m_yDirection));
    GLOX::GLRect<double> const view = m_canvas->getSceneRectInView();
    GLOX::GLRect<double> const bounds = PanGeometry::panBounds(m_canvas->getSceneRect(), view);
    PanGeometry::PanStep const step = PanGeometry::limitPan(delta, view, bounds);
    if (fromMomentum) {
        if (step.hitX) {
            m_xDirection = -1.0;
            m_momentum.applyMultiplierOnReleaseMagnitude(BOUNCE_KEEPS);
        }
        if (step.hitY) {
            m_yDirection = -1.0;
            m_momentum.applyMultiplierOnReleaseMagnitude(BOUNCE_KEEPS);
        }
    }
    // The step that hit still moves the view up to the edge.
    m_canvas->translate(step.delta.x, step.delta.y);
}

void PanZoomTool::followCanvas(GLCanvas *canvas)
{
    if (canvas == m_canvas) return;
    if (m_canvas) m_canvas->getDestroyedEmitter().disconnect(this);
    m_canvas = canvas;
    if (m_canvas)
        m_canvas->getDestroyedEmitter().connect(
            this, [this](GLCanvas *gone) { if (gone == m_canvas) m_canvas = nullptr; }, hostThread());
}

void PanZoomTool::onMomentumVelocity(GLOX::GLPoint<double> v) { pan(v.x, v.y, true); }

void PanZoomTool::onMomentumEnded()
{
    if (!m_finishAfterMomentum) return;
    m_done = true;
    m_finishAfterMomentum = false;
}

} // namespace VOR2
