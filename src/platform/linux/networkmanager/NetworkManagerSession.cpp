#include "platform/linux/networkmanager/NetworkManagerSession.h"

#include <QByteArray>

#include <utility>

namespace ardeo
{

namespace
{

/// Whether the daemon of that name on the bus answers in time.
bool answers(GLibLoop& loop, QDeadlineTimer deadline, GDBusConnection* bus, const char* name)
{
    const auto result =
        loop.call(deadline, [=](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            g_dbus_connection_call(bus, name, NM_DBUS_PATH, "org.freedesktop.DBus.Properties", "Get",
                                   g_variant_new("(ss)", NM_DBUS_INTERFACE, "Version"), nullptr,
                                   G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, cancellable, done, data);
        });
    return GVariantRef(g_dbus_connection_call_finish(bus, result.get(), nullptr)) != nullptr;
}

} // namespace

void DaemonView::dropClient()
{
    if (!client)
        return;
    // The client's calls that are still under way hold on to its context; they end only while it runs.
    GWeakRef busy;
    g_weak_ref_init(&busy, nm_client_get_context_busy_watcher(client.get()));
    client.reset();
    loop.runUntil(QDeadlineTimer(NetworkManagerSession::operationMilliseconds), [&busy] {
        const GRef<GObject> alive(static_cast<GObject*>(g_weak_ref_get(&busy)));
        return alive == nullptr;
    });
    g_weak_ref_clear(&busy);
}

NetworkManagerSession::NetworkManagerSession(DaemonView& view)
    : m_view(view)
    , m_deadline(operationMilliseconds)
{
    m_view.refusal.clear();
}

NMClient* NetworkManagerSession::client()
{
    if (std::exchange(m_asked, true))
        return m_view.client.get();
    const bool isTold = m_view.client && !m_view.toldUntil.hasExpired();
    return isTold || (m_view.client && catchUp()) ? m_view.client.get() : connect();
}

GRef<NMConnection> NetworkManagerSession::read(NMRemoteConnection* profile, GLibError& error)
{
    const GVariantRef answer = ask(profile, "GetSettings", nullptr, "(a{sa{sv}})", error);
    if (!answer)
        return nullptr;
    const GVariantRef settings(g_variant_get_child_value(answer.get(), 0));
    return GRef<NMConnection>(nm_simple_connection_new_from_dbus(settings.get(), error.out()));
}

/// The daemon answers in turn: what it told before comes before its answer. What is new makes the client ask
/// for more, so that a second answer is waited for. False when the daemon is another one now, or none.
bool NetworkManagerSession::catchUp()
{
    NMClient* const client = m_view.client.get();
    GDBusConnection* const bus = nm_client_get_dbus_connection(client);
    const QByteArray daemon(nm_client_get_dbus_name_owner(client));
    for (int answer = 0; answer < 2; ++answer) {
        if (daemon.isEmpty() || !answers(m_view.loop, daemonDeadline(), bus, daemon.constData()))
            return false;
    }
    return nm_client_get_nm_running(client) != FALSE;
}

NMClient* NetworkManagerSession::connect()
{
    m_view.dropClient();
    GDBusConnection* const bus = m_view.bus.connection(m_view.loop, m_deadline);
    if (!bus) {
        // A bus that is stopped lets everybody wait.
        m_view.presence = m_deadline.hasExpired() ? DaemonPresence::silent : DaemonPresence::absent;
        return nullptr;
    }
    auto result = m_view.loop.call(
        m_deadline, [bus](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            // The permissions of this process are not asked for: that is polkit's to tell, and only when
            // needed.
            g_async_initable_new_async(NM_TYPE_CLIENT, G_PRIORITY_DEFAULT, cancellable, done, data,
                                       NM_CLIENT_DBUS_CONNECTION, bus, NM_CLIENT_INSTANCE_FLAGS,
                                       NM_CLIENT_INSTANCE_FLAGS_NO_AUTO_FETCH_PERMISSIONS, nullptr);
        });
    m_view.client.reset(nm_client_new_finish(result.get(), nullptr));
    result.reset(); // it holds on to the client, too
    if (m_view.client && nm_client_get_nm_running(m_view.client.get())) {
        m_view.presence = DaemonPresence::answers;
        return m_view.client.get();
    }
    m_view.presence = m_view.client ? DaemonPresence::absent : DaemonPresence::silent;
    m_view.dropClient();
    return nullptr;
}

NMClient* NetworkManagerSession::reconnect()
{
    m_asked = true;
    return connect();
}

GVariantRef NetworkManagerSession::ask(const char* method, GVariant* arguments, const char* replyType,
                                       GLibError& error)
{
    return call(NM_DBUS_PATH, NM_DBUS_INTERFACE, method, arguments, replyType, error);
}

GVariantRef NetworkManagerSession::ask(NMRemoteConnection* profile, const char* method, GVariant* arguments,
                                       const char* replyType, GLibError& error)
{
    return call(nm_connection_get_path(NM_CONNECTION(profile)), NM_DBUS_INTERFACE_SETTINGS_CONNECTION, method,
                arguments, replyType, error);
}

GVariantRef NetworkManagerSession::call(const char* path, const char* interface, const char* method,
                                        GVariant* arguments, const char* replyType, GLibError& error)
{
    GDBusConnection* const bus = nm_client_get_dbus_connection(m_view.client.get());
    const auto ended =
        m_view.loop.call(m_deadline, [=](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            // The operation's own deadline ends it; a person who is asked may take longer than any other.
            g_dbus_connection_call(bus, NM_DBUS_SERVICE, path, interface, method, arguments,
                                   replyType ? G_VARIANT_TYPE(replyType) : nullptr,
                                   G_DBUS_CALL_FLAGS_NO_AUTO_START, G_MAXINT, cancellable, done, data);
        });
    GVariantRef answer(g_dbus_connection_call_finish(bus, ended.get(), error.out()));
    m_view.refusal.clear();
    if (!answer && g_dbus_error_is_remote_error(error.get())) {
        g_dbus_error_strip_remote_error(error.get());
        m_view.refusal = QString::fromUtf8(error.get()->message);
    }
    return answer;
}

} // namespace ardeo
