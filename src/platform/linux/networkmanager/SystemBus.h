#pragma once

#include "platform/linux/networkmanager/GLibLoop.h"

namespace ardeo
{

/// A connection of our own to the system bus. It is begun at once, so that it is there when it is needed, and
/// kept from one operation to the next, since making it takes longer than most questions that are asked over
/// it. Apart from the construction it is used from one thread at a time.
class SystemBus
{
public:
    SystemBus();
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;
    ~SystemBus();

    /// The open connection; null when there is none in time. One that was lost is made anew.
    GDBusConnection* connection(QDeadlineTimer deadline);

private:
    void begin();

    GLibLoop m_loop;
    GRef<GCancellable> m_cancellable;
    GRef<GAsyncResult> m_result; // of the attempt that was begun last
    bool m_underWay = false;
    GRef<GDBusConnection> m_connection;
};

} // namespace ardeo
