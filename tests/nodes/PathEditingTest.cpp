// Editing the linear and curved paths: index checks at every boundary with
// their errors and the state left as it was, scaling by -1, 0 and 1 in both
// families and the changes each edit reports, the curved edits that only
// store, and unusable numbers.

#include <ClosedCurvedPathNode>
#include <ClosedLinearPathNode>
#include <Error>
#include <OpenCurvedPathNode>
#include <OpenLinearPathNode>
#include <RectNode>

#include "support/SceneFixture.h"

#include <cfloat>
#include <cmath>
#include <functional>
#include <limits>

using namespace VOR2;
using namespace VOR2::test;
using P = GLOX::GLPoint<double>;

namespace {
constexpr int NONE = -1;
constexpr int GEOMETRY = int(PendingChangeKind::Geometry);
double const NaN = std::numeric_limits<double>::quiet_NaN();

// Each test's paths sit on the scene, whose record of pending changes tells
// what an edit reported.
class PathEditing : public SceneTest {
protected:
    int reported(Node const &n)
    {
        int const kind = pendingKind(*scene, n);
        scene->getPrivate()->takePendingChanges();
        return kind;
    }
    template <typename N>
    N fresh(N n)
    {
        added(n);
        scene->getPrivate()->takePendingChanges();
        return n;
    }
};

// Runs `edit`, which must throw `code` with `text`.
void expectError(std::function<void()> const &edit, message_code_vor_msg code, char const *text, int index)
{
    try {
        edit();
        ADD_FAILURE() << "index " << index << " was accepted";
    } catch (Error const &e) {
        EXPECT_EQ(e.code(), code) << "index " << index;
        EXPECT_STREQ(e.what(), text) << "index " << index;
    }
}

GLOX::GLRect<double> box(Node const &n) { return n.getBounds().boundingRect(); }

GLOX::GVector<P> const THREE_POINTS = {{0, 0}, {10, 0}, {10, 10}};

GLOX::GVector<Vertex> threeVertices()
{
    return {Vertex({0, 0}, {3, 0}, {0, 0}), Vertex({10, 5}), Vertex({20, 0}, {0, 0}, {-3, 0})};
}
} // namespace

TEST_F(PathEditing, LinearIndexChecksRefuseOutsideTheCountAndChangeNothing)
{
    for (LinearPathNode path : {LinearPathNode(OpenLinearPathNode(THREE_POINTS).getImpl()),
                                LinearPathNode(ClosedLinearPathNode(THREE_POINTS).getImpl())}) {
        path = fresh(path);
        int const count = path.numberOfPoints();
        ASSERT_EQ(count, 3);
        for (int index : {-1, count}) {
            char const *const text = "Passed an invalid index to a LinearPathNode";
            expectError([&] { path.getPoint(index); }, VOR2_InvalidLinearPathIndex, text, index);
            expectError([&] { path.setPoint(index, {5, 5}); }, VOR2_InvalidLinearPathIndex, text, index);
            EXPECT_EQ(path.getPoints(), THREE_POINTS);
            EXPECT_EQ(reported(path), NONE) << "a refused edit reports nothing";
        }
        EXPECT_EQ(path.getPoint(0), P(0, 0));
        EXPECT_EQ(path.getPoint(count - 1), P(10, 10));
        path.setPoint(count - 1, {7, 7});
        EXPECT_EQ(path.getPoint(count - 1), P(7, 7));
        EXPECT_EQ(reported(path), GEOMETRY);
        path.setPoint(0, {1, 1});
        EXPECT_EQ(path.getPoint(0), P(1, 1));
        path.remove();
    }
    expectError([] { OpenLinearPathNode().getPoint(0); }, VOR2_InvalidLinearPathIndex,
                "Passed an invalid index to a LinearPathNode", 0);
}

TEST_F(PathEditing, CurveIndexChecksRefuseOutsideTheCountAndChangeNothing)
{
    for (CurvedPathNode path : {CurvedPathNode(OpenCurvedPathNode(threeVertices()).getImpl()),
                                CurvedPathNode(ClosedCurvedPathNode(threeVertices()).getImpl())}) {
        path = fresh(path);
        CurvedPathNode const &readOnly = path;
        int const count = path.numberOfVertices();
        ASSERT_EQ(count, 3);
        char const *const text = "Passed an invalid index to a CurvedPathNode";
        for (int index : {-1, count}) {
            std::function<void()> const edits[] = {
                [&] { readOnly.getVertex(index); },
                [&] { path.getVertex(index); },
                [&] { path.setVertex(index, Vertex({1, 1})); },
                [&] { path.setVertexPosition(index, {1, 1}); },
                [&] { path.setVertexForwardTangent(index, {1, 1}); },
                [&] { path.setVertexBackwardTangent(index, {1, 1}); },
            };
            for (auto const &edit : edits) expectError(edit, VOR2_InvalidCurveIndex, text, index);
            EXPECT_EQ(path.getVertices(), threeVertices());
            EXPECT_EQ(reported(path), NONE);
        }
        for (int index : {0, count - 1}) {
            path.setVertex(index, Vertex({double(index), 9}));
            EXPECT_EQ(readOnly.getVertex(index).position, P(double(index), 9));
            EXPECT_EQ(reported(path), GEOMETRY);
        }
        path.remove();
    }
}

