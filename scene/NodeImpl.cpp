#include "scene/NodeImpl.h"

#include <Behavior>
#include <Diagnostics>
#include <Error>
#include <GlobalViewerInfo>
#include <WeakRef>

#include "effects/NodeEffectsImpl.h"
#include "scene/CountRecord.h"
#include "scene/GraphicsItemCasterTable.h"
#include "scene/NodeCursorTable.h"
#include "scene/NodeEmitterTable.h"
#include "scene/NodeOwnershipGuard.h"
#include "scene/NodeUpdateHandler.h"
#include "scene/ScenePrivate.h"

#include <QGraphicsScene>
#include <QPainter>
#include <cstring>

namespace VOR2 {

namespace {
char const *const NODE_TYPE_NAME = "VOR2.Node";
char const *const INSTANCE_COUNT = "Node:Node instance count";

// Forces Qt to recompute the scene transforms of a moved subtree:
// post-order, a translation there and back on every item. The transform is
// then put back exactly, so that rounding in the round trip cannot drift.
void nudgeSubtree(QGraphicsItem *item)
{
    for (QGraphicsItem *child : item->childItems()) nudgeSubtree(child);
    QTransform const saved = item->transform();
    item->setTransform(QTransform::fromTranslate(10, 10), true);
    item->setTransform(QTransform::fromTranslate(-10, -10), true);
    item->setTransform(saved);
}
} // namespace

namespace {
CountRecord &instanceCount()
{
    static CountRecord record(INSTANCE_COUNT);
    return record;
}
} // namespace

NodeImpl::NodeImpl() { instanceCount().add(1); }

NodeImpl::~NodeImpl() { instanceCount().add(-1); }

// ---------------------------------------------------------------- identity

char const *NodeImpl::getFullyQualifiedTcosTypeName() const { return NODE_TYPE_NAME; }

bool NodeImpl::typeNameMatches(char const *asked, char const *own)
{
    return asked == own || (asked && std::strcmp(asked, own) == 0);
}

bool NodeImpl::isa(char const *typeName) const { return typeNameMatches(typeName, NODE_TYPE_NAME); }

ScenePrivate *NodeImpl::getScenePrivate() const
{
    return ScenePrivate::fromGraphicsScene(getGraphicsScene());
}

NodeImpl *NodeImpl::fromItem(QGraphicsItem const *item)
{
    return GraphicsItemCasterTable::instance().cast(item);
}

// -------------------------------------------------------------------- tree

NodeImpl *NodeImpl::getParentImpl() const { return fromItem(getGraphicsItem()->parentItem()); }

GLOX::GList<NodeImpl *> const NodeImpl::getChildImpls() const
{
    GLOX::GList<NodeImpl *> children;
    QList<QGraphicsItem *> const items = getGraphicsItem()->childItems();
    for (QGraphicsItem *child : items) children.append(fromItem(child));
    return children;
}

bool NodeImpl::isAttached() const
{
    return getGraphicsItem()->scene() != nullptr || getGraphicsItem()->parentItem() != nullptr;
}

void NodeImpl::setParent(NodeImpl *newParent)
{
    if (newParent == this) throwError(VOR2_CannotParentToSelf);
    QGraphicsItem *newParentItem = newParent ? newParent->getGraphicsItem() : nullptr;
    if (newParentItem && getGraphicsItem()->isAncestorOf(newParentItem)) throwError(VOR2_CyclicalHierarchy);

    NodeOwnershipGuard guard(this);
    if (getGraphicsItem()->parentItem() == newParentItem) return;
    if (newParent) layoutContents();

    // Scenes follow the parent; dropping the parent alone keeps the scene.
    ScenePrivate *oldScene = getScenePrivate();
    ScenePrivate *newScene = newParent ? newParent->getScenePrivate() : nullptr;
    if (oldScene != newScene) {
        if (oldScene && newParent) oldScene->removeNodeImpl(this);
        if (newScene) newScene->addNodeImpl(this);
    }

    getGraphicsItem()->setParentItem(newParentItem);
    notifyGeometryChanged(true);
    if (ZOrderingContainer *container = getZContainer()) container->stepToTop(this);
    nudgeSubtree(getGraphicsItem());
}

ZOrderingContainer *NodeImpl::getZContainer() const
{
    if (NodeImpl *parent = getParentImpl()) return parent;
    return getScenePrivate();
}

void NodeImpl::addTag(GLOX::StringID const &tag)
{
    if (!m_tags.contains(tag)) m_tags.append(tag);
}

// ------------------------------------------------------- style and caching

void NodeImpl::setDrawStyle(DrawStyle const &style)
{
    Stroke const &was = m_drawStyle.stroke();
    Stroke const &now = style.stroke();
    bool outlineChanged = (was.style() == NoStroke) != (now.style() == NoStroke) ||
                          was.logicalWidth() != now.logicalWidth() ||
                          was.scaleFunction() != now.scaleFunction() ||
                          m_drawStyle.isAntiAliased() != style.isAntiAliased();
    if (outlineChanged)
        notifyGeometryChanged(false);
    else if (!(m_drawStyle == style))
        notifyRepaint();
    m_drawStyle = style;
    // The report ran with the old style stored; drop what it may have cached.
    if (outlineChanged) invalidateCaches();
}

void NodeImpl::setCacheType(CacheType type)
{
    if (type == m_cacheType) return;
    NodeUpdateHandler *handler = nullptr;
    if (type == CacheType::ChildrenTree) handler = getOwnUpdateHandler();
    for (NodeImpl *child : getChildImpls()) child->applyUpdateHandlerToSubtree(handler);
    m_cacheType = type;
    // The offscreen path needs to know which part of the node is exposed.
    getGraphicsItem()->setFlag(QGraphicsItem::ItemUsesExtendedStyleOption, type != CacheType::None);
}

void NodeImpl::setUpdateHandler(NodeUpdateHandler *handler)
{
    m_updateHandler = handler;
    ScenePrivate *scene = getScenePrivate();
    m_updateHandlerOverridden = handler != nullptr && handler != static_cast<NodeUpdateHandler *>(scene);
}

void NodeImpl::applyUpdateHandlerToSubtree(NodeUpdateHandler *handler)
{
    setUpdateHandler(handler);
    for (NodeImpl *child : getChildImpls()) child->applyUpdateHandlerToSubtree(handler);
}

// -------------------------------------------------------- change reporting

NodeUpdateHandler *NodeImpl::effectiveUpdateHandler() const
{
    if (m_updateHandler) return m_updateHandler;
    return getScenePrivate();
}

void NodeImpl::invalidateCaches()
{
    m_offscreenDirty = true;
    m_viewCache.clear();
    m_itemRectScale = 0.0;
    m_boundsCache = Bounds();
}

void NodeImpl::notifyRepaint()
{
    invalidateCaches();
    if (NodeUpdateHandler *handler = effectiveUpdateHandler()) handler->nodeRepaintRequired(this);
}

void NodeImpl::notifyGeometryChanged(bool deep)
{
    prepareItemGeometryChange();
    invalidateCaches();
    if (NodeUpdateHandler *handler = effectiveUpdateHandler()) handler->nodeGeometryChanged(this);
    layoutContents();
    if (deep)
        for (NodeImpl *child : getChildImpls()) child->notifyGeometryChanged(true);
}

void NodeImpl::notifyMoved()
{
    if (NodeUpdateHandler *handler = effectiveUpdateHandler()) handler->nodeMoved(this);
}

// ------------------------------------------------- behaviour and hit test

void NodeImpl::setBehavior(Behavior *behavior)
{
    if (behavior == m_behavior.get()) return;
    // Taking it from its old node may drop its last count: hold it here.
    GLOX::Holder<Behavior> keep(behavior);
    if (behavior && behavior->m_node && behavior->m_node != this) behavior->m_node->setBehavior(nullptr);
    if (m_behavior) m_behavior->m_node = nullptr;
    m_behavior = behavior;
    if (behavior) behavior->m_node = this;
}

bool NodeImpl::contains(GLOX::GLPoint<double> const &p)
{
    double scale = GlobalViewerInfo::instance()->getViewerScale();
    if (m_customHitTest) return m_customHitTest->contains(Node(this), p, scale);
    return getCachedHitBounds(scale).contains(p);
}

bool NodeImpl::intersects(GLOX::GLRect<double> const &r)
{
    double scale = GlobalViewerInfo::instance()->getViewerScale();
    if (m_customHitTest) return m_customHitTest->intersects(Node(this), r, scale);
    return getCachedHitBounds(scale).boundingRect().intersects(r);
}

bool NodeImpl::intersects(Bounds const &b)
{
    double scale = GlobalViewerInfo::instance()->getViewerScale();
    if (m_customHitTest) return m_customHitTest->intersects(Node(this), b, scale);
    return getCachedHitBounds(scale).intersectsWith(b);
}

// ---------------------------------------------------------------- geometry

Bounds const &NodeImpl::getBounds()
{
    if (!m_boundsCache.boundingRect().isValid()) m_boundsCache = computeBounds();
    return m_boundsCache;
}

NodeViewCache &NodeImpl::currentViewCache()
{
    GlobalViewerInfo const *view = GlobalViewerInfo::instance();
    NodeViewCache *entry = m_viewCache.object(view->getKey());
    if (!entry) {
        entry = new NodeViewCache;
        m_viewCache.insert(view->getKey(), entry, 1);
    } else if (entry->scale != view->getViewerScale()) {
        *entry = NodeViewCache(); // filled at another scale: start over
    }
    entry->scale = view->getViewerScale();
    return *entry;
}

// The computations may run client code that reports a change and so clears
// the view cache: compute first, then look the entry up again to store.
template <typename Compute>
Bounds NodeImpl::cachedInView(Bounds NodeViewCache::*field, Compute compute)
{
    Bounds cached = currentViewCache().*field;
    if (cached.boundingRect().isValid()) return cached;
    Bounds computed = compute();
    currentViewCache().*field = computed;
    return computed;
}

Bounds NodeImpl::getCachedStrokedOutline(double scale)
{
    return cachedInView(&NodeViewCache::strokedOutline, [&] { return computeStrokedOutline(scale); });
}

Bounds NodeImpl::getCachedMaximumBounds(double scale)
{
    return cachedInView(&NodeViewCache::maximumBounds, [&] { return computeMaximumBounds(scale); });
}

Bounds NodeImpl::getCachedHitBounds(double scale)
{
    return cachedInView(&NodeViewCache::hitBounds, [&] {
        if (!m_customHitTest) return computeHitBounds(scale);
        return m_customHitTest->getHitBounds(Node(this), GlobalViewerInfo::instance()->getViewerScale());
    });
}

Bounds NodeImpl::computeStrokedOutline(double) { return getBounds(); }

QRectF NodeImpl::computeStrokedOutlineRect(double scale)
{
    return GLOX::toQRectF(getCachedStrokedOutline(scale).boundingRect());
}

// Effects measure themselves on the outline's shape; without any, its
// rectangle is all that is needed.
Bounds NodeImpl::computeMaximumBounds(double scale)
{
    NodeEffectsImpl *effects = getEffectsImpl();
    if (!effects || !effects->hasEffects()) return Bounds(computeStrokedOutlineRect(scale));
    Bounds const bounds = effects->computeEffectsMaximumBounds(getCachedStrokedOutline(scale), scale);
    return Bounds(bounds.boundingRect());
}

Bounds NodeImpl::computeHitBounds(double scale) { return getCachedStrokedOutline(scale); }

QRectF NodeImpl::computeHitBoundsRect(double scale)
{
    return GLOX::toQRectF(getCachedHitBounds(scale).boundingRect());
}

QRectF NodeImpl::itemBoundingRect()
{
    GlobalViewerInfo const *view = GlobalViewerInfo::instance();
    double const scale = view->getViewerScale();
    void const *const key = view->getKey();
    if (m_itemRectScale == scale && m_itemRectKey == key) return m_itemRect;
    GLOX::GLRect<double> r =
        getCachedMaximumBounds(scale).boundingRect().united(GLOX::toDRect(computeHitBoundsRect(scale)));
    QRectF const rect = r.isValid() ? GLOX::toQRectF(r) : QRectF(-1.0, -1.0, -1.0, -1.0);
    m_itemRectKey = key;
    m_itemRectScale = scale;
    m_itemRect = rect;
    return rect;
}

QPainterPath NodeImpl::itemShape()
{
    return getCachedStrokedOutline(GlobalViewerInfo::instance()->getViewerScale()).asQPainterPath();
}

bool NodeImpl::itemCollidesWithPath(QPainterPath const &path)
{
    if (path.isEmpty()) return false;
    if (!intersects(GLOX::toDRect(path.controlPointRect()))) return false;
    return intersects(Bounds(path));
}

void NodeImpl::paintContents(QPainter *, QStyleOptionGraphicsItem const *, QWidget *) {}

void NodeImpl::paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &)
{
    painter->setRenderHint(QPainter::Antialiasing, m_drawStyle.isAntiAliased());
    painter->setPen(Qt::NoPen);
    painter->setBrush(QBrush(QColor(0, 0, 0, 255), Qt::SolidPattern));
    Bounds outline = getCachedStrokedOutline(scale);
    if (outline.isOnlyRect()) {
        QRectF r = GLOX::toQRectF(outline.boundingRect());
        painter->drawRects(&r, 1);
    } else {
        painter->drawPath(outline.asQPainterPath());
    }
}

