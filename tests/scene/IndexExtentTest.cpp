// Index extents: for every node kind, with random strokes and transforms,
// the Qt bounding rectangle at any view scale lies inside the extent grown
// by its reach at that scale, in local and in scene coordinates; and the
// extent stays tight where nothing follows the zoom.

#include <ConstantInLodScale>
#include <ConstantLodScale>
#include <ConstantOutLodScale>
#include <EllipseNode>
#include <GlobalViewerInfo>
#include <Image>
#include <ImageNode>
#include <LineNode>
#include <RectNode>
#include <RoundedRectNode>
#include <SelectionNonLinearLodScale>
#include <ShapeNode>
#include <SplitLinearLodScale>

#include "scene/IndexExtent.h"
#include "support/SceneFixture.h"

#include <QImage>
#include <QtMath>
#include <cmath>
#include <functional>
#include <random>
#include <sstream>

using namespace VOR2;
using namespace VOR2::test;
using P = GLOX::GLPoint<double>;
using R = GLOX::GLRect<double>;

namespace {

LodScale const *const FAMILY[] = {
    LodScale::instance(),           ConstantLodScale::instance(),    ConstantOutLodScale::instance(),
    ConstantInLodScale::instance(), SplitLinearLodScale::instance(), SelectionNonLinearLodScale::instance(),
};

class Random {
public:
    explicit Random(unsigned seed) : m_gen(seed) {}
    double uniform(double lo, double hi) { return std::uniform_real_distribution<double>(lo, hi)(m_gen); }
    int index(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_gen); }
    bool chance(double p) { return uniform(0, 1) < p; }
    // Log-uniform from lo to hi.
    double scale(double lo, double hi) { return std::exp(uniform(std::log(lo), std::log(hi))); }

    Stroke stroke()
    {
        double const widths[] = {0.0, 0.1, 1.0, 7.0, 40.0};
        StrokeStyle style = chance(0.15) ? NoStroke : (chance(0.2) ? DashLine : SolidLine);
        return Stroke(GLOX::Color(), widths[index(5)], style, StrokeCapStyle(index(3)), StrokeJoinStyle(index(4)),
                      FAMILY[index(6)]);
    }
    QTransform transform()
    {
        QTransform t;
        if (chance(0.7)) t.translate(uniform(-200, 200), uniform(-200, 200));
        if (chance(0.7)) t.rotate(uniform(0, 360));
        if (chance(0.6)) t.scale(scale(0.05, 20) * (chance(0.2) ? -1 : 1), scale(0.05, 20));
        if (chance(0.2)) t.shear(uniform(-1, 1), 0);
        return t;
    }
    R rect()
    {
        // Now and then a side of zero or a negative one: coordinates are
        // never normalised.
        double w = chance(0.1) ? 0.0 : uniform(-30, 100), h = chance(0.1) ? 0.0 : uniform(-30, 100);
        return R(uniform(-100, 100), uniform(-100, 100), w, h);
    }
    P point() { return P(uniform(-100, 100), uniform(-100, 100)); }

    // Open and closed polygons with corners down to a few degrees, curves,
    // and several subpaths.
    QPainterPath path()
    {
        QPainterPath p;
        int subpaths = 1 + index(3);
        for (int s = 0; s < subpaths; ++s) {
            QPointF at(uniform(-100, 100), uniform(-100, 100));
            p.moveTo(at);
            int n = 1 + index(6);
            for (int i = 0; i < n; ++i) {
                if (chance(0.3)) {
                    p.cubicTo(at + QPointF(uniform(-80, 80), uniform(-80, 80)),
                              at + QPointF(uniform(-80, 80), uniform(-80, 80)),
                              at + QPointF(uniform(-80, 80), uniform(-80, 80)));
                } else if (chance(0.3)) {
                    // A spike: out and nearly straight back.
                    double a = uniform(0, 2 * M_PI), len = uniform(5, 80), turn = uniform(1, 10) * M_PI / 180;
                    QPointF tip = at + QPointF(len * std::cos(a), len * std::sin(a));
                    p.lineTo(tip);
                    p.lineTo(tip - QPointF(len * std::cos(a + turn), len * std::sin(a + turn)));
                } else {
                    p.lineTo(at + QPointF(uniform(-80, 80), uniform(-80, 80)));
                }
                at = p.currentPosition();
            }
            if (chance(0.5)) p.closeSubpath();
        }
        return p;
    }

private:
    std::mt19937 m_gen;
};

