#pragma once
// NodeImpl: the element behind a Node handle. The tree itself lives in the
// Qt item that TypedNodeImpl<T> joins to it; NodeImpl keeps the tags, the
// draw style, the behaviour, the caches of computed bounds, and the way the
// node reports its changes. Everything here runs on the scene's thread.
//
// Change reporting: a setter compares, stores and calls one of
//   notifyRepaint()                 the node looks different,
//   notifyGeometryChanged(deep)     its outline changed (deep: children too),
//   notifyMoved()                   its position changed,
// which drop the caches they must and report to the update handler: the
// one set on the node, else its scene's, else none.

#include <Bounds>
#include <CacheType>
#include <DrawStyle>
#include <LayoutConstraints>
#include <Node>

#include <cstdint>

#include "GLOX/Containers.h"
#include "GLOX/Holder.h"
#include "GLOX/ReferencedTemplate.h"
#include "GLOX/StringID.h"
#include "scene/IndexExtent.h"
#include "scene/IndexSlot.h"
#include "scene/LayoutContainer.h"
#include "scene/LayoutItem.h"
#include "scene/NodeViewCache.h"
#include "scene/ZOrderingContainer.h"

#include <QCache>
#include <QGraphicsItem>

class QPainter;
class QStyleOptionGraphicsItem;
class QWidget;

