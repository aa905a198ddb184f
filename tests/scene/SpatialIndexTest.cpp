// The scene's spatial index against Qt walking every item: random scenes of
// every node kind, queried at random scales, answer exactly the same nodes
// in the same order; and the index alone finds what it must.

#include <ConstantInLodScale>
#include <ConstantLodScale>
#include <CompositeNode>
#include <ConstantOutLodScale>
#include <ContainerNode>
#include <CustomNode>
#include <CustomNodePainter>
#include <EffectColorOverlay>
#include <EffectGlow>
#include <EffectInnerGlow>
#include <EffectInnerShadow>
#include <EffectShadow>
#include <EffectStroke>
#include <EllipseNode>
#include <Error>
#include <GlobalViewerInfo>
#include <Image>
#include <ImageNode>
#include <LineNode>
#include <OpenCurvedPathNode>
#include <OpenLinearPathNode>
#include <ClosedCurvedPathNode>
#include <ClosedLinearPathNode>
#include <RectNode>
#include <RoundedRectNode>
#include <TextNode>
#include <Scene>
#include <SelectionNonLinearLodScale>
#include <NodeEffects>
#include <ShapeNode>
#include <SplitLinearLodScale>

#include "effects/NodeEffectsImpl.h"
#include "scene/NodeImpl.h"
#include "scene/IndexExtent.h"
#include "scene/ScenePrivate.h"
#include "scene/SpatialIndex.h"

#include <QGraphicsItem>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <map>
#include <set>
#include <sstream>

using namespace VOR2;

namespace {

// A custom node's painter: a filled box, whose outline is its bounds.
struct BoxPainter : CustomNodePainter {
    GLOX::GLRect<double> box;
    explicit BoxPainter(GLOX::GLRect<double> const &b) : box(b) {}
    Bounds getBounds() override { return Bounds(box); }
    void paint(QPainter *painter, QStyleOptionGraphicsItem const *, QWidget *) override
    {
        painter->fillRect(GLOX::toQRectF(box), QColor(40, 160, 90));
    }
};

// Builds and changes random scenes, and asks both ways.
class RandomScene {
public:
    explicit RandomScene(unsigned seed) : m_rng(seed) { m_scene = Scene::createScene(); }
    ~RandomScene() { GlobalViewerInfo::instance()->clearCurrentView(); }

    double uniform(double a, double b) { return std::uniform_real_distribution<double>(a, b)(m_rng); }
    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(m_rng); }
    bool chance(double p) { return uniform(0, 1) < p; }
    // Log-uniform, as zooms are.
    double scale() { return std::exp(uniform(std::log(0.01), std::log(100.0))); }

