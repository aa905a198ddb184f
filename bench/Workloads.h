#pragma once
// The shapes every system under measurement draws: the same list, from a
// fixed seed, for VOR2, plain Qt Graphics View and direct QPainter drawing.
//
// W1: rectangles. W2: rectangles, ellipses, lines and rounded rectangles in
// turn. W3: paths of 4 to 32 points, linear and curved in turn; every other
// pair is open with an arrow head at its end (a filled triangle the line
// stops short of), the rest closed and filled. W4: plain texts of one to
// three words in the default font, black, placed by their top left (rect is
// where the text starts; its size is not known before layout). W1S: W1's rectangles, each also outlined on its edge by a pen 3
// units wide, red at three quarters (VOR2: one stroke effect shared by
// every node; Qt: an item that draws the outline after the rectangle).
// Each shape is 10 to 60 units on a side, somewhere in a 20000 by
// 20000 scene, filled with one of a few opaque colours and outlined with a
// hairline (lines have the outline only).

#include <QColor>
#include <QPainterPath>
#include <QPolygonF>
#include <QString>
#include <QPointF>
#include <QRectF>
#include <string>
#include <vector>

namespace bench {

constexpr double SCENE_SIZE = 20000.0;
constexpr double ROUNDED_RADIUS = 4.0;

enum class Workload { W1, W2, W1S, W3, W4 };
enum class ShapeKind { Rect, Ellipse, Line, RoundedRect, Path, Text };

struct Shape {
    ShapeKind kind;
    QRectF rect; // for a line: from the top-left to the bottom-right corner
    QColor fill;
    bool outlined = false; // W1S
    // W3: the path's points (rect is their bounding box), whether it is a
    // curve through them, and whether it is open with an arrow head.
    std::vector<QPointF> points;
    bool curved = false;
    bool arrow = false;
    QString text; // W4
};

// W3's arrow head: a triangle ARROW_LENGTH long and ARROW_WIDTH across,
// its tip on the path's last point; the path stops ARROW_LENGTH short.
constexpr double ARROW_LENGTH = 6.0;
constexpr double ARROW_WIDTH = 4.0;
// The head in its own coordinates, tip at the origin, pointing along +x.
QPolygonF arrowHead();
// Where the head goes: the path's last point, and the angle in degrees of
// the direction it points in (from the last but one point to the last).
QPointF arrowTip(Shape const &s);
double arrowDegrees(Shape const &s);
// The path a W3 shape draws, as VOR2 builds it: an open path stopped short
// by the arrow head, a closed one closed by a straight side; a curve runs
// through every point with interior tangents half the span of its
// neighbours and ends with zero tangents.
QPainterPath pathOf(Shape const &s);

// The outline of W1S: its pen, and how far it reaches beyond the shape.
constexpr double OUTLINE_WIDTH = 3.0;
QColor outlineColor();

std::string workloadName(Workload w);
// The first n shapes of a workload; the same n always gives the same list.
std::vector<Shape> const &shapes(Workload w, int n);
// Scene points to hit-test: every other one at the centre of a shape, the
// rest anywhere in the scene.
std::vector<QPointF> probePoints(Workload w, int n, int count);
// A shape's bounding rectangle, hairline included, in scene units at the
// given view scale.
QRectF paintedRect(Shape const &s, double scale);

} // namespace bench
