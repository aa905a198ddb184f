#include "effects/raster/Tint.h"

#include <QImage>

namespace VOR2 {

void tintByAlpha(QImage &image, QRect area, QRgb colour)
{
    area &= image.rect();
    if (area.isEmpty()) return;
    unsigned const r = qRed(colour), g = qGreen(colour), b = qBlue(colour);
    // x * a / 255, rounded, as Qt premultiplies.
    auto times = [](unsigned x, unsigned a) {
        unsigned const t = x * a + 128;
        return (t + (t >> 8)) >> 8;
    };
    for (int y = area.top(); y <= area.bottom(); ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            unsigned const a = qAlpha(line[x]);
            line[x] = (a << 24) | (times(r, a) << 16) | (times(g, a) << 8) | times(b, a);
        }
    }
}

} // namespace VOR2
