#include "platform/linux/networkmanager/NetworkManagerActivation.h"

#include "platform/linux/networkmanager/NetworkManagerError.h"
#include "platform/linux/networkmanager/NetworkManagerServices.h"

#include <algorithm>

namespace ardeo
{

namespace
{

/// Milliseconds at the end of an operation's time that are kept to ask whether the daemon is still there.
constexpr int lastQuestion = 1000;

const char* pathOf(gpointer object)
{
    return nm_object_get_path(NM_OBJECT(object));
}

/// How far its device has come with the activation; unknown before it has begun with it.
NMDeviceState deviceStateOf(NMActiveConnection* active)
{
    NMDevice* device = deviceOf(active);
    return device && nm_device_get_active_connection(device) == active ? nm_device_get_state(device)
                                                                       : NM_DEVICE_STATE_UNKNOWN;
}

/// An Ethernet profile without addresses that the daemon forgets when it goes down, or when its maker does;
/// for the same user alone, where the other profile is.
GVariant* standInArguments(NMConnection* profileToReplace, const char* device)
{
    const auto method = [](const char* name) {
        GVariantBuilder settings;
        g_variant_builder_init(&settings, G_VARIANT_TYPE_VARDICT);
        g_variant_builder_add(&settings, "{sv}", NM_SETTING_IP_CONFIG_METHOD, g_variant_new_string(name));
        return g_variant_builder_end(&settings);
    };
    GVariantBuilder common;
    g_variant_builder_init(&common, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&common, "{sv}", NM_SETTING_CONNECTION_ID, g_variant_new_string("Ardeo IP Config"));
    g_variant_builder_add(&common, "{sv}", NM_SETTING_CONNECTION_TYPE,
                          g_variant_new_string(NM_SETTING_WIRED_SETTING_NAME));
    NMSettingConnection* replaced = nm_connection_get_setting_connection(profileToReplace);
    GVariantBuilder permissions;
    g_variant_builder_init(&permissions, G_VARIANT_TYPE_STRING_ARRAY);
    for (guint i = 0; i < nm_setting_connection_get_num_permissions(replaced); ++i) {
        const char* user = nullptr;
        if (nm_setting_connection_get_permission(replaced, i, nullptr, &user, nullptr))
            g_variant_builder_add_value(&permissions,
                                        g_variant_new_take_string(g_strdup_printf("user:%s:", user)));
    }
    g_variant_builder_add(&common, "{sv}", NM_SETTING_CONNECTION_PERMISSIONS,
                          g_variant_builder_end(&permissions));
    GVariantBuilder profile;
    g_variant_builder_init(&profile, G_VARIANT_TYPE("a{sa{sv}}"));
    g_variant_builder_add(&profile, "{s@a{sv}}", NM_SETTING_CONNECTION_SETTING_NAME,
                          g_variant_builder_end(&common));
    g_variant_builder_add(&profile, "{s@a{sv}}", NM_SETTING_IP4_CONFIG_SETTING_NAME,
                          method(NM_SETTING_IP4_CONFIG_METHOD_DISABLED));
    g_variant_builder_add(&profile, "{s@a{sv}}", NM_SETTING_IP6_CONFIG_SETTING_NAME,
                          method(NM_SETTING_IP6_CONFIG_METHOD_DISABLED));
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&options, "{sv}", "persist", g_variant_new_string("volatile"));
    g_variant_builder_add(&options, "{sv}", "bind-activation", g_variant_new_string("dbus-client"));
    return g_variant_new("(a{sa{sv}}ooa{sv})", &profile, device, "/", &options);
}

} // namespace

SystemStatus NetworkManagerActivation::renew(NMActiveConnection* active, NMDevice* device, bool freshLease)
{
    const bool complete = nm_active_connection_get_state(active) == NM_ACTIVE_CONNECTION_STATE_ACTIVATED;
    // Reapplying keeps the lease and, while only DNS changes, the addresses.
    const bool asksAnew = freshLease && isOnDHCP();
    if (device && complete && !asksAnew && reapply(device))
        return SystemStatus::ok;
    // A VPN cannot be activated on top of itself.
    const SystemStatus status = device ? SystemStatus::ok : deactivate(pathOf(active));
    return status == SystemStatus::ok ? takeUp(device) : status;
}

