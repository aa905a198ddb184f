#include "GalleryContainersRow.h"

#include <VOR2>

#include <QElapsedTimer>
#include <QPainter>
#include <QPainterPath>
#include <QTimer>
#include <cmath>

using namespace VOR2;

namespace demo {

namespace {
constexpr double LEFT = 20, CELL_W = 130, BOX = 80;
using R = GLOX::GLRect<double>;

DrawStyle flat(GLOX::Color const &fill, Stroke const &stroke = Stroke::NoStroke())
{
    return DrawStyle(stroke, Fill(fill), true);
}

void selectable(Node const &n)
{
    n.setSelectable(true);
    n.setMovable(true);
    n.setCursor(GLOX::Cursor(Qt::PointingHandCursor));
}

// A child of `frame` at `place` (frame coordinates), its geometry at its
// origin so that a stretch keeps its corner where the layout puts it.
RectNode part(RectNode const &frame, R const &place, GLOX::Color const &colour)
{
    RectNode n(R(0, 0, place.width, place.height));
    n.setDrawStyle(flat(colour));
    n.setParent(frame);
    n.setPosition({place.x, place.y});
    return n;
}

// A window-like frame: a title bar that stretches, a close box that keeps
// to the right edge, a body that stretches both ways, a status dot that
// stays centred, and a footer on the bottom edge. The anchors are set
// after the children joined, so they count from the frame's size then.
void layoutFrame(Scene &scene, double top)
{
    double const w = 2 * CELL_W - (CELL_W - BOX), h = BOX * 0.75;
    RectNode frame(R(0, 0, w, h));
    frame.setDrawStyle(flat(GLOX::Color(0.93, 0.94, 0.97), Stroke(GLOX::Color(0.3, 0.3, 0.45), 1.0)));
    frame.setPosition({LEFT, top});
    selectable(frame);
    scene.addNode(frame);

    using C = LayoutConstraints;
    RectNode title = part(frame, {4, 4, w - 26, 12}, GLOX::Color(0.25, 0.4, 0.75));
    RectNode close = part(frame, {w - 18, 4, 14, 12}, GLOX::Color(0.85, 0.25, 0.2));
    RectNode body = part(frame, {4, 20, w - 8, h - 36}, GLOX::Color(1, 1, 1));
    RectNode dot = part(frame, {w / 2 - 4, h / 2 - 2, 8, 8}, GLOX::Color(0.2, 0.7, 0.3));
    RectNode footer = part(frame, {4, h - 12, w - 8, 8}, GLOX::Color(0.6, 0.6, 0.65));
    title.setLayoutConstraintFlag(C::FlexibleWidth, true);
    close.setLayoutConstraintFlag(C::Right, true);
    body.setLayoutConstraintFlag(C::FlexibleWidth, true);
    body.setLayoutConstraintFlag(C::FlexibleHeight, true);
    dot.setLayoutConstraintFlag(C::Left, true);
    dot.setLayoutConstraintFlag(C::Right, true);
    dot.setLayoutConstraintFlag(C::Top, true);
    dot.setLayoutConstraintFlag(C::Bottom, true);
    footer.setLayoutConstraintFlag(C::Bottom, true);
    footer.setLayoutConstraintFlag(C::FlexibleWidth, true);

    // Breathes over four seconds; stops and goes when the frame is gone.
    auto *timer = new QTimer;
    auto *clock = new QElapsedTimer;
    clock->start();
    WeakRef weak(frame);
    QObject::connect(timer, &QTimer::timeout, [timer, clock, weak, w, h] {
        RectNode live(weak.promote().getImpl());
        if (!live.isValid()) {
            timer->stop();
            timer->deleteLater();
            delete clock;
            return;
        }
        double const phase = 0.5 - 0.5 * std::cos(clock->elapsed() / 4000.0 * 2 * M_PI);
        live.setRect(R(0, 0, w * (0.7 + 0.3 * phase), h * (0.8 + 0.4 * phase)));
    });
    timer->start(40);
}

GLOX::Shape starShape(QPointF c, double outer)
{
    QPainterPath path;
    for (int i = 0; i < 10; ++i) {
        double a = -M_PI / 2 + i * M_PI / 5, r = i % 2 ? outer * 0.45 : outer;
        QPointF p = c + QPointF(r * std::cos(a), r * std::sin(a));
        i ? path.lineTo(p) : path.moveTo(p);
    }
    path.closeSubpath();
    return GLOX::Shape(path);
}

// Three shapes drawn, outlined, hit and dragged as one.
void composite(Scene &scene, R const &r)
{
    CompositeNode group;
    group.setPosition({r.x, r.y});
    selectable(group);
    scene.addNode(group);
    Stroke ink(GLOX::Color(0.2, 0.2, 0.2), 1.0);
    EllipseNode disc(Ellipse(R(0, 0, r.height, r.height)));
    disc.setDrawStyle(flat(GLOX::Color(1.0, 0.75, 0.3), ink));
    RectNode box(R(r.width * 0.35, r.height * 0.3, r.width * 0.45, r.height * 0.6));
    box.setDrawStyle(flat(GLOX::Color(0.5, 0.75, 1.0, 0.8), ink));
    ShapeNode star(starShape({r.width * 0.8, r.height * 0.3}, r.height * 0.3));
    star.setDrawStyle(flat(GLOX::Color(0.9, 0.3, 0.5), ink));
    for (Node const &n : {Node(disc), Node(box), Node(star)}) n.setParent(group);
    GLOX::Holder<EffectStroke> outline(new EffectStroke(Stroke(GLOX::Color(0.1, 0.5, 0.2, 0.7), 3.0), Outer));
    group.getEffects().add(outline.get());
}

// Concentric rings with one-pixel spokes, drawn by client code.
struct TargetPainter : CustomNodePainter {
    R box;
    explicit TargetPainter(R const &b) : box(b) {}
    Bounds getBounds() override { return Bounds(box); }
    void paint(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *) override
    {
        painter->setRenderHint(QPainter::Antialiasing);
        QPointF const c(box.x + box.width / 2, box.y + box.height / 2);
        double const outer = std::min(box.width, box.height) / 2;
        QColor const colours[] = {QColor(200, 40, 40), QColor(250, 250, 250), QColor(40, 90, 200)};
        painter->setPen(Qt::NoPen);
        for (int i = 0; i < 5; ++i) {
            painter->setBrush(colours[i % 3]);
            double const r = outer * (5 - i) / 5;
            painter->drawEllipse(c, r, r);
        }
        painter->setPen(QPen(QColor(20, 20, 20), 0)); // cosmetic: one pixel at any zoom
        painter->drawLine(QPointF(c.x() - outer, c.y()), QPointF(c.x() + outer, c.y()));
        painter->drawLine(QPointF(c.x(), c.y() - outer), QPointF(c.x(), c.y() + outer));
    }
};

void custom(Scene &scene, R const &r)
{
    CustomNode target;
    target.setPainter(new TargetPainter(R(0, 0, r.width, r.height)));
    target.setPosition({r.x, r.y});
    selectable(target);
    scene.addNode(target);
}

// A container has no look: only its children show, and they move with it.
void container(Scene &scene, R const &r)
{
    ContainerNode group;
    group.setPosition({r.x, r.y});
    scene.addNode(group);
    for (int i = 0; i < 3; ++i) {
        RoundedRectNode chip(R(i * r.width / 3, i * r.height / 4, r.width / 3, r.height / 2), 5);
        chip.setDrawStyle(flat(GLOX::Color(0.3 + 0.2 * i, 0.6, 0.9 - 0.2 * i), Stroke(GLOX::Color(), 1.0)));
        chip.setParent(group);
        selectable(chip);
    }
}
} // namespace

void addContainersRow(Scene &scene, double top)
{
    layoutFrame(scene, top);
    R const cellShape(0, 0, BOX, BOX * 0.75);
    composite(scene, R(LEFT + 2 * CELL_W, top, cellShape.width, cellShape.height));
    custom(scene, R(LEFT + 3 * CELL_W, top, cellShape.width, cellShape.height));
    container(scene, R(LEFT + 4 * CELL_W, top, cellShape.width, cellShape.height));
}

} // namespace demo
