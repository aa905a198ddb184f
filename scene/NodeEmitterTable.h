#pragma once
// NodeEmitterTable: the signals of nodes, kept outside the nodes so that a
// node nobody listens to pays nothing. Thirteen tables keyed by node, of
// emitters made on the first connect with send mode 2 (deliver at once on
// the listener's own thread, queue across threads). Removing a node's
// entries cuts every listener it had. Host thread only.
//
// Input events do not go out with the emitters' own mode but with the one
// sendMode() names, as required of node signals: a press, a release and the
// three hover events are sent with mode 3, so a listener of another thread
// has handled the event (the same object, which it may consume) before the
// node's handling goes on; a mouse move, keys and focus are sent with mode
// 0, to every listener at once on the sending thread, whichever thread it
// connected for. The text signals keep the emitters' mode.

#include "GLOX/Containers.h"
#include "GLUV/Emitter.h"

#include <QSet>
#include <memory>

namespace VOR2 {

class FocusEvent;
class KeyEvent;
class MouseEvent;
class NodeImpl;

class NodeEmitterTable {
public:
    using MouseEmitter = GLUV::Emitter<void (*)(MouseEvent &)>;
    using KeyEmitter = GLUV::Emitter<void (*)(KeyEvent &)>;
    using FocusEmitter = GLUV::Emitter<void (*)(FocusEvent &)>;
    using NotifyEmitter = GLUV::Emitter<void (*)()>;

    enum MouseSignal { MousePress, MouseMove, MouseRelease, HoverEnter, HoverExit, HoverMove, MouseSignalCount };
    enum KeySignal { KeyPress, KeyRelease, KeySignalCount };
    enum FocusSignal { FocusIn, FocusOut, FocusSignalCount };
    enum TextSignal { TextChanged, EditStarted, EditComplete, TextSignalCount };

    static NodeEmitterTable &instance();

    // The mode the event signals are sent with. Any thread.
    static GLUV::SendMode sendMode(MouseSignal which);
    static GLUV::SendMode sendMode(KeySignal) { return GLUV::SendDirect; }
    static GLUV::SendMode sendMode(FocusSignal) { return GLUV::SendDirect; }

    // The node's emitter of that signal; with `create` false, null when
    // nobody has connected to it.
    MouseEmitter *mouse(MouseSignal which, NodeImpl const *node, bool create);
    KeyEmitter *key(KeySignal which, NodeImpl const *node, bool create);
    FocusEmitter *focus(FocusSignal which, NodeImpl const *node, bool create);
    NotifyEmitter *text(TextSignal which, NodeImpl const *node, bool create);

    // Drops every emitter of the node, and with them its listeners.
    void removeAll(NodeImpl const *node);
    bool hasAny(NodeImpl const *node) const;

private:
    template <typename E>
    using Table = GLOX::GHash<NodeImpl const *, std::shared_ptr<E>>;

    template <typename E>
    E *lookup(Table<E> &table, NodeImpl const *node, bool create);

    Table<MouseEmitter> m_mouse[MouseSignalCount];
    Table<KeyEmitter> m_key[KeySignalCount];
    Table<FocusEmitter> m_focus[FocusSignalCount];
    Table<NotifyEmitter> m_text[TextSignalCount];
    // Nodes with at least one emitter: most nodes have none, and removal
    // runs for every node that leaves a scene or dies.
    QSet<NodeImpl const *> m_nodes;
};

} // namespace VOR2
