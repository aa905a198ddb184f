#pragma once
// Rendering: the one place where the two threads meet. The host thread
// renders each layer of a canvas into an image here; the GUI thread copies
// the images to the screen. A recursive mutex guards the view, the dirty
// area and the images' pixels; it is held through a whole render of a layer
// and through a whole paint, so an image is never seen half drawn. Lock it
// with Rendering::Locker.

#include <Background>
#include <ViewInfo>
#include <ViewRequest>

#include <QImage>
#include <QPainterPath>
#include <QRectF>
#include <memory>
#include <mutex>
#include <vector>

namespace VOR2 {

// One layer's published picture.
struct RenderedLayer {
    bool visible = false; // the layer's scene has items
    QImage image;         // view-sized, premultiplied, transparent where nothing is
    Background background;
    // The background's image, read on the host thread when its name changes;
    // null when the name gives none.
    QImage backgroundImage;
};

class Rendering {
public:
    class Locker {
    public:
        explicit Locker(Rendering &r) : m_r(r) { m_r.lock(); }
        ~Locker() { m_r.unlock(); }
        Locker(Locker const &) = delete;
        Locker &operator=(Locker const &) = delete;

    private:
        Rendering &m_r;
    };

    void lock();
    void unlock();
    // Diagnostics: how deep the lock is held, and by which thread.
    int lockCount() const { return m_lockCount; }

    // Applies a view request: size, scale and origin; new transparent layer
    // images when the size changed. Answers the visible scene rectangle.
    // Under the lock.
    QRectF applyRequest(ViewRequest const &request);
    // A transparent image for a layer at the current image size, at least
    // 1 by 1. Under the lock.
    QImage newLayerImage() const;

    ViewInfo view;
    QPainterPath marqueePath;
    QRectF dirty; // scene coordinates: redrawn since the viewer last looked
    std::vector<std::unique_ptr<RenderedLayer>> layers;

private:
    // A standard mutex, not Qt's: thread checkers see its hand-overs.
    std::recursive_mutex m_mutex;
    int m_lockCount = 0;
    Qt::HANDLE m_lockOwner = nullptr;
};

} // namespace VOR2
