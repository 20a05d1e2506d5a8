#pragma once

#include "platform/linux/networkmanager/GLibLoop.h"

#include <vector>

namespace ardeo
{

/// Notes, while its loop runs, that NetworkManager or the host name tells of a change, and that the daemon
/// comes or goes.
class ChangeSignals
{
public:
    /// Listens on the bus for as long as it lives.
    ChangeSignals(GLibLoop& loop, GDBusConnection* bus);
    ChangeSignals(const ChangeSignals&) = delete;
    ChangeSignals& operator=(const ChangeSignals&) = delete;
    ~ChangeSignals();

    /// Whether something was told since the last clear.
    bool hasChanged() const { return m_hasChanged; }
    /// Whether that was but new values of what is known, which the client has taken in without asking for
    /// more.
    bool onlyValuesHaveChanged() const { return m_hasChanged && !m_hasChangedOtherwise; }
    void clear() { m_hasChanged = m_hasChangedOtherwise = false; }
    /// Whether the bus has been lost, so that nothing more will be told.
    bool isOver() const { return g_dbus_connection_is_closed(m_bus.get()) != FALSE; }

private:
    GRef<GDBusConnection> m_bus;
    std::vector<guint> m_subscriptions;
    bool m_hasChanged = false;
    bool m_hasChangedOtherwise = false;
};

} // namespace ardeo
