// Bad numbers through every public setter and query of scenes, nodes and
// values: NaN, both infinities, 0, a negative value and 1e300, each on a
// scene of one node of every kind under two good rectangles. After each
// call the scene's bounds stay finite, renders keep their size and the good
// nodes' pixels, queries at good places still find the good nodes while
// queries at bad places find nothing, a new node still stacks on top, and
// Qt prints no warning. A call that is ignored leaves every pixel as it was.

#include <ConstantInLodScale>
#include <ConstantLodScale>
#include <ConstantOutLodScale>
#include <EllipseNode>
#include <Error>
#include <GlobalViewerInfo>
#include <ImageNode>
#include <LineNode>
#include <RoundedRectNode>
#include <SelectionNonLinearLodScale>
#include <ShapeNode>
#include <SplitLinearLodScale>

#include "support/NodeStyles.h"
#include "support/QtWarningCatcher.h"
#include "support/SceneFixture.h"

#include <QImage>
#include <QPainter>
#include <cmath>
#include <functional>
#include <limits>
#include <sstream>

using namespace VOR2;
using namespace VOR2::test;

namespace {

double const NaN = std::numeric_limits<double>::quiet_NaN();
double const Inf = std::numeric_limits<double>::infinity();
double const BAD_VALUES[] = {NaN, Inf, -Inf, 0.0, -5.0, 1e300};

using Rect = GLOX::GLRect<double>;
using Point = GLOX::GLPoint<double>;

std::string nameOf(double v)
{
    std::ostringstream out;
    out << v;
    return out.str();
}

bool isFiniteRect(Rect const &r)
{
    return std::isfinite(r.x) && std::isfinite(r.y) && std::isfinite(r.width) && std::isfinite(r.height);
}

// NaN, an infinity or a number beyond what a scene holds.
bool unusable(double v) { return !std::isfinite(v) || std::fabs(v) > 1e128; }

// What a row's call does to the scene.
enum class Outcome {
    Ignored, // nothing changes
    Applied, // the victim may change; nothing else may
    Refused, // a library error is raised and nothing changes
};

// A scene with one node of each kind below two opaque rectangles that no
// victim overlaps at the start.
struct Populated {
    GLOX::Holder<Scene> scene = Scene::createScene();
    RectNode rect{Rect(0, 60, 30, 30)};
    EllipseNode ellipse{Ellipse(Rect(40, 60, 30, 30))};
    RoundedRectNode rounded{Rect(80, 60, 30, 30), 5};
    LineNode line{Point(120, 60), Point(150, 90)};
    RectNode head{Rect(-3, -3, 6, 6)}; // the line's start decoration
    ShapeNode shape;
    ImageNode image;
    RectNode goodA = solidRect({0, 0, 40, 40}, Qt::red);
    RectNode goodB = solidRect({60, 0, 40, 40}, Qt::blue);

