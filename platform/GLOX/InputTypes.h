#pragma once
// GLOX input vocabulary: keys, mouse buttons, keyboard modifiers and flag
// sets of them. The foundation's values are Qt's, so these are Qt's own
// types under the foundation's names.

#include <QFlags>
#include <Qt>

namespace GLOX {

using Key = Qt::Key;
using MouseButton = Qt::MouseButton;
using Modifier = Qt::KeyboardModifier;
template <typename Enum>
using GLFlags = QFlags<Enum>;

} // namespace GLOX
