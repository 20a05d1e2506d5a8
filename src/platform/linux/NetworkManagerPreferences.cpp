#include "platform/linux/NetworkManagerPreferences.h"

#include "platform/linux/NetworkManagerServices.h"
#include "platform/linux/PolkitRights.h"
#include "platform/linux/ProfileTranslation.h"

#include <QElapsedTimer>

#include <fcntl.h>
#include <utility>

namespace ardeo
{

namespace
{

/// The daemon's runtime folder: it is there when the daemon is, everybody may open it for reading, and a lock
/// on it vanishes with its holder, however that one ends.
constexpr auto lockFolder = "/run/NetworkManager";

/// The status that stands for a call of the daemon that failed.
SystemStatus statusOf(const GLibError& error)
{
    if (!error)
        return SystemStatus::failed;
    const auto is = [&error](GQuark domain, int code) {
        return g_error_matches(error.get(), domain, code) != FALSE;
    };
    if (is(G_IO_ERROR, G_IO_ERROR_CANCELLED) || is(G_IO_ERROR, G_IO_ERROR_CLOSED) ||
        is(G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN) || is(G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER) ||
        is(G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY) || is(G_DBUS_ERROR, G_DBUS_ERROR_DISCONNECTED))
        return SystemStatus::noStoreServer;
    if (is(NM_SETTINGS_ERROR, NM_SETTINGS_ERROR_PERMISSION_DENIED) ||
        is(NM_MANAGER_ERROR, NM_MANAGER_ERROR_PERMISSION_DENIED) ||
        is(G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED))
        return SystemStatus::accessError;
    if (error.get()->domain == NM_CONNECTION_ERROR ||
        is(NM_SETTINGS_ERROR, NM_SETTINGS_ERROR_INVALID_CONNECTION))
        return SystemStatus::invalidArgument;
    if (is(G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_OBJECT) || is(G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_METHOD))
        return SystemStatus::noKey; // the profile was deleted
    return SystemStatus::failed;
}

/// Writes what was set into the profile; false when it cannot be taken.
bool translate(const Profile& changes, NMConnection* profile)
{
    if (changes.ipv4) {
        const auto checked = checkedIPv4(*changes.ipv4);
        if (!checked)
            return false;
        setIPv4(profile, *checked);
    }
    if (changes.dns) {
        const auto checked = checkedDNS(*changes.dns);
        if (!checked)
            return false;
        setDNS(profile, *checked);
    }
    if (changes.enabled) {
        g_object_set(nm_connection_get_setting_connection(profile), NM_SETTING_CONNECTION_AUTOCONNECT,
                     *changes.enabled ? TRUE : FALSE, nullptr);
    }
    return nm_connection_normalize(profile, nullptr, nullptr, nullptr) != FALSE;
}

bool isAutoconnected(NMConnection* profile)
{
    return nm_setting_connection_get_autoconnect(nm_connection_get_setting_connection(profile)) != FALSE;
}

/// Reads a profile from the daemon, not from the snapshot; null with the error when that fails.
GRef<NMConnection> readAnew(NetworkManagerSession& session, NMRemoteConnection* connection, GLibError& error)
{
    GDBusConnection* bus = nm_client_get_dbus_connection(session.client());
    const auto ended = session.loop().call(
        session.deadline(), [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            g_dbus_connection_call(bus, NM_DBUS_SERVICE, nm_connection_get_path(NM_CONNECTION(connection)),
                                   NM_DBUS_INTERFACE_SETTINGS_CONNECTION, "GetSettings", nullptr,
                                   G_VARIANT_TYPE("(a{sa{sv}})"), G_DBUS_CALL_FLAGS_NO_AUTO_START, -1,
                                   cancellable, done, data);
        });
    const GVariantRef answer(g_dbus_connection_call_finish(bus, ended.get(), error.out()));
    if (!answer)
        return nullptr;
    const GVariantRef settings(g_variant_get_child_value(answer.get(), 0));
    return GRef<NMConnection>(nm_simple_connection_new_from_dbus(settings.get(), error.out()));
}

} // namespace

NetworkManagerPreferences::NetworkManagerPreferences(std::shared_ptr<NetworkManagerSession> session,
                                                     SystemStatus& status, bool authorized)
    : m_session(std::move(session))
    , m_status(status)
    , m_authorized(authorized)
    , m_lock(QLatin1String(lockFolder), O_RDONLY | O_DIRECTORY)
{
}

bool NetworkManagerPreferences::end(SystemStatus status)
{
    m_status = status;
    return status == SystemStatus::ok;
}

std::shared_ptr<NetworkSet> NetworkManagerPreferences::currentSet()
{
    m_status = SystemStatus::ok;
    if (!m_profilesListed) {
        m_profiles = listProfiles(m_session->client());
        m_profilesListed = true;
    }
    return networkSetOf(m_session, m_profiles);
}

bool NetworkManagerPreferences::lock(bool wait)
{
    if (!m_authorized)
        return end(SystemStatus::accessError);
    if (m_lock.isTaken())
        return end(SystemStatus::locked);
    SystemStatus status = takeFileLock(wait);
    if (status == SystemStatus::ok)
        status = checkRights();
    if (status != SystemStatus::ok)
        unlock();
    return end(status);
}

SystemStatus NetworkManagerPreferences::takeFileLock(bool wait)
{
    SystemStatus status = m_lock.take(false);
    if (status != SystemStatus::preferencesBusy || !wait)
        return status;
    QElapsedTimer waiting;
    waiting.start();
    status = m_lock.take(true);
    if (status != SystemStatus::ok)
        return status;
    m_session->extendDeadline(waiting.elapsed());
    // What the holder before us wrote is what we have to start from.
    m_profilesListed = false;
    return m_session->reconnect() ? SystemStatus::ok : SystemStatus::noStoreServer;
}

SystemStatus NetworkManagerPreferences::checkRights()
{
    for (const char* action : networkActions()) {
        const auto answer = askPolkit(m_session->loop(), m_session->deadline(), action, false);
        // A consent that lapsed is refused here, so that the next action prompts and not the daemon in the
        // middle of this one. One that polkit never keeps can only be asked for by the daemon itself.
        if (!answer || (!answer->authorized && answer->keepsConsent))
            return SystemStatus::accessError;
        if (!answer->authorized)
            m_session->removeDeadline();
    }
    return SystemStatus::ok;
}

bool NetworkManagerPreferences::unlock()
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    m_lock.release();
    return end(SystemStatus::ok);
}

