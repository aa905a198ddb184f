#pragma once
// GLUV::SendMode: how an emitter hands a send to each of its connections.
// Every connection belongs to a thread (the one it was made for).

namespace GLUV {

enum SendMode {
    // Call every listener at once, on the sending thread.
    SendDirect = 0,
    // Always queue the call onto the connection's thread, even when that is
    // the sending thread; arguments are copied.
    SendQueued = 1,
    // Call at once when the connection's thread is the sending thread, else
    // queue a copy of the arguments onto the connection's thread.
    SendAuto = 2,
    // As SendAuto, but across threads the sender waits until the call has run
    // (or has been dropped); arguments are passed by reference then.
    SendBlocking = 3
};

} // namespace GLUV
