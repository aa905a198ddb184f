#pragma once
// OffscreenPixmap: a node's painting kept as an image for one view, so that
// costly painting is not redone on every repaint. It holds a QImage rather
// than a QPixmap: nodes paint on the host thread, and Qt's pixmaps belong
// to the GUI thread. The image has a border of one device pixel on every
// side and the view's resolution.

#include <QImage>

namespace VOR2 {

class OffscreenPixmap {
public:
    OffscreenPixmap(QImage image, double scale) : m_image(std::move(image)), m_scale(scale) {}
    virtual ~OffscreenPixmap() = default;

    QImage const &image() const { return m_image; }
    // The device pixels per scene unit the image was painted at.
    double scale() const { return m_scale; }

private:
    QImage m_image;
    double m_scale;
};

} // namespace VOR2
