// Changes that reach a node from outside its own setters: a client image
// at a reused address, an image file that appears later, a decoration that
// shortens a cached line.

#include <ImageNode>
#include <LineEndDecoration>
#include <LineNode>
#include <RectNode>

#include "support/PaintNode.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace VOR2;
using namespace VOR2::test;

namespace {
GLOX::Holder<Image> solidImage(QColor color)
{
    QImage image(4, 4, QImage::Format_ARGB32);
    image.fill(color);
    return Image::fromQImage(image);
}
} // namespace

TEST(NodeSourceChanges, ANewClientImageShowsEvenAtAReusedAddress)
{
    ImageNode node;
    for (QColor color : {QColor(Qt::red), QColor(Qt::blue), QColor(Qt::green)}) {
        node.setSource(solidImage(color)); // the holder dies at once: addresses come round again
        EXPECT_TRUE(pixelIs(paintNodeAtScale(node, 1.0, 4, 4), 2, 2, color, 0));
    }
}

TEST(NodeSourceChanges, AnImageFileThatAppearsLaterIsRead)
{
    QTemporaryDir dir;
    std::string path = dir.filePath("late.png").toStdString();
    ImageNode early(path);
    EXPECT_TRUE(early.isNullImage());

    QImage image(3, 2, QImage::Format_RGB32);
    image.fill(Qt::yellow);
    ASSERT_TRUE(image.save(QString::fromStdString(path)));
    early.setSource(path);
    EXPECT_FALSE(early.isNullImage());
    EXPECT_FALSE(ImageNode(path).isNullImage());
    EXPECT_EQ(early.getImageNaturalSize(), (GLOX::GLPoint<int>(3, 2)));
}

TEST(NodeSourceChanges, ADecorationDirtiesTheCachedLine)
{
    LineNode line({0, 0}, {100, 0});
    line.setCacheType(CacheType::Self);
    line.getImpl()->setOffscreenDirty(false);
    LineEndDecoration head{RectNode(GLOX::GLRect<double>(-5, -5, 10, 10))};
    head.setLineBackoff(15);
    line.setEndDecoration(head);
    EXPECT_TRUE(line.getImpl()->isOffscreenDirty());
}
