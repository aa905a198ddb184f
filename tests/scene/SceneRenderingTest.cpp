// Rendering outside the views: image, painter and printer forms, scene
// bounds, node images, the offscreen image of a caching node, and the
// region renderer of live views. Checked on pixels.

#include <GlobalViewerInfo>

#include "scene/SceneRegionRenderer.h"
#include "support/NodeStyles.h"
#include "support/PixelCompare.h"
#include "support/SceneFixture.h"

#include <QPainter>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>

using namespace VOR2;
using namespace VOR2::test;

namespace {
using SceneRendering = SceneTest;

int offscreenRepaints() { return Diagnostics::intValue("Scene:Node offscreen repaint count"); }

} // namespace

TEST_F(SceneRendering, AnEmptySceneIsTwiceTheMarginOfBackgroundOverWhite)
{
    scene->setBackground(Background(GLOX::Color(0, 0, 1)));
    GLOX::Holder<Image> image = scene->render();
    ASSERT_EQ(image->width(), 40);
    ASSERT_EQ(image->height(), 40);
    for (int y = 0; y < 40; y += 13)
        for (int x = 0; x < 40; x += 13) EXPECT_TRUE(pixelIs(*image->asQImage(), x, y, QColor(0, 0, 255)));
    EXPECT_TRUE(scene->render(0)->isNull());

    scene->setBackground(Background(GLOX::Color(1, 0, 0, 0.5)));
    EXPECT_TRUE(pixelIs(*scene->render()->asQImage(), 5, 5, QColor(255, 127, 127)));
    scene->setBackground(Background()); // no colour at all: plain white
    EXPECT_TRUE(pixelIs(*scene->render()->asQImage(), 5, 5, QColor(255, 255, 255)));
}

TEST_F(SceneRendering, TheImageCoversTheBoundsPlusTheMarginOneUnitAPixel)
{
    scene->addNode(solidRect({10, 10, 20, 10}, Qt::red));
    RectNode b = added(solidRect({0, 0, 5, 5}, Qt::green));
    b.setPosition({40.5, 30});
    EXPECT_EQ(scene->getBounds(), (GLOX::GLRect<double>(10, 10, 35.5, 25)));

    QImage image = *scene->render(2)->asQImage();
    ASSERT_EQ(image.size(), QSize(36 + 4, 25 + 4));
    EXPECT_TRUE(pixelIs(image, 2 + 5, 2 + 5, QColor(255, 0, 0)));   // inside a
    EXPECT_TRUE(pixelIs(image, 1, 1, QColor(255, 255, 255)));      // margin
    EXPECT_TRUE(pixelIs(image, 2 + 33, 2 + 23, QColor(0, 255, 0))); // inside b
    b.setVisible(false);
    EXPECT_EQ(scene->getBounds(), (GLOX::GLRect<double>(10, 10, 20, 10))) << "hidden nodes do not count";

    QImage partial(10, 10, QImage::Format_ARGB32);
    scene->render(partial, {25, 15, 10, 10}, {});
    EXPECT_TRUE(pixelIs(partial, 2, 2, QColor(255, 0, 0)));
    EXPECT_TRUE(pixelIs(partial, 7, 2, QColor(255, 255, 255)));
}

TEST_F(SceneRendering, PainterAndPrinterFormsFillNothing)
{
    scene->setBackground(Background(GLOX::Color(1, 1, 0)));
    scene->addNode(solidRect({0, 0, 50, 50}, Qt::blue));
    scene->addNode(solidRect({100, 100, 50, 50}, Qt::blue));

    QImage onPainter = transparentImage(150, 150);
    {
        QPainter painter(&onPainter);
        scene->render(painter, {}, {});
    }
    EXPECT_TRUE(pixelIs(onPainter, 75, 75, QColor(0, 0, 0, 0)));
    EXPECT_TRUE(pixelIs(onPainter, 25, 25, QColor(0, 0, 255)));

    QTemporaryDir dir;
    QString pdf = dir.filePath("scene.pdf");
    {
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(pdf);
        scene->render(printer, {}, {});
    }
    // The PDF, rasterised by poppler: shapes in blue, the page left white.
    QProcess pdftoppm;
    pdftoppm.start("pdftoppm", {"-png", "-r", "30", "-singlefile", pdf, dir.filePath("page")});
    ASSERT_TRUE(pdftoppm.waitForFinished(60000)) << "pdftoppm did not run; scripts/setup.sh installs it";
    ASSERT_EQ(pdftoppm.exitCode(), 0);
    QImage page(dir.filePath("page.png"));
    ASSERT_FALSE(page.isNull());
    int blue = 0, yellow = 0;
    for (int y = 0; y < page.height(); ++y)
        for (int x = 0; x < page.width(); ++x) {
            QColor c = page.pixelColor(x, y);
            blue += c.blue() > 200 && c.red() < 60 && c.green() < 60;
            yellow += c.red() > 200 && c.green() > 200 && c.blue() < 60;
        }
    EXPECT_GT(blue, page.width() * page.height() / 20) << "the two squares are on the page";
    EXPECT_EQ(yellow, 0) << "the background colour is not printed";
    EXPECT_TRUE(pixelIs(page, page.width() / 2, page.height() - 2, QColor(255, 255, 255)));
}

