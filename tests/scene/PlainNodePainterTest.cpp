// Plain nodes drawn straight against Qt drawing every item itself: the same
// pixels at every zoom, with nodes Qt must draw between them, and the
// painter given back as it came.

#include <EllipseNode>
#include <GlobalViewerInfo>
#include <Image>
#include <ImageNode>
#include <LineNode>
#include <RectNode>
#include <RoundedRectNode>
#include <Scene>

#include "scene/PlainNodePainter.h"
#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"

#include <QGraphicsItem>
#include <QImage>
#include <QPainter>
#include <gtest/gtest.h>
#include <random>

using namespace VOR2;
using R = GLOX::GLRect<double>;

namespace {
constexpr int SIDE = 300; // device pixels of every render
double const SCALES[] = {0.01, 0.1, 1.0};

// Nodes of every plain kind, at the three zooms' sizes, with nodes Qt draws
// itself stacked among them: a parent with a child, a clipping node, a
// cached node and image nodes.
class MixedScene {
public:
    MixedScene() : m_scene(Scene::createScene()), m_rng(7) {}

    double uniform(double a, double b) { return std::uniform_real_distribution<double>(a, b)(m_rng); }

    DrawStyle style(int i)
    {
        static double const widths[] = {0.0, 1.5, 0.3};
        Stroke stroke(GLOX::Color(0.1, 0.2 * (i % 5), 0.3), widths[i % 3], StrokeStyle(1 + i % 3));
        Fill fill = i % 4 == 0 ? Fill() : Fill(GLOX::Color(0.9, 0.1 * (i % 7), 0.5, 0.8));
        return DrawStyle(stroke, fill, i % 2 == 0);
    }

    Node plainNode(int i, double unit)
    {
        R r(uniform(0, SIDE * unit), uniform(0, SIDE * unit), uniform(2, 40) * unit, uniform(2, 40) * unit);
        Node n;
        switch (i % 4) {
        case 0: n = RectNode(r); break;
        case 1: n = EllipseNode(Ellipse(r)); break;
        case 2: n = RoundedRectNode(r, 3 * unit); break;
        default: n = LineNode(GLOX::GLPoint<double>(r.x, r.y), GLOX::GLPoint<double>(r.right(), r.bottom())); break;
        }
        n.setDrawStyle(style(i));
        if (i % 5 == 0) n.setOpacity(0.5);
        if (i % 7 == 0) n.rotateDegreesAroundPoint(uniform(-90, 90), {r.x, r.y});
        if (i % 6 == 0) n.setPosition({uniform(-10, 10) * unit, uniform(-10, 10) * unit});
        if (i % 9 == 0) n.setZValue(1.0); // ties with the other nodes of z 1
        return n;
    }

    Node otherNode(int i, double unit)
    {
        R r(uniform(0, SIDE * unit), uniform(0, SIDE * unit), uniform(10, 60) * unit, uniform(10, 60) * unit);
        switch (i % 4) {
        case 0: {
            RectNode parent(r);
            parent.setDrawStyle(style(i));
            RectNode child(R(r.x + r.width / 2, r.y + r.height / 2, r.width, r.height));
            child.setDrawStyle(style(i + 1));
            child.setParent(parent);
            return parent;
        }
        case 1: {
            EllipseNode clipping{Ellipse(r)};
            clipping.setDrawStyle(style(i));
            clipping.setClipsChildren(true);
            return clipping;
        }
        case 2: {
            RectNode cached(r);
            cached.setDrawStyle(style(i));
            cached.setCacheType(CacheType::Self);
            return cached;
        }
        default: {
            QImage pixels(6, 4, QImage::Format_ARGB32_Premultiplied);
            pixels.fill(QColor(20, 160, 60));
            ImageNode image(Image::fromQImage(pixels));
            image.setPosition({r.x, r.y});
            image.scale(unit * 3, unit * 3);
            image.rotateDegrees(uniform(0, 45));
            return image;
        }
        }
    }

