#pragma once
// OffscreenPixmap: a node's painting kept as an image for one view, so that
// costly painting is not redone on every repaint. It holds a QImage rather
// than a QPixmap: nodes paint on the host thread, and Qt's pixmaps belong
// to the GUI thread. The image has a border of one device pixel on every
// side and the view's resolution.

#include <QImage>
#include <QPointF>
#include <QSize>

namespace VOR2 {

class OffscreenPixmap {
public:
    // `image` painted at `scale` device pixels per unit, for a painter whose
    // shift had the sub-pixel part `phase`.
    OffscreenPixmap(QImage image, double scale, QPointF phase)
        : m_image(std::move(image)), m_scale(scale), m_phase(phase)
    {
    }
    virtual ~OffscreenPixmap() = default;

    QImage const &image() const { return m_image; }
    double scale() const { return m_scale; }
    QPointF phase() const { return m_phase; }

    // Whether the image can stand for painting of that size, scale and
    // phase: otherwise it would show blurred or shifted by part of a pixel.
    bool fits(QSize size, double scale, QPointF phase) const
    {
        return m_image.size() == size && m_scale == scale && m_phase == phase;
    }

private:
    QImage m_image;
    double m_scale;
    QPointF m_phase;
};

} // namespace VOR2
