#include "widget/SceneViewer.h"

#include "widget/LayerPainter.h"
#include "widget/Rendering.h"
#include "widget/SceneServer.h"
#include "widget/ViewGeometry.h"

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <QScrollBar>

namespace VOR2 {

namespace {
char const *const HOST_THREAD = "TARVO";
QColor const MARQUEE_COLOR(106, 166, 255, 255);

QRectF toView(ViewInfo const &v, GLOX::GLRect<double> const &sceneRect)
{
    return GLOX::toQRectF(view::sceneToView(v, sceneRect));
}

// A scroll position in whole view pixels. Deep zooms put the scene's edges
// beyond what an int holds, and Qt's slider arithmetic needs room beyond its
// range: positions are kept within plus or minus 2^29 (NaN: 0), so a scroll
// bar saturates instead of wrapping round.
constexpr double SCROLL_LIMIT = 536870912.0;
int scrollPosition(double pixels)
{
    if (!(pixels == pixels)) return 0;
    return int(std::max(-SCROLL_LIMIT, std::min(SCROLL_LIMIT, std::trunc(pixels))));
}
} // namespace

SceneViewer::SceneViewer(SceneServer *server, QWidget *parent) : QAbstractScrollArea(parent), m_server(server)
{
    setAttribute(Qt::WA_MouseTracking);
    viewport()->setAttribute(Qt::WA_MouseTracking);
    connect(horizontalScrollBar(), &QScrollBar::sliderReleased, this, &SceneViewer::adjustScrollBarRanges);
    connect(verticalScrollBar(), &QScrollBar::sliderReleased, this, &SceneViewer::adjustScrollBarRanges);
    m_server->renderingEmitter.connect(this, [this](Rendering *r) { renderingPublished(r); });
    // The request is pending before the wake-up arrives: same thread, at once.
    viewRequestEmitter.connect(this, [server](ViewRequest r) { server->setPendingViewRequest(r); });
    GLUV::Thread *host = GLUV::Thread::getNamedThread(HOST_THREAD);
    viewRequestReady.connect(this, [server] { server->processPendingViewRequest(); },
                             host ? host : GLUV::Thread::getCurrentThread());
}

SceneViewer::~SceneViewer() { disconnectAll(); }

QSize SceneViewer::viewportSize() const
{
    return QSize(width() - 2 * frameWidth(), height() - 2 * frameWidth());
}

void SceneViewer::renderingPublished(Rendering *rendering)
{
    m_rendering = rendering;
    Rendering::Locker lock(*rendering);
    adjustScrollBarRanges();
    ViewInfo const &v = rendering->view;
    if (!rendering->dirty.isEmpty())
        viewport()->update(toView(v, GLOX::toDRect(rendering->dirty)).toAlignedRect());
    rendering->dirty = QRectF();
    if (m_lastMarqueeInView.width() > 0 && m_lastMarqueeInView.height() > 0)
        viewport()->update(m_lastMarqueeInView.adjusted(-2, -2, 2, 2).toAlignedRect());
    QRectF marquee = toView(v, v.marquee);
    if (marquee.width() != 0 && marquee.height() != 0)
        viewport()->update(marquee.adjusted(-2, -2, 2, 2).toAlignedRect());
    m_lastMarqueeInView = marquee;
}

void SceneViewer::paintEvent(QPaintEvent *event)
{
    if (!m_rendering) return;
    Rendering::Locker lock(*m_rendering);
    QPainter painter(viewport());
    paintLayers(&painter, *m_rendering, event->rect());
    QRectF marquee = toView(m_rendering->view, m_rendering->view.marquee);
    if (!marquee.isNull()) {
        painter.setPen(MARQUEE_COLOR);
        QColor fill = MARQUEE_COLOR;
        fill.setAlpha(80);
        painter.setBrush(QBrush(fill, Qt::SolidPattern));
        painter.drawRects(&marquee, 1);
    }
}

void SceneViewer::emitViewRequest(ViewRequest const &request)
{
    viewRequestEmitter.send(request);
    viewRequestReady.send(); // queued to the host thread
}

void SceneViewer::resizeEvent(QResizeEvent *)
{
    m_scrollExtent = QRectF();
    ViewRequest request{1.0, 0.0, 0.0, double(viewportSize().width()), double(viewportSize().height())};
    if (m_rendering) {
        Rendering::Locker lock(*m_rendering);
        m_rendering->view.viewWidth = request.width;
        m_rendering->view.viewHeight = request.height;
        adjustScrollBarRanges();
        GLOX::GLRect<double> visible = view::visibleSceneRect(m_rendering->view);
        request.scale = m_rendering->view.scale;
        request.originX = visible.x;
        request.originY = visible.y;
    }
    emitViewRequest(request);
}

void SceneViewer::scrollContentsBy(int dx, int dy)
{
    if (m_adjustingScrollBars) return;
    ViewRequest request{1.0, 0.0, 0.0, double(viewportSize().width()), double(viewportSize().height())};
    if (m_rendering) {
        Rendering::Locker lock(*m_rendering);
        GLOX::GLPoint<double> origin = view::viewToScene(m_rendering->view, GLOX::GLPoint<double>(-dx, -dy));
        request.scale = m_rendering->view.scale;
        request.originX = origin.x;
        request.originY = origin.y;
    }
    emitViewRequest(request);
}

void SceneViewer::routeMouse(QMouseEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress: mousePressEvent(event); break;
    case QEvent::MouseButtonRelease: mouseReleaseEvent(event); break;
    case QEvent::MouseMove: mouseMoveEvent(event); break;
    case QEvent::MouseButtonDblClick: mouseDoubleClickEvent(event); break;
    default: break;
    }
    event->accept();
}

