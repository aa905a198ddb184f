// The node family's classes at the border, through the gateway, without the
// script host: the classes of fetched nodes, shapes as copied handles and
// images as pixel arrays.
#include "Image"
#include "LineEndDecoration"
#include "OpenCurvedPathNode"
#include "ResizeBehavior"
#include "Scene"
#include "binding/BindingRegistry.h"
#include "binding/Gateway.h"
#include "binding/ImageConvert.h"
#include "binding/ScriptError.h"

#include <QImage>
#include "binding/GatewayCalls.h"

#include <gtest/gtest.h>

using namespace VOR2::script;
using namespace gatewaycalls;

namespace {

class NodeClasses : public ::testing::Test {
protected:
    void TearDown() override { BindingRegistry::instance().clear(); }
};

} // namespace

TEST_F(NodeClasses, AFetchedNodeCarriesTheScriptClassOfItsKind)
{
    Value composite = make("VOR2.CompositeNode");
    Value polygon = make("VOR2.ClosedLinearPathNodes", {Value::matrix(2, 3, {0, 0, 4, 0, 4, 3})});
    Value text = make("VOR2.TextNode", {str("t")});
    EXPECT_EQ(polygon.className(), "VOR2.ClosedLinearPathNodes");
    gateway("set", {str("VOR2.Node"), polygon, str("Parent"), composite});
    gateway("set", {str("VOR2.Node"), text, str("Parent"), composite});

    Value children = get(composite, "Children");
    ASSERT_EQ(children.items().size(), 2u);
    EXPECT_EQ(children.items()[0].className(), "VOR2.ClosedLinearPathNodes");
    EXPECT_EQ(children.items()[0].id(), polygon.id());
    EXPECT_EQ(children.items()[1].className(), "VOR2.TextNode");
    // The polygon is still a linear path to the library and to isOfType.
    EXPECT_EQ(callResult(polygon, "isOfType", {str("VOR2.LinearPathNode")}).numbers(), std::vector<double>{1});
    EXPECT_EQ(callResult(polygon, "isOfType", {str("ClosedLinearPathNodes")}).numbers(), std::vector<double>{1});
    EXPECT_EQ(callResult(polygon, "isOfType", {str("TextNode")}).numbers(), std::vector<double>{0});
}

TEST_F(NodeClasses, AShapeIsOneObjectForItsVariablesAndACopyWhenReadFromANode)
{
    BindingRegistry &registry = BindingRegistry::instance();
    Value shape = make("VOR2.Shape");
    callResult(shape, "addRect", {Value::row({0, 0, 10, 10})});
    Value node = make("VOR2.ShapeNode", {shape});

    Value first = get(node, "Shape");
    Value second = get(node, "Shape");
    EXPECT_NE(first.id(), second.id());
    EXPECT_NE(first.id(), shape.id());
    callResult(first, "addRect", {Value::row({20, 20, 5, 5})});
    EXPECT_EQ(get(first, "BoundingRect").numbers(), (std::vector<double>{0, 0, 25, 25}));
    EXPECT_EQ(get(second, "BoundingRect").numbers(), (std::vector<double>{0, 0, 10, 10}));
    EXPECT_EQ(get(node, "BoundingRect").numbers(), (std::vector<double>{0, 0, 10, 10}));

    // The last script object of a copied shape takes its entry with it.
    std::size_t before = registry.size();
    gateway("release", {Value::scalar(double(second.id()))});
    EXPECT_EQ(registry.size(), before - 1);
    EXPECT_THROW(get(second, "BoundingRect"), ScriptError);
    // A node is not a shape.
    EXPECT_THROW(make("VOR2.ShapeNode", {node}), ScriptError);
}

