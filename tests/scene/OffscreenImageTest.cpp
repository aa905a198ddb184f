// A node that caches itself paints through its offscreen image: what shows
// must be what the node paints directly, pixel for pixel, at any view
// scale and wherever the node sits; and a change must bring a new image.

#include <EllipseNode>
#include <GlobalViewerInfo>

#include "scene/SceneRegionRenderer.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

#include <QPainter>
#include <cmath>
#include <functional>
#include <sstream>

using namespace VOR2;
using namespace VOR2::test;

namespace {

int offscreenRepaints() { return Diagnostics::intValue("Scene:Node offscreen repaint count"); }

// The region `source` of the scene rendered as a live view of key `view`
// at `scale` would render it.
QImage renderView(Scene &scene, void const *view, QRectF const &source, double scale)
{
    QImage image = transparentImage(int(std::ceil(source.width() * scale)), int(std::ceil(source.height() * scale)));
    GlobalViewerInfo *info = GlobalViewerInfo::instance();
    void const *previousKey = info->getKey();
    double const previousScale = info->getViewerScale();
    info->setCurrentView(view, scale);
    QPainter painter(&image);
    renderSceneRegion(&painter, scene.getPrivate(), image.rect(), source);
    info->setCurrentView(previousKey, previousScale);
    return image;
}

// Success when the images are the same size and every channel of every
// pixel is within `tolerance`; names the first pixel that is not.
::testing::AssertionResult sameImage(QImage const &a, QImage const &b, int tolerance = 1)
{
    if (a.size() != b.size()) return ::testing::AssertionFailure() << "sizes differ";
    int differing = 0;
    std::ostringstream first;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            QRgb p = a.pixel(x, y), q = b.pixel(x, y);
            if (std::abs(qRed(p) - qRed(q)) > tolerance || std::abs(qGreen(p) - qGreen(q)) > tolerance ||
                std::abs(qBlue(p) - qBlue(q)) > tolerance || std::abs(qAlpha(p) - qAlpha(q)) > tolerance) {
                if (differing++ == 0)
                    first << "first at (" << x << ", " << y << "): " << std::hex << p << " against " << q;
            }
        }
    if (differing == 0) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << differing << " pixels differ, " << first.str();
}

// A node of each kind of outline, placed off the pixel grid.
struct Sample {
    char const *what;
    std::function<Node()> make;
};

std::vector<Sample> samples()
{
    return {
        {"hairline rectangle",
         [] {
             RectNode n(GLOX::GLRect<double>(2, 2, 16, 11));
             n.setDrawStyle(DrawStyle(Stroke(), Fill(GLOX::Color(1, 0, 0)), true));
             return n;
         }},
        {"filled rectangle off the grid",
         [] {
             RectNode n = solidRect({0.3, 1.7, 9.4, 6.2}, Qt::blue);
             n.setPosition({4.45, 3.1});
             return n;
         }},
        {"stroked ellipse",
         [] {
             EllipseNode n(Ellipse(GLOX::GLRect<double>(3.3, 4.1, 13, 9)));
             n.setDrawStyle(DrawStyle(constantStroke(2.0), Fill(GLOX::Color(0, 0.5, 0, 0.5)), true));
             return n;
         }},
    };
}

using OffscreenImage = SceneTest;

} // namespace

TEST_F(OffscreenImage, TheCachedDrawingIsTheDirectDrawing)
{
    int const view = 0;
    QRectF const source(-5, -5, 30, 25);
    for (Sample const &sample : samples()) {
        for (double scale : {1.0, 3.0}) {
            SCOPED_TRACE(std::string(sample.what) + " at scale " + std::to_string(scale));
            Node node = sample.make();
            scene->addNode(node);
            QImage direct = renderView(*scene, &view, source, scale);

            node.setCacheType(CacheType::Self);
            int const before = offscreenRepaints();
            QImage cached = renderView(*scene, &view, source, scale);
            EXPECT_EQ(offscreenRepaints(), before + 1) << "the image was built";
            EXPECT_TRUE(sameImage(cached, direct));
            QImage again = renderView(*scene, &view, source, scale);
            EXPECT_EQ(offscreenRepaints(), before + 1) << "and then reused";
            EXPECT_TRUE(sameImage(again, direct));

            // The view moved by part of a device pixel: the image is made
            // again for the new grid, and still matches.
            QRectF const shifted = source.translated(-0.2, 0.1);
            QImage cachedShifted = renderView(*scene, &view, shifted, scale);
            EXPECT_EQ(offscreenRepaints(), before + 2);
            node.setCacheType(CacheType::None);
            EXPECT_TRUE(sameImage(cachedShifted, renderView(*scene, &view, shifted, scale)));
            scene->removeNode(node);
        }
    }
}

TEST_F(OffscreenImage, AChangeRendersTheImageAnew)
{
    int const view = 0;
    QRectF const source(0, 0, 20, 20);
    for (double scale : {1.0, 3.0}) {
        SCOPED_TRACE("scale " + std::to_string(scale));
        RectNode node = added(solidRect({2, 2, 10, 10}, Qt::red));
        node.setCacheType(CacheType::Self);
        renderView(*scene, &view, source, scale);

        int const before = offscreenRepaints();
        node.setFill(Fill(GLOX::Color(0, 0, 1)));
        QImage changed = renderView(*scene, &view, source, scale);
        EXPECT_EQ(offscreenRepaints(), before + 1);
        int const c = int(7 * scale);
        EXPECT_TRUE(pixelIs(changed, c, c, QColor(0, 0, 255)));

        node.setRect({2, 2, 15, 10}); // and a change of geometry
        changed = renderView(*scene, &view, source, scale);
        EXPECT_EQ(offscreenRepaints(), before + 2);
        EXPECT_TRUE(pixelIs(changed, int(16 * scale), c, QColor(0, 0, 255)));

        node.setCacheType(CacheType::None);
        EXPECT_TRUE(sameImage(renderView(*scene, &view, source, scale), changed)) << "as drawn directly";
        scene->removeNode(node);
    }
}

TEST_F(OffscreenImage, ATurnedNodeShowsItsImageWhereItStands)
{
    // Off the grid of device pixels the image is resampled: close to the
    // direct drawing, not equal to it.
    int const view = 0;
    QRectF const source(-10, -10, 40, 40);
    RectNode node = added(solidRect({0, 0, 12, 12}, Qt::red));
    node.setPosition({10, 10});
    node.rotateDegrees(30);
    for (double scale : {1.0, 3.0}) {
        SCOPED_TRACE("scale " + std::to_string(scale));
        node.setCacheType(CacheType::None);
        QImage direct = renderView(*scene, &view, source, scale);
        node.setCacheType(CacheType::Self);
        int const before = offscreenRepaints();
        QImage cached = renderView(*scene, &view, source, scale);
        EXPECT_EQ(offscreenRepaints(), before + 1);
        int painted = 0, differing = 0;
        for (int y = 0; y < direct.height(); ++y)
            for (int x = 0; x < direct.width(); ++x) {
                bool const d = qAlpha(direct.pixel(x, y)) > 128, c = qAlpha(cached.pixel(x, y)) > 128;
                painted += d;
                differing += d != c;
            }
        EXPECT_GT(painted, int(100 * scale * scale));
        EXPECT_LT(differing, painted / 10) << "the image stands where the node does";
    }
}