// Whether `outer` holds `inner`, edges included, but for rounding: a part
// in 1e9 of the largest coordinate involved.
bool holds(QRectF const &outer, QRectF const &inner)
{
    double const size = std::max({1.0, std::abs(outer.left()), std::abs(outer.right()), std::abs(outer.top()),
                                  std::abs(outer.bottom())});
    double const eps = 1e-9 * size;
    return inner.left() >= outer.left() - eps && inner.right() <= outer.right() + eps &&
           inner.top() >= outer.top() - eps && inner.bottom() <= outer.bottom() + eps;
}

// Qt's rectangle for "no bounds".
bool isNoBounds(QRectF const &r) { return r == QRectF(-1.0, -1.0, -1.0, -1.0); }

std::string describe(QRectF const &r)
{
    std::ostringstream out;
    out << "(" << r.left() << ", " << r.top() << ") to (" << r.right() << ", " << r.bottom() << ")";
    return out.str();
}

// A fresh view key for every check, since per-view caches are keyed by
// view and not by scale.
void const *freshKey()
{
    static char keys[4096];
    static std::size_t next = 0;
    return &keys[next++ % sizeof keys];
}

void forgetAll(NodeImpl *node, void const *key)
{
    node->forgetView(key);
    for (NodeImpl *child : node->getChildImpls()) forgetAll(child, key);
}

// Checks the contract of `node` and of each of its descendants at view
// scale s, in local and scene coordinates.
void expectContractAt(NodeImpl *node, double s, std::string const &what)
{
    void const *key = freshKey();
    GlobalViewerInfo::instance()->setCurrentView(key, s);
    QGraphicsItem *item = node->getGraphicsItem();
    QRectF const qtLocal = item->boundingRect();
    IndexExtent const local = node->getIndexExtent();
    if (!isNoBounds(qtLocal)) {
        EXPECT_FALSE(local.isEmpty()) << what << " at scale " << s;
        EXPECT_TRUE(holds(local.rectAt(s), qtLocal))
            << what << " at scale " << s << ": Qt's " << describe(qtLocal) << " passes "
            << describe(local.rectAt(s));
        QRectF const qtScene = item->sceneBoundingRect();
        IndexExtent const scene = sceneIndexExtent(node);
        EXPECT_TRUE(holds(scene.rectAt(s), qtScene))
            << what << " in the scene at scale " << s << ": Qt's " << describe(qtScene) << " passes "
            << describe(scene.rectAt(s));
    }
    for (NodeImpl *child : node->getChildImpls()) expectContractAt(child, s, what + ", decoration");
    forgetAll(node, key);
    GlobalViewerInfo::instance()->clearCurrentView();
}

// The scales checked for every node: 1, both ends, and random ones.
std::vector<double> scalesToCheck(Random &random)
{
    std::vector<double> scales = {1.0, 0.01, 100.0};
    for (int i = 0; i < 6; ++i) scales.push_back(random.scale(0.01, 100));
    return scales;
}

QImage checkerImage()
{
    QImage image(7, 5, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::red);
    return image;
}

} // namespace

class IndexExtentTest : public SceneTest {
protected:
    // Runs `make` for `cases` random nodes; each gets a random stroke and
    // transform, half of them under a transformed parent, all on the scene.
    void checkKind(char const *kind, unsigned seed, std::function<Node(Random &)> make, int cases = 60)
    {
        Random random(seed);
        for (int c = 0; c < cases; ++c) {
            Node node = make(random);
            node.setStroke(random.stroke());
            node.setTransform(random.transform());
            RectNode parent(R(0, 0, 1, 1));
            if (random.chance(0.5)) {
                parent.setTransform(random.transform());
                scene->addNode(parent);
                node.setParent(parent);
            } else {
                scene->addNode(node);
            }
            std::ostringstream what;
            what << kind << " case " << c;
            for (double s : scalesToCheck(random)) expectContractAt(node.getImpl(), s, what.str());
            node.remove();
            parent.remove();
        }
    }
};

TEST_F(IndexExtentTest, RectanglesRoundedRectanglesAndEllipses)
{
    checkKind("rect", 11, [](Random &r) { return RectNode(r.rect()); });
    checkKind("rounded rect", 12, [](Random &r) {
        double const radius = r.chance(0.2) ? 0.0 : r.uniform(0.01, 60);
        return RoundedRectNode(r.rect(), radius);
    });
    checkKind("ellipse", 13, [](Random &r) { return EllipseNode(Ellipse(r.rect())); });
}

TEST_F(IndexExtentTest, ShapesWithSharpCornersCurvesAndOpenEnds)
{
    checkKind("shape", 21, [](Random &r) { return ShapeNode(GLOX::Shape(r.path())); }, 120);
}

