#include "widget/ViewGeometry.h"

#include <algorithm>
#include <cmath>

namespace VOR2::view {

namespace {
std::optional<ViewRequest> ifUsable(ViewRequest const &request)
{
    if (!isUsable(request)) return std::nullopt;
    return request;
}
} // namespace

bool isUsable(ViewRequest const &r)
{
    return std::isfinite(r.scale) && r.scale > 0 && std::isfinite(r.originX) && std::isfinite(r.originY) &&
           std::isfinite(r.width) && std::isfinite(r.height);
}

bool isFinite(Rect const &r)
{
    return std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.width) && std::isfinite(r.height);
}

Point viewToScene(ViewInfo const &v, Point const &p)
{
    return {(p.x + v.offsetX) / v.scale + v.originX, (p.y + v.offsetY) / v.scale + v.originY};
}

Point sceneToView(ViewInfo const &v, Point const &p)
{
    return {(p.x - v.originX) * v.scale - v.offsetX, (p.y - v.originY) * v.scale - v.offsetY};
}

Rect viewToScene(ViewInfo const &v, Rect const &r)
{
    return {(r.x + v.offsetX) / v.scale + v.originX, (r.y + v.offsetY) / v.scale + v.originY, r.width / v.scale,
            r.height / v.scale};
}

Rect sceneToView(ViewInfo const &v, Rect const &r)
{
    return {(r.x - v.originX) * v.scale - v.offsetX, (r.y - v.originY) * v.scale - v.offsetY, r.width * v.scale,
            r.height * v.scale};
}

Rect visibleSceneRect(ViewInfo const &v) { return viewToScene(v, Rect(0, 0, v.viewWidth, v.viewHeight)); }

ViewInfo overlaid(ViewInfo v, ViewRequest const &request)
{
    v.scale = request.scale;
    v.originX = request.originX;
    v.originY = request.originY;
    v.viewWidth = request.width;
    v.viewHeight = request.height;
    v.offsetX = v.offsetY = 0.0;
    return v;
}

ViewRequest fitRect(Rect const &r, double width, double height)
{
    if (!(r.width > 0) || !(r.height > 0)) return {1.0, r.x, r.y, width, height};
    if (!(width > 0) || !(height > 0)) return {1.0, r.x, r.y, -1.0, -1.0};
    double s = std::min(width / r.width, height / r.height);
    return {s, r.x - 0.5 * (width / s - r.width), r.y - 0.5 * (height / s - r.height), width, height};
}

std::optional<ViewRequest> showSceneRect(ViewInfo const &v, Rect const &r)
{
    if (!(r.width > 0) || !(r.height > 0) || !isFinite(r)) return std::nullopt;
    return ifUsable(fitRect(r, v.viewWidth, v.viewHeight));
}

std::optional<ViewRequest> showScenePointAtViewPoint(ViewInfo const &v, Point const &p, Point const &q,
                                                     double scale)
{
    if (!(scale > 0)) return std::nullopt;
    double W = v.viewWidth, H = v.viewHeight;
    if (!(W > 0) || !(H > 0)) return std::nullopt;
    double w = W / scale, h = H / scale;
    return showSceneRect(v, Rect(p.x - (q.x / W) * w, p.y - (q.y / H) * h, w, h));
}

std::optional<ViewRequest> setScale(ViewInfo const &v, double scale)
{
    Rect visible = visibleSceneRect(v);
    Point centre(visible.x + 0.5 * visible.width, visible.y + 0.5 * visible.height);
    return showScenePointAtViewPoint(v, centre, sceneToView(v, centre), scale);
}

std::optional<ViewRequest> setScaleAroundScenePoint(ViewInfo const &v, double scale, Point const &p)
{
    return showScenePointAtViewPoint(v, p, sceneToView(v, p), scale);
}

std::optional<ViewRequest> translate(ViewInfo const &v, double dx, double dy)
{
    return ifUsable({v.scale, v.originX - dx, v.originY - dy, v.viewWidth, v.viewHeight});
}

std::optional<ViewRequest> zoomToSceneRect(ViewInfo const &v)
{
    Rect const &scene = v.sceneRect;
    if (scene.width == 0 && scene.height == 0) return std::nullopt; // null
    Rect const &m = v.margins; // left, top, right, bottom
    double availableW = v.viewWidth - (m.x + m.width), availableH = v.viewHeight - (m.y + m.height);
    if (availableW == 0 && availableH == 0) return std::nullopt;
    double s = std::min(availableW / scene.width, availableH / scene.height);
    double dx = -(m.x / s), dy = -(m.y / s);
    return showSceneRect(v, Rect(scene.x + dx, scene.y + dy, scene.width + m.width / s - dx,
                                 scene.height + m.height / s - dy));
}

std::optional<ViewRequest> zoomToActualSize(ViewInfo const &v)
{
    Rect s = v.sceneRect;
    if (s.width < 0) { s.x += s.width; s.width = -s.width; }
    if (s.height < 0) { s.y += s.height; s.height = -s.height; }
    if (s.width == 0 && s.height == 0) return std::nullopt;
    double W = v.viewWidth, H = v.viewHeight;
    if (W == 0 && H == 0) return std::nullopt;
    Point c = viewToScene(v, Point(0.5 * W, 0.5 * H));
    Rect r(c.x - 0.5 * W, c.y - 0.5 * H, W, H);
    if (!r.intersects(s)) {
        r = Rect(s.x, s.y, W, H);
    } else {
        if (s.width > r.width) {
            if (r.x < s.x) r.x = s.x;
            else if (s.right() < r.right()) r.x = s.right() - r.width;
        }
        if (s.height > r.height) {
            if (r.y < s.y) r.y = s.y;
            else if (s.bottom() < r.bottom()) r.y = s.bottom() - r.height;
        }
    }
    if (s.width < r.width) r.x = s.x + 0.5 * s.width - 0.5 * r.width;
    if (s.height < r.height) r.y = s.y + 0.5 * s.height - 0.5 * r.height;
    return showSceneRect(v, r);
}

} // namespace VOR2::view
