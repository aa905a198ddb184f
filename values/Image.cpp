#include <Image>

#include <QImage>
#include <atomic>

namespace VOR2 {

class ImagePrivate {
public:
    ImagePrivate() : serial(nextSerial()) {}
    ImagePrivate(ImagePrivate const &other) : image(other.image), serial(nextSerial()) {}

    QImage image;
    unsigned long long const serial;

private:
    static unsigned long long nextSerial()
    {
        static std::atomic<unsigned long long> counter{0};
        return ++counter;
    }
};

Image::Image() : d(new ImagePrivate) {}

Image::Image(Image const &other) : GLOX::ReferencedTemplate<unsigned int>(), d(new ImagePrivate(*other.d)) {}

Image &Image::operator=(Image const &other)
{
    d_func()->image = other.d_func()->image;
    return *this;
}

Image::~Image() = default;

QImage *Image::asQImage() const { return &d_func()->image; }

GLOX::Holder<Image> Image::fromQImage(QImage const *image)
{
    GLOX::Holder<Image> result(new Image);
    if (image) result->d_func()->image = *image;
    return result;
}

unsigned long long Image::serial() const { return d_func()->serial; }

bool Image::isNull() const { return d_func()->image.isNull(); }
int Image::width() const { return d_func()->image.width(); }
int Image::height() const { return d_func()->image.height(); }

} // namespace VOR2