bool SceneViewer::event(QEvent *event)
{
    switch (event->type()) {
    // Mouse input on the frame goes straight to the handlers, past the
    // scroll area's own, in viewport pixels like the viewport's input.
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::MouseButtonDblClick: {
        auto *m = static_cast<QMouseEvent *>(event);
        QMouseEvent mapped(m->type(), m->localPos() - viewport()->pos(), m->windowPos(), m->screenPos(), m->button(),
                           m->buttons(), m->modifiers(), m->source());
        routeMouse(&mapped);
        event->accept();
        return true;
    }
    // The scroll area lays out its children on a resize without telling
    // resizeEvent: the view must hear of it.
    case QEvent::Resize: resizeEvent(static_cast<QResizeEvent *>(event)); return QAbstractScrollArea::event(event);
    default: return QAbstractScrollArea::event(event);
    }
}

bool SceneViewer::viewportEvent(QEvent *event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::MouseButtonDblClick: routeMouse(static_cast<QMouseEvent *>(event)); return true;
    case QEvent::Paint: return QFrame::event(event);
    case QEvent::Resize: viewport()->update(); return false;
    default: return QAbstractScrollArea::viewportEvent(event);
    }
}

void SceneViewer::adjustScrollBarRanges()
{
    if (!m_rendering) return;
    Rendering::Locker lock(*m_rendering);
    ViewInfo const &v = m_rendering->view;
    double s = v.scale;
    QRectF vis = GLOX::toQRectF(view::visibleSceneRect(v));
    // The extent grows while the user scrolls at one scale.
    if (!(m_scrollExtent.width() > 0 && m_scrollExtent.height() > 0 && m_lastScale == s)) {
        m_scrollExtent = vis;
        m_lastScale = s;
    }
    QRectF b = GLOX::toQRectF(v.sceneRect);
    GLOX::GLRect<double> const &m = v.margins;
    if (b.width() > 0 && b.height() > 0) b.adjust(-m.x / s, -m.y / s, m.width / s, m.height / s);
    QRectF u = b | m_scrollExtent;
    int hMin = scrollPosition(std::min(vis.x(), u.x()) * s);
    int hMax = scrollPosition(std::max(vis.right(), u.right()) * s - v.viewWidth);
    int vMin = scrollPosition(std::min(vis.y(), u.y()) * s);
    int vMax = scrollPosition(std::max(vis.bottom(), u.bottom()) * s - v.viewHeight);

    m_adjustingScrollBars = true;
    QScrollBar *h = horizontalScrollBar(), *vert = verticalScrollBar();
    QRectF whole = GLOX::toQRectF(view::viewToScene(v, GLOX::GLRect<double>(0, 0, viewport()->width(), viewport()->height())));
    bool fitsX = whole.contains(b) || (b.left() >= vis.left() && b.right() <= vis.right());
    bool fitsY = whole.contains(b) || (b.top() >= vis.top() && b.bottom() <= vis.bottom());
    if (!h->isSliderDown() && fitsX) hMin = hMax = 0;
    if (!vert->isSliderDown() && fitsY) vMin = vMax = 0;
    if (hMin < hMax) h->setValue(scrollPosition(vis.x() * s));
    if (!h->isSliderDown() && (h->minimum() != hMin || h->maximum() != hMax)) h->setRange(hMin, hMax);
    if (vMin < vMax) vert->setValue(scrollPosition(vis.y() * s));
    if (!vert->isSliderDown() && (vert->minimum() != vMin || vert->maximum() != vMax)) vert->setRange(vMin, vMax);
    m_adjustingScrollBars = false;
    h->setPageStep(std::max(int(v.viewWidth) - 20, 10));
    vert->setPageStep(std::max(int(v.viewHeight) - 20, 10));
    h->setSingleStep(20);
    vert->setSingleStep(20);
}

} // namespace VOR2