// --------------------------------------------------------- Qt item changes

void NodeImpl::holdQtItemUpdates() const
{
    if (ScenePrivate *scene = getScenePrivate()) scene->holdQtItemUpdates();
}

void NodeImpl::holdQtItemUpdates(QGraphicsItem::GraphicsItemChange change) const
{
    switch (change) {
    // Changes after which Qt marks the item dirty. Not ItemVisibleChange:
    // Qt's polish pass sends it to every new item, for nothing; the node's
    // setter holds before a real one. A scene a node joins holds in
    // addNodeImpl; here the scene it leaves does.
    case QGraphicsItem::ItemSceneChange:
    case QGraphicsItem::ItemPositionChange:
    case QGraphicsItem::ItemTransformChange:
    case QGraphicsItem::ItemRotationChange:
    case QGraphicsItem::ItemScaleChange:
    case QGraphicsItem::ItemTransformOriginPointChange:
    case QGraphicsItem::ItemEnabledChange:
    case QGraphicsItem::ItemSelectedChange:
    case QGraphicsItem::ItemParentChange:
    case QGraphicsItem::ItemFlagsChange:
    case QGraphicsItem::ItemZValueChange:
    case QGraphicsItem::ItemOpacityChange: holdQtItemUpdates(); break;
    default: break;
    }
}

