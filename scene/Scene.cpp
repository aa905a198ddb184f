#include <Scene>
#include <Error>

#include <QApplication>

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"
#include "values/UsableNumber.h"

#include <QGraphicsItem>

namespace VOR2 {

namespace {
GLOX::GList<Node> toNodes(QList<QGraphicsItem *> const &items)
{
    GLOX::GList<Node> nodes;
    nodes.reserve(items.size());
    for (QGraphicsItem *item : items) nodes.append(Node(NodeImpl::fromItem(item)));
    return nodes;
}
} // namespace

GLOX::Holder<Scene> Scene::createScene()
{
    // Qt's scene takes its fonts and palette from the application: without
    // one it would crash inside Qt.
    if (!qobject_cast<QApplication *>(QCoreApplication::instance())) throwError(VOR2_InvalidScene);
    return GLOX::Holder<Scene>(new Scene);
}

Scene *Scene::of(ScenePrivate const *d) { return d ? d->getScene() : nullptr; }

// The private part sets up the tool factory and the default stack.
Scene::Scene() : d(new ScenePrivate(this)) {}

Scene::~Scene()
{
    d->aboutToDestroy.sendWith(GLUV::SendDirect);
    d->destroyScene();
    delete d;
    d = nullptr;
}

void Scene::destroy()
{
    m_destroyed.send();
    GLOX::ReferencedTemplate<unsigned int>::destroy();
}

Node Scene::addNode(Node const &node)
{
    Node::guaranteeValid(node);
    d->addNodeImpl(node.getImpl());
    return node;
}

Node Scene::removeNode(Node const &node)
{
    if (!node.isValid()) return Node();
    // Cuts the node's listeners even when it is not in this scene.
    return d->removeNodeImpl(node.getImpl());
}

Node Scene::getNodeAt(GLOX::GLPoint<double> const &p) const
{
    if (!isUsable(p)) return Node();
    return Node(NodeImpl::fromItem(d->topmostItemAt(GLOX::toQPointF(p))));
}

GLOX::GList<Node> Scene::getNodesAtScenePos(GLOX::GLPoint<double> const &p) const
{
    if (!isUsable(p)) return {};
    return toNodes(d->itemsAt(GLOX::toQPointF(p)));
}

GLOX::GList<Node> Scene::getNodesWithinRect(GLOX::GLRect<double> const &r) const
{
    if (!isUsable(r)) return {};
    return toNodes(d->itemsIn(GLOX::toQRectF(r), Qt::ContainsItemBoundingRect));
}

GLOX::GList<Node> Scene::getNodesIntersectingRect(GLOX::GLRect<double> const &r) const
{
    if (!isUsable(r)) return {};
    return toNodes(d->itemsIn(GLOX::toQRectF(r), Qt::IntersectsItemShape));
}

GLOX::GList<Node> Scene::getAllNodes() const { return toNodes(d->items()); }

GLOX::GList<Node> Scene::getAllSelectedNodes() const { return toNodes(d->selectedItems()); }

GLOX::GList<Node> Scene::getTopLevelNodes() const
{
    GLOX::GList<Node> nodes;
    for (NodeImpl *impl : d->getTopLevelNodeImpls()) nodes.append(Node(impl));
    return nodes;
}

GLOX::GList<Node> Scene::getNodesWithTag(GLOX::StringID const &tag) const
{
    GLOX::GList<Node> nodes;
    for (Node const &top : getTopLevelNodes()) nodes.append(top.getDescendantsWithTag(tag));
    return nodes;
}

void Scene::pushCreationDrawStyle(DrawStyle const &style) { d->creationDrawStyles().append(style); }

DrawStyle Scene::popCreationDrawStyle()
{
    if (d->creationDrawStyles().isEmpty()) return DrawStyle();
    DrawStyle top = d->creationDrawStyles().last();
    d->creationDrawStyles().removeLast();
    return top;
}

DrawStyle Scene::getCreationDrawStyle() const
{
    return d->creationDrawStyles().isEmpty() ? DrawStyle() : d->creationDrawStyles().last();
}

void Scene::setBackground(Background const &background) { d->setBackground(background); }

Background Scene::getBackground() const { return d->getBackground(); }

bool Scene::hasToolOverrideCursor() const { return d->hasToolOverrideCursor(); }

GLOX::Cursor Scene::getToolOverrideCursor() const { return d->getToolOverrideCursor(); }

} // namespace VOR2
