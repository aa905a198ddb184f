#include "scene/LayoutContainer.h"

#include "scene/LayoutArithmetic.h"

namespace VOR2 {

void LayoutItem::layOut(GLOX::GLRect<double> const &rect, GLOX::GLRect<double> const &lastRect)
{
    GLOX::GLRect<double> const bounds = getLayoutBounds();
    if (isAllZero(bounds)) return;
    GLOX::GLRect<double> const placed = anchoredItemRect(constraints, rect, lastRect, bounds);
    setLayoutPosition(GLOX::GLPoint<double>(placed.x, placed.y));
    setLayoutSize(placed.width, placed.height);
}

void LayoutContainer::layoutContents()
{
    if (m_layingOut || !hasLayoutItems()) return;
    layoutItems();
}

void LayoutContainer::layoutItems()
{
    if (m_layingOut) return;
    GLOX::GLRect<double> const rect = getLayoutRect();
    if (isAllZero(rect)) return;
    if (!mayHaveConstrainedItems()) {
        lastRect = rect;
        return;
    }
    struct Running {
        bool &flag;
        explicit Running(bool &f) : flag(f) { flag = true; }
        ~Running() { flag = false; }
    };
    bool found = false;
    {
        Running running(m_layingOut);
        for (LayoutItem *item : getLayoutItems()) {
            if (!item || item->constraints == 0) continue;
            found = true;
            item->layOut(rect, lastRect);
        }
    }
    if (!found) {
        noConstrainedItemsFound();
        lastRect = rect;
        return;
    }
    GLOX::GLRect<double> const after = getLayoutRect();
    lastRect = isAllZero(after) ? rect : after;
}

} // namespace VOR2
