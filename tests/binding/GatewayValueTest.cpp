// The value classes through the gateway, as the script host calls them:
// every operation on a value object gives a new state and leaves the one it
// was given as it was.
#include "RectNode"
#include "Scene"
#include "binding/BindingRegistry.h"
#include "binding/Gateway.h"
#include "binding/classes/WeakRefKeys.h"
#include "tests/binding/BorderError.h"

#include "binding/GatewayCalls.h"

#include <gtest/gtest.h>

using namespace VOR2::script;
using namespace gatewaycalls;

namespace {

// The value with `property` set to v: the state the gateway gives back, in
// a new value object.
Value set(Value const &target, char const *property, Value const &v)
{
    return Value::valueObject(target.className(),
                              gateway("set", {str(target.className().c_str()), target, str(property), v}));
}

class GatewayValues : public ::testing::Test {
protected:
    void TearDown() override { BindingRegistry::instance().clear(); }
};

} // namespace

TEST_F(GatewayValues, SetAndChangingCallsGiveANewStateAndLeaveTheOldOne)
{
    Value stroke = make("VOR2.Stroke", {Value::row({0, 1, 0}), Value::scalar(2)});
    Value wider = set(stroke, "Width", Value::scalar(5));
    EXPECT_EQ(get(wider, "Width").numbers()[0], 5);
    EXPECT_EQ(get(stroke, "Width").numbers()[0], 2);
    EXPECT_EQ(get(wider, "Color").numbers(), (std::vector<double>{0, 1, 0, 1}));

    Value gradient = make("VOR2.Gradient", {str("Linear"), Value::row({0, 0}), Value::row({10, 0})});
    Value changed = callCell(gradient, "addStop", {Value::scalar(0.5), Value::row({1, 0, 0})});
    ASSERT_EQ(changed.items().size(), 2u);
    EXPECT_EQ(changed.items()[0].type(), Value::Type::Empty);
    Value withStop = Value::valueObject("VOR2.Gradient", changed.items()[1]);
    EXPECT_EQ(callCell(withStop, "getStopCount").items()[0].numbers()[0], 1);
    EXPECT_EQ(callCell(gradient, "getStopCount").items()[0].numbers()[0], 0);
    // A method with a result gives only the result.
    Value colour = callCell(withStop, "getStopColor", {Value::scalar(0)});
    ASSERT_EQ(colour.items().size(), 1u);
    EXPECT_EQ(colour.items()[0].numbers(), (std::vector<double>{1, 0, 0, 1}));
    EXPECT_EQ(errorOf([&] { callCell(withStop, "getStopColor", {Value::scalar(1)}); }).first, "VOR2:InvalidIndex");
}

TEST_F(GatewayValues, NestedValuesCrossAsTheirOwnClass)
{
    Value style = make("VOR2.DrawStyle");
    Value stroke = get(style, "Stroke");
    ASSERT_EQ(stroke.type(), Value::Type::ValueObject);
    EXPECT_EQ(stroke.className(), "VOR2.Stroke");
    // style.Stroke.Width = 3, as the host does it: read, change, assign back.
    Value restyled = set(style, "Stroke", set(stroke, "Width", Value::scalar(3)));
    EXPECT_EQ(get(get(restyled, "Stroke"), "Width").numbers()[0], 3);
    EXPECT_EQ(get(get(style, "Stroke"), "Width").numbers()[0], 0);
    // A value of another class in its place is refused and changes nothing.
    auto wrong = errorOf([&] { set(style, "Stroke", make("VOR2.Fill")); });
    EXPECT_EQ(wrong, std::make_pair(std::string("VOR2:WrongType"), std::string("Expected VOR2.Stroke, got VOR2.Fill")));
    // The fill's gradient and its stops survive the trip.
    Value gradient = Value::valueObject(
        "VOR2.Gradient", callCell(make("VOR2.Gradient", {str("Radial"), Value::row({1, 2}), Value::scalar(4)}), "addStop",
                              {Value::scalar(0.25), Value::row({0, 0, 1, 0.5})})
                             .items()[1]);
    Value fill = make("VOR2.Fill", {gradient});
    EXPECT_EQ(get(fill, "Style").text(), "GradientFill");
    Value back = get(set(style, "Fill", fill), "Fill");
    Value g = get(back, "Gradient");
    EXPECT_EQ(get(g, "Radius").numbers()[0], 4);
    EXPECT_EQ(callCell(g, "getStopPercent", {Value::scalar(0)}).items()[0].numbers()[0], 0.25);
}

TEST_F(GatewayValues, TheScaleFunctionIsToldByNameAndAnUnknownOneIsTheCatalogueError)
{
    Value stroke = make("VOR2.Stroke");
    EXPECT_EQ(get(stroke, "ScaleFunction").text(), "None");
    for (char const *name : {"Constant", "SplitLinear", "ConstantOut", "ConstantIn", "SelectionNonLinear"})
        EXPECT_EQ(get(set(stroke, "ScaleFunction", str(name)), "ScaleFunction").text(), name);
    EXPECT_EQ(errorOf([&] { set(stroke, "ScaleFunction", str("Linear")); }),
              std::make_pair(std::string("VOR2:UnknownScale"), std::string("Unknown scale function type")));
    // The full constructor takes it last, after the enumerations by name.
    Value full = make("VOR2.Stroke", {Value::row({0, 0, 0}), Value::scalar(1), str("DashLine"), str("RoundCap"),
                                      str("BevelJoin"), str("Constant")});
    EXPECT_EQ(get(full, "JoinStyle").text(), "BevelJoin");
    EXPECT_EQ(get(full, "ScaleFunction").text(), "Constant");
}

