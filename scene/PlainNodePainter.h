#pragma once
// PlainNodePainter: draws plain nodes one after another, with the pixels
// QGraphicsScene's own item drawing gives them. A plain node is a top-level
// node without children, clipping, effect, Qt cache or offscreen image,
// whose paint sets its own pen, brush and antialiasing
// (NodeImpl::paintIgnoresPainterState). Qt saves and restores the painter
// around every item and sets its world transform each time; here the
// painter is saved once for a run of plain nodes, and the transform is set
// only when it changes. Each node still gets Qt's transform (its scene
// transform times the view's), its opacity, and a style option with Qt's
// rectangles and the selected, enabled and focus states.
//
// Use: construct on a painter in scene coordinates (the view transform
// set); draw() plain items in stacking order, bottom first; finish() gives
// the painter back as it was, before anything else draws on it (the
// destructor does it too). Host thread.

#include <QStyleOptionGraphicsItem>
#include <QTransform>

class QGraphicsItem;
class QPainter;

namespace VOR2 {

class PlainNodePainter {
public:
    explicit PlainNodePainter(QPainter *painter);
    ~PlainNodePainter();
    PlainNodePainter(PlainNodePainter const &) = delete;
    PlainNodePainter &operator=(PlainNodePainter const &) = delete;

    // True when `item` is a plain node's item.
    static bool isPlain(QGraphicsItem const *item);

    // Draws a plain item as Qt would, or nothing where Qt draws nothing (a
    // hidden or fully transparent item).
    void draw(QGraphicsItem *item);

    // Restores the painter's state of the construction, if a draw changed
    // it. Drawing may start again afterwards.
    void finish();

private:
    QPainter *m_painter;
    QTransform const m_view;
    QTransform m_current;
    bool m_saved = false;
    QStyleOptionGraphicsItem m_option;
};

} // namespace VOR2
