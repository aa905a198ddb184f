#pragma once
// SceneViewer: the scroll area on the GUI thread that shows a canvas. It
// copies the layer images its scene server publishes into the viewport,
// keeps the scroll bars in step with the view, and turns scrolls and
// resizes into view requests. It never touches a scene: everything it
// reads, it reads from Rendering under its lock. Its mouse handlers always
// see viewport pixels, whether the press was on the viewport or the frame.

#include <ViewRequest>

#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"

#include <QAbstractScrollArea>
#include <QRectF>

namespace VOR2 {

class Rendering;
class SceneServer;

class SceneViewer : public QAbstractScrollArea, public GLUV::Listener {
    Q_OBJECT

public:
    // GUI thread. Connects to `server`: publications come to this thread,
    // requests go to the server at once and wake it on the host thread.
    explicit SceneViewer(SceneServer *server, QWidget *parent = nullptr);
    ~SceneViewer() override;

    // Sent with every view request the viewer makes, then viewRequestReady.
    GLUV::Emitter<void (*)(ViewRequest)> viewRequestEmitter{GLUV::SendAuto};
    GLUV::Emitter<void (*)()> viewRequestReady{GLUV::SendAuto};

public slots:
    void adjustScrollBarRanges();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void scrollContentsBy(int dx, int dy) override;
    bool viewportEvent(QEvent *event) override;

private:
    // Hands a mouse event in viewport pixels to its virtual handler.
    void routeMouse(QMouseEvent *event);
    void renderingPublished(Rendering *rendering);
    void emitViewRequest(ViewRequest const &request);
    QSize viewportSize() const;

    SceneServer *m_server;
    Rendering *m_rendering = nullptr;
    bool m_adjustingScrollBars = false;
    double m_lastScale = 0.0;
    QRectF m_lastMarqueeInView;
    QRectF m_scrollExtent;
};

} // namespace VOR2
