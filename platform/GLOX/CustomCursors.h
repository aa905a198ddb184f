#pragma once
// GLOX::CustomCursors: the process-wide register of cursors drawn from an
// image file, by name. Registering a name gives it a shape number of its
// own (FirstShape, FirstShape + 1, ...), which a GLOX::Cursor carries like a
// standard shape; registering the name again replaces its image and hot spot
// and keeps its number, so cursors already set show the new image.
//
// Any thread; the register is guarded by a mutex. The image is kept as a
// QImage (loading one is safe off the GUI thread); the pixmap is made when
// a cursor is shown.

#include "GLOX/Cursor.h"

#include <QImage>
#include <QPoint>
#include <string>

namespace GLOX {

class CustomCursors {
public:
    static constexpr int FirstShape = 1000;

    // Loads the image at `path` and registers it under `name`, with the hot
    // spot (hotX, hotY) in image pixels; -1 for either puts it in the
    // middle. Answers the cursor, or an invalid one when the image cannot be
    // read (the register is left as it was).
    static Cursor registerCursor(std::string const &name, std::string const &path, int hotX = -1, int hotY = -1);
    // The cursor registered under `name`; invalid when there is none.
    static Cursor find(std::string const &name);
    // The name of a custom shape; empty for any other shape.
    static std::string name(int shape);
    static bool contains(int shape);
    // The Qt cursor of a custom shape; the default QCursor when unknown.
    static QCursor toQCursor(int shape);
};

} // namespace GLOX
