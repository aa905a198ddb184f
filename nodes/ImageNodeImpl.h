#pragma once
// ImageNodeImpl: the element of an ImageNode. It holds no pixels of its
// own: a source text and the image compositor's shared node for it. The
// image is shown in the rectangle from (0, 0) to `size`, scaled to fit.

#include "GLOX/GLPoint.h"
#include "GLOX/Holder.h"
#include "GLOX/ImageCompositor.h"
#include "scene/TypedNodeImpl.h"

#include <string>

namespace VOR2 {

class Image;

class ImageNodeImpl : public TypedNodeImpl<QGraphicsItem> {
public:
    static char const *const TYPE_NAME;

    // A node with no source, a null image and a zero size.
    ImageNodeImpl() = default;

    char const *getFullyQualifiedTcosTypeName() const override { return TYPE_NAME; }
    bool isa(char const *typeName) const override;

    std::string const &source() const { return m_source; }
    // Takes the compositor's image for `source` and the image's natural
    // size. The same source again does nothing, unless it is not empty and
    // gave no image.
    void setSource(std::string const &source);
    // Registers a copy of the client's pixels under a key of its own and
    // takes their natural size. A null holder is ignored; the same image
    // again does nothing while its pixels are shown.
    void setSource(GLOX::Holder<Image> const &image);

    // The image cache's shared node behind this node; null before a source.
    GLOX::Holder<GLOX::ImageCompositor::Node> const &imageNode() const { return m_imageNode; }

    // No compositor node, or one with neither an image nor a file to
    // make it from.
    bool isNullImage() const;

    GLOX::GLPoint<double> const &size() const { return m_size; }
    // Reports a geometry change when width or height really changes.
    void setSize(double width, double height);
    // The image's pixel size, making the image if need be; (0, 0) if null.
    GLOX::GLPoint<int> naturalSize() const;
    void setSizeToNaturalSize();

    // The normalised rectangle of (0, 0) and the size; a zero rectangle
    // for a null image.
    Bounds computeBounds() override;
    void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override;
    // The effect's renderImage method, else its generic one.
    void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                      QWidget *widget) override;
    // Opaque black wherever the image is opaque, keeping its alpha: the
    // image at its natural size at (0, 0), then black composed in.
    void paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &rect) override;

private:
    // Shows the compositor node `node` for `source`, sized to its image.
    void showImage(std::string const &source, GLOX::Holder<GLOX::ImageCompositor::Node> node);

    GLOX::GLPoint<double> m_size;
    std::string m_source;
    GLOX::Holder<GLOX::ImageCompositor::Node> m_imageNode;
    unsigned long long m_clientImageSerial = 0; // of the client Image shown
};

} // namespace VOR2
