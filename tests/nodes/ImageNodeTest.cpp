// The image node: how a source sets its size, sharing of one image between
// nodes, the guards of its setters, and what it puts on pixels and masks.

#include <ImageNode>

#include "nodes/ImageNodeImpl.h"
#include "support/PaintNode.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {
QImage filled(int w, int h, QColor const &colour)
{
    QImage image(w, h, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    return image;
}

QImage paintNode(ImageNode const &node, int w, int h) { return paintNodeAtScale(node, 1.0, w, h); }

GLOX::GLRect<double> boundsOf(ImageNode const &node) { return node.getImpl()->computeBounds().boundingRect(); }
} // namespace

TEST(ImageNode, DefaultAndMissingSourcesAreNullAndPaintNothing)
{
    ImageNode node;
    EXPECT_TRUE(node.isNullImage());
    node.setSize(4, 4);
    EXPECT_EQ(boundsOf(node), GLOX::GLRect<double>()) << "a null image covers nothing whatever its size";
    EXPECT_EQ(paintNode(node, 6, 6), transparentImage(6, 6));

    node.setSource("/no/such/image.png");
    EXPECT_TRUE(node.isNullImage());
    EXPECT_EQ(node.getImageNaturalSize(), (GLOX::GLPoint<int>(0, 0)));
}

TEST(ImageNode, FileSourceSetsTheNaturalSizeAndIsSharedBetweenNodes)
{
    QTemporaryDir dir;
    QString png = dir.filePath("a.png");
    ASSERT_TRUE(filled(5, 3, Qt::red).save(png));
    ImageNode node;
    node.setSize(9, 9);
    node.setSource(png.toStdString());
    EXPECT_FALSE(node.isNullImage());
    EXPECT_EQ(node.getSize(), (GLOX::GLPoint<double>(5, 3))) << "a size set before the source is lost";
    node.setSize(7, 2);
    node.setSource(png.toStdString());
    EXPECT_EQ(node.getSize(), (GLOX::GLPoint<double>(7, 2))) << "the same source again changes nothing";
    EXPECT_EQ(boundsOf(node), (GLOX::GLRect<double>(0, 0, 7, 2)));
    node.setSize(-4, 2);
    EXPECT_EQ(boundsOf(node), (GLOX::GLRect<double>(-4, 0, 4, 2)));
    node.setSizeToImageNaturalSize();
    EXPECT_EQ(node.getSize(), (GLOX::GLPoint<double>(5, 3)));

    ImageNode relative(QDir::current().relativeFilePath(png).toStdString());
    EXPECT_EQ(relative.getImageNodeImpl()->imageNode().get(), node.getImageNodeImpl()->imageNode().get());
}

TEST(ImageNode, ClientImageShowsACopyOfItsPixelsRegisteredOnce)
{
    GLOX::Holder<Image> client = Image::fromQImage(filled(4, 4, Qt::green));
    ImageNode node(client);
    EXPECT_EQ(node.getSize(), (GLOX::GLPoint<double>(4, 4)));
    EXPECT_TRUE(pixelIs(paintNode(node, 5, 5), 3, 3, QColor(Qt::green), 0));

    // Registering again would take the changed pixels: the same holder must not.
    client->asQImage()->fill(Qt::red);
    node.setSource(client);
    EXPECT_TRUE(pixelIs(paintNode(node, 5, 5), 3, 3, QColor(Qt::green), 0));

    // Another image of the same size: the outline stands, the look must be redrawn.
    node.getImpl()->setOffscreenDirty(false);
    GLOX::Holder<Image> other = Image::fromQImage(filled(4, 4, Qt::blue));
    node.setSource(other);
    other.reset();
    EXPECT_TRUE(node.getImpl()->isOffscreenDirty());
    EXPECT_TRUE(pixelIs(paintNode(node, 5, 5), 3, 3, QColor(Qt::blue), 0));
}

TEST(ImageNode, FractionalSizeDrawsIntoTheTruncatedIntegerRectangle)
{
    ImageNode node(Image::fromQImage(filled(2, 2, Qt::red)));
    node.setSize(10.7, 3.2);
    QImage painted = paintNode(node, 14, 6);
    EXPECT_TRUE(pixelIs(painted, 9, 2, QColor(Qt::red), 0));
    EXPECT_TRUE(pixelIs(painted, 10, 2, QColor(0, 0, 0, 0), 0));
    EXPECT_TRUE(pixelIs(painted, 9, 3, QColor(0, 0, 0, 0), 0));
}

TEST(ImageNode, MaskIsBlackWithTheImagesAlphaAtItsNaturalSize)
{
    QImage source = transparentImage(3, 1);
    source.setPixelColor(0, 0, QColor(255, 0, 0));
    source.setPixelColor(1, 0, QColor(0, 255, 0, 128));
    ImageNode node(Image::fromQImage(source));
    node.setSize(6, 6); // the mask ignores it
    QImage mask = transparentImage(4, 4);
    QPainter painter(&mask);
    node.getImpl()->paintMask(&painter, 1.0, GLOX::GLRect<double>(0, 0, 4, 4));
    EXPECT_EQ(painter.compositionMode(), QPainter::CompositionMode_SourceOver);
    painter.end();
    EXPECT_TRUE(pixelIs(mask, 0, 0, QColor(0, 0, 0, 255), 0));
    EXPECT_TRUE(pixelIs(mask, 1, 0, QColor(0, 0, 0, 128), 1));
    EXPECT_TRUE(pixelIs(mask, 2, 0, QColor(0, 0, 0, 0), 0));
    EXPECT_TRUE(pixelIs(mask, 0, 1, QColor(0, 0, 0, 0), 0));

    // At a scale of 0.5 the device's size read in node units covers only part
    // of the image: the black must be laid over the device in its own pixels.
    ImageNode big(Image::fromQImage(filled(6, 6, Qt::red)));
    QImage small = transparentImage(4, 4);
    QPainter scaled(&small);
    scaled.scale(0.5, 0.5);
    big.getImpl()->paintMask(&scaled, 0.5, GLOX::GLRect<double>(0, 0, 8, 8));
    scaled.end();
    EXPECT_TRUE(pixelIs(small, 2, 2, QColor(0, 0, 0, 255), 0));
    EXPECT_TRUE(pixelIs(small, 3, 3, QColor(0, 0, 0, 0), 0));
}
