#pragma once
// ScenePrivate: the work behind a Scene. It is the QGraphicsScene that
// holds the nodes' items, the z container of the top-level nodes, and the
// default update handler of its nodes.
//
// The path of a change: a node reports to its handler (by default this
// scene), which records the node in pendingChanges as Repaint, Geometry or
// Removed. The first record of a batch queues one delivery; when the host
// loop runs it, the batch becomes the changes being delivered, Qt's
// "_q_emitUpdated" emits changed(QList<QRectF>) at once, and every view of
// the scene reads the same batch in its handler (changesBeingDelivered);
// then the batch is dropped. So each canvas showing the scene sees every
// change, whichever draws first. Removed entries hold the raw pointer of a
// node that may be dead by then: read them by key only.
//
// Input: every event the scene receives first makes the event's canvas the
// current view (node caches and hit tests then answer for that view);
// moves update the hovered node and leaving the canvas ends hover; then
// the event goes to the tool stack, and only there. Nodes see input when a
// tool passes it on (the pass* operations). Host thread only.

#include <Background>
#include <DrawStyle>
#include <Effect>
#include <EventHandler>
#include <IToolStack>
#include <Node>
#include <ToolFactory>
#include <ToolStack>
#include <WeakRef>

#include "GLOX/Color.h"
#include "GLOX/Containers.h"
#include "GLOX/Cursor.h"
#include "GLOX/GLRect.h"
#include "GLOX/Holder.h"
#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"
#include "scene/NodeUpdateHandler.h"
#include "scene/PendingChanges.h"
#include "scene/SpatialIndex.h"
#include "scene/ZOrderingContainer.h"

#include <QGraphicsScene>
#include <memory>
#include <vector>

