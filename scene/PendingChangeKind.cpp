#include "scene/PendingChangeKind.h"

namespace VOR2 {

char const *toString(PendingChangeKind kind)
{
    switch (kind) {
    case PendingChangeKind::Repaint: return "Repaint";
    case PendingChangeKind::Geometry: return "Geometry";
    case PendingChangeKind::Removed: return "Removed";
    }
    return "?";
}

} // namespace VOR2
