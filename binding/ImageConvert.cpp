#include "binding/ImageConvert.h"

#include <QImage>

namespace VOR2::script {

Value fromImage(GLOX::Holder<Image> const &image)
{
    if (!image || image->isNull()) return Value::bytes(0, 0, 4, {});
    QImage const rgba = image->asQImage()->convertToFormat(QImage::Format_RGBA8888);
    std::size_t const h = std::size_t(rgba.height()), w = std::size_t(rgba.width());
    std::vector<std::uint8_t> bytes(h * w * 4);
    // The host is column-major: (row, column, page) at (page * w + column) * h + row.
    for (std::size_t y = 0; y < h; ++y) {
        uchar const *line = rgba.constScanLine(int(y));
        for (std::size_t x = 0; x < w; ++x)
            for (std::size_t p = 0; p < 4; ++p) bytes[(p * w + x) * h + y] = line[4 * x + p];
    }
    return Value::bytes(h, w, 4, std::move(bytes));
}

} // namespace VOR2::script