namespace VOR2 {

class NodeImpl;
class Scene;

class ScenePrivate : public QGraphicsScene,
                     public IToolStack,
                     public GLUV::Listener,
                     public EventHandler,
                     public ZOrderingContainer,
                     public NodeUpdateHandler {
public:
    explicit ScenePrivate(Scene *scene);
    ~ScenePrivate() override;

    // Node items live only in scenes of this class.
    static ScenePrivate *fromGraphicsScene(QGraphicsScene *s) { return static_cast<ScenePrivate *>(s); }
    Scene *getScene() const { return m_scene; }

    // --- Nodes ----------------------------------------------------------
    // The work of Scene::addNode and Scene::removeNode, on a valid node.
    void addNodeImpl(NodeImpl *node);
    Node removeNodeImpl(NodeImpl *node);
    bool containsNode(NodeImpl const *node) const;
    GLOX::GList<NodeImpl *> getTopLevelNodeImpls() const;
    GLOX::GList<NodeImpl *> getStackedNodes() const override { return getTopLevelNodeImpls(); }
    // Kept here, not in the shared table: every added node asks for it.
    ZRange &zRange() const override { return m_zRange; }

    // --- Changes --------------------------------------------------------
    void nodeRepaintRequired(NodeImpl *node) override;
    void nodeGeometryChanged(NodeImpl *node) override;
    void nodeMoved(NodeImpl *node) override;
    PendingChanges const &getPendingChanges() const { return m_pendingChanges; }
    std::optional<PendingChangeKind> pendingKindOf(NodeImpl const *node) const { return m_pendingChanges.kindOf(node); }
    // Hands the pending changes to the caller and starts a new batch (for
    // tests and tools that read changes outside the views).
    PendingChanges takePendingChanges();
    // While changed() is being emitted for a delivered batch: that batch,
    // for every view to read. Empty at any other time, and in emissions of
    // changed() that Qt makes on its own.
    PendingChanges const &changesBeingDelivered() const { return m_delivered; }
    bool isDeliveringChanges() const { return m_delivering; }
    // Queues one delivery unless a batch is already open.
    void scheduleViewUpdate();
    // Call before anything that may make Qt mark an item of this scene
    // dirty. No QGraphicsView shows this scene: views draw from the
    // delivered changes, so Qt's own processing of dirty items (a pass over
    // every top-level item each turn) is wasted. This puts Qt in its
    // "everything changed" state until its next emission of changed(), in
    // which dirty marking returns at once and queues no such pass.
    void holdQtItemUpdates();
    // For handlers of changed(), valid only there: true when the emission's
    // rectangles only say "everything" because the scene held Qt's item
    // updates; what really changed is in the scene's changes.
    bool announcesHeldQtUpdates() const { return m_announcingHeldQtUpdates; }
    void invalidateSceneBounds();

    // --- Queries ----------------------------------------------------------
    // What QGraphicsScene::items(p) and items(r, mode) answer (topmost
    // first), found through the spatial index, so only nodes near the area
    // are looked at. Bounds are those of the current view (GlobalViewerInfo).
    QList<QGraphicsItem *> itemsAt(QPointF const &p) const;
    QList<QGraphicsItem *> itemsIn(QRectF const &r, Qt::ItemSelectionMode mode) const;
    // The topmost of itemsAt, or null.
    QGraphicsItem *topmostItemAt(QPointF const &p) const;
    // What QGraphicsScene::render draws, the items found through the index.
    void renderRegion(QPainter *painter, QRectF const &target, QRectF const &source,
                      Qt::AspectRatioMode aspectRatioMode);
    // Tests compare the index against Qt walking every item: true makes the
    // queries above and renderRegion walk.
    void setLinearQueries(bool linear) { m_linearQueries = linear; }
    SpatialIndex &spatialIndex() { return *m_index; }

    // --- Bounds and rendering ---------------------------------------------
    // Union of the visible nodes' bare bounds in scene coordinates: no stroke
    // width, no effects. Cached until the next geometry change.
    GLOX::GLRect<double> getNodesBounds();
    // A rectangle holding the visible items as drawn at the current view's
    // scale, strokes and effects included: from the spatial index, so it
    // may exceed their union by each node's reach. Empty for a scene with
    // nothing shown.
    GLOX::GLRect<double> getVisibleItemsRect();
    // Whether the scene holds any node, shown or not.
    bool hasNodes() const { return m_index->size() > 0; }
    bool usingDebugRepaintRegion() const { return m_debugRepaintRegion; }
    void setDebugRepaintRegion(bool on) { m_debugRepaintRegion = on; }
    GLOX::Color const &debugRepaintRegionColor() const { return m_debugRepaintRegionColor; }
    void setDebugRepaintRegionColor(GLOX::Color const &color) { m_debugRepaintRegionColor = color; }
    bool getTrackingPerformance() const { return m_trackingPerformance; }
    void setTrackingPerformance(bool on) { m_trackingPerformance = on; }

    // --- Styles, background, cursor --------------------------------------
    GLOX::GVector<DrawStyle> &creationDrawStyles() { return m_creationDrawStyles; }
    Background const &getBackground() const { return m_background; }
    void setBackground(Background const &background);
    bool hasToolOverrideCursor() const { return m_toolOverrideCursorSet; }
    GLOX::Cursor getToolOverrideCursor() const { return m_toolOverrideCursor; }
    // Sends toolOverrideCursorChanged when the cursor really changes.
    void setToolOverrideCursor(GLOX::Cursor const &cursor);
    void clearToolOverrideCursor();
    bool usesNodeSelection() const { return m_useNodeSelection; }
    void setUseNodeSelection(bool use) { m_useNodeSelection = use; }
    // The stroke every selected node shows while the scene uses node
    // selection: one effect shared by all of them.
    Effect *getSelectionEffect() const { return m_selectionEffect.get(); }
    static GLOX::StringID const &selectionEffectID();

    // --- Tools ----------------------------------------------------------
    void addTool(Tool *tool) override { m_toolStack.addTool(tool); }
    void addTool(Tool *tool, GLOX::StringID const &role) override { m_toolStack.addTool(tool, role); }
    void delegateToTool(Tool *tool, Event &event) override { m_toolStack.delegateToTool(tool, event); }
    GLOX::StringID getUniqueToolRoleBasedOn(GLOX::StringID const &role) override
    {
        return m_toolStack.getUniqueToolRoleBasedOn(role);
    }
    bool hasTool(Tool *tool) const override { return m_toolStack.hasTool(tool); }
    bool removeTool(Tool *tool) override { return m_toolStack.removeTool(tool); }
    bool removeToolByRole(GLOX::StringID const &role) override { return m_toolStack.removeToolByRole(role); }
    Tool *getToolByRole(GLOX::StringID const &role) const override { return m_toolStack.getToolByRole(role); }
    GLOX::StringID getRoleByTool(Tool *tool) override { return m_toolStack.getRoleByTool(tool); }
    void clearToolStack() override { m_toolStack.clearToolStack(); }
    ToolStack &getToolStack() { return m_toolStack; }
    ToolFactory &getToolFactory() { return m_toolFactory; }
    // A new tool of the role, added under it; null for an unknown role.
    Tool *addToolByRole(GLOX::StringID const &role);

    // --- Input ----------------------------------------------------------
    void handleMouseMoveEvent(MouseEvent &event) override;
    void handleMousePressEvent(MouseEvent &event) override;
    void handleMouseReleaseEvent(MouseEvent &event) override;
    void handleMouseDoubleClickEvent(MouseEvent &event) override;
    void handleUserDragInitEvent(MouseEvent &event) override;
    void handleDragEnterEvent(DragEvent &event) override;
    void handleDragLeaveEvent(WidgetEvent &event) override;
    void handleDragEvent(DragEvent &event) override;
    void handleDropEvent(DragEvent &event) override;
    void handleFocusInEvent(FocusEvent &event) override;
    void handleFocusOutEvent(FocusEvent &event) override;
    void handleEnterCanvasEvent(WidgetEvent &event) override;
    void handleLeaveCanvasEvent(WidgetEvent &event) override;
    void handleContextMenuEvent(ContextMenuEvent &event) override;
    void handleWheelEvent(MouseEvent &event) override;
    void handleKeyPressEvent(KeyEvent &event) override;
    void handleKeyReleaseEvent(KeyEvent &event) override;
    Node getHoveredNode() const { return m_hoveredNode.promote(); }
    // For tools: the topmost node at the event's scene position gets the
    // event on its own signal.
    void passMousePressEventToNode(MouseEvent &event);
    void passMouseMoveEventToNode(MouseEvent &event);
    void passMouseReleaseEventToNode(MouseEvent &event);
    // For tools: the focus node gets the key if it is text.
    void passKeyPressEventToNode(KeyEvent &event);

    // --- Signals --------------------------------------------------------
    GLUV::Emitter<void (*)()> aboutToDestroy{GLUV::SendAuto};
    // Sent at once, in the setter, when the background changes: every view
    // of the scene redraws all it shows of it (SceneServer::repaintAll).
    GLUV::Emitter<void (*)(ScenePrivate *)> backgroundChanged{GLUV::SendAuto};
    GLUV::Emitter<void (*)()> toolOverrideCursorChanged{GLUV::SendAuto};

    // Takes every top-level node out of the scene: nodes held by a handle
    // live on, detached; the rest die. Called once, as the Scene goes.
    virtual void destroyScene();

private:
    enum class AreaTestKind { Point, Rect };
    // Where the index files a node (scene/IndexedPlace.cpp).
    static IndexedPlace indexedPlaceOf(NodeImpl *node);
    void markIndexDirtySubtree(NodeImpl *node);
    QList<QGraphicsItem *> indexedItems(AreaTestKind kind, QPointF const &point, QRectF const &rect,
                                        Qt::ItemSelectionMode mode) const;
    // Draws the items renderRegion found, bottom first, with the painter in
    // scene coordinates (scene/IndexedRendering.cpp).
    void drawFound(QPainter *painter, std::vector<QGraphicsItem *> const &bottomFirst);
    // The queued delivery: hands the pending batch to every view through
    // one emission of changed(), then drops it.
    void deliverChanges();
    // Marks `node` and its subtree Removed.
    void markRemovedSubtree(NodeImpl *node);
    // The nodes of `node`'s subtree that a handle holds and whose ancestors
    // nobody holds: the ones that outlive the scene.
    static void collectSurvivors(NodeImpl *node, GLOX::GList<NodeImpl *> &survivors);
    bool handledHere(NodeImpl const *node) const;
    // Makes the event's canvas, if any, the current view, then hands the
    // event to the tool stack's operation.
    template <typename E>
    void enter(E &event, void (ToolStack::*operation)(E &));
    void updateHover(MouseEvent &event);
    void endHover();
    NodeImpl *nodeAt(GLOX::GLPoint<double> const &scenePos) const;
    // The factory's constructors and the default stack of a new scene.
    void initializeToolFactory();
    void initializeToolStack();

    Scene *m_scene;
    WeakRef m_hoveredNode;
    ToolStack m_toolStack;
    ToolFactory m_toolFactory;
    PendingChanges m_pendingChanges;
    PendingChanges m_delivered;
    std::unique_ptr<SpatialIndex> m_index;
    mutable ZRange m_zRange;
    bool m_linearQueries = false;
    bool m_delivering = false;
    bool m_qtUpdatesHeld = false;
    bool m_announcingHeldQtUpdates = false;
    bool m_debugRepaintRegion = false;
    GLOX::Color m_debugRepaintRegionColor{0.0, 1.0, 0.0, 0.5};
    bool m_trackingPerformance = false;
    GLOX::GLRect<double> m_visibleItemsRect;
    GLOX::GLRect<double> m_nodesBounds;
    GLOX::GVector<DrawStyle> m_creationDrawStyles;
    Background m_background;
    bool m_toolOverrideCursorSet = false;
    GLOX::Cursor m_toolOverrideCursor;
    bool m_useNodeSelection = true;
    GLOX::Holder<Effect> m_selectionEffect;
};

} // namespace VOR2