TEST_F(PathEditing, LinearScaleRefusesNegativesCollapsesAtZeroAndAlwaysReports)
{
    OpenLinearPathNode path = fresh(OpenLinearPathNode(THREE_POINTS));
    try {
        path.scale(-1.0);
        ADD_FAILURE() << "a negative factor was accepted";
    } catch (Error const &e) {
        EXPECT_EQ(e.code(), VOR2_NegativeLinearPathScale);
        EXPECT_STREQ(e.what(), "Tried to scale a LinearPathNode by a negative value");
    }
    EXPECT_EQ(path.getPoints(), THREE_POINTS);
    EXPECT_EQ(reported(path), NONE);

    path.scale(1.0);
    EXPECT_EQ(path.getPoints(), THREE_POINTS);
    EXPECT_EQ(reported(path), GEOMETRY) << "a linear path reports even an identity scale";
    path.scale(2.0);
    EXPECT_EQ(path.getPoint(2), P(20, 20));
    path.scale(0.0);
    for (P const &p : path.getPoints()) EXPECT_EQ(p, P(0, 0));
    EXPECT_EQ(reported(path), GEOMETRY);

    // The points' own scale; the node keeps Node's two-factor transform.
    path.scale(2.0, 3.0);
    EXPECT_EQ(path.getTransform().map(P(1, 1)), P(2, 3));
}

TEST_F(PathEditing, CurvedScaleMirrorsOnNegativesAndIgnoresOne)
{
    ClosedCurvedPathNode path = fresh(ClosedCurvedPathNode(threeVertices()));
    path.scale(1.0);
    path.scale(1.0 + DBL_EPSILON); // within epsilon, bound included
    path.translate({1e-9, 0});     // squared length within epsilon
    EXPECT_EQ(reported(path), NONE);
    EXPECT_EQ(path.getVertices(), threeVertices());

    path.scale(-1.0);
    Vertex const &first = path.getVertex(0);
    EXPECT_EQ(first.position, P(0, 0));
    EXPECT_EQ(first.forwardTangent, P(-3, 0)) << "tangents turn with the positions";
    EXPECT_EQ(path.getVertex(1).position, P(-10, -5));
    EXPECT_EQ(reported(path), GEOMETRY);
    EXPECT_EQ(box(path).x, -20) << "the mirrored curve is what is measured";

    path.scale(1.0 + 4 * DBL_EPSILON);
    EXPECT_EQ(reported(path), GEOMETRY) << "just past epsilon is a change";
    path.scale(0.0);
    for (Vertex const &v : path.getVertices()) EXPECT_EQ(v, Vertex());

    path.setVertices(threeVertices());
    path.translate({1, 2});
    EXPECT_EQ(path.getVertex(2), Vertex({21, 2}, {0, 0}, {-3, 0})) << "only positions move";
    EXPECT_EQ(reported(path), GEOMETRY);
}

TEST_F(PathEditing, VertexSettersOnlyStoreUntilDecorationsAreUpdated)
{
    OpenCurvedPathNode path = fresh(OpenCurvedPathNode(threeVertices()));
    RectNode head(GLOX::GLRect<double>(-1, -1, 2, 2));
    path.setEndDecoration(LineEndDecoration(head));
    EXPECT_EQ(head.getTransform().map(P(0, 0)), P(20, 0));
    EXPECT_EQ(reported(path), GEOMETRY);
    double const right = box(path).right();

    path.setVertexPosition(2, {40, 0});
    path.setVertexBackwardTangent(2, {-1, 0});
    path.getVertex(0).position = P(-5, 0); // written through the reference
    path.setVertexForwardTangent(1, {100, 100});
    EXPECT_EQ(path.getVertex(2).position, P(40, 0));
    EXPECT_EQ(path.getVertex(1).forwardTangent, P(100, 100)) << "stored, though the curve ignores it";
    EXPECT_EQ(reported(path), NONE);
    EXPECT_EQ(box(path).right(), right) << "nothing measured anew yet";
    EXPECT_EQ(head.getTransform().map(P(0, 0)), P(20, 0));

    path.updateDecorations();
    EXPECT_EQ(reported(path), GEOMETRY);
    EXPECT_EQ(box(path).right(), 40);
    EXPECT_EQ(box(path).x, -5);
    EXPECT_EQ(head.getTransform().map(P(0, 0)), P(40, 0));

    // The reporting edits leave the decorations behind as well.
    path.append(Vertex({50, 10}, {}, {}));
    EXPECT_EQ(reported(path), GEOMETRY);
    EXPECT_EQ(head.getTransform().map(P(0, 0)), P(40, 0));
    path.updateDecorations();
    EXPECT_EQ(head.getTransform().map(P(0, 0)), P(50, 10));
}