    Stroke stroke()
    {
        static double const widths[] = {0.0, 0.1, 1.0, 7.0, 40.0};
        static LodScale const *const functions[] = {
            LodScale::instance(), ConstantLodScale::instance(), ConstantInLodScale::instance(),
            ConstantOutLodScale::instance(), SplitLinearLodScale::instance(), SelectionNonLinearLodScale::instance()};
        if (chance(0.15)) return Stroke::NoStroke();
        return Stroke(GLOX::Color(0.1, 0.1, 0.1), widths[below(5)], StrokeStyle(1 + below(5)),
                      StrokeCapStyle(below(3)), StrokeJoinStyle(below(4)), functions[below(6)]);
    }
    GLOX::GLRect<double> rect()
    {
        double w = chance(0.1) ? 0.0 : uniform(0.5, 60), h = chance(0.1) ? 0.0 : uniform(0.5, 60);
        return {uniform(-50, 400), uniform(-50, 400), w, h};
    }
    // One to six points near each other, sometimes with sharp turns.
    GLOX::GVector<GLOX::GLPoint<double>> points()
    {
        GLOX::GVector<GLOX::GLPoint<double>> result;
        GLOX::GLPoint<double> p(uniform(-50, 400), uniform(-50, 400));
        for (int i = 1 + below(6); i > 0; --i) {
            result.append(p);
            p += GLOX::GLPoint<double>(uniform(-40, 40), uniform(-40, 40));
        }
        return result;
    }
    GLOX::GVector<Vertex> vertices()
    {
        GLOX::GVector<Vertex> result;
        for (GLOX::GLPoint<double> const &p : points())
            result.append(Vertex(p, {uniform(-30, 30), uniform(-30, 30)}, {uniform(-30, 30), uniform(-30, 30)}));
        return result;
    }
    // Arrow-head stand-ins at either end, some backing the path off.
    template <typename Path>
    void decorate(Path const &path)
    {
        auto head = [&] {
            LineEndDecoration d(RectNode(GLOX::GLRect<double>(-4, -4, 8, 8)));
            if (chance(0.5)) d.setLineBackoff(uniform(0, 6));
            return d;
        };
        if (chance(0.3)) path.setStartDecoration(head());
        if (chance(0.3)) path.setEndDecoration(head());
    }
    // Now and then a node that holds or draws others: a composite or a
    // container with a few children of their own, or a custom node.
    Node node()
    {
        int const kind = below(12);
        if (kind > 2) return primitive();
        if (kind == 2) {
            CustomNode custom;
            custom.setPainter(new BoxPainter(rect()));
            return custom;
        }
        Node group = kind == 0 ? Node(CompositeNode()) : Node(ContainerNode());
        for (int i = 1 + below(3); i > 0; --i) {
            Node child = primitive();
            child.setParent(group);
            transform(child);
            m_nodes.push_back(child);
        }
        return group;
    }
    Node primitive()
    {
        Node n;
        switch (below(11)) {
        case 0: n = RectNode(rect()); break;
        case 1: n = RoundedRectNode(rect(), chance(0.2) ? 0.0 : uniform(0.5, 10)); break;
        case 2: n = EllipseNode(Ellipse(rect())); break;
        case 3: {
            LineNode line({uniform(-50, 400), uniform(-50, 400)}, {uniform(-50, 400), uniform(-50, 400)});
            if (chance(0.3)) {
                RectNode head(GLOX::GLRect<double>(-4, -4, 8, 8));
                line.setEndDecoration(LineEndDecoration(head));
            }
            n = line;
            break;
        }
        case 4: {
            QPainterPath star;
            double cx = uniform(0, 400), cy = uniform(0, 400), r = uniform(2, 40);
            for (int i = 0; i < 10; ++i) {
                double a = i * M_PI / 5, rr = i % 2 ? r / 2.5 : r;
                QPointF p(cx + rr * std::cos(a), cy + rr * std::sin(a));
                i ? star.lineTo(p) : star.moveTo(p);
            }
            star.closeSubpath();
            n = ShapeNode(GLOX::Shape(star));
            break;
        }
        case 6: {
            OpenLinearPathNode path(points());
            decorate(path);
            n = path;
            break;
        }
        case 7: n = ClosedLinearPathNode(points()); break;
        case 8: {
            OpenCurvedPathNode path(vertices());
            decorate(path);
            n = path;
            break;
        }
        case 9: n = ClosedCurvedPathNode(vertices()); break;
        case 10: {
            static char const *const texts[] = {"", "x", "gjpqy", "two\nlines of text"};
            TextNode text(texts[below(4)], {uniform(-50, 400), uniform(-50, 400)});
            text.setHorizontalAlignment(below(3));
            text.setVerticalAlignment(1 + below(3));
            n = text;
            break;
        }
        default: {
            QImage pixels(8, 6, QImage::Format_ARGB32_Premultiplied);
            pixels.fill(Qt::red);
            ImageNode image(Image::fromQImage(pixels));
            image.setPosition({uniform(-50, 400), uniform(-50, 400)});
            n = image;
        }
        }
        n.setDrawStyle(DrawStyle(stroke(), Fill(GLOX::Color(0.5, 0.7, 0.9)), chance(0.5)));
        return n;
    }
    // A stroke effect of random width, scale function and inset (an
    // unknown inset too), or the scene's selection outline.
    void effect(Node const &n)
    {
        if (chance(0.3)) {
            n.setSelectable(true);
            n.setSelected(!n.isSelected());
            return;
        }
        GLOX::Holder<Effect> e;
        if (chance(0.5)) {
            e = imageEffect();
        } else {
            Stroke s = stroke();
            if (s.isNoStroke()) s = Stroke(GLOX::Color(1, 0, 0), 3.0);
            e = GLOX::Holder<Effect>(new EffectStroke(s, StrokeInsetType(below(4))));
        }
        if (chance(0.2)) e->setOpacity(0.0);
        n.getEffects().add(e.get(), chance(0.5) ? "a" : "b");
        if (chance(0.2)) n.getEffects().disable(e.get());
    }
    // A glow, shadow, inner glow, inner shadow or overlay of random spread
    // (negative too), distance and scale function.
    GLOX::Holder<Effect> imageEffect()
    {
        EffectGlow *glow = nullptr;
        switch (below(5)) {
        case 0: glow = new EffectGlow; break;
        case 1: glow = new EffectShadow; break;
        case 2: glow = new EffectInnerGlow; break;
        case 3: glow = new EffectInnerShadow; break;
        default: return GLOX::Holder<Effect>(new EffectColorOverlay);
        }
        glow->setSpread(below(30) - 5);
        glow->setDistance({below(41) - 20, below(41) - 20});
        glow->setScaleFunction(stroke().scaleFunction());
        return GLOX::Holder<Effect>(glow);
    }
    void transform(Node const &n)
    {
        if (chance(0.25)) n.rotateDegreesAroundPoint(uniform(-180, 180), {uniform(0, 400), uniform(0, 400)});
        if (chance(0.15)) n.scale(uniform(0.3, 3), uniform(0.3, 3));
        if (chance(0.2)) n.setPosition({uniform(-100, 100), uniform(-100, 100)});
    }

