// The marquee's pure parts on their own: the drag threshold that starts
// it, its band, and its selection rule over a plain model.

#include "tools/DragThreshold.h"
#include "tools/MarqueeBand.h"
#include "tools/MarqueeRule.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

using namespace VOR2;

namespace {

using P = GLOX::GLPoint<double>;
using R = GLOX::GLRect<double>;

// Items are ints; the selection is a set, changes are logged.
struct Model {
    std::set<int> selected;
    std::set<int> unselectable;
    std::set<int> refused;
    std::vector<std::pair<int, bool>> changes;

    bool isSelected(int i) const { return selected.count(i) != 0; }
    bool isSelectable(int i) const { return unselectable.count(i) == 0; }
    bool accepts(int i) const { return isSelectable(i) && refused.count(i) == 0; }
    void setSelected(int i, bool on)
    {
        changes.emplace_back(i, on);
        on ? void(selected.insert(i)) : void(selected.erase(i));
    }
    GLOX::GList<int> selection() const { return GLOX::GList<int>(selected.begin(), selected.end()); }
};

} // namespace

TEST(DragThreshold, IsTwoWholePixelsInAnyDirection)
{
    EXPECT_TRUE(hasLeftPress({10, 10}, {12, 10}));
    EXPECT_TRUE(hasLeftPress({10, 10}, {10, 8}));
    EXPECT_TRUE(hasLeftPress({10, 10}, {12, 12}));
    EXPECT_FALSE(hasLeftPress({10, 10}, {11, 11})) << "1.41 truncates to 1";
    EXPECT_FALSE(hasLeftPress({10, 10}, {10, 10}));
    EXPECT_TRUE(hasLeftPress({10.9, 10}, {12.1, 10})) << "positions count in whole pixels: 12 - 10 is 2";
    EXPECT_FALSE(hasLeftPress({10.0, 10}, {11.9, 10})) << "11 - 10 is 1";
    EXPECT_TRUE(hasLeftPress({0, 0}, {NAN, 0})) << "no number is far, not a crash";
}

TEST(MarqueeBand, IsNormalisedWhicheverWayTheBandIsDragged)
{
    EXPECT_EQ(marqueeBand({10, 20}, {40, 60}), R(10, 20, 30, 40));
    EXPECT_EQ(marqueeBand({40, 60}, {10, 20}), R(10, 20, 30, 40)) << "up and left of the anchor";
    EXPECT_EQ(marqueeBand({40, 20}, {10, 60}), R(10, 20, 30, 40));
    EXPECT_EQ(marqueeBand({5, 5}, {5, 5}), R(5, 5, 0, 0)) << "back on the anchor";
}

TEST(MarqueeRule, SelectsWhatTheBandCoversAndDropsWhatItHasLeft)
{
    Model m;
    GLOX::GList<int> const initial;
    applyMarqueeRule<int>(m.selection(), {1, 2}, initial, m);
    EXPECT_EQ(m.selected, (std::set<int>{1, 2}));
    applyMarqueeRule<int>(m.selection(), {2, 3}, initial, m);
    EXPECT_EQ(m.selected, (std::set<int>{2, 3})) << "1 was picked up by this drag and is left";
    m.changes.clear();
    applyMarqueeRule<int>(m.selection(), {2, 3}, initial, m);
    EXPECT_TRUE(m.changes.empty()) << "a band that stands still changes nothing";
}

TEST(MarqueeRule, KeepsTheInitialSelectionUnlessTheToolRefusesAMember)
{
    Model m;
    m.selected = {7, 8};
    GLOX::GList<int> const initial{7, 8};
    applyMarqueeRule<int>(m.selection(), {1}, initial, m);
    EXPECT_EQ(m.selected, (std::set<int>{1, 7, 8}));
    applyMarqueeRule<int>(m.selection(), {}, initial, m);
    EXPECT_EQ(m.selected, (std::set<int>{7, 8}));

    m.refused = {8};
    applyMarqueeRule<int>(m.selection(), {8}, initial, m);
    EXPECT_EQ(m.selected, (std::set<int>{7})) << "refused under the band, though initial";
}

TEST(MarqueeRule, LeavesUnselectableItemsAlone)
{
    Model m;
    m.unselectable = {4};
    applyMarqueeRule<int>(m.selection(), {4, 5}, {}, m);
    EXPECT_EQ(m.selected, (std::set<int>{5}));
    EXPECT_EQ(m.changes, (std::vector<std::pair<int, bool>>{{5, true}}));
}
