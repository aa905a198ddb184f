#pragma once
// GLUV::Connection: a handle on one connection, returned by
// Emitter::connect. It does not keep the connection alive: when the
// connection has ended, from either side, the handle reports it as
// disconnected. A default Connection refers to nothing.
//
// May be copied and used from any thread.

#include "GLUV/ConnectionCore.h"

#include <memory>

namespace GLUV {

class Connection {
public:
    Connection() = default;
    explicit Connection(std::weak_ptr<ConnectionCore> core) : m_core(std::move(core)) {}

    // Ends the connection; nothing happens if it has ended already.
    void disconnect()
    {
        if (std::shared_ptr<ConnectionCore> core = m_core.lock()) core->disconnect();
    }
    bool isConnected() const
    {
        std::shared_ptr<ConnectionCore> core = m_core.lock();
        return core && core->isConnected();
    }

private:
    std::weak_ptr<ConnectionCore> m_core;
};

} // namespace GLUV