    void build(int count)
    {
        for (int i = 0; i < count; ++i) {
            std::size_t const known = m_nodes.size(); // not the new node's own children
            Node n = node();
            if (known > 0 && chance(0.3))
                n.setParent(m_nodes[size_t(below(int(known)))]);
            else
                m_scene->addNode(n);
            transform(n);
            if (chance(0.08)) n.setVisible(false);
            if (chance(0.05)) n.setOpacity(0.0);
            if (chance(0.1)) n.setClipsChildren(true);
            if (chance(0.15)) n.setZValue(double(below(3))); // ties among siblings
            if (chance(0.25)) effect(n);
            m_nodes.push_back(n);
        }
    }
    // Moves, restyles, re-parents and removes some nodes.
    void change()
    {
        for (int i = 0; i < 20; ++i) {
            Node n = m_nodes[size_t(below(int(m_nodes.size())))];
            switch (below(6)) {
            case 0: transform(n); break;
            case 5:
                if (n.getEffects().getImpl()->hasEffects() && chance(0.4))
                    n.getEffects().clear();
                else
                    effect(n);
                break;
            case 1: n.setDrawStyle(DrawStyle(stroke(), Fill(), chance(0.5))); break;
            case 2: n.setVisible(!n.isVisible()); break;
            case 3: {
                Node other = m_nodes[size_t(below(int(m_nodes.size())))];
                try {
                    n.setParent(chance(0.3) ? Node() : other);
                } catch (Error const &) { // itself or a descendant: refused, fine
                }
                if (!n.getScene() && chance(0.7)) m_scene->addNode(n);
                break;
            }
            default: m_scene->removeNode(n); break;
            }
        }
    }

    // Every query both ways at `scale`; the first difference, or "".
    std::string compare(double scale, int probes)
    {
        GlobalViewerInfo::instance()->setCurrentView(this, scale);
        ScenePrivate *d = m_scene->getPrivate();
        for (int i = 0; i < probes; ++i) {
            QPointF p(uniform(-60, 460), uniform(-60, 460));
            if (auto diff = differ("point", p, [&] { return d->itemsAt(p); }); !diff.empty()) return diff;
            QRectF r(uniform(-60, 420), uniform(-60, 420), uniform(0, 120), uniform(0, 120));
            for (Qt::ItemSelectionMode mode : {Qt::IntersectsItemShape, Qt::ContainsItemShape,
                                               Qt::IntersectsItemBoundingRect, Qt::ContainsItemBoundingRect})
                if (auto diff = differ("rect mode " + std::to_string(int(mode)), r.topLeft(),
                                       [&] { return d->itemsIn(r, mode); });
                    !diff.empty())
                    return diff;
        }
        return {};
    }

