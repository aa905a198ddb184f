// The image cache: one shared node per key while held, lazy loading of any
// format Qt reads, files that give no image, and client images under keys.

#include "GLOX/ImageCompositor.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

using namespace GLOX::ImageCompositor;

namespace {
std::string writeImage(QTemporaryDir const &dir, char const *name, QColor const &colour)
{
    QImage image(5, 3, QImage::Format_RGB32);
    image.fill(colour);
    EXPECT_TRUE(image.save(dir.filePath(name)));
    return buildKey(dir.filePath(name).toStdString());
}
} // namespace

TEST(ImageCompositor, OneNodePerKeyWhileHeldReadingItsFileOnFirstNeed)
{
    QTemporaryDir dir;
    Manager &manager = Manager::instance();
    std::size_t before = manager.size();
    for (char const *name : {"a.png", "b.jpg"}) {
        std::string key = writeImage(dir, name, Qt::blue);
        auto first = manager.nodeForKey(key);
        EXPECT_EQ(first.get(), manager.nodeForKey(key).get());
        EXPECT_FALSE(first->hasImage()) << "nothing is read before it is needed";
        ASSERT_TRUE(first->doCreateImage()) << name;
        EXPECT_EQ(first->image().size(), QSize(5, 3));
        EXPECT_GT(first->image().pixelColor(2, 1).blue(), 200);
    }
    EXPECT_EQ(manager.size(), before) << "an entry goes with its last holder";
}

TEST(ImageCompositor, MissingAndBrokenFilesGiveNoImage)
{
    QTemporaryDir dir;
    EXPECT_FALSE(Manager::instance().nodeForKey(buildKey(dir.filePath("none.png").toStdString()))->hasSource());
    QFile broken(dir.filePath("broken.png"));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly));
    broken.write("\x89PNG not really");
    broken.close();
    auto bad = Manager::instance().nodeForKey(buildKey(broken.fileName().toStdString()));
    EXPECT_TRUE(bad->hasSource());
    EXPECT_FALSE(bad->doCreateImage());
    EXPECT_FALSE(bad->hasSource() || bad->hasImage());
}

TEST(ImageCompositor, ARegisteredImageReplacesTheEntryButNotEarlierHolders)
{
    Manager &manager = Manager::instance();
    auto first = manager.registerImage("customsrc-test", QImage(2, 2, QImage::Format_RGB32));
    EXPECT_EQ(manager.nodeForKey("customsrc-test").get(), first.get());
    auto second = manager.registerImage("customsrc-test", QImage(3, 3, QImage::Format_RGB32));
    EXPECT_EQ(first->image().width(), 2);
    first.reset(); // must not take the newer entry with it
    EXPECT_EQ(manager.nodeForKey("customsrc-test").get(), second.get());
}
