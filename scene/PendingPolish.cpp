#include "scene/PendingPolish.h"

#include <QGraphicsScene>
#include <QMetaMethod>

namespace VOR2 {

void flushPendingPolish(QGraphicsScene *scene)
{
    // The pass is a private slot of QGraphicsScene; looked up once.
    static QMetaMethod const polish = [] {
        int index = QGraphicsScene::staticMetaObject.indexOfMethod("_q_polishItems()");
        return index < 0 ? QMetaMethod() : QGraphicsScene::staticMetaObject.method(index);
    }();
    if (polish.isValid()) polish.invoke(scene, Qt::DirectConnection);
}

} // namespace VOR2