TEST_F(NodeClasses, AnImageBecomesRowsColumnsAndFourStraightAlphaPages)
{
    QImage q(3, 2, QImage::Format_ARGB32_Premultiplied);
    q.fill(Qt::transparent);
    q.setPixelColor(2, 0, QColor(255, 0, 0, 128));
    q.setPixelColor(0, 1, QColor(0, 0, 255, 255));
    Value v = fromImage(VOR2::Image::fromQImage(q));
    ASSERT_EQ(v.type(), Value::Type::UInt8);
    EXPECT_EQ(v.rows(), 2u);
    EXPECT_EQ(v.cols(), 3u);
    EXPECT_EQ(v.pages(), 4u);
    auto at = [&](std::size_t r, std::size_t c, std::size_t p) { return int(v.bytes()[(p * 3 + c) * 2 + r]); };
    // Column-major over all three dimensions; alpha not premultiplied.
    EXPECT_EQ(at(0, 2, 0), 255);
    EXPECT_EQ(at(0, 2, 1), 0);
    EXPECT_EQ(at(0, 2, 3), 128);
    EXPECT_EQ(at(1, 0, 2), 255);
    EXPECT_EQ(at(1, 0, 3), 255);
    EXPECT_EQ(at(1, 2, 3), 0);

    Value none = fromImage(GLOX::Holder<VOR2::Image>(new VOR2::Image()));
    EXPECT_EQ(none.type(), Value::Type::UInt8);
    EXPECT_EQ(none.numel(), 0u);
}

TEST_F(NodeClasses, AnEditOfAnOpenCurveFromTheScriptPlacesItsDecorations)
{
    Value curve = make("VOR2.OpenCurvedPathNode", {Value::matrix(2, 2, {0, 0, 10, 0})});
    Value head = make("VOR2.RectNode", {Value::row({-1, -1, 2, 2})});
    // The decoration is set through the library, so that this test does not
    // need the decoration's own script class.
    VOR2::OpenCurvedPathNode path(BindingRegistry::instance().find(curve.id()).node.getImpl());
    path.setEndDecoration(VOR2::LineEndDecoration(BindingRegistry::instance().find(head.id()).node));
    auto placedAt = [&] {
        std::vector<double> t = get(head, "Transform").numbers();
        return std::vector<double>{t[6], t[7]};
    };
    EXPECT_EQ(placedAt(), (std::vector<double>{10, 0}));
    callResult(curve, "append", {Value::row({30, 5})});
    EXPECT_EQ(placedAt(), (std::vector<double>{30, 5}));
}

TEST_F(NodeClasses, ABehaviourIsFetchedAsItsOwnClassAndClearedByTheEmptyArray)
{
    GLOX::Holder<VOR2::Scene> scene = VOR2::Scene::createScene();
    Value rect = make("VOR2.RectNode", {Value::row({0, 0, 10, 10})});
    VOR2::Node node = BindingRegistry::instance().find(rect.id()).node;
    scene->addNode(node);
    GLOX::Holder<VOR2::ResizeBehavior> behavior =
        VOR2::ResizeBehavior::create(node, VOR2::HorizontalAlignment::Right, VOR2::VerticalAlignment::Bottom);
    ASSERT_TRUE(behavior);
    Value handed = BindingRegistry::instance().announceReferenced(behavior.get(), "VOR2.Behavior");

    gateway("set", {str("VOR2.Node"), rect, str("Behavior"), handed});
    EXPECT_EQ(node.getBehavior(), behavior.get());
    Value fetched = get(rect, "Behavior");
    EXPECT_EQ(fetched.id(), handed.id());
    EXPECT_EQ(fetched.className(), "VOR2.Behavior");
    gateway("release", {Value::scalar(double(handed.id()))});
    gateway("release", {Value::scalar(double(fetched.id()))});
    // A new entry takes the class of the behaviour's own kind.
    EXPECT_EQ(get(rect, "Behavior").className(), "VOR2.ResizeBehavior");

    gateway("set", {str("VOR2.Node"), rect, str("Behavior"), Value()});
    EXPECT_EQ(node.getBehavior(), nullptr);
    EXPECT_EQ(get(rect, "Behavior").numel(), 0u);
    // A node is not a behaviour, and the node keeps none.
    EXPECT_THROW(gateway("set", {str("VOR2.Node"), rect, str("Behavior"), rect}), ScriptError);
}