TEST_F(IndexExtentTest, LinesWithAndWithoutDecorations)
{
    checkKind("line", 31, [](Random &r) {
        P a = r.point(), b = r.chance(0.05) ? a : r.point();
        return LineNode(a, b);
    }, 120);
    checkKind("decorated line", 32, [](Random &r) {
        LineNode line(r.point(), r.point());
        RectNode head(R(-3, -2, 6, 4));
        head.setStroke(r.stroke());
        LineEndDecoration start(head);
        start.setLineBackoff(2.0);
        line.setStartDecoration(start);
        QPainterPath arrow;
        arrow.moveTo(0, 0);
        arrow.lineTo(-8, 3);
        arrow.lineTo(-8, -3);
        arrow.closeSubpath();
        ShapeNode tip{GLOX::Shape(arrow)};
        tip.setStroke(r.stroke());
        line.setEndDecoration(LineEndDecoration(tip));
        return line;
    });
}

TEST_F(IndexExtentTest, ImagesCoverTheirRectangleAndNothingElse)
{
    GLOX::Holder<Image> pixels = Image::fromQImage(checkerImage());
    checkKind("image", 41, [&](Random &r) {
        ImageNode node(pixels);
        if (r.chance(0.7)) node.setSize(r.uniform(-40, 80), r.uniform(-40, 80));
        return node;
    });
    ImageNode node(pixels);
    node.setStroke(Stroke(GLOX::Color(), 40.0));
    IndexExtent const e = node.getImpl()->getIndexExtent();
    EXPECT_EQ(e.local, QRectF(0, 0, 7, 5));
    EXPECT_EQ(e.reachAt(0.01), 0.0) << "an image draws no outline, whatever its stroke";
}

TEST_F(IndexExtentTest, NothingFollowsTheZoomWithoutAStroke)
{
    RectNode plain(R(3, 4, 20, -10));
    plain.setDrawStyle(DrawStyle(Stroke::NoStroke(), Fill(GLOX::Color())));
    IndexExtent e = plain.getImpl()->getIndexExtent();
    EXPECT_EQ(e.local, QRectF(3, -6, 20, 10));
    EXPECT_EQ(e.reachSceneUnits, 0.0);
    EXPECT_EQ(e.reachPixels, 0.0);
    EXPECT_EQ(e.reachPixelsOverScale, 0.0);

    // A width of 7 that grows with the scene reaches exactly half of it.
    plain.setStroke(Stroke(GLOX::Color(), 7.0));
    e = plain.getImpl()->getIndexExtent();
    EXPECT_EQ(e.reachSceneUnits, 3.5);
    EXPECT_EQ(e.reachPixels, 0.0);
    // A hairline reaches half a pixel.
    plain.setStroke(Stroke());
    EXPECT_EQ(plain.getImpl()->getIndexExtent().reachAt(4.0), 0.125);

    // Under a scale of 3 turned by 45 degrees, the reach grows by
    // 3 * sqrt(2), the most a square's half side grows.
    added(plain).setTransform(GLOX::Transform(QTransform().rotate(45).scale(3, 3)));
    IndexExtent const scene = sceneIndexExtent(plain.getImpl());
    EXPECT_NEAR(scene.reachPixels, 0.5 * 3 * std::sqrt(2.0), 1e-12);
    EXPECT_NEAR(scene.local.width(), 3 * 30 / std::sqrt(2.0), 1e-9);

    EXPECT_TRUE(ShapeNode().getImpl()->getIndexExtent().isEmpty());
    EXPECT_TRUE(ImageNode().getImpl()->getIndexExtent().isEmpty()) << "a null image covers nothing";
}

TEST_F(IndexExtentTest, ALinesHitBandOutgrowsAnyPixelReachAsTheViewZoomsOut)
{
    // The hairline's hit band is as wide as its width in scene units divided
    // by the scale once more: at 1/1000 it is far past a pixel bound.
    LineNode line = added(LineNode(P(0, 0), P(100, 0)));
    IndexExtent const e = line.getImpl()->getIndexExtent();
    double const s = 1e-3;
    void const *key = freshKey();
    GlobalViewerInfo::instance()->setCurrentView(key, s);
    QRectF const qt = line.getImpl()->getGraphicsItem()->boundingRect();
    GlobalViewerInfo::instance()->clearCurrentView();
    line.getImpl()->forgetView(key);
    double const twoTerms = e.reachSceneUnits + e.reachPixels / s;
    EXPECT_GT(-qt.top(), twoTerms) << "the third term is needed";
    EXPECT_TRUE(holds(e.rectAt(s), qt)) << describe(qt) << " passes " << describe(e.rectAt(s));
    // Off a scene the tolerance goes, and with it most of the pixel reach.
    line.remove();
    EXPECT_LT(line.getImpl()->getIndexExtent().reachPixels, e.reachPixels);
}
