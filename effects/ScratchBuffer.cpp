// The image every effect draws its intermediate steps into: one per process,
// made on first use and kept until exit, so that painting does not allocate
// a full-size image per effect per paint. It is replaced only when it is too
// small in some direction, then by an image of exactly the size asked (which
// may be smaller than the old one in the other direction); otherwise it is
// handed back as it stands, possibly larger and with old contents. `clear`
// fills a new image with 0 and does nothing to an old one: a caller that
// needs known contents overwrites them. One painting thread only.

#include <Effect>

#include <QImage>

namespace VOR2 {

QImage &Effect::getScratchBuffer(GLOX::Size<int> size, bool clear)
{
    static QImage *scratch = new QImage; // never freed: effects may paint at exit
    if (scratch->width() >= size.width && scratch->height() >= size.height) return *scratch;
    *scratch = QImage(size.width, size.height, QImage::Format_ARGB32_Premultiplied);
    if (clear) scratch->fill(0);
    return *scratch;
}

} // namespace VOR2
