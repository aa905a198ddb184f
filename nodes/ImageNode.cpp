#include <ImageNode>

#include "nodes/ImageNodeImpl.h"

namespace VOR2 {

ImageNode::ImageNode() : Node(new ImageNodeImpl) {}

ImageNode::ImageNode(std::string const &source) : ImageNode() { setSource(source); }

ImageNode::ImageNode(GLOX::Holder<Image> image) : ImageNode() { setSource(std::move(image)); }

ImageNode::ImageNode(NodeImpl *impl)
    : Node(impl && impl->isa(ImageNodeImpl::TYPE_NAME) ? impl : nullptr)
{
}

char const *ImageNode::staticGetFullyQualifiedTcosTypeName() { return ImageNodeImpl::TYPE_NAME; }

std::string ImageNode::getSource() const { return getValidImageNodeImpl()->source(); }

void ImageNode::setSource(std::string const &source) const { getValidImageNodeImpl()->setSource(source); }

void ImageNode::setSource(GLOX::Holder<Image> image) const { getValidImageNodeImpl()->setSource(image); }

bool ImageNode::isNullImage() const { return getValidImageNodeImpl()->isNullImage(); }

GLOX::GLPoint<double> ImageNode::getSize() const { return getValidImageNodeImpl()->size(); }

void ImageNode::setSize(GLOX::GLPoint<double> const &size) const { setSize(size.x, size.y); }

void ImageNode::setSize(double width, double height) const { getValidImageNodeImpl()->setSize(width, height); }

GLOX::GLPoint<int> ImageNode::getImageNaturalSize() const { return getValidImageNodeImpl()->naturalSize(); }

void ImageNode::setSizeToImageNaturalSize() const { getValidImageNodeImpl()->setSizeToNaturalSize(); }

ImageNodeImpl *ImageNode::getImageNodeImpl() const { return static_cast<ImageNodeImpl *>(getImpl()); }

ImageNodeImpl *ImageNode::getValidImageNodeImpl() const { return static_cast<ImageNodeImpl *>(getValidImpl()); }

} // namespace VOR2
