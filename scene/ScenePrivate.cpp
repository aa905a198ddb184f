#include "scene/ScenePrivate.h"

#include <QCoreApplication>
#include "values/UsableNumber.h"

#include <Behavior>
#include <Diagnostics>
#include <EffectStroke>
#include <SelectionNonLinearLodScale>

#include "scene/CountRecord.h"
#include "scene/NodeEmitterTable.h"
#include "scene/NodeImpl.h"
#include "scene/NodeOwnershipGuard.h"
#include "scene/PendingPolish.h"

#include <QMetaObject>
#include <algorithm>
#include <utility>
#include <vector>

namespace VOR2 {

namespace {
char const *const NODE_COUNT = "Scene:Node count";
char const *const QUEUED_UPDATES = "Scene:Queued view updates";

CountRecord &nodeCount()
{
    static CountRecord record(NODE_COUNT);
    return record;
}
} // namespace

namespace {
// Pale blue, 8 wide outside the node, growing less than the zoom.
EffectStroke *newSelectionEffect()
{
    auto *effect = new EffectStroke(Stroke(GLOX::Color(0.835, 0.898, 0.996, 0.8), 8.0, StrokeStyle::SolidLine,
                                           StrokeCapStyle::FlatCap, StrokeJoinStyle::MiterJoin,
                                           SelectionNonLinearLodScale::instance()),
                                    Outer);
    effect->setOutlineType(PlainBoundsOutline);
    return effect;
}
} // namespace

GLOX::StringID const &ScenePrivate::selectionEffectID()
{
    static GLOX::StringID const id("Selection");
    return id;
}

ScenePrivate::ScenePrivate(Scene *scene)
    : m_scene(scene), m_index(std::make_unique<SpatialIndex>(&indexedPlaceOf)),
      m_selectionEffect(newSelectionEffect())
{
    setBackgroundBrush(QBrush(QColor(0, 0, 0, 0), Qt::SolidPattern));
    // Node bounds follow each view's scale, so Qt's index would be rebuilt
    // on every zoom: the scene keeps its own (m_index), which holds at
    // every scale.
    setItemIndexMethod(QGraphicsScene::NoIndex);
    // Qt gives an item the keyboard focus only in an active scene, and what
    // makes a scene active is a view in an active window. The library shows
    // scenes through no Qt view: the scene is made active once, for good.
    QEvent activate(QEvent::WindowActivate);
    QCoreApplication::sendEvent(this, &activate);
    // A scene rectangle of its own spares Qt a walk of every item to grow
    // one each time it announces a change; the library never reads it.
    setSceneRect(QRectF(-COORDINATE_LIMIT, -COORDINATE_LIMIT, 2 * COORDINATE_LIMIT, 2 * COORDINATE_LIMIT));
    // Connected first, so it runs before any view's handler: an emission
    // while updates are held is flagged for the views, and the hold ends
    // with it, as Qt's "everything changed" state does.
    QObject::connect(this, &QGraphicsScene::changed, this, [this] {
        m_announcingHeldQtUpdates = std::exchange(m_qtUpdatesHeld, false);
    }, Qt::DirectConnection);
    initializeToolFactory();
    initializeToolStack();
}

ScenePrivate::~ScenePrivate() = default;

// ------------------------------------------------------------------- nodes

bool ScenePrivate::containsNode(NodeImpl const *node) const { return node->getGraphicsScene() == this; }

GLOX::GList<NodeImpl *> ScenePrivate::getTopLevelNodeImpls() const
{
    GLOX::GList<NodeImpl *> nodes;
    for (QGraphicsItem *item : items())
        if (!item->parentItem()) nodes.append(NodeImpl::fromItem(item));
    return nodes;
}

void ScenePrivate::addNodeImpl(NodeImpl *node)
{
    if (containsNode(node)) return;
    NodeOwnershipGuard guard(node);
    if (ScenePrivate *other = node->getScenePrivate())
        other->removeNodeImpl(node);
    else if (!m_creationDrawStyles.isEmpty())
        node->setDrawStyle(m_creationDrawStyles.last());
    holdQtItemUpdates();
    stackOnTop(node); // before it joins: Qt then has no scene to tell of the change
    addItem(node->getGraphicsItem());
    nodeGeometryChanged(node);
    nodeCount().add(1);
}

Node ScenePrivate::removeNodeImpl(NodeImpl *node)
{
    NodeEmitterTable::instance().removeAll(node);
    if (!containsNode(node)) return Node();
    holdQtItemUpdates(); // first: Qt's announcement then comes before the delivery, which draws
    flushPendingPolish(this);
    markRemovedSubtree(node);
    invalidateSceneBounds();
    NodeOwnershipGuard guard(node);
    Node result(node);
    removeItem(node->getGraphicsItem());
    node->invalidateCaches();
    nodeCount().add(-1);
    return result;
}

void ScenePrivate::markRemovedSubtree(NodeImpl *node)
{
    scheduleViewUpdate();
    if (Behavior *behavior = node->getBehavior()) removeTool(behavior);
    if (m_hoveredNode.promote().getImpl() == node) m_hoveredNode.clear(); // no exit: it has left
    m_pendingChanges.recordRemoved(node);
    m_index->remove(node);
    for (NodeImpl *child : node->getChildImpls()) markRemovedSubtree(child);
}

void ScenePrivate::destroyScene()
{
    flushPendingPolish(this);
    // Nodes that a handle holds leave one by one, with their subtrees, and
    // live on, detached.
    GLOX::GList<NodeImpl *> survivors;
    for (NodeImpl *node : getTopLevelNodeImpls()) collectSurvivors(node, survivors);
    for (NodeImpl *node : survivors) {
        if (node->getParentImpl()) node->setParent(nullptr);
        removeNodeImpl(node);
    }
    // The rest die with the scene. Removing items one by one searches Qt's
    // index once for each and is quadratic; clear() empties the index first
    // and deletes every item in one sweep, once each node has cut its links.
    int topLevel = 0;
    for (QGraphicsItem *item : items()) {
        topLevel += item->parentItem() ? 0 : 1;
        NodeImpl::fromItem(item)->releaseForSceneDeath();
    }
    m_pendingChanges.clear();
    m_index->clear();
    nodeCount().add(-topLevel);
    clear();
    clearToolStack();
}

void ScenePrivate::collectSurvivors(NodeImpl *node, GLOX::GList<NodeImpl *> &survivors)
{
    // Attachment holds one reference; more means a handle holds the node,
    // unless its parent, which dies with the scene, holds that handle.
    NodeImpl const *parent = node->getParentImpl();
    int const heldByParent = parent ? parent->handlesHeldOnChild(node) : 0;
    if (int(node->refCount()) - heldByParent > 1) {
        survivors.append(node);
        return;
    }
    for (NodeImpl *child : node->getChildImpls()) collectSurvivors(child, survivors);
}

// ----------------------------------------------------------------- changes

void ScenePrivate::scheduleViewUpdate()
{
    if (!m_pendingChanges.isEmpty()) return;
    QMetaObject::invokeMethod(this, [this] { deliverChanges(); }, Qt::QueuedConnection);
    Diagnostics::add(QUEUED_UPDATES, 1);
}

void ScenePrivate::deliverChanges()
{
    m_delivered = std::move(m_pendingChanges); // changes the views make now open a new batch
    m_delivering = true;
    QMetaObject::invokeMethod(this, "_q_emitUpdated", Qt::DirectConnection);
    m_delivering = false;
    m_announcingHeldQtUpdates = false;
    m_delivered.clear();
}

void ScenePrivate::holdQtItemUpdates()
{
    if (m_qtUpdatesHeld) return;
    m_qtUpdatesHeld = true;
    update(); // a null rectangle: Qt's "everything changed", announced next turn
}

PendingChanges ScenePrivate::takePendingChanges()
{
    PendingChanges taken;
    std::swap(taken, m_pendingChanges);
    return taken;
}

bool ScenePrivate::handledHere(NodeImpl const *node) const
{
    NodeUpdateHandler *handler = node->getUpdateHandler();
    return handler == nullptr || handler == static_cast<NodeUpdateHandler const *>(this);
}

void ScenePrivate::nodeRepaintRequired(NodeImpl *node)
{
    scheduleViewUpdate();
    m_pendingChanges.recordRepaint(node);
    for (NodeImpl *child : node->getChildImpls())
        if (handledHere(child)) nodeRepaintRequired(child);
}

void ScenePrivate::nodeGeometryChanged(NodeImpl *node)
{
    scheduleViewUpdate();
    m_pendingChanges.recordGeometry(node);
    m_index->markDirty(node);
    for (NodeImpl *child : node->getChildImpls()) {
        if (handledHere(child))
            nodeGeometryChanged(child);
        else
            markIndexDirtySubtree(child); // reported elsewhere, but found here
    }
    invalidateSceneBounds();
}

void ScenePrivate::markIndexDirtySubtree(NodeImpl *node)
{
    m_index->markDirty(node);
    for (NodeImpl *child : node->getChildImpls()) markIndexDirtySubtree(child);
}

void ScenePrivate::nodeMoved(NodeImpl *node) { nodeGeometryChanged(node); }

void ScenePrivate::invalidateSceneBounds()
{
    m_visibleItemsRect = GLOX::GLRect<double>();
    m_nodesBounds = GLOX::GLRect<double>();
}

// --------------------------------------------- styles, background, cursor

void ScenePrivate::setBackground(Background const &background)
{
    if (background == m_background) return;
    m_background = background;
    backgroundChanged.sendWith(GLUV::SendDirect, this);
}

void ScenePrivate::setToolOverrideCursor(GLOX::Cursor const &cursor)
{
    if (m_toolOverrideCursorSet && cursor == m_toolOverrideCursor) return;
    m_toolOverrideCursorSet = true;
    m_toolOverrideCursor = cursor;
    toolOverrideCursorChanged.sendWith(GLUV::SendDirect);
}

void ScenePrivate::clearToolOverrideCursor()
{
    if (!m_toolOverrideCursorSet) return;
    m_toolOverrideCursorSet = false;
    m_toolOverrideCursor = GLOX::Cursor(0);
    toolOverrideCursorChanged.sendWith(GLUV::SendDirect);
}

} // namespace VOR2
