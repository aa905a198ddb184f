#pragma once
// The shapes every system under measurement draws: the same list, from a
// fixed seed, for VOR2, plain Qt Graphics View and direct QPainter drawing.
//
// W1: rectangles. W2: rectangles, ellipses, lines and rounded rectangles in
// turn. W1S: W1's rectangles, each also outlined on its edge by a pen 3
// units wide, red at three quarters (VOR2: one stroke effect shared by
// every node; Qt: an item that draws the outline after the rectangle).
// Each shape is 10 to 60 units on a side, somewhere in a 20000 by
// 20000 scene, filled with one of a few opaque colours and outlined with a
// hairline (lines have the outline only).

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <string>
#include <vector>

namespace bench {

constexpr double SCENE_SIZE = 20000.0;
constexpr double ROUNDED_RADIUS = 4.0;

enum class Workload { W1, W2, W1S };
enum class ShapeKind { Rect, Ellipse, Line, RoundedRect };

struct Shape {
    ShapeKind kind;
    QRectF rect; // for a line: from the top-left to the bottom-right corner
    QColor fill;
    bool outlined = false; // W1S
};

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
