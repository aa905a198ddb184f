#include "effects/raster/InnerBand.h"

#include "effects/raster/BoxBlur.h"

#include <QImage>
#include <algorithm>
#include <cstdint>
#include <vector>

namespace VOR2 {

void innerBand(QImage &image, QSize size, int radius, int shift)
{
    int const w = std::min(size.width(), image.width());
    int const h = std::min(size.height(), image.height());
    if (w <= 0 || h <= 0) return;
    radius = std::max(0, std::min(radius, MAX_BLUR_RADIUS));
    shift = std::max(0, shift);
    // The outside, on a plane grown by the radius on every side so that the
    // box reads outside (255) beyond the image rather than 0.
    int const pw = w + 2 * radius, ph = h + 2 * radius;
    std::vector<std::uint8_t> outside(std::size_t(pw) * ph, 255);
    for (int y = 0; y < h; ++y) {
        QRgb const *line = reinterpret_cast<QRgb const *>(image.constScanLine(y));
        std::uint8_t *o = outside.data() + std::size_t(y + radius) * pw + radius;
        for (int x = 0; x < w; ++x) o[x] = std::uint8_t(255 - (line[x] >> 24));
    }
    boxBlurPlane(outside.data(), pw, ph, radius);
    for (int y = 0; y < h; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        int const sy = y - shift + radius;
        for (int x = 0; x < w; ++x) {
            int const sx = x - shift + radius;
            unsigned const blurred =
                (sx >= 0 && sy >= 0) ? outside[std::size_t(sy) * pw + sx] : 255u;
            unsigned const t = blurred * (line[x] >> 24) + 128;
            line[x] = QRgb((t + (t >> 8)) >> 8) << 24;
        }
    }
}

} // namespace VOR2