void NodeImpl::itemChangeHook(QGraphicsItem::GraphicsItemChange change, QVariant const &value)
{
    switch (change) {
    case QGraphicsItem::ItemParentHasChanged:
        stampSiblingOrder();
        onParentHasChanged();
        break;
    case QGraphicsItem::ItemSceneHasChanged:
        if (!getGraphicsItem()->parentItem()) stampSiblingOrder(); // a new top-level item of its scene
        break;
    case QGraphicsItem::ItemChildAddedChange: {
        NodeImpl const *child = fromItem(value.value<QGraphicsItem *>());
        if (child && child->constraints != 0) m_constrainedChildHint = true;
        // Qt sorts the children again after each one joins, when asked for
        // them: a thousand joining must not cost a thousand sorts.
        layoutItems();
        break;
    }
    case QGraphicsItem::ItemChildRemovedChange:
        // A composite's bounds are its subtree's: a child leaving any node
        // of it changes them, and nobody else reports that.
        if (getOwnUpdateHandler() || m_updateHandlerOverridden) notifyGeometryChanged(false);
        break;
    case QGraphicsItem::ItemSelectedHasChanged: onSelectedHasChanged(value.toBool()); break;
    default: break;
    }
}

void NodeImpl::stampSiblingOrder()
{
    static std::uint64_t next = 0; // host thread only
    m_siblingStamp = ++next;
}

void NodeImpl::onParentHasChanged()
{
    NodeImpl *parent = getParentImpl();
    NodeUpdateHandler *handler = nullptr;
    if (parent) {
        NodeUpdateHandler *own = parent->getOwnUpdateHandler();
        handler = (parent->m_cacheType == CacheType::ChildrenTree && own) ? own : parent->m_updateHandler;
    }
    if (handler != m_updateHandler) applyUpdateHandlerToSubtree(handler);
}

// --------------------------------------------------------------- lifecycle

void NodeImpl::destroy()
{
    // The count is 0 here. Hold one for good, so that a handle made on this
    // node by the hooks below cannot bring the count to 0 a second time.
    ref();
    WeakRef::implDestroyed(this);
    NodeEmitterTable::instance().removeAll(this);
    for (NodeImpl *child : getChildImpls()) child->setParent(nullptr);
    releaseTables();
    delete this;
}

void NodeImpl::releaseForSceneDeath()
{
    WeakRef::implDestroyed(this);
    NodeEmitterTable::instance().removeAll(this);
    releaseTables();
}

void NodeImpl::releaseTables()
{
    releaseEffects();
    m_viewCache.clear();
    clearBehavior();
    NodeCursorTable::instance().remove(this);
}

} // namespace VOR2
