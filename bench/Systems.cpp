#include "Systems.h"

#include <EffectStroke>
#include <EllipseNode>
#include <ClosedCurvedPathNode>
#include <ClosedLinearPathNode>
#include <GlobalViewerInfo>
#include <LineNode>
#include <NodeEffects>
#include <OpenCurvedPathNode>
#include <OpenLinearPathNode>
#include <RectNode>
#include <RoundedRectNode>
#include <ShapeNode>
#include <TextNode>
#include <Vertex>

#include "scene/SceneRegionRenderer.h"
#include "scene/ScenePrivate.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsLineItem>
#include <QGraphicsPathItem>
#include <QGraphicsPolygonItem>
#include <QGraphicsTextItem>
#include <QGraphicsRectItem>
#include <QPainterPath>

namespace bench {

void paintOutline(QPainter &painter, QRectF const &rect)
{
    QPen pen(outlineColor(), OUTLINE_WIDTH);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect);
}

namespace {

// W1S's outline: one effect for every node, as a scene's selection outline.
VOR2::EffectStroke *sharedOutline()
{
    static VOR2::EffectStroke *outline = [] {
        auto *e = new VOR2::EffectStroke(
            VOR2::Stroke(GLOX::fromQColor(outlineColor()), OUTLINE_WIDTH), VOR2::Center);
        e->ref(); // for the whole run
        return e;
    }();
    return outline;
}

// A rectangle item that outlines itself as W1S asks.
class OutlinedRectItem : public QGraphicsRectItem {
public:
    using QGraphicsRectItem::QGraphicsRectItem;
    QRectF boundingRect() const override
    {
        double const m = OUTLINE_WIDTH / 2 + 1.0;
        return QGraphicsRectItem::boundingRect().adjusted(-m, -m, m, m);
    }
    void paint(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override
    {
        QGraphicsRectItem::paint(painter, option, widget);
        paintOutline(*painter, rect());
    }
};

// W3's arrow head, as a VOR2 node: the decoration turns and places it.
VOR2::LineEndDecoration arrowDecoration(Shape const &s)
{
    QPainterPath head;
    head.addPolygon(arrowHead());
    head.closeSubpath();
    VOR2::ShapeNode node{GLOX::Shape(head)};
    node.setDrawStyle(VOR2::DrawStyle(VOR2::Stroke(GLOX::Color(0.0, 0.0, 0.0), 0.0),
                                      VOR2::Fill(GLOX::fromQColor(s.fill))));
    VOR2::LineEndDecoration decoration(node);
    decoration.setLineBackoff(ARROW_LENGTH);
    return decoration;
}

VOR2::Node makePathNode(Shape const &s)
{
    if (!s.curved) {
        GLOX::GVector<GLOX::GLPoint<double>> points;
        points.reserve(int(s.points.size()));
        for (QPointF const &p : s.points) points.append({p.x(), p.y()});
        if (!s.arrow) {
            VOR2::ClosedLinearPathNode node;
            node.setPoints(points);
            return node;
        }
        VOR2::OpenLinearPathNode node;
        node.setPoints(points);
        node.setEndDecoration(arrowDecoration(s));
        return node;
    }
    GLOX::GVector<VOR2::Vertex> vertices;
    vertices.reserve(int(s.points.size()));
    for (QPointF const &p : s.points) vertices.append(VOR2::Vertex({p.x(), p.y()}));
    if (!s.arrow) {
        VOR2::ClosedCurvedPathNode node;
        node.setVertices(vertices);
        return node;
    }
    // The last vertex's forward tangent only turns the head.
    QPointF d = s.points.back() - s.points[s.points.size() - 2];
    vertices.last().forwardTangent = {d.x(), d.y()};
    VOR2::OpenCurvedPathNode node;
    node.setVertices(vertices);
    node.setEndDecoration(arrowDecoration(s));
    return node;
}

VOR2::Node makeNode(Shape const &s)
{
    GLOX::GLRect<double> r(s.rect.x(), s.rect.y(), s.rect.width(), s.rect.height());
    VOR2::Node node;
    switch (s.kind) {
    case ShapeKind::Rect: node = VOR2::RectNode(r); break;
    case ShapeKind::Ellipse: node = VOR2::EllipseNode(VOR2::Ellipse(r)); break;
    case ShapeKind::Line:
        node = VOR2::LineNode({s.rect.left(), s.rect.top()}, {s.rect.right(), s.rect.bottom()});
        break;
    case ShapeKind::RoundedRect: node = VOR2::RoundedRectNode(r, ROUNDED_RADIUS); break;
    case ShapeKind::Path: node = makePathNode(s); break;
    case ShapeKind::Text: return VOR2::TextNode(s.text.toStdString(), {s.rect.x(), s.rect.y()});
    }
    VOR2::Stroke hairline(GLOX::Color(0.0, 0.0, 0.0), 0.0);
    bool const unfilled = s.kind == ShapeKind::Line || (s.kind == ShapeKind::Path && s.arrow);
    VOR2::Fill fill = unfilled ? VOR2::Fill() : VOR2::Fill(GLOX::fromQColor(s.fill));
    node.setDrawStyle(VOR2::DrawStyle(hairline, fill));
    if (s.outlined) node.getEffects().add(sharedOutline());
    return node;
}

QGraphicsItem *makeItem(Shape const &s)
{
    QPen hairline(Qt::black, 0);
    QBrush fill(s.fill);
    switch (s.kind) {
    case ShapeKind::Rect: {
        auto *item = s.outlined ? new OutlinedRectItem(s.rect) : new QGraphicsRectItem(s.rect);
        item->setPen(hairline);
        item->setBrush(fill);
        return item;
    }
    case ShapeKind::Ellipse: {
        auto *item = new QGraphicsEllipseItem(s.rect);
        item->setPen(hairline);
        item->setBrush(fill);
        return item;
    }
    case ShapeKind::Line: {
        auto *item = new QGraphicsLineItem(QLineF(s.rect.topLeft(), s.rect.bottomRight()));
        item->setPen(hairline);
        return item;
    }
    case ShapeKind::RoundedRect: {
        QPainterPath path;
        path.addRoundedRect(s.rect, ROUNDED_RADIUS, ROUNDED_RADIUS);
        auto *item = new QGraphicsPathItem(path);
        item->setPen(hairline);
        item->setBrush(fill);
        return item;
    }
    case ShapeKind::Text: {
        auto *item = new QGraphicsTextItem(s.text);
        item->setPos(s.rect.topLeft());
        return item;
    }
    case ShapeKind::Path: {
        auto *item = new QGraphicsPathItem(pathOf(s));
        item->setPen(hairline);
        if (!s.arrow) {
            item->setBrush(fill);
            return item;
        }
        auto *head = new QGraphicsPolygonItem(arrowHead(), item);
        head->setPen(hairline);
        head->setBrush(fill);
        head->setPos(arrowTip(s));
        head->setRotation(arrowDegrees(s));
        return item;
    }
    }
    return nullptr;
}
} // namespace

char const *systemKey(System s)
{
    switch (s) {
    case System::VOR2: return "vor2";
    case System::QtBsp: return "qt_bsp";
    case System::QtNoIndex: return "qt_noindex";
    case System::Painter: return "painter";
    }
    return "?";
}

BuiltScene::BuiltScene(System s, std::vector<Shape> const &list, bool keepFirst) : system(s), shapes(&list)
{
    switch (s) {
    case System::VOR2: {
        GLOX::Holder<VOR2::Scene> scene = VOR2::Scene::createScene();
        for (Shape const &shape : list) {
            VOR2::Node node = makeNode(shape);
            scene->addNode(node);
            if (keepFirst && !firstNode.isValid()) firstNode = node;
        }
        vor2 = scene.get();
        vor2->ref();
        break;
    }
    case System::QtBsp:
    case System::QtNoIndex:
        qt = new QGraphicsScene;
        qt->setItemIndexMethod(s == System::QtBsp ? QGraphicsScene::BspTreeIndex : QGraphicsScene::NoIndex);
        for (Shape const &shape : list) {
            QGraphicsItem *item = makeItem(shape);
            qt->addItem(item);
            if (keepFirst && !firstItem) firstItem = item;
        }
        break;
    case System::Painter: break;
    }
}

void BuiltScene::teardown()
{
    firstNode = VOR2::Node();
    firstItem = nullptr;
    if (vor2) std::exchange(vor2, nullptr)->unref();
    if (qt) {
        // Items added since the last event-loop turn wait in Qt's list of
        // items to polish, and deleting each one searches that list from
        // the front: quadratic. The turn's own polish pass (a private slot
        // of QGraphicsScene) empties it in one go, as a loop turn would.
        QMetaObject::invokeMethod(qt, "_q_polishItems", Qt::DirectConnection);
        delete std::exchange(qt, nullptr);
    }
}

void paintShapesDirectly(QPainter &painter, std::vector<Shape> const &list, QRectF const &source, double scale)
{
    painter.setPen(QPen(Qt::black, 0));
    for (Shape const &s : list) {
        if (!paintedRect(s, scale).intersects(source)) continue;
        switch (s.kind) {
        case ShapeKind::Rect:
            painter.setBrush(s.fill);
            painter.drawRect(s.rect);
            if (s.outlined) {
                paintOutline(painter, s.rect);
                painter.setPen(QPen(Qt::black, 0));
            }
            break;
        case ShapeKind::Ellipse:
            painter.setBrush(s.fill);
            painter.drawEllipse(s.rect);
            break;
        case ShapeKind::Line: painter.drawLine(s.rect.topLeft(), s.rect.bottomRight()); break;
        case ShapeKind::RoundedRect:
            painter.setBrush(s.fill);
            painter.drawRoundedRect(s.rect, ROUNDED_RADIUS, ROUNDED_RADIUS);
            break;
        case ShapeKind::Text:
            painter.drawText(QRectF(s.rect.topLeft(), QSizeF(400, 100)), Qt::AlignLeft | Qt::AlignTop, s.text);
            break;
        case ShapeKind::Path:
            painter.setBrush(s.arrow ? QBrush() : QBrush(s.fill));
            painter.drawPath(pathOf(s));
            if (s.arrow) {
                painter.save();
                painter.translate(arrowTip(s));
                painter.rotate(arrowDegrees(s));
                painter.setBrush(s.fill);
                painter.drawPolygon(arrowHead());
                painter.restore();
            }
            break;
        }
    }
}

void renderRegion(BuiltScene &scene, QImage &image, QRect const &target, QRectF const &source, void const *viewKey)
{
    double const scale = std::min(target.width() / source.width(), target.height() / source.height());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    if (scene.system == System::VOR2) {
        VOR2::GlobalViewerInfo::instance()->setCurrentView(viewKey, scale);
        VOR2::renderSceneRegion(&painter, scene.vor2->getPrivate(), target, source);
        VOR2::GlobalViewerInfo::instance()->clearCurrentView();
        return;
    }
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(target, Qt::transparent);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (scene.qt) {
        scene.qt->render(&painter, QRectF(target), source, Qt::KeepAspectRatio);
        return;
    }
    painter.setClipRect(target);
    painter.translate(target.x(), target.y());
    painter.scale(scale, scale);
    painter.translate(-source.x(), -source.y());
    paintShapesDirectly(painter, *scene.shapes, source, scale);
}

} // namespace bench