bool NetworkManagerPreferences::commitChanges()
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    for (const auto& profile : m_profiles) {
        if (!profile->seen)
            continue;
        const SystemStatus status = commit(*profile);
        if (status != SystemStatus::ok)
            return end(status);
    }
    return end(SystemStatus::ok);
}

SystemStatus NetworkManagerPreferences::commit(Profile& profile)
{
    GLibError error;
    GRef<NMConnection> changed = readAnew(*m_session, profile.connection.get(), error);
    if (!changed)
        return statusOf(error);
    constexpr auto ignored = static_cast<NMSettingCompareFlags>(NM_SETTING_COMPARE_FLAG_IGNORE_SECRETS |
                                                                NM_SETTING_COMPARE_FLAG_IGNORE_TIMESTAMP);
    if (!nm_connection_compare(changed.get(), profile.seen.get(), ignored))
        return SystemStatus::stale;
    if (!translate(profile, changed.get()))
        return SystemStatus::invalidArgument;

    // To disk, also if the daemon made the profile up; and without connecting by itself, which is for apply
    // to do. Secrets are not among what was read, and an update without any leaves them as they are.
    constexpr auto flags = static_cast<NMSettingsUpdate2Flags>(NM_SETTINGS_UPDATE2_FLAG_TO_DISK |
                                                               NM_SETTINGS_UPDATE2_FLAG_BLOCK_AUTOCONNECT);
    const auto ended = m_session->loop().call(
        m_session->deadline(), [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            nm_remote_connection_update2(profile.connection.get(),
                                         nm_connection_to_dbus(changed.get(), NM_CONNECTION_SERIALIZE_ALL),
                                         flags, nullptr, cancellable, done, data);
        });
    const GVariantRef updated(
        nm_remote_connection_update2_finish(profile.connection.get(), ended.get(), error.out()));
    if (!updated)
        return statusOf(error);
    profile.justEnabled = !isAutoconnected(profile.seen.get()) && isAutoconnected(changed.get());
    profile.seen.reset();
    profile.committed = std::move(changed);
    return SystemStatus::ok;
}

bool NetworkManagerPreferences::applyChanges()
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    for (const auto& profile : m_profiles) {
        if (!profile->committed)
            continue;
        const SystemStatus status = apply(*profile);
        if (status != SystemStatus::ok)
            return end(status);
    }
    return end(SystemStatus::ok);
}

