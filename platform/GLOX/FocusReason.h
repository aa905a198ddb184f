#pragma once
// GLOX::FocusReason: why keyboard focus moved. The foundation's own order;
// GL2Qt translates to Qt::FocusReason. Value 2, "other", is the reason used
// when a caller gives none.

#include <Qt>

namespace GLOX {

enum FocusReason {
    MouseFocusReason = 0,
    TabFocusReason = 1,
    OtherFocusReason = 2,
    BacktabFocusReason = 3,
    ActiveWindowFocusReason = 4,
    PopupFocusReason = 5,
    ShortcutFocusReason = 6,
    MenuBarFocusReason = 7,
};

inline Qt::FocusReason GL2Qt(FocusReason r)
{
    switch (r) {
    case MouseFocusReason: return Qt::MouseFocusReason;
    case TabFocusReason: return Qt::TabFocusReason;
    case BacktabFocusReason: return Qt::BacktabFocusReason;
    case ActiveWindowFocusReason: return Qt::ActiveWindowFocusReason;
    case PopupFocusReason: return Qt::PopupFocusReason;
    case ShortcutFocusReason: return Qt::ShortcutFocusReason;
    case MenuBarFocusReason: return Qt::MenuBarFocusReason;
    case OtherFocusReason: break;
    }
    return Qt::OtherFocusReason;
}

inline FocusReason Qt2GL(Qt::FocusReason r)
{
    switch (r) {
    case Qt::MouseFocusReason: return MouseFocusReason;
    case Qt::TabFocusReason: return TabFocusReason;
    case Qt::BacktabFocusReason: return BacktabFocusReason;
    case Qt::ActiveWindowFocusReason: return ActiveWindowFocusReason;
    case Qt::PopupFocusReason: return PopupFocusReason;
    case Qt::ShortcutFocusReason: return ShortcutFocusReason;
    case Qt::MenuBarFocusReason: return MenuBarFocusReason;
    default: return OtherFocusReason;
    }
}

} // namespace GLOX
