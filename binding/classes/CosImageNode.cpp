// VOR2.ImageNode: an image file shown at a chosen size.
#include "ImageNode"
#include "binding/ClassBuilder.h"
#include "binding/ObjectConvert.h"
#include "binding/Package.h"

namespace VOR2::script {

namespace {

ClassInfo cosImageNode()
{
    ClassBuilder c("VOR2.ImageNode", ClassKind::CopiedHandle, "VOR2.Node",
                   "An image, read from a file, shown at a chosen size from the node's origin. VOR2.ImageNode() "
                   "or VOR2.ImageNode(source) with a file name.");
    c.constructor("", 0, [](Self &, Args const &) { return fromNode(ImageNode()); });
    c.constructor("source", 1, [](Self &, Args const &a) {
        std::string source = toString(a[0]);
        return fromNode(ImageNode(source));
    });
    c.property(
        "Source", "char",
        "The image's file name; setting it loads the image and sets Size to its natural size. A file that "
        "cannot be read gives a null image.",
        [](Self &s) { return Value::string(s.node<ImageNode>().getSource()); },
        [](Self &s, Value const &v) {
            std::string source = toString(v);
            s.node<ImageNode>().setSource(source);
        });
    c.property("IsNullImage", "logical scalar", "True when there is no image to show.",
               [](Self &s) { return Value::logical(s.node<ImageNode>().isNullImage()); });
    c.property(
        "Size", "double vector", "The size [width height] the image is shown at, in scene units.",
        [](Self &s) { return fromPoint(s.node<ImageNode>().getSize()); },
        [](Self &s, Value const &v) {
            auto size = toSize(v);
            s.node<ImageNode>().setSize(size.width, size.height);
        });
    c.property("ImageNaturalSize", "double vector", "The image's own size [width height] in pixels; [0 0] for none.",
               [](Self &s) {
                   auto size = s.node<ImageNode>().getImageNaturalSize();
                   return Value::row({double(size.x), double(size.y)});
               });
    c.method("setSizeToImageNaturalSize", "Sets Size to the image's natural size.")
        .overload("", 0, [](Self &s, Args const &) {
            s.node<ImageNode>().setSizeToImageNaturalSize();
            return Value();
        });
    return c.build();
}

ClassRegistration registration("VOR2.ImageNode", &cosImageNode);

} // namespace

} // namespace VOR2::script
