#pragma once
// ScenePrivate: the work behind a Scene. It is the QGraphicsScene that
// holds the nodes' items, the z container of the top-level nodes, and the
// default update handler of its nodes.
//
// The path of a change: a node reports to its handler (by default this
// scene), which records the node in pendingChanges as Repaint, Geometry or
// Removed. The first record of a batch queues one call of Qt's
// "_q_emitUpdated"; when the host loop runs it, Qt emits
// changed(QList<QRectF>), and whoever draws the scene reads and clears the
// pending changes. Removed entries hold the raw pointer of a node that may
// be dead by then: read them by key only. Host thread only.

#include <Background>
#include <DrawStyle>
#include <Node>

#include "GLOX/Color.h"
#include "GLOX/Containers.h"
#include "GLOX/Cursor.h"
#include "GLOX/GLRect.h"
#include "GLUV/Emitter.h"
#include "GLUV/Listener.h"
#include "scene/NodeUpdateHandler.h"
#include "scene/PendingChangeKind.h"
#include "scene/ZOrderingContainer.h"

#include <QGraphicsScene>

namespace VOR2 {

class NodeImpl;
class Scene;

class ScenePrivate : public QGraphicsScene,
                     public GLUV::Listener,
                     public ZOrderingContainer,
                     public NodeUpdateHandler {
public:
    using PendingChanges = GLOX::GHash<NodeImpl *, PendingChangeKind>;

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

    // --- Changes --------------------------------------------------------
    void nodeRepaintRequired(NodeImpl *node) override;
    void nodeGeometryChanged(NodeImpl *node) override;
    void nodeMoved(NodeImpl *node) override;
    PendingChanges const &getPendingChanges() const { return m_pendingChanges; }
    // Hands the pending changes to the caller and starts a new batch.
    PendingChanges takePendingChanges();
    // Queues one call of "_q_emitUpdated" unless a batch is already open.
    void scheduleViewUpdate();
    void invalidateSceneBounds();

    // --- Bounds and rendering ---------------------------------------------
    // Union of the visible nodes' bare bounds in scene coordinates: no stroke
    // width, no effects. Cached until the next geometry change.
    GLOX::GLRect<double> getNodesBounds();
    // Union of the visible items' scene bounding rectangles, strokes and
    // effects included. Cached the same way.
    GLOX::GLRect<double> getVisibleItemsRect();
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

    // --- Signals --------------------------------------------------------
    GLUV::Emitter<void (*)()> aboutToDestroy{GLUV::SendAuto};
    GLUV::Emitter<void (*)(ScenePrivate *)> backgroundChanged{GLUV::SendAuto};
    GLUV::Emitter<void (*)()> toolOverrideCursorChanged{GLUV::SendAuto};
    // Asks every view of the scene to redraw all of it.
    GLUV::Emitter<void (*)()> repaintAllRequested{GLUV::SendAuto};

    // Takes every top-level node out of the scene: nodes held by a handle
    // live on, detached; the rest die. Called once, as the Scene goes.
    virtual void destroyScene();

private:
    // Marks `node` and its subtree Removed.
    void markRemovedSubtree(NodeImpl *node);
    bool handledHere(NodeImpl const *node) const;

    Scene *m_scene;
    PendingChanges m_pendingChanges;
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
};

} // namespace VOR2
