#pragma once
// GLUV::Listener: the base of objects that receive signals. Connections made
// for a listener end when it is destroyed: it is called no more, and
// deliveries to it still waiting in a thread's queue are dropped.
//
// Destroy a listener on the thread its connections were made for. A class
// derived from Listener that may receive direct sends from another thread
// should call disconnectAll() first thing in its destructor, because ~Listener
// runs only after the derived part is gone.

#include <memory>

namespace GLUV {

class ListenerLinks;

class Listener {
public:
    Listener();
    virtual ~Listener();
    Listener(Listener const &) = delete;
    Listener &operator=(Listener const &) = delete;

    // Any thread: ends every connection made for this listener; later
    // connections work as usual.
    void disconnectAll();
    // Any thread: how many connections this listener has.
    int connectionCount() const;

private:
    friend class EmitterCore;
    std::shared_ptr<ListenerLinks> m_links;
};

} // namespace GLUV