    Populated()
    {
        DrawStyle style(Stroke(GLOX::Color(), 2), Fill(GLOX::Color(0, 0.6, 0)));
        for (Node n : {Node(rect), Node(ellipse), Node(rounded), Node(line), Node(shape), Node(image)}) {
            n.setDrawStyle(style);
            scene->addNode(n);
        }
        line.setStartDecoration(LineEndDecoration(head));
        QPainterPath triangle;
        triangle.moveTo(160, 60);
        triangle.lineTo(190, 60);
        triangle.lineTo(175, 90);
        triangle.closeSubpath();
        shape.setShape(triangle);
        QImage pixels(10, 10, QImage::Format_ARGB32);
        pixels.fill(QColor(255, 0, 255));
        image.setSource(Image::fromQImage(pixels));
        image.setPosition({200, 60});
        scene->addNode(goodA);
        scene->addNode(goodB);
    }
};

// The goods' area, rendered alone.
QImage goodsArea(Scene &scene)
{
    QImage area(100, 40, QImage::Format_RGB32);
    scene.render(area, {0, 0, 100, 40}, {});
    return area;
}

// What the untouched scene looks like.
struct Baseline {
    QImage whole;
    QImage goods;
};

Baseline const &baseline()
{
    static Baseline const b = [] {
        Populated f;
        return Baseline{*f.scene->render()->asQImage(), goodsArea(*f.scene)};
    }();
    return b;
}

// True when both images agree inside the good rectangles.
::testing::AssertionResult goodPixelsAgree(QImage const &a, QImage const &b)
{
    for (QRect const &r : {QRect(0, 0, 40, 40), QRect(60, 0, 40, 40)})
        for (int y = r.top(); y <= r.bottom(); ++y)
            for (int x = r.left(); x <= r.right(); ++x)
                if (a.pixel(x, y) != b.pixel(x, y))
                    return ::testing::AssertionFailure() << "good pixel (" << x << ", " << y << ") changed";
    return ::testing::AssertionSuccess();
}

bool holds(GLOX::GList<Node> const &nodes, Node const &n) { return nodes.contains(n); }

// The checks every row ends with.
void expectSceneIsSane(Populated &f, Outcome outcome)
{
    Rect bounds = f.scene->getBounds();
    ASSERT_TRUE(isFiniteRect(bounds)) << bounds.x << " " << bounds.y << " " << bounds.width << " " << bounds.height;
    ASSERT_GT(bounds.width, 0);
    QImage whole = *f.scene->render()->asQImage();
    double w = std::ceil(bounds.width) + 40, h = std::ceil(bounds.height) + 40;
    if (w * h * 4 > std::numeric_limits<int>::max())
        EXPECT_TRUE(whole.isNull()) << "too large for an image";
    else
        EXPECT_EQ(whole.size(), QSize(int(w), int(h)));
    if (outcome != Outcome::Applied) {
        EXPECT_TRUE(whole == baseline().whole) << "an ignored call changed pixels";
    }
    EXPECT_TRUE(goodPixelsAgree(goodsArea(*f.scene), baseline().goods));

    EXPECT_EQ(f.scene->getNodeAt({20, 20}), f.goodA);
    EXPECT_TRUE(holds(f.scene->getNodesAtScenePos({80, 20}), f.goodB));
    EXPECT_TRUE(holds(f.scene->getNodesWithinRect({-10, -10, 60, 60}), f.goodA));
    EXPECT_TRUE(holds(f.scene->getNodesIntersectingRect({65, 5, 5, 5}), f.goodB));
    EXPECT_TRUE(f.goodA.contains({20, 20}));

    for (Point p : {Point(NaN, 20), Point(20, NaN), Point(Inf, 0), Point(0, -Inf), Point(1e300, 20)}) {
        EXPECT_FALSE(f.scene->getNodeAt(p).isValid());
        EXPECT_TRUE(f.scene->getNodesAtScenePos(p).isEmpty());
        EXPECT_FALSE(f.goodA.contains(p));
    }
    for (Rect r : {Rect(NaN, 0, 50, 50), Rect(0, 0, NaN, 50), Rect(0, 0, Inf, Inf), Rect(-Inf, -Inf, Inf, Inf),
                   Rect(-1e300, -1e300, 2e300, 2e300)}) {
        EXPECT_TRUE(f.scene->getNodesWithinRect(r).isEmpty());
        EXPECT_TRUE(f.scene->getNodesIntersectingRect(r).isEmpty());
        EXPECT_FALSE(f.goodA.intersects(r));
        EXPECT_FALSE(f.goodA.intersects(Bounds(r)));
    }

    // Stacking still works: a new node goes on top of everything.
    RectNode fresh = solidRect({10, 10, 10, 10}, Qt::green);
    f.scene->addNode(fresh);
    EXPECT_EQ(f.scene->getNodeAt({15, 15}), fresh) << "z values no longer step";
    fresh.remove();
}

using Call = std::function<void(Populated &, double)>;

struct Row {
    std::string name;
    std::function<void(Populated &)> call;
    Outcome outcome;
    message_code_vor_msg error = VOR2_ForcedError; // with Outcome::Refused
};

Outcome ignoredWhenUnusable(double v) { return unusable(v) ? Outcome::Ignored : Outcome::Applied; }
Outcome ignoredUnlessPositive(double v) { return unusable(v) || !(v > 0) ? Outcome::Ignored : Outcome::Applied; }
Outcome ignoredUnlessNotNegative(double v) { return unusable(v) || v < 0 ? Outcome::Ignored : Outcome::Applied; }
// For calls that only ask: nothing may change.
Outcome queried(double) { return Outcome::Ignored; }
Outcome always(double) { return Outcome::Applied; }

// Adds `node` to the scene away from everything else.
void addAway(Populated &f, Node node)
{
    node.setPosition({300, 60});
    f.scene->addNode(node);
}

struct Setter {
    std::string name;
    Call call;
    std::function<Outcome(double)> outcome = ignoredWhenUnusable;
};

LineEndDecoration startOf(Populated &f) { return f.line.getStartDecoration(); }

// Changes the line's start decoration through `change` and puts it back.
void changeDecoration(Populated &f, std::function<void(LineEndDecoration &)> const &change)
{
    LineEndDecoration d = startOf(f);
    change(d);
    d.updateTransform();
}

std::vector<Setter> nodeSetters()
{
    return {
        {"Node::setPosition x", [](Populated &f, double v) { f.rect.setPosition({v, 0}); }},
        {"Node::setPosition y", [](Populated &f, double v) { f.ellipse.setPosition({0, v}); }},
        {"Node::setScenePosition of a child", [](Populated &f, double v) { f.head.setScenePosition({v, v}); }},
        {"Node::setTransform", [](Populated &f, double v) {
             f.rect.setTransform(GLOX::Transform(v, 0, 0, 0, 1, 0, 0, 0, 1));
         }},
        {"Node::setTransform translation", [](Populated &f, double v) {
             f.rounded.setTransform(GLOX::Transform(1, 0, 0, 0, 1, 0, v, 0, 1));
         }},
        {"Node::rotateDegrees", [](Populated &f, double v) { f.rect.rotateDegrees(v); }},
        {"Node::rotateRadians", [](Populated &f, double v) { f.shape.rotateRadians(v); }},
        {"Node::rotateDegreesAroundPoint angle", [](Populated &f, double v) {
             f.rect.rotateDegreesAroundPoint(v, {15, 75});
         }},
        {"Node::rotateRadiansAroundPoint point", [](Populated &f, double v) {
             f.rect.rotateRadiansAroundPoint(0.1, {v, 75});
         }},
        {"Node::translate(dx, dy)", [](Populated &f, double v) { f.rect.translate(v, 0); }},
        {"Node::translate(point)", [](Populated &f, double v) { f.line.translate(Point(0, v)); }},
        {"Node::scale(sx, sy)", [](Populated &f, double v) { f.rect.scale(v, 1); }},
        {"Node::scale(s)", [](Populated &f, double v) { f.image.scale(v); }},
        {"Node::scale(s) twice", [](Populated &f, double v) {
             f.rect.scale(v);
             f.rect.scale(v);
         }},
        {"Node::setOpacity", [](Populated &f, double v) { f.rect.setOpacity(v); },
         [](double v) { return std::isnan(v) ? Outcome::Ignored : Outcome::Applied; }},
        {"Node::setZValue", [](Populated &f, double v) { f.rect.setZValue(v); }},
        {"Node::setStroke", [](Populated &f, double v) {
             Stroke stroke(GLOX::Color(), v);
             EXPECT_EQ(stroke.logicalWidth(), unusable(v) || v < 0 ? 0.0 : v) << "a hairline instead";
             f.rect.setStroke(stroke);
         }, always},
        {"Node::setDrawStyle", [](Populated &f, double v) {
             DrawStyle style = f.ellipse.getDrawStyle();
             Stroke stroke = style.stroke();
             stroke.setLogicalWidth(v);
             style.setStroke(stroke);
             f.ellipse.setDrawStyle(style);
         }, ignoredUnlessNotNegative},
        {"Node::setFill colour", [](Populated &f, double v) { f.rect.setFill(Fill(GLOX::Color(v, v, v, v))); },
         [](double) { return Outcome::Applied; }},
        {"Node::contains", [](Populated &f, double v) {
             if (unusable(v)) {
                 EXPECT_FALSE(f.goodB.contains({v, 20}) || f.goodB.contains({80, v}));
             }
         }, queried},
        {"Node::render", [](Populated &f, double v) {
             GLOX::Holder<Image> image = f.ellipse.render(CacheType::None, v);
             if (unusable(v) || !(v > 0)) {
                 EXPECT_TRUE(image->isNull());
             }
         }, queried},
        {"Node::render of a subtree", [](Populated &f, double v) {
             GLOX::Holder<Image> image = f.line.render(CacheType::ChildrenTree, v);
             if (unusable(v) || !(v > 0)) {
                 EXPECT_TRUE(image->isNull());
             }
         }, queried},
    };
}

std::vector<Setter> kindSetters()
{
    return {
        {"RectNode::setRect x", [](Populated &f, double v) { f.rect.setRect({v, 60, 30, 30}); }},
        {"RectNode::setRect width", [](Populated &f, double v) { f.rect.setRect({0, 60, v, 30}); }},
        {"RectNode::setRect height", [](Populated &f, double v) { f.rect.setRect({0, 60, 30, v}); }},
        {"RectNode(rect) added", [](Populated &f, double v) {
             RectNode n(Rect(v, 0, 10, v));
             if (unusable(v)) {
                 EXPECT_EQ(n.getRect(), Rect()) << "a zero rectangle instead";
             }
             addAway(f, n);
         }, always},
        {"EllipseNode::setWidth", [](Populated &f, double v) { f.ellipse.setWidth(v); }},
        {"EllipseNode::setHeight", [](Populated &f, double v) { f.ellipse.setHeight(v); }},
        {"EllipseNode::setSize", [](Populated &f, double v) { f.ellipse.setSize({v, v}); }},
        {"EllipseNode::setCenter", [](Populated &f, double v) { f.ellipse.setCenter({v, 75}); }},
        {"EllipseNode::setEllipse", [](Populated &f, double v) { f.ellipse.setEllipse(Ellipse(Rect(40, v, 30, 30))); }},
        {"EllipseNode(ellipse) added", [](Populated &f, double v) {
             addAway(f, EllipseNode(Ellipse(Rect(v, 0, 10, 10))));
         }, always},
        {"RoundedRectNode::setRect", [](Populated &f, double v) { f.rounded.setRect({80, 60, v, 30}); }},
        {"RoundedRectNode::setRadius", [](Populated &f, double v) { f.rounded.setRadius(v); }, ignoredUnlessPositive},
        {"RoundedRectNode(rect, radius) added", [](Populated &f, double v) {
             addAway(f, RoundedRectNode(Rect(v, 0, 10, 10), v));
         }, always},
        {"LineNode::setStart", [](Populated &f, double v) { f.line.setStart({v, 60}); }},
        {"LineNode::setEnd", [](Populated &f, double v) { f.line.setEnd({150, v}); }},
        {"LineNode::setLine", [](Populated &f, double v) { f.line.setLine({v, v}, {150, 90}); }},
        {"LineNode(start, end) added", [](Populated &f, double v) { addAway(f, LineNode({v, 0}, {10, 10})); },
         always},
        {"ShapeNode::setShape", [](Populated &f, double v) {
             QPainterPath path;
             path.moveTo(160, 60);
             path.lineTo(v, 60);
             path.lineTo(175, v);
             f.shape.setShape(path);
         }, [](double) { return Outcome::Applied; }},
        {"ImageNode::setSize(w, h)", [](Populated &f, double v) { f.image.setSize(v, 10); }},
        {"ImageNode::setSize(point)", [](Populated &f, double v) { f.image.setSize(Point(10, v)); }},
    };
}

std::vector<Setter> decorationSetters()
{
    return {
        {"LineEndDecoration::setPosition", [](Populated &f, double v) {
             changeDecoration(f, [v](LineEndDecoration &d) { d.setPosition({v, 0}); });
         }},
        {"LineEndDecoration::setOrigin", [](Populated &f, double v) {
             changeDecoration(f, [v](LineEndDecoration &d) { d.setOrigin({0, v}); });
         }},
        {"LineEndDecoration::setRotation", [](Populated &f, double v) {
             changeDecoration(f, [v](LineEndDecoration &d) { d.setRotation(v); });
         }},
        {"LineEndDecoration::setRelativePosition", [](Populated &f, double v) {
             changeDecoration(f, [v](LineEndDecoration &d) { d.setRelativePosition(v); });
         }},
        {"LineEndDecoration::setLineBackoff", [](Populated &f, double v) {
             LineEndDecoration d = startOf(f);
             d.setLineBackoff(v);
             f.line.setStartDecoration(d);
         }},
        {"LineEndDecoration::setDirection", [](Populated &f, double v) {
             changeDecoration(f, [v](LineEndDecoration &d) { d.setDirection({v, 1}); });
         }},
    };
}

std::vector<Setter> valueSetters()
{
    std::vector<Setter> setters = {
        {"Stroke::setLogicalWidth", [](Populated &f, double v) {
             Stroke s = f.rounded.getStroke();
             s.setLogicalWidth(v);
             EXPECT_TRUE(std::isfinite(s.logicalWidth()) && s.logicalWidth() >= 0);
             f.rounded.setStroke(s);
         }, ignoredUnlessNotNegative},
        {"Bounds::unionWith", [](Populated &f, double v) {
             Bounds good(Rect(0, 0, 40, 40));
             good.unionWith(Bounds(Rect(v, 0, 10, 10)));
             if (unusable(v)) {
                 EXPECT_EQ(good.boundingRect(), Rect(0, 0, 40, 40));
             }
             EXPECT_TRUE(isFiniteRect((Bounds(Rect(v, v, 1, 1)) | f.goodA.getBounds()).boundingRect()));
         }, queried},
        {"Scene::setBackground", [](Populated &f, double v) {
             f.scene->setBackground(Background(GLOX::Color(v, v, v, v)));
         }, [](double) { return Outcome::Applied; }},
        {"Scene::setSelection(point)", [](Populated &f, double v) {
             f.goodA.setSelectable(true);
             f.scene->setSelection(Point(v, v), true);
             if (unusable(v)) {
                 EXPECT_FALSE(f.goodA.isSelected());
             }
         }, [](double v) { return unusable(v) ? Outcome::Ignored : Outcome::Applied; }},
        {"Scene::setSelection(rect)", [](Populated &f, double v) {
             f.goodA.setSelectable(true);
             f.scene->setSelection(Rect(0, 0, v, v), true);
             if (unusable(v)) {
                 EXPECT_FALSE(f.goodA.isSelected());
             }
         }, [](double v) { return unusable(v) ? Outcome::Ignored : Outcome::Applied; }},
        {"Scene::render(margin, source)", [](Populated &f, double v) {
             GLOX::Holder<Image> image = f.scene->render(20, Rect(v, 0, 100, v));
             if (unusable(v)) {
                 EXPECT_EQ(image->asQImage()->size(), baseline().whole.size()) << "the whole scene";
             }
         }, queried},
        {"Scene::render(image, source, target)", [](Populated &f, double v) {
             QImage image(60, 60, QImage::Format_RGB32);
             f.scene->render(image, Rect(0, 0, v, v), Rect(v, 0, v, 10));
             QImage null;
             f.scene->render(null, Rect(0, 0, v, v), Rect());
         }, queried},
        {"Scene::render(painter, source, target)", [](Populated &f, double v) {
             QImage image(60, 60, QImage::Format_RGB32);
             QPainter painter(&image);
             f.scene->render(painter, Rect(v, v, 10, 10), Rect(0, 0, v, 60));
         }, queried},
        {"GlobalViewerInfo::setCurrentView", [](Populated &, double v) {
             GlobalViewerInfo *info = GlobalViewerInfo::instance();
             info->setCurrentView(nullptr, v);
             if (!(std::isfinite(v) && v > 0)) {
                 EXPECT_EQ(info->getViewerScale(), 1.0);
             }
             info->clearCurrentView();
         }, queried},
        {"GlobalViewerInfo::setDpi", [](Populated &, double v) {
             GlobalViewerInfo *info = GlobalViewerInfo::instance();
             double dpi = info->getViewerDpi();
             info->setDpi(v);
             if (!(std::isfinite(v) && v > 0)) {
                 EXPECT_EQ(info->getViewerDpi(), dpi);
             }
             info->setDpi(dpi);
         }, queried},
    };
    for (LodScale const *function : {LodScale::instance(), ConstantLodScale::instance(),
                                     SplitLinearLodScale::instance(), ConstantOutLodScale::instance(),
                                     ConstantInLodScale::instance(), SelectionNonLinearLodScale::instance()}) {
        std::string name = "Stroke::width with " + function->name().str();
        setters.push_back({name, [function](Populated &f, double v) {
                               for (double logical : {0.0, 2.0}) {
                                   Stroke s(GLOX::Color(), logical, SolidLine, FlatCap, MiterJoin, function);
                                   double w = s.width(v);
                                   EXPECT_TRUE(std::isfinite(w) && w >= 0) << "width " << w;
                                   f.line.setStroke(s); // drawn at the render scale
                               }
                           }, [](double) { return Outcome::Applied; }});
    }
    return setters;
}

std::vector<Row> rowsOf(std::vector<Setter> const &setters)
{
    std::vector<Row> rows;
    for (Setter const &s : setters)
        for (double v : BAD_VALUES) {
            Call call = s.call;
            rows.push_back({s.name + " " + nameOf(v), [call, v](Populated &f) { call(f, v); }, s.outcome(v)});
        }
    return rows;
}

// Calls whose bad input has an error of its own in the catalogue, and
// enumerations out of their range.
std::vector<Row> otherRows()
{
    std::vector<Row> rows;
    for (double v : BAD_VALUES) {
        Outcome outcome = unusable(v) ? Outcome::Ignored : Outcome::Applied;
        if (v == 0) outcome = Outcome::Refused;
        rows.push_back({"LineEndDecoration::setReferenceDirection " + nameOf(v),
                        [v](Populated &f) {
                            changeDecoration(f, [v](LineEndDecoration &d) { d.setReferenceDirection({v, 0}); });
                        },
                        outcome, VOR2_ZeroLengthDirectionVector});
    }
    rows.push_back({"Node::scale 1e100 twice",
                    [](Populated &f) {
                        f.rect.scale(1e100);
                        GLOX::Transform once = f.rect.getTransform();
                        f.rect.scale(1e100);
                        EXPECT_TRUE(f.rect.getTransform() == once) << "the second would overflow";
                    },
                    Outcome::Applied});
    for (int type : {-1, 3, 1 << 30})
        rows.push_back({"Node::setCacheType " + std::to_string(type),
                        [type](Populated &f) {
                            f.rect.setCacheType(CacheType(type));
                            EXPECT_EQ(f.rect.getCacheType(), CacheType::None);
                        },
                        Outcome::Ignored});
    for (int margin : {-5, 0, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        rows.push_back({"Scene::render margin " + std::to_string(margin),
                        [margin](Populated &f) {
                            QImage image = *f.scene->render(margin)->asQImage();
                            Rect b = f.scene->getBounds();
                            if (margin == std::numeric_limits<int>::max())
                                EXPECT_TRUE(image.isNull()) << "too large for an image";
                            else
                                EXPECT_EQ(image.size(), QSize(int(std::ceil(b.width)), int(std::ceil(b.height))));
                        },
                        Outcome::Ignored});
    return rows;
}

void runRows(std::vector<Row> const &rows)
{
    for (Row const &row : rows) {
        SCOPED_TRACE(row.name);
        Populated f;
        QtWarningCatcher catcher;
        if (row.outcome == Outcome::Refused) {
            try {
                row.call(f);
                ADD_FAILURE() << "no error raised";
            } catch (Error const &e) {
                EXPECT_EQ(e.code(), row.error);
            }
        } else {
            row.call(f);
        }
        expectSceneIsSane(f, row.outcome);
        EXPECT_EQ(catcher.take(), QStringList()) << "Qt warned";
    }
}

using BadInput = SceneTest;

} // namespace

TEST_F(BadInput, NodeSettersKeepTheSceneWhole) { runRows(rowsOf(nodeSetters())); }

TEST_F(BadInput, NodeKindSettersKeepTheSceneWhole) { runRows(rowsOf(kindSetters())); }

TEST_F(BadInput, DecorationSettersKeepTheSceneWhole)
{
    runRows(rowsOf(decorationSetters()));
    runRows(otherRows());
}

TEST_F(BadInput, ValuesRendersAndQueriesKeepTheSceneWhole) { runRows(rowsOf(valueSetters())); }

TEST_F(BadInput, ASceneOfOnlyBadNodesHasNoExtentAndRendersItsMargins)
{
    RectNode n = added(RectNode(Rect(NaN, 0, 10, 10)));
    n.setPosition({Inf, 0});
    EXPECT_EQ(scene->getBounds(), Rect());
    EXPECT_EQ(scene->render()->asQImage()->size(), QSize(40, 40));
    EXPECT_FALSE(scene->getNodeAt({NaN, NaN}).isValid());
}
