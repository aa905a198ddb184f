#pragma once
// GLOX::GLObject: a host-side object of the foundation's object tree: an id
// and a parent. The parent does not own its children; an object that goes
// first leaves its children without a parent and its parent without it.
//
// An object may stand for a native widget on the GUI thread. registerGui
// records which (the GUI side calls it when it makes the widget), and lookup
// answers it, or null once either is gone, so that a child's widget can be
// made inside its parent's.
//
// Threads: the tree belongs to the host thread; registerGui and lookup may be
// called from any thread.

#include "GLOX/StringID.h"

#include <vector>

class QObject;

namespace GLOX {

class GLObject {
public:
    explicit GLObject(StringID const &id = StringID(), GLObject *parent = nullptr);
    virtual ~GLObject();
    GLObject(GLObject const &) = delete;
    GLObject &operator=(GLObject const &) = delete;

    StringID const &getId() const { return m_id; }
    // Null for a root, or once the parent is gone.
    GLObject *getParent() const { return m_parent; }
    std::vector<GLObject *> const &getChildren() const { return m_children; }

private:
    StringID m_id;
    GLObject *m_parent;
    std::vector<GLObject *> m_children;
};

// Any thread: records `gui` as the native object of `object` (null forgets
// it). The record ends by itself when the native object is destroyed.
void registerGui(GLObject const *object, QObject *gui);
// Any thread: the native object of `object`, or null. Touch it on its own
// thread only.
QObject *lookup(GLObject const *object);

} // namespace GLOX