bool NetworkManagerActivation::isOnDHCP() const
{
    NMSettingIPConfig* ipv4 = nm_connection_get_setting_ip4_config(m_saved);
    return QByteArrayView(nm_setting_ip_config_get_method(ipv4)) == NM_SETTING_IP4_CONFIG_METHOD_AUTO;
}

/// A VPN is connected only when somebody asks for it.
bool NetworkManagerActivation::daemonTriesAgain() const
{
    return nm_setting_connection_get_autoconnect(nm_connection_get_setting_connection(m_saved)) &&
           !nm_connection_is_type(m_saved, NM_SETTING_VPN_SETTING_NAME);
}

bool NetworkManagerActivation::reapply(NMDevice* device)
{
    const auto ended = m_session.loop().call(
        m_session.deadline(), [device](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            nm_device_reapply_async(device, nullptr, 0, 0, cancellable, done, data);
        });
    return nm_device_reapply_finish(device, ended.get(), nullptr) != FALSE;
}

SystemStatus NetworkManagerActivation::takeUp(NMDevice* device)
{
    QByteArray path;
    const SystemStatus status = begin(device, path);
    return path.isEmpty() ? status : waitForIPv4(path.constData(), device);
}

SystemStatus NetworkManagerActivation::beginToTakeUp(NMDevice* device)
{
    QByteArray path;
    return begin(device, path);
}

SystemStatus NetworkManagerActivation::begin(NMDevice* device, QByteArray& path)
{
    // Not by the library's own call: that waits for the activation to show up, and when the daemon goes away
    // first, it neither ends nor can be cancelled.
    GLibError error;
    const GVariantRef answer = m_session.ask(
        "ActivateConnection", g_variant_new("(ooo)", pathOf(m_profile), device ? pathOf(device) : "/", "/"),
        "(o)", error);
    if (!answer)
        return daemonTriesAgain() && isNotAvailable(error) ? SystemStatus::ok : statusOf(error);
    const char* text = nullptr;
    g_variant_get(answer.get(), "(&o)", &text);
    path = text;
    return SystemStatus::ok;
}

/// An address that was set is in force once IPv4 is ready; what else the activation waits for (IPv6, a
/// script) does not matter here. A network that is asked for an address may take its time, or never answer;
/// there the activation has done its part when it begins to ask, and where a person has to be asked for a
/// secret, when it begins to wait for them.
SystemStatus NetworkManagerActivation::waitForIPv4(const char* path, NMDevice* device)
{
    NMClient* client = m_session.client();
    const bool dhcp = isOnDHCP();
    QDeadlineTimer limit = m_session.deadline();
    limit = limit.isForever() ? QDeadlineTimer(NetworkManagerSession::operationMilliseconds) : limit;
    limit -= lastQuestion;
    GRef<NMActiveConnection> active;
    bool done = false;
    const bool settled = m_session.loop().runUntil(limit, [&] {
        if (!nm_client_get_nm_running(client))
            return true;
        NMObject* shown = nm_client_get_object_by_path(client, path);
        if (!active && NM_IS_ACTIVE_CONNECTION(shown))
            active = newRef(NM_ACTIVE_CONNECTION(shown));
        if (!active)
            return false;
        const auto state = nm_active_connection_get_state(active.get());
        const auto flags = nm_active_connection_get_state_flags(active.get());
        const NMDeviceState reached = deviceStateOf(active.get());
        done = state == NM_ACTIVE_CONNECTION_STATE_ACTIVATED ||
               (state == NM_ACTIVE_CONNECTION_STATE_ACTIVATING &&
                ((flags & NM_ACTIVATION_STATE_FLAG_IP4_READY) != 0 || reached == NM_DEVICE_STATE_NEED_AUTH ||
                 (dhcp && reached >= NM_DEVICE_STATE_IP_CONFIG && reached <= NM_DEVICE_STATE_ACTIVATED)));
        return done || state == NM_ACTIVE_CONNECTION_STATE_DEACTIVATED;
    });
    if (done)
        return SystemStatus::ok;
    if (settled && !nm_client_get_nm_running(client))
        return SystemStatus::noStoreServer;
    if (settled)
        return hasLostItsCable(device) && daemonTriesAgain() ? SystemStatus::ok : SystemStatus::failed;
    // The other side (an access point, an authenticator) takes its time; the daemon goes on by itself.
    const bool waitsForOthers = active && deviceStateOf(active.get()) < NM_DEVICE_STATE_IP_CONFIG;
    return waitsForOthers && m_session.catchUp() ? SystemStatus::ok : SystemStatus::noStoreServer;
}