namespace VOR2 {

class Effect;
class FocusEvent;
class KeyEvent;
class NodeEffectsImpl;
class MouseEvent;
class NodeUpdateHandler;
class ScenePrivate;
struct OffscreenLayout;

// The count of a node: plain, not atomic. destroy() runs when it falls to 0.
class ReferencedNodeImpl : public GLOX::ReferencedTemplate<unsigned int> {
};

class NodeImpl : public ReferencedNodeImpl,
                 public ZOrderingContainer,
                 public LayoutContainer,
                 public LayoutItem {
public:
    NodeImpl();
    ~NodeImpl() override;
    NodeImpl(NodeImpl const &) = delete;
    NodeImpl &operator=(NodeImpl const &) = delete;

    // --- Identity -------------------------------------------------------
    // The handler this node offers to its subtree (composites), or null.
    virtual NodeUpdateHandler *getOwnUpdateHandler() { return nullptr; }
    virtual char const *getFullyQualifiedTcosTypeName() const;
    // True for this node's own type name and each of its bases', compared
    // by pointer and then as text.
    virtual bool isa(char const *typeName) const;
    static bool typeNameMatches(char const *asked, char const *own);

    virtual QGraphicsItem const *getGraphicsItem() const = 0;
    virtual QGraphicsItem *getGraphicsItem() = 0;
    QGraphicsScene *getGraphicsScene() const { return getGraphicsItem()->scene(); }
    ScenePrivate *getScenePrivate() const;
    // The element behind a Qt item of a scene; null for null.
    static NodeImpl *fromItem(QGraphicsItem const *item);

    // --- Input ----------------------------------------------------------
    // Each sends the event on the node's signal of that name, if anybody
    // ever connected to it; otherwise nothing happens. Host thread.
    virtual void emitMousePressEvent(MouseEvent &event);
    virtual void emitMouseMoveEvent(MouseEvent &event);
    virtual void emitMouseReleaseEvent(MouseEvent &event);
    virtual void emitHoverEnterEvent(MouseEvent &event);
    virtual void emitHoverExitEvent(MouseEvent &event);
    virtual void emitHoverMoveEvent(MouseEvent &event);
    virtual void emitKeyPressEvent(KeyEvent &event);
    virtual void emitKeyReleaseEvent(KeyEvent &event);
    virtual void emitFocusOutEvent(FocusEvent &event);
    virtual void emitFocusInEvent(FocusEvent &event);

    // --- Tree -----------------------------------------------------------
    NodeImpl *getParentImpl() const;
    // Const, so that a range-for over the answer does not copy an empty
    // list to write to it (a heap block per node in every walk).
    GLOX::GList<NodeImpl *> const getChildImpls() const;
    bool isAttached() const;
    // Reparents with ownership kept (see Node::setParent); null detaches
    // from the parent but not from the scene.
    void setParent(NodeImpl *newParent);
    // Where this node is stacked: its parent, else its scene, else null.
    ZOrderingContainer *getZContainer() const;
    GLOX::GList<NodeImpl *> getStackedNodes() const override { return getChildImpls(); }

    // --- Tags -----------------------------------------------------------
    GLOX::GList<GLOX::StringID> const &getTags() const { return m_tags; }
    bool hasTag(GLOX::StringID const &tag) const { return m_tags.contains(tag); }
    void addTag(GLOX::StringID const &tag);
    void removeTag(GLOX::StringID const &tag) { m_tags.removeAll(tag); }
    void removeAllTags() { m_tags.clear(); }

    // --- Style and caching ----------------------------------------------
    DrawStyle const &getDrawStyle() const { return m_drawStyle; }
    void setDrawStyle(DrawStyle const &style);
    CacheType getCacheType() const { return m_cacheType; }
    void setCacheType(CacheType type);
    NodeUpdateHandler *getUpdateHandler() const { return m_updateHandler; }
    bool isUpdateHandlerOverridden() const { return m_updateHandlerOverridden; }
    void setUpdateHandler(NodeUpdateHandler *handler);
    // Stores `handler` on this node and every descendant.
    void applyUpdateHandlerToSubtree(NodeUpdateHandler *handler);
    bool isOffscreenDirty() const { return m_offscreenDirty; }
    void setOffscreenDirty(bool dirty) { m_offscreenDirty = dirty; }

    // When the node's item last joined its parent, or its scene as a
    // top-level item: among siblings of equal z, the later is on top.
    std::uint64_t siblingStamp() const { return m_siblingStamp; }

    // How many views this node keeps computed bounds or images for.
    int viewCacheCount() const { return m_viewCache.count(); }
    // Drops what this node keeps for the view `key`.
    void forgetView(void const *key)
    {
        m_viewCache.remove(key);
        if (key == m_itemRectKey) m_itemRectScale = 0.0;
    }

    // --- Change reporting -----------------------------------------------
    void invalidateCaches();
    void notifyRepaint();
    void notifyGeometryChanged(bool deep);
    void notifyMoved();

    // --- Behaviour and hit test -----------------------------------------
    Behavior *getBehavior() const { return m_behavior.get(); }
    void setBehavior(Behavior *behavior);
    void clearBehavior() { setBehavior(nullptr); }
    void setCustomHitTestFunctor(Node::CustomHitTestFunctor *functor) { m_customHitTest = functor; }
    Node::CustomHitTestFunctor *getCustomHitTestFunctor() const { return m_customHitTest.get(); }

    // --- Geometry -------------------------------------------------------
    // The bare geometry, cached until the next change report.
    Bounds const &getBounds();
    // Per-view caches, keyed by GlobalViewerInfo's current view.
    // Returned by value: Bounds copies share their shape.
    Bounds getCachedStrokedOutline(double scale);
    Bounds getCachedMaximumBounds(double scale);
    Bounds getCachedHitBounds(double scale);

    virtual Bounds computeBounds() = 0;
    virtual Bounds computeStrokedOutline(double scale);
    // The bounding rectangle of computeStrokedOutline(scale). Kinds whose
    // outline is a costly union of regions answer it from the parts' own
    // rectangles, so that drawing and culling at a new scale cost no union.
    virtual QRectF computeStrokedOutlineRect(double scale);
    // The rectangle that holds the stroked outline and every effect.
    virtual Bounds computeMaximumBounds(double scale);
    virtual Bounds computeHitBounds(double scale);
    // The bounding rectangle of the hit bounds at `scale`; as
    // computeStrokedOutlineRect, for kinds whose hit area is a costly union.
    virtual QRectF computeHitBoundsRect(double scale);
    // Where the node reaches at every view scale (see IndexExtent), for a
    // spatial index that is not rebuilt on zoom. Computed on each call from
    // the geometry and the draw style, without path work beyond the cached
    // bounds; the default is the bounds' rectangle with no reach, right for
    // every kind whose outline and hit area are its bounds. A custom hit
    // test functor whose hit area passes the node's own outline is not
    // covered: its area at a scale is not known before it is asked.
    virtual IndexExtent getIndexExtent();
    virtual bool contains(GLOX::GLPoint<double> const &p);
    virtual bool intersects(GLOX::GLRect<double> const &r);
    virtual bool intersects(Bounds const &b);

    // --- Painting -------------------------------------------------------
    // Paints the node itself, not its children, in its own coordinates.
    virtual void paintContents(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget);
    // True when paintContents sets the painter's pen, brush and
    // antialiasing itself before it draws and changes no other painter
    // state, so that what one such node leaves behind cannot show in the
    // next. They are drawn one after another without the painter being
    // saved and restored around each. False unless a node class says so.
    virtual bool paintIgnoresPainterState() const { return false; }
    // Paints the node for Qt: directly, or through its offscreen image when
    // it caches itself. Children are Qt's to paint.
    void paintNode(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget);
    // Paints the children, and theirs, in stacking order, with `painter` in
    // this node's coordinates. For nodes that draw their subtree themselves.
    virtual void paintChildren(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget);
    // An image of the node at `scale`, with its subtree for ChildrenTree;
    // one device pixel of border on every side.
    QImage renderToImage(CacheType type, double scale);
    // Paints a solid opaque black mask of the node at `scale`, for effects.
    // The default fills the cached stroked outline.
    virtual void paintMask(QPainter *painter, double scale, GLOX::GLRect<double> const &rect);

    // --- Effects --------------------------------------------------------
    // The node's effect list, or null when it never asked for one.
    NodeEffectsImpl *getEffectsImpl() const { return m_effects; }
    // The node's effect list, made on first demand.
    NodeEffectsImpl *obtainEffectsImpl();
    // Tells the list, if any, that the node is gone, and lets it go.
    void releaseEffects();
    // Paints `effect` on this node: each kind calls the effect's render
    // method for its kind and falls back to renderEffectGeneric when that
    // answers false. The default, for kinds the effect cannot tell apart,
    // is renderEffectGeneric. Called by the effect list while painting.
    virtual void renderEffect(Effect *effect, QPainter *painter, QStyleOptionGraphicsItem const *option,
                              QWidget *widget);

    // --- Layout ---------------------------------------------------------
    // As a container: the children, and the rectangle of the bounds. As an
    // item: the rectangle of the bounds in the parent's coordinates (its
    // own without a parent); sizing replaces the transform by the pure
    // scale that makes the bounds that size and reports a geometry change;
    // moving shifts the position by the distance from the top left of the
    // layout bounds to the point. Deliberate: sizing discards any rotation
    // or other transform of the node, so a node under layout carries none,
    // and its geometry should start at its origin (it is placed, then
    // scaled about the origin). An axis on which the bounds have no extent
    // keeps the scale 1: no scale can stretch nothing, and the quotient
    // (an infinity or a NaN) would spoil the node's bounds and the scene's
    // index.
    QList<LayoutItem *> getLayoutItems() override;
    GLOX::GLRect<double> getLayoutRect() override;
    GLOX::GLRect<double> getLayoutBounds() override;
    void setLayoutSize(double width, double height) override;
    void setLayoutPosition(GLOX::GLPoint<double> const &p) override;
    // Sets or clears one bit of the constraint mask; values outside the
    // enumeration are ignored. Reports nothing: the flag takes effect at
    // the parent's next layout.
    void setLayoutConstraintFlag(LayoutConstraints constraint, bool on);
    bool getLayoutConstraintFlag(LayoutConstraints constraint) const;

    // --- Qt item changes ------------------------------------------------
    // Call before changing the Qt item in a way Qt marks dirty (position,
    // transform, bounding rectangle): holds Qt's item updates in the
    // node's scene (ScenePrivate::holdQtItemUpdates). The changes Qt
    // announces through itemChange before marking the item are held so on
    // their own.
    void holdQtItemUpdates() const;
    void holdQtItemUpdates(QGraphicsItem::GraphicsItemChange change) const;
    // Called from QGraphicsItem::itemChange before Qt's own handling; it
    // cannot alter the change. The default handles the three changes a
    // node reacts to and ignores the rest.
    virtual void itemChangeHook(QGraphicsItem::GraphicsItemChange change, QVariant const &value);

protected:
    // Lets Qt know the bounding rectangle is about to change.
    virtual void prepareItemGeometryChange() = 0;
    // The Qt item's bounding rectangle: the union of maximum and hit bounds
    // at the viewer scale, or four values of -1 when there are none.
    QRectF itemBoundingRect();
    QPainterPath itemShape();
    bool itemCollidesWithPath(QPainterPath const &path);
    void destroy() override;
    // Children without constraints cost a layout no walk of them; asking
    // whether there are children at all costs Qt a sort of them.
    bool hasLayoutItems() override;
    bool mayHaveConstrainedItems() override { return m_constrainedChildHint; }
    void noConstrainedItemsFound() override { m_constrainedChildHint = false; }

public:
    // Where this node stands in a batch of pending changes: the batch's
    // number (0 for none) and its place there. Kept by PendingChanges.
    struct PendingSlot {
        std::uint32_t batch = 0;
        std::uint32_t index = 0;
    };
    PendingSlot &pendingSlot() const { return m_pendingSlot; }
    // Where this node stands in its scene's spatial index. Kept by
    // SpatialIndex.
    IndexSlot &indexSlot() const { return m_indexSlot; }
    // Whether a NodeOwnershipGuard is open on this node. Kept by the guard.
    bool &ownershipGuarded() { return m_ownershipGuarded; }

    // For a scene that dies with this node in it: cuts every link of the
    // node that outlives its memory (weak references, signals, behaviour,
    // cursor, view caches), as destroy() does, but leaves the children and
    // the deletion to the scene, which deletes its items in one sweep. Only
    // for a node nobody holds. Host thread.
    void releaseForSceneDeath();
    // How many counted handles on its child `child` this node holds itself
    // (a line's end decorations): references that go when this node goes,
    // so a dying scene need not keep the child for them.
    virtual int handlesHeldOnChild(NodeImpl const *) const { return 0; }

private:
    // The links destroy() and releaseForSceneDeath() both cut last.
    void releaseTables();
    void onParentHasChanged();
    // Shows or hides the scene's selection effect on this node.
    void onSelectedHasChanged(bool selected);
    void stampSiblingOrder();
    bool usesOffscreenImage() const;
    // The content, then the effects on top.
    void paintContentsAndEffects(QPainter *painter, QStyleOptionGraphicsItem const *option, QWidget *widget);
    // Paints the node into a new offscreen image for the current view.
    void drawOffscreenImage(OffscreenLayout const &layout, double lod, QRectF const &bounds,
                            QStyleOptionGraphicsItem const *option);
    NodeViewCache &currentViewCache();
    template <typename Compute>
    Bounds cachedInView(Bounds NodeViewCache::*field, Compute compute);
    NodeUpdateHandler *effectiveUpdateHandler() const;

    GLOX::GList<GLOX::StringID> m_tags;
    Bounds m_boundsCache;
    bool m_offscreenDirty = true;
    bool m_ownershipGuarded = false;
    // Set when a child may carry layout constraints: one got a constraint
    // or joined with one. Cleared by a layout that finds none.
    bool m_constrainedChildHint = false;
    mutable PendingSlot m_pendingSlot;
    mutable IndexSlot m_indexSlot;
    DrawStyle m_drawStyle;
    CacheType m_cacheType = CacheType::None;
    GLOX::Holder<Behavior> m_behavior;
    QCache<void const *, NodeViewCache> m_viewCache{5000};
    // The Qt bounding rectangle last answered and the view and scale it was
    // answered for (scale 0: none). Qt asks for it on every walk of the
    // scene's items, so it skips the per-view cache; emptied with it.
    void const *m_itemRectKey = nullptr;
    double m_itemRectScale = 0.0;
    QRectF m_itemRect;
    std::uint64_t m_siblingStamp = 0;
    bool m_updateHandlerOverridden = false;
    NodeUpdateHandler *m_updateHandler = nullptr;
    // The effect list, counted; null until first asked for.
    NodeEffectsImpl *m_effects = nullptr;
    GLOX::Holder<Node::CustomHitTestFunctor> m_customHitTest;
};

} // namespace VOR2
