#pragma once
// Qt keeps every item added to a QGraphicsScene in a list of items to
// polish until the next event-loop turn, and taking an item out of the
// scene searches that list from the front. Taking out many items before a
// turn is therefore quadratic. flushPendingPolish runs the turn's polish
// pass at once: it polishes what waits and empties the list, so the
// removals that follow find it empty. Cheap when nothing waits. Host thread.

class QGraphicsScene;

namespace VOR2 {

void flushPendingPolish(QGraphicsScene *scene);

} // namespace VOR2