/// The activation ends a moment before the device tells why.
bool NetworkManagerActivation::hasLostItsCable(NMDevice* device)
{
    constexpr int moment = 1000;
    const QDeadlineTimer limit = std::min(m_session.deadline(), QDeadlineTimer(moment));
    return device &&
           m_session.loop().runUntil(limit, [device] { return readinessOf(device) == Readiness::unready; });
}

/// The daemon takes the end of an activation for the user's wish that the profile is never connected by
/// itself again until it has been activated by hand, which is not possible while a cable is out. So what is
/// ended at the user's wish is a profile without addresses that takes the place of an Ethernet profile first.
/// (Where there is no cable, enabling can always begin an activation.)
SystemStatus NetworkManagerActivation::takeDown(NMActiveConnection* active)
{
    const GRef<NMActiveConnection> held = newRef(active);
    const bool isEthernet = nm_connection_is_type(m_saved, NM_SETTING_WIRED_SETTING_NAME) != FALSE;
    return isEthernet && replaceByStandIn(held.get()) ? SystemStatus::ok : deactivate(pathOf(held.get()));
}

/// False when it had to be left as it was.
bool NetworkManagerActivation::replaceByStandIn(NMActiveConnection* active)
{
    NMDevice* device = deviceOf(active);
    if (!device)
        return false;
    GLibError error;
    const GVariantRef answer = m_session.ask("AddAndActivateConnection2",
                                             standInArguments(m_saved, pathOf(device)), "(ooa{sv})", error);
    if (!answer)
        return false;
    const char* path = nullptr;
    g_variant_get(answer.get(), "(&o&oa{sv})", nullptr, &path, nullptr);
    const bool replaced = m_session.loop().runUntil(m_session.deadline(), [active] {
        return nm_active_connection_get_state(active) == NM_ACTIVE_CONNECTION_STATE_DEACTIVATED;
    });
    return deactivate(path) == SystemStatus::ok && replaced;
}

SystemStatus NetworkManagerActivation::deactivate(const char* path)
{
    NMClient* client = m_session.client();
    GLibError error;
    const GVariantRef answer =
        m_session.ask("DeactivateConnection", g_variant_new("(o)", path), nullptr, error);
    if (!answer)
        return g_error_matches(error.get(), NM_MANAGER_ERROR, NM_MANAGER_ERROR_CONNECTION_NOT_ACTIVE)
                   ? SystemStatus::ok
                   : statusOf(error);
    const bool down = m_session.loop().runUntil(m_session.deadline(), [&] {
        NMObject* shown = nm_client_get_object_by_path(client, path);
        return !nm_client_get_nm_running(client) || !NM_IS_ACTIVE_CONNECTION(shown) ||
               nm_active_connection_get_state(NM_ACTIVE_CONNECTION(shown)) ==
                   NM_ACTIVE_CONNECTION_STATE_DEACTIVATED;
    });
    return down && nm_client_get_nm_running(client) ? SystemStatus::ok : SystemStatus::noStoreServer;
}

} // namespace ardeo