    // A random region drawn both ways at a random scale; false when a pixel
    // differs.
    bool rendersAlike(double scale, std::string &where)
    {
        GlobalViewerInfo::instance()->setCurrentView(this, scale);
        QRectF source(uniform(-60, 400), uniform(-60, 400), uniform(5, 150), uniform(5, 150));
        QSize size(int(std::ceil(source.width() * scale)), int(std::ceil(source.height() * scale)));
        size = size.boundedTo(QSize(600, 600)).expandedTo(QSize(1, 1));
        auto draw = [&](bool linear) {
            QImage image(size, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            m_scene->getPrivate()->setLinearQueries(linear);
            m_scene->getPrivate()->renderRegion(&painter, QRectF(QPointF(0, 0), size), source, Qt::KeepAspectRatio);
            m_scene->getPrivate()->setLinearQueries(false);
            return image;
        };
        QImage const walked = draw(true), indexed = draw(false);
        std::ostringstream out;
        out << "region " << source.x() << ", " << source.y() << ", " << source.width() << " by " << source.height();
        where = out.str();
        return walked == indexed;
    }

    Scene &scene() { return *m_scene; }

private:
    template <typename Query>
    std::string differ(std::string const &what, QPointF at, Query const &query)
    {
        ScenePrivate *d = m_scene->getPrivate();
        d->setLinearQueries(true);
        QList<QGraphicsItem *> const walked = query();
        d->setLinearQueries(false);
        QList<QGraphicsItem *> const indexed = query();
        if (walked == indexed) return {};
        std::ostringstream out;
        out << what << " at " << at.x() << ", " << at.y() << ": walk found " << walked.size() << ", index "
            << indexed.size();
        for (QGraphicsItem *item : walked)
            if (!indexed.contains(item)) {
                NodeImpl *n = NodeImpl::fromItem(item);
                QRectF sb = item->sceneBoundingRect();
                IndexExtent e = sceneIndexExtent(n);
                out << "\n missing " << n->getFullyQualifiedTcosTypeName() << " sbr " << sb.x() << "," << sb.y() << " "
                    << sb.width() << "x" << sb.height() << " local " << e.local.x() << "," << e.local.y() << " "
                    << e.local.width() << "x" << e.local.height() << " reach " << e.reachSceneUnits << " "
                    << e.reachPixels << " " << e.reachPixelsOverScale << " parent " << (item->parentItem() != nullptr)
                    << " br " << item->boundingRect().width();
                if (NodeEffectsImpl const *effects = n->getEffectsImpl())
                    for (auto const *binding : effects->bindings())
                        out << " effect " << binding->effect->getFullyQualifiedTcosTypeName();
            }
        return out.str();
    }

    std::mt19937 m_rng;
    GLOX::Holder<Scene> m_scene;
    std::vector<Node> m_nodes;
};

} // namespace

TEST(SpatialIndex, EveryQueryAnswersWhatTheWalkAnswersAtEveryScale)
{
    for (unsigned seed = 1; seed <= 16; ++seed) {
        RandomScene random(seed);
        random.build(120);
        for (int round = 0; round < 4; ++round) {
            for (int s = 0; s < 3; ++s) {
                double const scale = s == 0 ? 1.0 : random.scale();
                std::string diff = random.compare(scale, 25);
                ASSERT_EQ(diff, "") << "seed " << seed << ", round " << round << ", scale " << scale;
            }
            random.change();
        }
    }
}

TEST(SpatialIndex, RegionsDrawTheSamePixelsAsTheWalk)
{
    for (unsigned seed = 101; seed <= 108; ++seed) {
        RandomScene random(seed);
        random.build(120);
        for (int round = 0; round < 3; ++round) {
            for (int r = 0; r < 6; ++r) {
                double const scale = r == 0 ? 1.0 : random.scale();
                std::string where;
                ASSERT_TRUE(random.rendersAlike(scale, where)) << "seed " << seed << ", " << where << " at scale " << scale;
            }
            random.change();
        }
    }
}

