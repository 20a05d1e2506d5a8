#include "platform/linux/networkmanager/SystemBus.h"

namespace ardeo
{

SystemBus::SystemBus()
{
    begin();
}

SystemBus::~SystemBus()
{
    if (!m_underWay)
        return;
    // The attempt holds on to this object until it has ended.
    g_cancellable_cancel(m_cancellable.get());
    m_loop.runUntil(QDeadlineTimer(QDeadlineTimer::Forever), [this] { return !m_underWay; });
}

void SystemBus::begin()
{
    m_cancellable.reset(g_cancellable_new());
    const std::unique_ptr<char, decltype(&g_free)> address(
        g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr), &g_free);
    if (!address)
        return;
    const auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                         G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    const GAsyncReadyCallback keepResult = [](GObject*, GAsyncResult* ended, gpointer data) {
        auto* const self = static_cast<SystemBus*>(data);
        self->m_result = newRef(ended);
        self->m_underWay = false;
    };
    m_underWay = true;
    m_loop.start([&] {
        g_dbus_connection_new_for_address(address.get(), flags, nullptr, m_cancellable.get(), keepResult,
                                          this);
    });
}

GDBusConnection* SystemBus::connection(QDeadlineTimer deadline)
{
    if (m_connection && g_dbus_connection_is_closed(m_connection.get()))
        m_connection.reset();
    if (!m_connection) {
        if (!m_underWay && !m_result)
            begin();
        if (!m_loop.runUntil(deadline, [this] { return !m_underWay; })) {
            g_cancellable_cancel(m_cancellable.get());
            m_loop.runUntil(QDeadlineTimer(QDeadlineTimer::Forever), [this] { return !m_underWay; });
        }
        if (const auto result = std::move(m_result))
            m_connection.reset(g_dbus_connection_new_for_address_finish(result.get(), nullptr));
    }
    return m_connection.get();
}

} // namespace ardeo