TEST_F(SceneRendering, ANodeRendersAloneOrWithItsSubtree)
{
    RectNode parent = solidRect({0, 0, 10, 10}, Qt::red);
    RectNode child = solidRect({0, 0, 4, 4}, Qt::blue);
    child.setParent(parent);
    child.setPosition({12, 0});

    QImage alone = *parent.render(CacheType::Self, 2.0)->asQImage();
    ASSERT_EQ(alone.size(), QSize(22, 22)) << "bounds times scale plus a pixel of border on each side";
    EXPECT_TRUE(pixelIs(alone, 0, 0, QColor(0, 0, 0, 0)));
    EXPECT_TRUE(pixelIs(alone, 1, 1, QColor(255, 0, 0)));
    EXPECT_TRUE(pixelIs(alone, 20, 20, QColor(255, 0, 0)));

    QImage tree = *parent.render(CacheType::ChildrenTree, 2.0)->asQImage();
    ASSERT_EQ(tree.size(), QSize(34, 22));
    EXPECT_TRUE(pixelIs(tree, 1 + 25, 1 + 3, QColor(0, 0, 255)));
    EXPECT_TRUE(pixelIs(tree, 1 + 25, 1 + 10, QColor(0, 0, 0, 0)));
}

TEST_F(SceneRendering, ACachingNodeRebuildsItsImageOnlyWhenWhollyExposed)
{
    RectNode n = solidRect({0, 0, 20, 20}, Qt::red);
    n.setCacheType(CacheType::Self);
    scene->addNode(n);
    int start = offscreenRepaints();

    QImage whole = *scene->render(0)->asQImage();
    EXPECT_EQ(offscreenRepaints(), start + 1);
    EXPECT_TRUE(pixelIs(whole, 10, 10, QColor(255, 0, 0)));
    scene->render(0);
    EXPECT_EQ(offscreenRepaints(), start + 1) << "a clean image is reused";

    // Dirty but only partly exposed: the old image is shown, not rebuilt.
    n.getImpl()->setOffscreenDirty(true);
    QImage part(10, 10, QImage::Format_ARGB32);
    scene->render(part, {0, 0, 10, 10}, {});
    EXPECT_EQ(offscreenRepaints(), start + 1);
    EXPECT_TRUE(pixelIs(part, 5, 5, QColor(255, 0, 0)));

    // A real change drops the image; a partial exposure then paints
    // directly, and the next whole exposure builds the image anew.
    n.setFill(Fill(GLOX::Color(0, 1, 0)));
    scene->render(part, {0, 0, 10, 10}, {});
    EXPECT_EQ(offscreenRepaints(), start + 1);
    EXPECT_TRUE(pixelIs(part, 5, 5, QColor(0, 255, 0)));
    whole = *scene->render(0)->asQImage();
    EXPECT_EQ(offscreenRepaints(), start + 2);
    EXPECT_TRUE(pixelIs(whole, 19, 19, QColor(0, 255, 0)));
    EXPECT_TRUE(pixelIs(whole, 0, 0, QColor(0, 255, 0)));
}

TEST_F(SceneRendering, TheRegionRendererClearsDrawsAndFlashes)
{
    scene->addNode(solidRect({0, 0, 10, 10}, Qt::red));
    QImage layer(20, 20, QImage::Format_ARGB32_Premultiplied);
    layer.fill(QColor(0, 0, 255));
    {
        QPainter painter(&layer);
        renderSceneRegion(&painter, scene->getPrivate(), QRect(0, 0, 20, 10), QRectF(0, 0, 20, 10));
    }
    EXPECT_TRUE(pixelIs(layer, 5, 5, QColor(255, 0, 0)));
    EXPECT_TRUE(pixelIs(layer, 15, 5, QColor(0, 0, 0, 0))) << "the target is cleared";
    EXPECT_TRUE(pixelIs(layer, 15, 15, QColor(0, 0, 255))) << "outside the target nothing changes";

    scene->setDebugRepaintRegion(true);
    scene->setDebugRepaintRegionColor(GLOX::Color(0, 1, 0, 1));
    QPainter painter(&layer);
    renderSceneRegion(&painter, scene->getPrivate(), QRect(0, 0, 20, 10), QRectF(0, 0, 20, 10));
    EXPECT_TRUE(pixelIs(layer, 5, 5, QColor(0, 255, 0)));
}