namespace {
// Nodes outside any scene, for the index alone: it reads their places from
// a table, and keeps its own bookkeeping in the nodes.
std::vector<Node> looseNodes(int count)
{
    std::vector<Node> nodes;
    for (int i = 0; i < count; ++i) nodes.push_back(RectNode(GLOX::GLRect<double>(0, 0, 1, 1)));
    return nodes;
}

std::set<NodeImpl *> candidates(SpatialIndex &index, QRectF const &area, double scale)
{
    std::set<NodeImpl *> nodes;
    index.forEachCandidate(area, scale, [&](NodeImpl *n) {
        EXPECT_TRUE(nodes.insert(n).second) << "a node found twice";
    });
    return nodes;
}
} // namespace

TEST(SpatialIndex, CandidatesAreFiledByReachAndFoundAtEveryScale)
{
    std::vector<Node> const nodes = looseNodes(4);
    NodeImpl *const near = nodes[0].getImpl(), *const wide = nodes[1].getImpl(), *const far = nodes[2].getImpl();
    std::map<NodeImpl *, IndexedPlace> places{{near, {QRectF(0, 0, 10, 10), 0.5}},
                                               {wide, {QRectF(200, 0, 10, 10), 40.0}},
                                               {far, {QRectF(1000, 1000, 10, 10), 1.0}}};
    SpatialIndex index([&](NodeImpl *node) { return places.at(node); });
    for (auto const &entry : places) index.markDirty(entry.first);
    auto found = [&](QRectF const &area, double scale) { return candidates(index, area, scale); };
    EXPECT_EQ(found(QRectF(150, 0, 10, 10), 1.0), (std::set<NodeImpl *>{wide}))
        << "40 pixels reach 40 units at scale 1: from 200 down to 160";
    EXPECT_EQ(found(QRectF(150, 0, 10, 10), 100.0), (std::set<NodeImpl *>{}))
        << "at scale 100 the same 40 pixels are 0.4 units";
    EXPECT_EQ(found(QRectF(11, 0, 1, 1), 0.5), (std::set<NodeImpl *>{near})) << "half a pixel at scale 0.5";

    // A reach in pixels over the scale grows as the view zooms out.
    NodeImpl *const band = nodes[3].getImpl();
    places[band] = {QRectF(500, 0, 1, 1), 0.0, 3.0};
    index.markDirty(band);
    EXPECT_EQ(found(QRectF(420, 0, 1, 1), 0.2).count(band), 1u) << "3 / 0.04 = 75 units at scale 0.2";
    EXPECT_EQ(found(QRectF(420, 0, 1, 1), 1.0).count(band), 0u) << "3 units at scale 1";
    EXPECT_EQ(found(QRectF(498, 0, 1, 1), 2.0).count(band), 1u) << "1.5 units at scale 2";
    index.remove(band);

    places[far] = {QRectF(5, 5, 1, 1), 0.0}; // moved
    index.markDirty(far);
    EXPECT_EQ(found(QRectF(5, 5, 1, 1), 1.0), (std::set<NodeImpl *>{near, far}));
    index.remove(near);
    EXPECT_EQ(found(QRectF(5, 5, 1, 1), 1.0), (std::set<NodeImpl *>{far}));
    places[far] = {QRectF(0, 0, -1, -1), 0.0}; // nowhere
    index.markDirty(far);
    EXPECT_TRUE(found(QRectF(-1e9, -1e9, 2e9, 2e9), 1.0).count(far) == 0);
    EXPECT_EQ(index.size(), 2u) << "a node that is nowhere is still known";
}

