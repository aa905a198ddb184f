#pragma once
// The image of a scene's background, read on the host thread and drawn on
// the GUI thread. Reading goes through GLOX::ImageCompositor, which belongs
// to the host thread; the QImage it answers is an implicitly shared copy
// that the GUI thread may draw.

#include <QImage>
#include <QRect>
#include <cstdint>
#include <string>

class QPainter;

namespace VOR2 {

// Host thread: the image the name gives (a file Qt reads, or a key the
// client registered with the compositor); null for "" or an unreadable name.
QImage readBackgroundImage(std::string const &name);

// Where a placement (Background::ImagePlacement) puts an image of `size` in
// a viewport of `viewport`: one rectangle, or for Tile the first tile at the
// viewport's top-left. Empty for an unknown placement or an empty image.
QRect backgroundImageRect(uint32_t placement, QSize const &size, QSize const &viewport);

// GUI thread, inside a paint: draws the image over the exposed part of the
// viewport as the placement says.
void paintBackgroundImage(QPainter *painter, QImage const &image, uint32_t placement, QSize const &viewport,
                          QRect const &exposed);

} // namespace VOR2
