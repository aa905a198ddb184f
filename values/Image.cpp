#include <Image>

#include <QImage>

namespace VOR2 {

class ImagePrivate {
public:
    QImage image;
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

bool Image::isNull() const { return d_func()->image.isNull(); }
int Image::width() const { return d_func()->image.width(); }
int Image::height() const { return d_func()->image.height(); }

} // namespace VOR2