TEST_F(PathEditing, LinearEditsMoveTheDecorationsWithTheEnds)
{
    OpenLinearPathNode path = fresh(OpenLinearPathNode());
    RectNode startHead(GLOX::GLRect<double>(-1, -1, 2, 2)), endHead(GLOX::GLRect<double>(-1, -1, 2, 2));
    path.setStartDecoration(LineEndDecoration(startHead));
    path.setEndDecoration(LineEndDecoration(endHead));
    EXPECT_EQ(startHead.getParent(), path);

    path.append({5, 5});
    EXPECT_EQ(endHead.getTransform().map(P(0, 0)), P(5, 5));
    EXPECT_EQ(path.getEndDecoration().getRotation(), 0.0) << "one point gives no direction";
    path.append({5, 15});
    EXPECT_DOUBLE_EQ(path.getEndDecoration().getRotation(), M_PI / 2) << "outward along the last segment";
    EXPECT_DOUBLE_EQ(path.getStartDecoration().getRotation(), -M_PI / 2) << "outward along the first";
    path.translate({10, 0});
    EXPECT_EQ(startHead.getTransform().map(P(0, 0)), P(15, 5));
    EXPECT_EQ(endHead.getTransform().map(P(0, 0)), P(15, 15));
    EXPECT_EQ(reported(path), GEOMETRY);

    RectNode replacement(GLOX::GLRect<double>(-1, -1, 2, 2));
    path.setEndDecoration(LineEndDecoration(replacement));
    EXPECT_FALSE(endHead.getParent().isValid()) << "the old head left the tree";
    EXPECT_EQ(replacement.getTransform().map(P(0, 0)), P(15, 15));
}

TEST_F(PathEditing, UnusableNumbersChangeNothingAndReportNothing)
{
    double const inf = std::numeric_limits<double>::infinity();
    OpenLinearPathNode linear = fresh(OpenLinearPathNode(THREE_POINTS));
    linear.append({NaN, 0});
    linear.setPoint(1, {0, inf});
    linear.translate({NaN, NaN});
    linear.scale(NaN);
    linear.scale(inf);
    linear.setPoints({{0, 0}, {1e200, 0}});
    linear.scale(1e128); // the result would leave the usable range
    EXPECT_EQ(linear.getPoints(), THREE_POINTS);
    EXPECT_EQ(reported(linear), NONE);

    OpenCurvedPathNode curved = fresh(OpenCurvedPathNode(threeVertices()));
    curved.append(Vertex({0, 0}, {NaN, 0}, {0, 0}));
    curved.setVertex(0, Vertex({inf, 0}));
    curved.setVertices({Vertex({0, 0}), Vertex({NaN, 1})});
    curved.scale(-inf);
    curved.translate({inf, 0});
    curved.setVertexPosition(1, {NaN, 0});
    curved.setVertexForwardTangent(0, {0, inf});
    EXPECT_EQ(curved.getVertices(), threeVertices());
    EXPECT_EQ(reported(curved), NONE);
    EXPECT_FALSE(OpenLinearPathNode({{0, 0}, {NaN, 1}}).numberOfPoints()) << "the constructor keeps none";
}

TEST(PathHandles, ConversionsKeepOnlyTheirOwnKindAndFamily)
{
    OpenLinearPathNode open;
    ClosedCurvedPathNode closed;
    EXPECT_TRUE(LinearPathNode(open.getImpl()).isValid());
    EXPECT_TRUE(OpenLinearPathNode(open.getImpl()).isValid());
    EXPECT_FALSE(ClosedLinearPathNode(open.getImpl()).isValid());
    EXPECT_FALSE(CurvedPathNode(open.getImpl()).isValid());
    EXPECT_TRUE(CurvedPathNode(closed.getImpl()).isValid());
    EXPECT_FALSE(OpenCurvedPathNode(closed.getImpl()).isValid());
    EXPECT_FALSE(LinearPathNode(RectNode().getImpl()).isValid());
    EXPECT_STREQ(open.getImpl()->getFullyQualifiedTcosTypeName(), "VOR2.OpenLinearPathNode");
    EXPECT_STREQ(closed.getImpl()->getFullyQualifiedTcosTypeName(), "VOR2.ClosedCurvedPathNode");
    EXPECT_THROW(LinearPathNode().numberOfPoints(), Error) << "an empty handle";
}
