#include "GalleryPathsRow.h"

#include <VOR2>

#include <QPainterPath>

using namespace VOR2;

namespace demo {

namespace {
using P = GLOX::GLPoint<double>;

void interactive(Node const &node)
{
    node.setSelectable(true);
    node.setMovable(true);
    node.setCursor(GLOX::Cursor(Qt::PointingHandCursor));
}

// A filled triangle pointing along +x with its tip at its origin; the path
// stops at its base.
LineEndDecoration arrowHead(GLOX::Color const &color)
{
    QPainterPath triangle;
    triangle.addPolygon(QPolygonF({{0, 0}, {-11, -5}, {-11, 5}}));
    triangle.closeSubpath();
    ShapeNode head{GLOX::Shape(triangle)};
    head.setDrawStyle(DrawStyle(Stroke::NoStroke(), Fill(color)));
    LineEndDecoration d(head);
    d.setLineBackoff(11.0);
    return d;
}
} // namespace

void addPathsRow(Scene &scene, P const &topLeft, double cellWidth)
{
    auto at = [&](int column, double x, double y) { return P(topLeft.x + column * cellWidth + x, topLeft.y + y); };
    GLOX::Color const ink(0.15, 0.2, 0.45), red(0.8, 0.15, 0.1);

    OpenLinearPathNode zigzag({at(0, 0, 55), at(0, 25, 10), at(0, 45, 50), at(0, 78, 8)});
    zigzag.setDrawStyle(DrawStyle(Stroke(ink, 2.5, SolidLine, FlatCap, RoundJoin), Fill()));
    zigzag.setEndDecoration(arrowHead(ink));
    zigzag.setStartDecoration(arrowHead(ink));

    OpenCurvedPathNode swoosh({Vertex(at(1, 0, 50), {30, 0}, {-1, 0}), Vertex(at(1, 40, 15)),
                               Vertex(at(1, 78, 50), {0, 1}, {0, -30})});
    swoosh.setDrawStyle(DrawStyle(Stroke(red, 2.5), Fill()));
    swoosh.setEndDecoration(arrowHead(red));

    // The curve passes through each of its points; the markers are its
    // children and move with it.
    OpenCurvedPathNode wave({Vertex(at(2, 0, 30)), Vertex(at(2, 20, 5)), Vertex(at(2, 40, 30)),
                             Vertex(at(2, 60, 55)), Vertex(at(2, 80, 30))});
    wave.setDrawStyle(DrawStyle(Stroke(ink, 1.5), Fill()));
    for (Vertex const &v : wave.getVertices()) {
        EllipseNode marker(Ellipse({v.position.x - 3, v.position.y - 3, 6, 6}));
        marker.setDrawStyle(DrawStyle(Stroke(GLOX::Color(), 0.0), Fill(GLOX::Color(1.0, 0.8, 0.2))));
        marker.setParent(wave);
    }

    // Smooth along the top, closed by a straight base.
    ClosedCurvedPathNode blob({Vertex(at(3, 0, 55), {0, -40}, {}), Vertex(at(3, 20, 10)), Vertex(at(3, 55, 25)),
                               Vertex(at(3, 80, 55), {}, {0, -30})});
    blob.setDrawStyle(DrawStyle(Stroke(ink, 1.0), Fill(GLOX::Color(0.6, 0.85, 0.7))));

    ClosedLinearPathNode polygon({at(4, 10, 5), at(4, 75, 15), at(4, 60, 55), at(4, 5, 45)});
    polygon.setDrawStyle(DrawStyle(Stroke(ink, 1.0), Fill(GLOX::Color(0.95, 0.9, 0.75))));
    GLOX::Holder<EffectStroke> outline(new EffectStroke(Stroke(red, 4.0, SolidLine, FlatCap, RoundJoin), Outer));
    polygon.getEffects().add(outline.get());

    for (Node const &n : {Node(zigzag), Node(swoosh), Node(wave), Node(blob), Node(polygon)}) {
        interactive(n);
        scene.addNode(n);
    }
}

} // namespace demo
