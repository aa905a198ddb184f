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
    explicit OffscreenPixmap(QImage image) : m_image(std::move(image)) {}
    virtual ~OffscreenPixmap() = default;

    QImage const &image() const { return m_image; }

private:
    QImage m_image;
};

} // namespace VOR2
