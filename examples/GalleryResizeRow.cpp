#include "GalleryResizeRow.h"

#include <RectNode>
#include <ResizeControls>

using namespace VOR2;

namespace demo {

namespace {
RectNode resizable(Scene &scene, GLOX::GLRect<double> const &rect, GLOX::Color const &fill, bool visible)
{
    RectNode box(GLOX::GLRect<double>(0, 0, rect.width, rect.height));
    box.setPosition({rect.x, rect.y});
    box.setDrawStyle(DrawStyle(Stroke(GLOX::Color(0.2, 0.2, 0.3), 1.0), Fill(fill)));
    scene.addNode(box);
    installResizeControls(box, visible);
    return box;
}
} // namespace

void galleryResizeRow(Scene &scene, double top)
{
    resizable(scene, {20, top, 200, 70}, GLOX::Color(0.85, 0.9, 1.0), true);
    resizable(scene, {280, top, 120, 70}, GLOX::Color(1.0, 0.9, 0.8), false);
}

} // namespace demo
