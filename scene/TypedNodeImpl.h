#pragma once
// TypedNodeImpl<T>: joins a NodeImpl to one Qt item class T (QGraphicsItem,
// QGraphicsEllipseItem or QGraphicsTextItem). The item answers Qt's
// geometry questions from the node's caches, hands item changes to the
// node's hook, and registers the caster that turns its items back into
// nodes.

#include "scene/GraphicsItemCasterTable.h"
#include "scene/NodeImpl.h"

#include <QGraphicsEllipseItem>
#include <QGraphicsItem>
#include <QGraphicsTextItem>
#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <type_traits>

namespace VOR2 {

template <typename T>
class TypedNodeImpl : public NodeImpl, public T {
public:
    // User types: UserType for a plain item, UserType + T::Type for a Qt
    // item class of its own.
    enum { Type = QGraphicsItem::UserType + (std::is_same<T, QGraphicsItem>::value ? 0 : int(T::Type)) };

    template <typename... Args>
    explicit TypedNodeImpl(Args &&...args) : T(std::forward<Args>(args)...)
    {
        GraphicsItemCasterTable::instance().registerCaster(Type, &TypedNodeImpl::castItem);
    }

    QGraphicsItem const *getGraphicsItem() const override { return this; }
    QGraphicsItem *getGraphicsItem() override { return this; }

    int type() const override { return Type; }
    QRectF boundingRect() const override { return mutableSelf()->itemBoundingRect(); }
    QPainterPath shape() const override { return mutableSelf()->itemShape(); }
    // Through the node's virtual point test, so that subclasses answer Qt.
    bool contains(QPointF const &p) const override
    {
        return static_cast<NodeImpl *>(mutableSelf())->contains(GLOX::toDPoint(p));
    }
    bool collidesWithPath(QPainterPath const &path, Qt::ItemSelectionMode) const override
    {
        return mutableSelf()->itemCollidesWithPath(path);
    }

    // A node whose changes another handler caches is drawn by that handler.
    void paint(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget) override
    {
        if (isUpdateHandlerOverridden()) return;
        paintNode(painter, option, widget);
    }

protected:
    QVariant itemChange(QGraphicsItem::GraphicsItemChange change, QVariant const &value) override
    {
        holdQtItemUpdates(change);
        itemChangeHook(change, value);
        return T::itemChange(change, value);
    }
    void prepareItemGeometryChange() override
    {
        holdQtItemUpdates();
        T::prepareGeometryChange();
    }

private:
    // Qt's geometry queries are const; the node's caches fill on demand.
    TypedNodeImpl *mutableSelf() const { return const_cast<TypedNodeImpl *>(this); }
    static NodeImpl *castItem(QGraphicsItem *item) { return static_cast<TypedNodeImpl *>(item); }
};

} // namespace VOR2
