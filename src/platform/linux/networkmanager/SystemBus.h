#pragma once

#include "platform/linux/networkmanager/GLibLoop.h"

namespace ardeo
{

/// A connection of our own to the system bus, kept from one operation to the next. It is used from one thread
/// at a time.
class SystemBus
{
public:
    /// The open connection; null when there is none in time. One that was lost is made anew.
    GDBusConnection* connection(GLibLoop& loop, QDeadlineTimer deadline);

private:
    GRef<GDBusConnection> m_connection;
};

} // namespace ardeo
