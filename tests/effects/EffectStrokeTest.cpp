// The stroke effect on pixels: inside, on and outside the edge of each
// node kind, paths included, at scales 1 and 3; its bounds, width and
// notifications.

#include <ConstantLodScale>
#include <EffectStroke>
#include <EllipseNode>
#include <LineNode>
#include <NodeEffects>
#include <ClosedLinearPathNode>
#include <OpenCurvedPathNode>
#include <OpenLinearPathNode>
#include <ShapeNode>

#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

#include <QPainterPath>
#include <functional>

using namespace VOR2;
using namespace VOR2::test;

namespace {

using EffectStrokeTest = SceneTest;

QImage renderScene(Scene &scene, double scale)
{
    QImage image(int(40 * scale), int(40 * scale), QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    scene.render(image, {0, 0, 40, 40}, {0, 0, 40 * scale, 40 * scale});
    return image;
}

// A node kind with an edge to probe: the probe runs from `edge` at `across`
// into the node along x (or along y for a horizontal edge), and the node is
// `thickness` thick there, in `inside` colour.
struct Kind {
    char const *name;
    std::function<Node()> make;
    bool alongY;
    double edge, across, thickness;
    QColor inside;
};

std::vector<Kind> kinds()
{
    DrawStyle const blue(Stroke::NoStroke(), Fill(GLOX::fromQColor(Qt::blue)));
    auto styled = [blue](Node n) {
        n.setDrawStyle(blue);
        return n;
    };
    QPainterPath square;
    square.addPolygon(QPolygonF({{10, 10}, {30, 10}, {30, 30}, {10, 30}}));
    square.closeSubpath();
    return {
        {"rect", [=] { return styled(RectNode({10, 10, 20, 20})); }, false, 10, 20, 20, Qt::blue},
        {"ellipse", [=] { return styled(EllipseNode(Ellipse({10, 10, 20, 20}))); }, false, 10, 20, 20, Qt::blue},
        {"shape", [=] { return styled(ShapeNode(GLOX::Shape(square))); }, false, 10, 20, 20, Qt::blue},
        // A black line 2 wide along y = 20: its outline runs from y = 19.
        {"line",
         [] {
             LineNode line({10, 20}, {30, 20});
             line.setStroke(Stroke(GLOX::Color(), 2.0));
             return Node(line);
         },
         true, 19, 20, 2, Qt::black},
        // Paths are outlined as a shape (closed) or as a line (open).
        {"closed linear path",
         [=] { return styled(ClosedLinearPathNode({{10, 10}, {30, 10}, {30, 30}, {10, 30}})); }, false, 10, 20, 20,
         Qt::blue},
        {"open linear path",
         [] {
             OpenLinearPathNode path({{10, 20}, {25, 20}, {30, 20}});
             path.setStroke(Stroke(GLOX::Color(), 2.0));
             return Node(path);
         },
         true, 19, 20, 2, Qt::black},
        {"open curved path",
         [] {
             OpenCurvedPathNode path({Vertex({10, 20}), Vertex({30, 20})});
             path.setStroke(Stroke(GLOX::Color(), 2.0));
             return Node(path);
         },
         true, 19, 20, 2, Qt::black},
    };
}

} // namespace

TEST_F(EffectStrokeTest, InnerCentredAndOuterOutlinesLandWhereTheirInsetSays)
{
    // Offsets from the edge, in scene units, inward positive; each is at
    // least half a unit from any band's edge. The band is 4 wide.
    struct Probe {
        double offset;
        bool red[3]; // Inner, Center, Outer
    };
    std::vector<Probe> const probes = {
        {-5.5, {false, false, false}}, {-3.5, {false, false, true}}, {-1.5, {false, true, true}},
        {1, {true, true, false}},      {3.5, {true, false, false}},  {5.5, {false, false, false}},
    };
    for (Kind const &kind : kinds()) {
        for (StrokeInsetType inset : {Inner, Center, Outer}) {
            for (double scale : {1.0, 3.0}) {
                SCOPED_TRACE(testing::Message() << kind.name << " inset " << inset << " scale " << scale);
                Node node = added(kind.make());
                GLOX::Holder<EffectStroke> stroke(new EffectStroke(Stroke(GLOX::Color(1, 0, 0), 4.0), inset));
                node.getEffects().add(stroke.get());
                QImage const image = renderScene(*scene, scale);
                for (Probe const &p : probes) {
                    if (p.offset > kind.thickness) continue; // the far side has an edge of its own
                    double const along = kind.edge + p.offset;
                    int const a = int(along * scale), c = int(kind.across * scale);
                    QColor expected = p.red[inset] ? QColor(Qt::red)
                                      : (p.offset > 0 && p.offset < kind.thickness) ? kind.inside
                                                                                    : QColor(Qt::white);
                    EXPECT_TRUE(kind.alongY ? pixelIs(image, c, a, expected) : pixelIs(image, a, c, expected))
                        << "offset " << p.offset;
                }
                node.remove();
            }
        }
    }
}

TEST_F(EffectStrokeTest, BoundsGrowByTheInsetsShareOfTheWidthAtTheLevelOfDetail)
{
    Bounds const r(GLOX::GLRect<double>(10, 10, 20, 20));
    EffectStroke stroke(Stroke(GLOX::Color(), 4.0), Inner);
    EXPECT_EQ(stroke.computeBounds(r, 2).boundingRect(), r.boundingRect()) << "an inner outline does not widen";
    stroke.setStrokeInsetType(Center);
    EXPECT_EQ(stroke.computeBounds(r, 2).boundingRect(), (GLOX::GLRect<double>(8, 8, 24, 24)));
    stroke.setStrokeInsetType(StrokeInsetType(7));
    EXPECT_EQ(stroke.computeBounds(r, 2).boundingRect(), (GLOX::GLRect<double>(6, 6, 28, 28)))
        << "an unknown inset widens by the whole width";

    // Width 0: one device pixel at every level; centred, half of it out.
    stroke.setStrokeInsetType(Center);
    stroke.setStroke(Stroke(GLOX::Color(), 0.0));
    for (double lod : {0.5, 1.0, 4.0}) {
        EXPECT_DOUBLE_EQ(stroke.effectiveWidth(lod), 1 / lod);
        EXPECT_DOUBLE_EQ(stroke.computeBounds(r, lod).boundingRect().x, 10 - 0.5 / lod);
    }
    // A width that holds on screen: the reach is in pixels.
    stroke.setStrokeInsetType(Outer);
    stroke.setStroke(Stroke(GLOX::Color(), 6.0, SolidLine, FlatCap, MiterJoin, ConstantLodScale::instance()));
    EXPECT_EQ(stroke.reachBound(), (LodReach{0.0, 6.0}));
    EXPECT_DOUBLE_EQ(stroke.computeBounds(r, 3).boundingRect().x, 10 - 2.0);
}

TEST_F(EffectStrokeTest, SettersNotifyOnlyOnChangeAndRepaintTheNode)
{
    GLOX::Holder<EffectStroke> stroke(new EffectStroke);
    EXPECT_EQ(stroke->getEffectID(), GLOX::StringID("Stroke"));
    EXPECT_STREQ(stroke->getFullyQualifiedTcosTypeName(), "VOR2.EffectStroke");
    EXPECT_EQ(stroke->getStrokeInsetType(), Center);
    EXPECT_EQ(stroke->getStroke().color().alphaByte(), 191);
    EXPECT_DOUBLE_EQ(stroke->getStroke().logicalWidth(), 3.0);

    int notes = 0;
    stroke->propertyChangedEmitter.connect(nullptr, std::function<void(GLUV::Packet)>([&](GLUV::Packet) { ++notes; }));
    stroke->setOpacity(stroke->getOpacity());
    stroke->setStrokeInsetType(Center);
    stroke->setStroke(stroke->getStroke());
    EXPECT_EQ(notes, 0);
    stroke->setOpacity(0.0);
    EXPECT_EQ(stroke->getOpacity(), 0.0);
    EXPECT_EQ(stroke->getStroke().color().redByte(), 255) << "only the alpha changes";
    stroke->setStrokeInsetType(Outer);
    EXPECT_EQ(notes, 2);

    // A bound node is repainted with the new look, and its bounds follow.
    RectNode n = added(solidRect({10, 10, 10, 10}, Qt::blue));
    n.getEffects().add(stroke.get());
    stroke->setOpacity(1.0);
    stroke->setStroke(Stroke(GLOX::Color(1, 0, 0), 2.0));
    EXPECT_EQ(n.getImpl()->getGraphicsItem()->boundingRect(), QRectF(8, 8, 14, 14));
    EXPECT_TRUE(pixelIs(renderScene(*scene, 1), 9, 15, Qt::red));
    stroke->setOpacity(0.0);
    EXPECT_TRUE(pixelIs(renderScene(*scene, 1), 9, 15, Qt::white)) << "opacity 0 is not painted";
}
