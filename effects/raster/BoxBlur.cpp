#include "effects/raster/BoxBlur.h"

#include <QImage>
#include <algorithm>
#include <vector>

namespace VOR2 {

namespace {
// floor(sum / divisor) for 0 <= sum <= 255 * divisor, by a multiplication:
// exact while divisor^2 * 255 < 2^40.
class Divider {
public:
    explicit Divider(std::uint32_t divisor) : m_inverse((std::uint64_t(1) << 40) / divisor + 1) {}
    std::uint8_t operator()(std::uint32_t sum) const { return std::uint8_t((sum * m_inverse) >> 40); }

private:
    std::uint64_t m_inverse;
};

// One pass along rows: dst row = box of src row.
void rowPass(std::uint8_t const *src, std::uint8_t *dst, int width, int height, int radius, Divider const &divide)
{
    for (int y = 0; y < height; ++y) {
        std::uint8_t const *in = src + std::size_t(y) * width;
        std::uint8_t *out = dst + std::size_t(y) * width;
        std::uint32_t sum = 0;
        for (int x = 0; x < std::min(radius, width); ++x) sum += in[x];
        for (int x = 0; x < width; ++x) {
            if (x + radius < width) sum += in[x + radius];
            out[x] = divide(sum);
            if (x - radius >= 0) sum -= in[x - radius];
        }
    }
}

// One pass along columns, a row at a time with one running sum per column,
// so that memory is read in order.
void columnPass(std::uint8_t const *src, std::uint8_t *dst, int width, int height, int radius,
                Divider const &divide)
{
    std::vector<std::uint32_t> sums(std::size_t(width), 0);
    auto row = [&](int y) { return src + std::size_t(y) * width; };
    for (int y = 0; y < std::min(radius, height); ++y)
        for (int x = 0; x < width; ++x) sums[x] += row(y)[x];
    for (int y = 0; y < height; ++y) {
        if (y + radius < height) {
            std::uint8_t const *add = row(y + radius);
            for (int x = 0; x < width; ++x) sums[x] += add[x];
        }
        std::uint8_t *out = dst + std::size_t(y) * width;
        for (int x = 0; x < width; ++x) out[x] = divide(sums[x]);
        if (y - radius >= 0) {
            std::uint8_t const *sub = row(y - radius);
            for (int x = 0; x < width; ++x) sums[x] -= sub[x];
        }
    }
}
} // namespace

void boxBlurPlane(std::uint8_t *plane, int width, int height, int radius)
{
    if (radius <= 0 || width <= 0 || height <= 0) return;
    radius = std::min(radius, MAX_BLUR_RADIUS);
    Divider const divide(2 * std::uint32_t(radius) + 1);
    std::vector<std::uint8_t> rows(std::size_t(width) * height);
    rowPass(plane, rows.data(), width, height, radius, divide);
    columnPass(rows.data(), plane, width, height, radius, divide);
}

void boxBlurAlpha(QImage &image, QSize size, int radius)
{
    int const w = std::min(size.width(), image.width());
    int const h = std::min(size.height(), image.height());
    if (radius <= 0 || w <= 0 || h <= 0) return;
    std::vector<std::uint8_t> alpha(std::size_t(w) * h);
    for (int y = 0; y < h; ++y) {
        QRgb const *line = reinterpret_cast<QRgb const *>(image.constScanLine(y));
        std::uint8_t *a = alpha.data() + std::size_t(y) * w;
        for (int x = 0; x < w; ++x) a[x] = std::uint8_t(line[x] >> 24);
    }
    boxBlurPlane(alpha.data(), w, h, radius);
    for (int y = 0; y < h; ++y) {
        QRgb *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        std::uint8_t const *a = alpha.data() + std::size_t(y) * w;
        for (int x = 0; x < w; ++x) line[x] = QRgb(a[x]) << 24;
    }
}

} // namespace VOR2
