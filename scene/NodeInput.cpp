// NodeImpl: input handed to a node goes out on the node's signals.

#include "scene/NodeEmitterTable.h"
#include "scene/NodeImpl.h"

#include <FocusEvent>
#include <KeyEvent>
#include <MouseEvent>

namespace VOR2 {

namespace {
// The node's emitter of that signal, or null when nobody ever connected.
NodeEmitterTable::MouseEmitter *existing(NodeEmitterTable::MouseSignal which, NodeImpl const *node)
{
    return NodeEmitterTable::instance().mouse(which, node, false);
}
NodeEmitterTable::KeyEmitter *existing(NodeEmitterTable::KeySignal which, NodeImpl const *node)
{
    return NodeEmitterTable::instance().key(which, node, false);
}
NodeEmitterTable::FocusEmitter *existing(NodeEmitterTable::FocusSignal which, NodeImpl const *node)
{
    return NodeEmitterTable::instance().focus(which, node, false);
}

// Sends on the node's emitter of that signal, if there is one, with the
// mode the table names for the signal.
template <typename Signal, typename E>
void send(Signal which, NodeImpl const *node, E &event)
{
    if (auto *emitter = existing(which, node)) emitter->sendWith(NodeEmitterTable::sendMode(which), event);
}
} // namespace

void NodeImpl::emitMousePressEvent(MouseEvent &e) { send(NodeEmitterTable::MousePress, this, e); }
void NodeImpl::emitMouseMoveEvent(MouseEvent &e) { send(NodeEmitterTable::MouseMove, this, e); }
void NodeImpl::emitMouseReleaseEvent(MouseEvent &e) { send(NodeEmitterTable::MouseRelease, this, e); }
void NodeImpl::emitHoverEnterEvent(MouseEvent &e) { send(NodeEmitterTable::HoverEnter, this, e); }
void NodeImpl::emitHoverExitEvent(MouseEvent &e) { send(NodeEmitterTable::HoverExit, this, e); }
void NodeImpl::emitHoverMoveEvent(MouseEvent &e) { send(NodeEmitterTable::HoverMove, this, e); }
void NodeImpl::emitKeyPressEvent(KeyEvent &e) { send(NodeEmitterTable::KeyPress, this, e); }
void NodeImpl::emitKeyReleaseEvent(KeyEvent &e) { send(NodeEmitterTable::KeyRelease, this, e); }
void NodeImpl::emitFocusOutEvent(FocusEvent &e) { send(NodeEmitterTable::FocusOut, this, e); }
void NodeImpl::emitFocusInEvent(FocusEvent &e) { send(NodeEmitterTable::FocusIn, this, e); }

} // namespace VOR2
