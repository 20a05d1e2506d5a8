#include "platform/linux/networkmanager/NetworkManagerActivation.h"

#include "platform/linux/networkmanager/NetworkManagerError.h"
#include "platform/linux/networkmanager/NetworkManagerServices.h"

#include <algorithm>

namespace ardeo
{

namespace
{

/// Milliseconds at the end of an operation's time that are kept to ask whether the daemon is still there.
constexpr int lastQuestionMilliseconds = 1000;
/// Milliseconds that a VPN's plugin is given to end what it has begun.
constexpr int pluginMilliseconds = 1000;

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

/// Gives the profile no addresses of that family.
void disableIP(NMConnection* profile, NMSetting* setting, const char* disabled)
{
    g_object_set(setting, NM_SETTING_IP_CONFIG_METHOD, disabled, nullptr);
    nm_connection_add_setting(profile, setting);
}

/// A profile of that type and for that interface, without addresses; for the same user alone, where the other
/// one is.
GRef<NMConnection> standInFor(NMConnection* profile)
{
    NMSettingConnection* others = nm_connection_get_setting_connection(profile);
    const char* type = nm_setting_connection_get_connection_type(others);
    const std::unique_ptr<char, decltype(&g_free)> uuid(nm_utils_uuid_generate(), &g_free);
    NMSetting* common = nm_setting_connection_new();
    g_object_set(common, NM_SETTING_CONNECTION_ID, "Ardeo IP Config", NM_SETTING_CONNECTION_UUID, uuid.get(),
                 NM_SETTING_CONNECTION_TYPE, type, NM_SETTING_CONNECTION_INTERFACE_NAME,
                 nm_setting_connection_get_interface_name(others), NM_SETTING_CONNECTION_AUTOCONNECT, FALSE,
                 nullptr);
    for (guint i = 0; i < nm_setting_connection_get_num_permissions(others); ++i) {
        const char* kind = nullptr;
        const char* user = nullptr;
        if (nm_setting_connection_get_permission(others, i, &kind, &user, nullptr))
            nm_setting_connection_add_permission(NM_SETTING_CONNECTION(common), kind, user, nullptr);
    }
    GRef<NMConnection> standIn(nm_simple_connection_new());
    nm_connection_add_setting(standIn.get(), common);
    if (NMSetting* own = nm_connection_get_setting_by_name(profile, type))
        nm_connection_add_setting(standIn.get(), nm_setting_duplicate(own));
    disableIP(standIn.get(), nm_setting_ip4_config_new(), NM_SETTING_IP4_CONFIG_METHOD_DISABLED);
    disableIP(standIn.get(), nm_setting_ip6_config_new(), NM_SETTING_IP6_CONFIG_METHOD_DISABLED);
    return standIn;
}

/// Whether others hang on the device, as on a bridge.
bool hasPorts(NMDevice* device)
{
    const GPtrArray* ports = nm_device_get_ports(device);
    return ports && ports->len > 0;
}

} // namespace

SystemStatus NetworkManagerActivation::renew(NMActiveConnection* active, NMDevice* device, bool freshLease)
{
    if (!device)
        return restart(active);
    const bool complete = nm_active_connection_get_state(active) == NM_ACTIVE_CONNECTION_STATE_ACTIVATED;
    // Reapplying keeps the lease and, while only DNS changes, the addresses.
    const bool asksAnew = freshLease && isOnDHCP();
    if (complete && !asksAnew && reapply(device, nullptr))
        return SystemStatus::ok;
    // Activated anew, a bridge would lose its ports.
    if (complete && asksAnew && hasPorts(device) && reapply(device, withoutIPv4().get()) &&
        reapply(device, nullptr))
        return SystemStatus::ok;
    return takeUp(device);
}

/// A VPN cannot be activated on top of itself; and a plugin that is still ending the old one would end the
/// new one with it.
SystemStatus NetworkManagerActivation::restart(NMActiveConnection* vpn)
{
    GDBusConnection* const bus = nm_client_get_dbus_connection(m_session.client());
    const GDBusSignalCallback note = [](GDBusConnection*, const char*, const char*, const char*, const char*,
                                        GVariant* arguments, gpointer hasStopped) {
        guint32 state = NM_VPN_SERVICE_STATE_UNKNOWN;
        if (g_variant_is_of_type(arguments, G_VARIANT_TYPE("(u)")))
            g_variant_get(arguments, "(u)", &state);
        if (state == NM_VPN_SERVICE_STATE_STOPPED)
            *static_cast<bool*>(hasStopped) = true;
    };
    bool hasStopped = false;
    guint subscription = 0;
    m_session.loop().start([&] {
        subscription = g_dbus_connection_signal_subscribe(
            bus, nullptr, NM_VPN_DBUS_PLUGIN_INTERFACE, "StateChanged", NM_VPN_DBUS_PLUGIN_PATH, nullptr,
            G_DBUS_SIGNAL_FLAGS_NONE, note, &hasStopped, nullptr);
    });
    const SystemStatus status = deactivate(pathOf(vpn));
    m_session.loop().runUntil(QDeadlineTimer(pluginMilliseconds), [&hasStopped] { return hasStopped; });
    g_dbus_connection_signal_unsubscribe(bus, subscription);
    return status == SystemStatus::ok ? takeUp(nullptr) : status;
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

/// Has the device take those settings, or without any the profile's saved ones; false when it cannot.
bool NetworkManagerActivation::reapply(NMDevice* device, NMConnection* settings)
{
    const auto ended = m_session.loop().call(
        m_session.deadline(), [=](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            nm_device_reapply_async(device, settings, 0, 0, cancellable, done, data);
        });
    return nm_device_reapply_finish(device, ended.get(), nullptr) != FALSE;
}

/// The saved profile, but for its addresses.
GRef<NMConnection> NetworkManagerActivation::withoutIPv4() const
{
    GRef<NMConnection> profile(nm_simple_connection_new_clone(m_saved));
    disableIP(profile.get(), nm_setting_ip4_config_new(), NM_SETTING_IP4_CONFIG_METHOD_DISABLED);
    return profile;
}

SystemStatus NetworkManagerActivation::awaitIPv4(NMActiveConnection* active, NMDevice* device)
{
    return waitForIPv4(pathOf(active), device);
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
    const SystemStatus status = begin(device, path);
    return status == SystemStatus::failed && daemonTriesAgain() ? SystemStatus::ok : status;
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
    const QDeadlineTimer limit = m_session.daemonDeadline() - lastQuestionMilliseconds;
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
    const QDeadlineTimer limit = std::min(m_session.daemonDeadline(), QDeadlineTimer(moment));
    return device &&
           m_session.loop().runUntil(limit, [device] { return readinessOf(device) == Readiness::unready; });
}

/// The daemon takes the end of an activation for the user's wish that the profile is never connected by
/// itself again until it has been activated by hand, which DHCP cannot be while a cable is out. So what is
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
    const GRef<NMConnection> standIn = standInFor(m_saved);
    // The daemon forgets it when it goes down, or when its maker does.
    GVariantBuilder options;
    g_variant_builder_init(&options, G_VARIANT_TYPE_VARDICT);
    g_variant_builder_add(&options, "{sv}", "persist", g_variant_new_string("volatile"));
    g_variant_builder_add(&options, "{sv}", "bind-activation", g_variant_new_string("dbus-client"));
    GLibError error;
    const GVariantRef answer =
        m_session.ask("AddAndActivateConnection2",
                      g_variant_new("(@a{sa{sv}}ooa{sv})",
                                    nm_connection_to_dbus(standIn.get(), NM_CONNECTION_SERIALIZE_ALL),
                                    pathOf(device), "/", &options),
                      "(ooa{sv})", error);
    if (!answer)
        return false;
    const char* path = nullptr;
    g_variant_get(answer.get(), "(&o&oa{sv})", nullptr, &path, nullptr);
    const bool replaced = m_session.loop().runUntil(m_session.daemonDeadline(), [active] {
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
    const bool down = m_session.loop().runUntil(m_session.daemonDeadline(), [&] {
        NMObject* shown = nm_client_get_object_by_path(client, path);
        return !nm_client_get_nm_running(client) || !NM_IS_ACTIVE_CONNECTION(shown) ||
               nm_active_connection_get_state(NM_ACTIVE_CONNECTION(shown)) ==
                   NM_ACTIVE_CONNECTION_STATE_DEACTIVATED;
    });
    return down && nm_client_get_nm_running(client) ? SystemStatus::ok : SystemStatus::noStoreServer;
}

} // namespace ardeo
