// NodeImpl: input handed to a node goes out on the node's signals.

#include "scene/NodeEmitterTable.h"
#include "scene/NodeImpl.h"

#include <FocusEvent>
#include <KeyEvent>
#include <MouseEvent>

namespace VOR2 {

namespace {
template <typename Emitter, typename E>
void sendIfConnected(Emitter *emitter, E &event)
{
    if (emitter) emitter->send(event);
}

void sendMouse(NodeEmitterTable::MouseSignal which, NodeImpl const *node, MouseEvent &event)
{
    sendIfConnected(NodeEmitterTable::instance().mouse(which, node, false), event);
}
} // namespace

void NodeImpl::emitMousePressEvent(MouseEvent &e) { sendMouse(NodeEmitterTable::MousePress, this, e); }
void NodeImpl::emitMouseMoveEvent(MouseEvent &e) { sendMouse(NodeEmitterTable::MouseMove, this, e); }
void NodeImpl::emitMouseReleaseEvent(MouseEvent &e) { sendMouse(NodeEmitterTable::MouseRelease, this, e); }
void NodeImpl::emitHoverEnterEvent(MouseEvent &e) { sendMouse(NodeEmitterTable::HoverEnter, this, e); }
void NodeImpl::emitHoverExitEvent(MouseEvent &e) { sendMouse(NodeEmitterTable::HoverExit, this, e); }
void NodeImpl::emitHoverMoveEvent(MouseEvent &e) { sendMouse(NodeEmitterTable::HoverMove, this, e); }

void NodeImpl::emitKeyPressEvent(KeyEvent &e)
{
    sendIfConnected(NodeEmitterTable::instance().key(NodeEmitterTable::KeyPress, this, false), e);
}

void NodeImpl::emitKeyReleaseEvent(KeyEvent &e)
{
    sendIfConnected(NodeEmitterTable::instance().key(NodeEmitterTable::KeyRelease, this, false), e);
}

void NodeImpl::emitFocusOutEvent(FocusEvent &e)
{
    sendIfConnected(NodeEmitterTable::instance().focus(NodeEmitterTable::FocusOut, this, false), e);
}

void NodeImpl::emitFocusInEvent(FocusEvent &e)
{
    sendIfConnected(NodeEmitterTable::instance().focus(NodeEmitterTable::FocusIn, this, false), e);
}

} // namespace VOR2