TEST_F(GatewayValues, OverloadsOfOneArityAreTriedInOrderAndAWrongCountListsThem)
{
    // A colour first; what is not a colour may still be a gradient, then an image.
    EXPECT_EQ(get(make("VOR2.Fill", {Value::row({1, 0, 0})}), "Style").text(), "Solid");
    EXPECT_EQ(get(make("VOR2.Background", {str("tile.png")}), "Image").text(), "tile.png");
    // When none takes the argument, the first failure is reported.
    EXPECT_EQ(errorOf([] { make("VOR2.Fill", {Value::row({1, 2})}); }).first, "Color:InvalidValue");
    EXPECT_EQ(errorOf([] { make("VOR2.Ellipse", {Value::row({1, 2}), Value::row({1, 2})}); }),
              std::make_pair(std::string("VOR2:WrongArgumentCount"),
                             std::string("VOR2.Ellipse takes VOR2.Ellipse(rect), not 2 argument(s)")));
    EXPECT_EQ(errorOf([] { make("VOR2.Stroke", std::vector<Value>(7, Value::scalar(1))); }).first,
              "VOR2:WrongArgumentCount");
    EXPECT_EQ(errorOf([] { make("VOR2.Font", {str("Serif"), Value::scalar(9), str("Heavy")}); }).second,
              "Expected one of the following values: Normal, Bold");
    EXPECT_EQ(errorOf([] { gateway("set", {str("VOR2.WeakRef"), make("VOR2.WeakRef"), str("isValid"),
                                           Value::logical(true)}); })
                  .first,
              "VOR2:ReadOnly");
}

TEST_F(GatewayValues, ReadingADecorationDoesNotAnnounceItsNode)
{
    VOR2::RectNode head(GLOX::GLRect<double>(0, 0, 2, 2));
    Value node = BindingRegistry::instance().announceNode(head);
    Value decoration = make("VOR2.LineEndDecoration", {node});
    Binding &entry = BindingRegistry::instance().find(node.id());
    int objects = entry.scriptObjects;
    // Only a state handed back to the script carries a new script object of the node.
    get(decoration, "LineBackoff");
    callCell(decoration, "getBackoffVector");
    EXPECT_EQ(entry.scriptObjects, objects);
    Value backedOff = set(decoration, "LineBackoff", Value::scalar(3));
    EXPECT_EQ(entry.scriptObjects, objects + 1);
    EXPECT_EQ(get(backedOff, "Node").id(), node.id());

    // Turning it turns the shared node, and the backoff follows the turn.
    Value turned = Value::valueObject("VOR2.LineEndDecoration",
                                      callCell(backedOff, "desiredDirection", {Value::row({0, 1})}).items()[1]);
    std::vector<double> backoff = callCell(turned, "getBackoffVector").items()[0].numbers();
    EXPECT_NEAR(backoff[0], 0, 1e-12);
    EXPECT_NEAR(backoff[1], 3, 1e-12);
    EXPECT_NEAR(head.getTransform().toQTransform().map(QPointF(1, 0)).y(), 1, 1e-12);
    EXPECT_EQ(errorOf([&] { set(decoration, "ForwardDirection", Value::row({0, 0})); }).first,
              "VOR2:ZeroLengthDirectionVector");
}

TEST_F(GatewayValues, AWeakReferenceDoesNotKeepItsNode)
{
    Value weak;
    {
        VOR2::RectNode node(GLOX::GLRect<double>(0, 0, 1, 1));
        Value handle = BindingRegistry::instance().announceNode(node);
        weak = make("VOR2.WeakRef", {handle});
        EXPECT_TRUE(get(weak, "isValid").numbers()[0]);
        Value promoted = callCell(weak, "promote").items()[0];
        EXPECT_EQ(promoted.id(), handle.id());
        EXPECT_EQ(promoted.className(), "VOR2.RectNode");
        // The registry's reference goes with the script's last object.
        BindingRegistry::instance().release(handle.id());
        BindingRegistry::instance().release(handle.id());
        EXPECT_TRUE(get(weak, "isValid").numbers()[0]);
    }
    EXPECT_FALSE(get(weak, "isValid").numbers()[0]);
    Value promoted = callCell(weak, "promote");
    ASSERT_EQ(promoted.items().size(), 1u);
    EXPECT_EQ(promoted.items()[0].id(), 0u);
    // Two references to one node carry one key; a new node never takes a
    // dead one's key.
    VOR2::RectNode a;
    Value wa = make("VOR2.WeakRef", {BindingRegistry::instance().announceNode(a)});
    Value wb = make("VOR2.WeakRef", {BindingRegistry::instance().announceNode(a)});
    EXPECT_EQ(wa.state().field("Key")->numbers(), wb.state().field("Key")->numbers());
    EXPECT_NE(wa.state().field("Key")->numbers(), weak.state().field("Key")->numbers());
}

TEST_F(GatewayValues, ASweepDropsTheKeysOfDeadNodesAndKeepsTheLiveOnes)
{
    VOR2::RectNode survivor;
    Value kept = make("VOR2.WeakRef", {BindingRegistry::instance().announceNode(survivor)});
    sweepWeakRefKeys();
    std::size_t const before = weakRefKeyCount();
    {
        std::vector<VOR2::RectNode> passing(100);
        for (VOR2::RectNode const &node : passing) weakRefKey(VOR2::WeakRef(node));
        EXPECT_EQ(weakRefKeyCount(), before + 100);
    }
    sweepWeakRefKeys();
    EXPECT_EQ(weakRefKeyCount(), before);
    EXPECT_TRUE(get(kept, "isValid").numbers()[0]);
    Value again = make("VOR2.WeakRef", {BindingRegistry::instance().announceNode(survivor)});
    EXPECT_EQ(again.state().field("Key")->numbers(), kept.state().field("Key")->numbers());
}
