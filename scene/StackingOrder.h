#pragma once
// StackingOrder: which of two items of one scene Qt draws on top, without
// asking the scene to sort all its items. Siblings stack by the
// behind-parent flag, then z value, then the order in which they joined
// their parent (or the scene, for top-level items): the later on top. A
// child is above its parent unless it, or its ancestor below the parent,
// stacks behind. This is the order QGraphicsScene::items answers in.
//
// The joining order is the node's sibling stamp (NodeImpl), taken whenever
// its item gets a new parent or joins a scene as a top-level item. Host
// thread.

#include <QList>

class QGraphicsItem;

namespace VOR2 {

// True when `a` is drawn above `b`. Both are items of nodes of one scene.
bool isStackedAbove(QGraphicsItem const *a, QGraphicsItem const *b);

// Topmost first, as QGraphicsScene::items answers.
void sortTopmostFirst(QList<QGraphicsItem *> &items);

} // namespace VOR2