SystemStatus NetworkManagerPreferences::apply(const Profile& profile)
{
    NMClient* client = m_session->client();
    if (!nm_client_get_nm_running(client))
        return SystemStatus::noStoreServer;
    NMRemoteConnection* connection = profile.connection.get();
    NMActiveConnection* active = activationOf(client, connection);
    if (!isAutoconnected(profile.committed.get()))
        return active ? deactivate(active) : SystemStatus::ok;

    const QByteArrayView method(
        nm_setting_ip_config_get_method(nm_connection_get_setting_ip4_config(profile.committed.get())));
    const bool dhcp = method == NM_SETTING_IP4_CONFIG_METHOD_AUTO;
    // The daemon may go away while it is asked, and its objects with it.
    const GRef<NMDevice> device = newRef(deviceOf(client, connection));
    if (active) {
        // Reapplying would send no DHCP message, and it is a fresh lease that is wanted here.
        const bool complete = nm_active_connection_get_state(active) == NM_ACTIVE_CONNECTION_STATE_ACTIVATED;
        if (!dhcp && device && complete && reapply(device.get()))
            return SystemStatus::ok;
        return activate(connection, device.get(), dhcp);
    }
    // Without a device that could take it at once, the next activation will find it as it was saved.
    if (!device)
        return SystemStatus::ok;
    const NMDeviceState state = nm_device_get_state(device.get());
    const bool free = state == NM_DEVICE_STATE_DISCONNECTED || state == NM_DEVICE_STATE_FAILED;
    const bool ready = state >= NM_DEVICE_STATE_DISCONNECTED;
    return free || (ready && profile.justEnabled) ? activate(connection, device.get(), dhcp)
                                                  : SystemStatus::ok;
}

bool NetworkManagerPreferences::reapply(NMDevice* device)
{
    const auto ended = m_session->loop().call(
        m_session->deadline(), [device](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            nm_device_reapply_async(device, nullptr, 0, 0, cancellable, done, data);
        });
    return nm_device_reapply_finish(device, ended.get(), nullptr) != FALSE;
}

SystemStatus NetworkManagerPreferences::activate(NMRemoteConnection* connection, NMDevice* device, bool dhcp)
{
    NMClient* client = m_session->client();
    GDBusConnection* bus = nm_client_get_dbus_connection(client);
    // Not by the library's own call: that waits for the activation to show up, and when the daemon goes away
    // first, it neither ends nor can be cancelled.
    const auto ended = m_session->loop().call(
        m_session->deadline(), [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            const char* any = "/";
            g_dbus_connection_call(
                bus, NM_DBUS_SERVICE, NM_DBUS_PATH, NM_DBUS_INTERFACE, "ActivateConnection",
                g_variant_new("(ooo)", nm_connection_get_path(NM_CONNECTION(connection)),
                              device ? nm_object_get_path(NM_OBJECT(device)) : any, any),
                G_VARIANT_TYPE("(o)"), G_DBUS_CALL_FLAGS_NO_AUTO_START, -1, cancellable, done, data);
        });
    GLibError error;
    const GVariantRef answer(g_dbus_connection_call_finish(bus, ended.get(), error.out()));
    if (!answer)
        return statusOf(error);
    const char* path = nullptr;
    g_variant_get(answer.get(), "(&o)", &path);

    // An address that was set is in force once the activation is complete. A network that is asked for one
    // may take its time, or never answer; there the activation has done its part when it begins to ask, and
    // where a person has to be asked for a secret, when it begins to wait for them.
    GRef<NMActiveConnection> active;
    bool done = false;
    const bool settled = m_session->loop().runUntil(m_session->deadline(), [&] {
        if (!nm_client_get_nm_running(client))
            return true;
        NMObject* shown = nm_client_get_object_by_path(client, path);
        if (!active && NM_IS_ACTIVE_CONNECTION(shown))
            active = newRef(NM_ACTIVE_CONNECTION(shown));
        if (!active)
            return false;
        const auto state = nm_active_connection_get_state(active.get());
        done = state == NM_ACTIVE_CONNECTION_STATE_ACTIVATED;
        if (!done && device && nm_device_get_active_connection(device) == active.get()) {
            const NMDeviceState reached = nm_device_get_state(device);
            done = reached == NM_DEVICE_STATE_NEED_AUTH ||
                   (dhcp && reached >= NM_DEVICE_STATE_IP_CONFIG && reached <= NM_DEVICE_STATE_ACTIVATED);
        }
        return done || state == NM_ACTIVE_CONNECTION_STATE_DEACTIVATED;
    });
    if (done)
        return SystemStatus::ok;
    return settled && nm_client_get_nm_running(client) ? SystemStatus::failed : SystemStatus::noStoreServer;
}

SystemStatus NetworkManagerPreferences::deactivate(NMActiveConnection* borrowed)
{
    NMClient* client = m_session->client();
    const GRef<NMActiveConnection> active = newRef(borrowed);
    const auto ended = m_session->loop().call(
        m_session->deadline(), [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            nm_client_deactivate_connection_async(client, active.get(), cancellable, done, data);
        });
    GLibError error;
    if (!nm_client_deactivate_connection_finish(client, ended.get(), error.out()))
        return statusOf(error);
    const bool down = m_session->loop().runUntil(m_session->deadline(), [&] {
        return nm_active_connection_get_state(active.get()) == NM_ACTIVE_CONNECTION_STATE_DEACTIVATED ||
               !nm_client_get_nm_running(client);
    });
    return down && nm_client_get_nm_running(client) ? SystemStatus::ok : SystemStatus::noStoreServer;
}

} // namespace ardeo
