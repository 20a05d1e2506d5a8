#include "platform/linux/networkmanager/SystemBus.h"

namespace ardeo
{

GDBusConnection* SystemBus::connection(GLibLoop& loop, QDeadlineTimer deadline)
{
    if (m_connection && !g_dbus_connection_is_closed(m_connection.get()))
        return m_connection.get();
    m_connection.reset();
    const std::unique_ptr<char, decltype(&g_free)> address(
        g_dbus_address_get_for_bus_sync(G_BUS_TYPE_SYSTEM, nullptr, nullptr), &g_free);
    if (!address)
        return nullptr;
    constexpr auto flags = static_cast<GDBusConnectionFlags>(G_DBUS_CONNECTION_FLAGS_AUTHENTICATION_CLIENT |
                                                             G_DBUS_CONNECTION_FLAGS_MESSAGE_BUS_CONNECTION);
    const auto ended =
        loop.call(deadline, [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            g_dbus_connection_new_for_address(address.get(), flags, nullptr, cancellable, done, data);
        });
    m_connection.reset(g_dbus_connection_new_for_address_finish(ended.get(), nullptr));
    return m_connection.get();
}

} // namespace ardeo
