#pragma once
// PendingChangeKind: what happened to a node since the views last looked.
// Geometry outranks Repaint; a Removed node that changes again before the
// views look becomes Geometry, since it is back in the picture.

namespace VOR2 {

enum class PendingChangeKind { Repaint = 0, Geometry = 1, Removed = 2 };

char const *toString(PendingChangeKind kind);

} // namespace VOR2