    void build()
    {
        for (double scale : SCALES) {
            double const unit = 1.0 / scale;
            for (int i = 0; i < 60; ++i) {
                Node n = i % 6 == 5 ? otherNode(i / 6, unit) : plainNode(i, unit);
                if (i % 11 == 0) n.setZValue(1.0);
                m_scene->addNode(n);
                (i % 6 == 5 ? m_others : m_plain).push_back(n);
            }
        }
    }

    QImage render(double scale, bool walk)
    {
        GlobalViewerInfo::instance()->setCurrentView(this, scale);
        QImage image(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        ScenePrivate *d = m_scene->getPrivate();
        d->setLinearQueries(walk);
        d->renderRegion(&painter, QRectF(0, 0, SIDE, SIDE), QRectF(0, 0, SIDE / scale, SIDE / scale),
                        Qt::KeepAspectRatio);
        d->setLinearQueries(false);
        GlobalViewerInfo::instance()->clearCurrentView();
        return image;
    }

    ScenePrivate *d() { return m_scene->getPrivate(); }
    std::vector<Node> const &plain() const { return m_plain; }
    std::vector<Node> const &others() const { return m_others; }

private:
    GLOX::Holder<Scene> m_scene;
    std::mt19937 m_rng;
    std::vector<Node> m_plain, m_others;
};

QGraphicsItem *itemOf(Node const &n) { return n.getImpl()->getGraphicsItem(); }
} // namespace

TEST(PlainNodePainter, OnlyChildlessTopLevelNodesThatSetTheirOwnStyleArePlain)
{
    MixedScene mixed;
    mixed.build();
    for (Node const &n : mixed.plain()) EXPECT_TRUE(PlainNodePainter::isPlain(itemOf(n))) << n.getFullyQualifiedTcosTypeName();
    for (Node const &n : mixed.others()) {
        EXPECT_FALSE(PlainNodePainter::isPlain(itemOf(n))) << n.getFullyQualifiedTcosTypeName();
        for (Node const &child : n.getChildren()) EXPECT_FALSE(PlainNodePainter::isPlain(itemOf(child)));
    }
}

TEST(PlainNodePainter, DrawsThePixelsOfQtsOwnItemDrawingAtEveryZoom)
{
    MixedScene mixed;
    mixed.build();
    for (double scale : SCALES) {
        QImage const walked = mixed.render(scale, true);
        QImage const indexed = mixed.render(scale, false);
        int differing = 0, painted = 0;
        for (int y = 0; y < SIDE; ++y)
            for (int x = 0; x < SIDE; ++x) {
                differing += walked.pixel(x, y) != indexed.pixel(x, y);
                painted += qAlpha(walked.pixel(x, y)) != 0;
            }
        EXPECT_EQ(differing, 0) << "scale " << scale;
        EXPECT_GT(painted, SIDE * SIDE / 10) << "scale " << scale << ": too little drawn to compare";
    }
}

TEST(PlainNodePainter, GivesThePainterBackAsItCame)
{
    MixedScene mixed;
    mixed.build();
    GlobalViewerInfo::instance()->setCurrentView(&mixed, 1.0);
    QImage image(SIDE, SIDE, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QPen const pen(QColor(200, 10, 10), 3.0);
    QBrush const brush(QColor(10, 10, 200));
    painter.setPen(pen);
    painter.setBrush(brush);
    painter.setOpacity(0.75);
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.translate(2, 3);
    QTransform const transform = painter.worldTransform();

    PlainNodePainter plain(&painter);
    for (Node const &n : mixed.plain()) plain.draw(itemOf(n));
    plain.finish();
    EXPECT_EQ(painter.pen(), pen);
    EXPECT_EQ(painter.brush(), brush);
    EXPECT_DOUBLE_EQ(painter.opacity(), 0.75);
    EXPECT_FALSE(painter.testRenderHint(QPainter::Antialiasing));
    EXPECT_EQ(painter.worldTransform(), transform);
    GlobalViewerInfo::instance()->clearCurrentView();
}
