// Node: identity, the tree and tags. Every operation checks the handle and
// delegates to the element.

#include <Error>
#include <Node>
#include <Scene>

#include "scene/NodeImpl.h"
#include "scene/ScenePrivate.h"

namespace VOR2 {

Node::Node(NodeImpl const *impl) : m_impl(const_cast<NodeImpl *>(impl))
{
    if (m_impl) m_impl->ref();
}

Node::Node(Node const &other) : Node(other.m_impl) {}

Node::Node(Node &&other) noexcept : m_impl(other.m_impl) { other.m_impl = nullptr; }

Node &Node::operator=(Node const &other)
{
    Node copy(other);
    std::swap(m_impl, copy.m_impl);
    return *this;
}

Node &Node::operator=(Node &&other) noexcept
{
    std::swap(m_impl, other.m_impl);
    return *this;
}

Node::~Node()
{
    if (m_impl) m_impl->unref();
}

NodeImpl *Node::getValidImpl() const
{
    guaranteeValid();
    return m_impl;
}

void Node::guaranteeValid() const
{
    if (!m_impl) throwError(VOR2_InvalidNode);
}

void Node::guaranteeValid(Node const &node) { node.guaranteeValid(); }

char const *Node::staticGetFullyQualifiedTcosTypeName() { return "VOR2.Node"; }

char const *Node::getFullyQualifiedTcosTypeName() const
{
    return m_impl ? m_impl->getFullyQualifiedTcosTypeName() : staticGetFullyQualifiedTcosTypeName();
}

bool Node::isa(char const *typeName) const
{
    if (!m_impl) return NodeImpl::typeNameMatches(typeName, staticGetFullyQualifiedTcosTypeName());
    return m_impl->isa(typeName);
}

// -------------------------------------------------------------------- tree

Scene *Node::getScene() const { return Scene::of(getValidImpl()->getScenePrivate()); }

Node Node::getParent() const { return Node(getValidImpl()->getParentImpl()); }

void Node::setParent(Node const &newParent) const { getValidImpl()->setParent(newParent.getImpl()); }

void Node::unparent() const { getValidImpl()->setParent(nullptr); }

void Node::remove() const
{
    NodeImpl *impl = getValidImpl();
    if (ScenePrivate *scene = impl->getScenePrivate())
        scene->removeNodeImpl(impl);
    else
        impl->setParent(nullptr);
}

GLOX::GList<Node> Node::getChildren() const
{
    GLOX::GList<Node> children;
    for (NodeImpl *child : getValidImpl()->getChildImpls()) children.append(Node(child));
    return children;
}

GLOX::GList<Node> Node::getChildrenWithTag(GLOX::StringID const &tag) const
{
    GLOX::GList<Node> children;
    for (NodeImpl *child : getValidImpl()->getChildImpls())
        if (child->hasTag(tag)) children.append(Node(child));
    return children;
}

namespace {
void collectDescendantsWithTag(NodeImpl *node, GLOX::StringID const &tag, GLOX::GList<Node> &out)
{
    for (NodeImpl *child : node->getChildImpls()) {
        if (child->hasTag(tag)) out.append(Node(child));
        collectDescendantsWithTag(child, tag, out);
    }
}
} // namespace

GLOX::GList<Node> Node::getDescendantsWithTag(GLOX::StringID const &tag) const
{
    GLOX::GList<Node> out;
    collectDescendantsWithTag(getValidImpl(), tag, out);
    return out;
}

// -------------------------------------------------------------------- tags

bool Node::hasTag(GLOX::StringID const &tag) const { return getValidImpl()->hasTag(tag); }
void Node::addTag(GLOX::StringID const &tag) const { getValidImpl()->addTag(tag); }
void Node::removeTag(GLOX::StringID const &tag) const { getValidImpl()->removeTag(tag); }
void Node::removeAllTags() const { getValidImpl()->removeAllTags(); }
GLOX::GList<GLOX::StringID> Node::getTags() const { return getValidImpl()->getTags(); }

} // namespace VOR2
