#include "platform/linux/NetworkManagerSession.h"

/// The TLS library that comes with libnm asks this when it is loaded: whether to leave its initialisation to
/// those who use it. libnm initialises it before it looks at a certificate, which hardly ever happens here,
/// so that each start and half a megabyte are saved.
extern "C" int _gnutls_global_init_skip()
{
    return 1;
}

namespace ardeo
{

namespace
{

constexpr int operationMilliseconds = 10'000;

} // namespace

NetworkManagerSession::NetworkManagerSession(SystemBus& bus, std::atomic<DaemonPresence>& presence)
    : m_bus(bus)
    , m_presence(presence)
    , m_deadline(operationMilliseconds)
{
}

NetworkManagerSession::~NetworkManagerSession()
{
    disconnect();
}

NMClient* NetworkManagerSession::client()
{
    if (m_asked)
        return m_client.get();
    m_asked = true;
    GDBusConnection* const bus = m_bus.connection(m_deadline);
    if (!bus) {
        m_presence = DaemonPresence::absent;
        return nullptr;
    }
    auto result =
        m_loop.call(m_deadline, [bus](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            // The permissions of this process are not asked for: that is polkit's to tell, and only when
            // needed.
            g_async_initable_new_async(NM_TYPE_CLIENT, G_PRIORITY_DEFAULT, cancellable, done, data,
                                       NM_CLIENT_DBUS_CONNECTION, bus, NM_CLIENT_INSTANCE_FLAGS,
                                       NM_CLIENT_INSTANCE_FLAGS_NO_AUTO_FETCH_PERMISSIONS, nullptr);
        });
    m_client.reset(nm_client_new_finish(result.get(), nullptr));
    result.reset(); // it holds on to the client, too
    if (m_client && nm_client_get_nm_running(m_client.get())) {
        m_presence = DaemonPresence::answers;
        return m_client.get();
    }
    m_presence = m_client ? DaemonPresence::absent : DaemonPresence::silent;
    disconnect();
    return nullptr;
}

NMClient* NetworkManagerSession::reconnect()
{
    disconnect();
    m_asked = false;
    return client();
}

void NetworkManagerSession::disconnect()
{
    if (!m_client)
        return;
    // The client's calls that are still under way hold on to its context; they end only while it runs.
    GWeakRef busy;
    g_weak_ref_init(&busy, nm_client_get_context_busy_watcher(m_client.get()));
    m_client.reset();
    m_loop.runUntil(QDeadlineTimer(operationMilliseconds), [&busy] {
        const GRef<GObject> alive(static_cast<GObject*>(g_weak_ref_get(&busy)));
        return alive == nullptr;
    });
    g_weak_ref_clear(&busy);
}

DaemonPresence probeNetworkManager(int milliseconds)
{
    GLibLoop loop;
    const QDeadlineTimer deadline(milliseconds);
    const auto bus = loop.systemBus(deadline);
    if (!bus)
        return DaemonPresence::absent;
    const auto result = loop.call(deadline, [&bus](GCancellable* cancellable, GAsyncReadyCallback done,
                                                   gpointer data) {
        g_dbus_connection_call(bus.get(), NM_DBUS_SERVICE, NM_DBUS_PATH, "org.freedesktop.DBus.Properties",
                               "Get", g_variant_new("(ss)", NM_DBUS_INTERFACE, "Version"), nullptr,
                               G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, cancellable, done, data);
    });
    GLibError error;
    const GVariantRef answer(g_dbus_connection_call_finish(bus.get(), result.get(), error.out()));
    if (answer)
        return DaemonPresence::answers;
    const bool nobody = g_error_matches(error.get(), G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN) ||
                        g_error_matches(error.get(), G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER) ||
                        g_error_matches(error.get(), G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY);
    return nobody ? DaemonPresence::absent : DaemonPresence::silent;
}

} // namespace ardeo
