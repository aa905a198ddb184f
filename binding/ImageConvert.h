#pragma once
// Images at the script border: the pixels of a rendered scene or node as a
// height x width x 4 uint8 array, red, green, blue and alpha pages, each 0
// to 255, alpha not premultiplied. Octave shows the colour pages with
// imshow(img(:, :, 1:3)) and the coverage with imshow(img(:, :, 4)). A null
// image gives an empty (0 x 0 x 4) array.

#include "Image"
#include "binding/ScriptValue.h"

#include "GLOX/Holder.h"

namespace VOR2::script {

Value fromImage(GLOX::Holder<Image> const &image);

} // namespace VOR2::script