TEST(SpatialIndex, NodesMoveBetweenIndexesAndOutliveAClearedOne)
{
    std::vector<Node> const nodes = looseNodes(3);
    NodeImpl *const one = nodes[0].getImpl(), *const two = nodes[1].getImpl(), *const three = nodes[2].getImpl();
    std::map<NodeImpl *, IndexedPlace> places{
        {one, {QRectF(0, 0, 10, 10)}}, {two, {QRectF(20, 0, 10, 10)}}, {three, {QRectF(40, 0, 10, 10)}}};
    auto placeOf = [&](NodeImpl *node) { return places.at(node); };
    SpatialIndex a(placeOf), b(placeOf);
    QRectF const all(-100, -100, 300, 300);
    a.markDirty(one);
    a.markDirty(two);
    EXPECT_EQ(candidates(a, all, 1.0), (std::set<NodeImpl *>{one, two}));

    a.remove(one);
    b.markDirty(one);
    EXPECT_EQ(candidates(a, all, 1.0), (std::set<NodeImpl *>{two}));
    EXPECT_EQ(candidates(b, all, 1.0), (std::set<NodeImpl *>{one}));

    // A cleared index lets its nodes go without looking at them; one that
    // now holds another node in the same place must still take them back.
    b.clear();
    EXPECT_EQ(b.size(), 0u);
    EXPECT_TRUE(candidates(b, all, 1.0).empty());
    b.markDirty(three);
    b.markDirty(one);
    EXPECT_EQ(b.size(), 2u);
    EXPECT_EQ(candidates(b, all, 1.0), (std::set<NodeImpl *>{one, three}));
    b.remove(one);
    b.remove(one); // twice: nothing more
    EXPECT_EQ(candidates(b, all, 1.0), (std::set<NodeImpl *>{three}));
    EXPECT_EQ(candidates(a, all, 1.0), (std::set<NodeImpl *>{two})) << "the other index is untouched";
}

TEST(SpatialIndex, FindsEveryNodeThroughAnyMixOfChangesRemovalsAndRefiling)
{
    // Bursts of a few changes go one node at a time; bursts of many file
    // everything anew. After each, every node that meets a query must be
    // among its candidates, and nothing removed may be.
    std::mt19937 rng(11);
    auto uniform = [&](double a, double b) { return std::uniform_real_distribution<double>(a, b)(rng); };
    auto below = [&](int n) { return std::uniform_int_distribution<int>(0, n - 1)(rng); };
    std::vector<Node> const nodes = looseNodes(400);
    std::map<NodeImpl *, IndexedPlace> places;
    SpatialIndex index([&](NodeImpl *node) { return places.at(node); });
    auto randomPlace = [&] {
        static double const reaches[] = {0.0, 0.5, 3.0, 40.0, 700.0};
        IndexedPlace p{QRectF(uniform(0, 1000), uniform(0, 1000), uniform(0, 50), uniform(0, 50)),
                       reaches[below(5)], below(4) == 0 ? reaches[below(5)] : 0.0};
        int const odd = below(40);
        if (odd == 0) p.box = QRectF(0, 0, -1, -1); // nowhere
        if (odd == 1) p.box = QRectF(1e38, 0, 1e38, 1); // beyond single precision
        return p;
    };
    for (int round = 0; round < 80; ++round) {
        int const changes = round % 4 == 0 ? 50 + below(300) : 1 + below(12);
        for (int i = 0; i < changes; ++i) {
            NodeImpl *const node = nodes[size_t(below(int(nodes.size())))].getImpl();
            switch (below(4)) {
            case 0:
                index.remove(node);
                places.erase(node);
                break;
            case 1:
                if (places.count(node)) index.markDirty(node); // marked, unchanged
                break;
            default:
                places[node] = randomPlace();
                index.markDirty(node);
            }
        }
        ASSERT_EQ(index.size(), places.size()) << "round " << round;
        for (int q = 0; q < 5; ++q) {
            double const scale = std::exp(uniform(std::log(0.05), std::log(20.0)));
            QRectF const area(uniform(-100, 1000), uniform(-100, 1000), uniform(0, 200), uniform(0, 200));
            std::set<NodeImpl *> const found = candidates(index, area, scale);
            for (NodeImpl *node : found) ASSERT_EQ(places.count(node), 1u) << "a removed node found, round " << round;
            for (auto const &[node, p] : places) {
                double const grow = p.reachPixels / scale + p.reachPixelsOverScale / (scale * scale);
                QRectF const r = p.box.adjusted(-grow, -grow, grow, grow);
                bool const meets = p.box.width() >= 0 && r.left() <= area.right() && r.right() >= area.left() &&
                                   r.top() <= area.bottom() && r.bottom() >= area.top();
                if (meets) {
                    ASSERT_EQ(found.count(node), 1u) << "a node missed, round " << round << ", scale " << scale;
                }
            }
        }
    }
}
