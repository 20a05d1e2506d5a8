#include "platform/linux/networkmanager/NetworkManagerServices.h"

#include "platform/ConfigurationKeys.h"
#include "platform/PendingServices.h"
#include "platform/linux/networkmanager/ProfileTranslation.h"
#include "platform/linux/networkmanager/ProfileTrial.h"

#include <algorithm>
#include <utility>

namespace ardeo
{

namespace
{

std::optional<QString> textOrNone(const char* text)
{
    return text && *text ? std::optional(QString::fromUtf8(text)) : std::nullopt;
}

bool isOfType(NMRemoteConnection* connection, const char* type)
{
    return nm_connection_is_type(NM_CONNECTION(connection), type) != FALSE;
}

bool isService(NMRemoteConnection* connection)
{
    NMConnection* profile = NM_CONNECTION(connection);
    NMSettingConnection* common = nm_connection_get_setting_connection(profile);
    const auto flags = nm_remote_connection_get_flags(connection);
    const bool mirrored =
        (flags & (NM_SETTINGS_CONNECTION_FLAG_EXTERNAL | NM_SETTINGS_CONNECTION_FLAG_VOLATILE)) != 0;
    return common && nm_connection_get_setting_ip4_config(profile) && !mirrored &&
           !isOfType(connection, NM_SETTING_LOOPBACK_SETTING_NAME) &&
           !nm_setting_connection_get_master(common);
}

class DeviceInterface final : public NetworkInterface
{
public:
    explicit DeviceInterface(NMDevice* device) : m_device(newRef(device)) {}
    std::optional<QString> bsdName() const override
    {
        return textOrNone(nm_device_get_iface(m_device.get()));
    }
    std::optional<QString> hardwareAddressString() const override
    {
        return textOrNone(nm_device_get_hw_address(m_device.get()));
    }
    std::optional<QString> localizedDisplayName() const override
    {
        return textOrNone(nm_device_get_description(m_device.get()));
    }

private:
    GRef<NMDevice> m_device;
};

/// Keeps the profile as it is now, before the first change of it.
void remember(Profile& profile)
{
    if (!profile.seen)
        profile.seen.reset(nm_simple_connection_new_clone(NM_CONNECTION(profile.connection.get())));
}

class ProfileService final : public NetworkService
{
public:
    ProfileService(std::shared_ptr<NetworkManagerSession> session, std::shared_ptr<Profile> profile)
        : m_session(std::move(session))
        , m_profile(std::move(profile))
    {
    }
    std::optional<QString> name() const override { return textOrNone(nm_connection_get_id(connection())); }
    std::optional<QString> serviceID() const override
    {
        return textOrNone(nm_connection_get_uuid(connection()));
    }
    bool isEnabled() const override
    {
        NMSettingConnection* common = nm_connection_get_setting_connection(connection());
        return m_profile->changes.enabled.value_or(nm_setting_connection_get_autoconnect(common) != FALSE);
    }
    bool isPersonal() const override { return ardeo::isPersonal(connection()); }
    std::optional<std::chrono::milliseconds> confirmBy() const override
    {
        const auto trial = trialOf(connection());
        return trial ? std::optional(trial->confirmBy) : std::nullopt;
    }
    bool setEnabled(bool enabled) override
    {
        remember(*m_profile);
        m_profile->changes.enabled = enabled;
        return true;
    }
    bool hasChanges() const override
    {
        const GRef<NMConnection> changed(nm_simple_connection_new_clone(connection()));
        return !change(changed.get(), m_profile->changes) ||
               !nm_connection_compare(changed.get(), connection(), NM_SETTING_COMPARE_FLAG_EXACT);
    }
    std::shared_ptr<NetworkInterface> interface() const override
    {
        NMDevice* device = deviceOf(m_session->client(), m_profile->connection.get());
        return device ? std::make_shared<DeviceInterface>(device) : nullptr;
    }
    std::shared_ptr<NetworkProtocol> protocol(const QString& type) const override
    {
        if (type == ipv4Type)
            return protocol(&ipv4DictionaryOf, &ipv4Differences, m_profile->changes.ipv4);
        if (type == dnsType)
            return protocol(&dnsDictionaryOf, &dnsDifferences, m_profile->changes.dns);
        return nullptr;
    }

private:
    std::shared_ptr<NetworkProtocol> protocol(Dictionary (*read)(NMConnection*),
                                              PendingProtocol::Differences differences,
                                              std::optional<Dictionary>& pending) const
    {
        return std::make_shared<PendingProtocol>(
            [profile = m_profile, read] {
                return std::optional<QVariant>(read(NM_CONNECTION(profile->connection.get())));
            },
            differences, std::shared_ptr<std::optional<Dictionary>>(m_profile, &pending),
            [profile = m_profile] { remember(*profile); });
    }
    NMConnection* connection() const { return NM_CONNECTION(m_profile->connection.get()); }

    std::shared_ptr<NetworkManagerSession> m_session;
    std::shared_ptr<Profile> m_profile;
};

} // namespace

std::vector<std::shared_ptr<Profile>> listProfiles(NMClient* client)
{
    std::vector<std::shared_ptr<Profile>> profiles;
    const GPtrArray* connections = nm_client_get_connections(client);
    for (guint i = 0; i < connections->len; ++i) {
        auto* connection = static_cast<NMRemoteConnection*>(g_ptr_array_index(connections, i));
        if (!isService(connection))
            continue;
        auto profile = std::make_shared<Profile>();
        profile->connection = newRef(connection);
        profiles.push_back(std::move(profile));
    }
    return profiles;
}

bool isPersonal(NMConnection* profile)
{
    NMSettingConnection* common = nm_connection_get_setting_connection(profile);
    return common && nm_setting_connection_get_num_permissions(common) == 1;
}

bool hasPersonalProfiles(NMClient* client)
{
    const GPtrArray* connections = nm_client_get_connections(client);
    const auto isPersonalProfile = [](gpointer profile) {
        return isPersonal(static_cast<NMConnection*>(profile));
    };
    return std::any_of(connections->pdata, connections->pdata + connections->len, isPersonalProfile);
}

std::shared_ptr<NetworkSet> networkSetOf(const std::shared_ptr<NetworkManagerSession>& session,
                                         std::vector<std::shared_ptr<Profile>> profiles)
{
    std::vector<std::shared_ptr<NetworkService>> services;
    services.reserve(profiles.size());
    for (auto& profile : profiles)
        services.push_back(std::make_shared<ProfileService>(session, std::move(profile)));
    return std::make_shared<PendingSet>(std::move(services));
}

std::vector<NMActiveConnection*> activationsOf(NMClient* client, NMRemoteConnection* connection)
{
    std::vector<NMActiveConnection*> found;
    const GPtrArray* actives = nm_client_get_active_connections(client);
    for (guint i = 0; i < actives->len; ++i) {
        auto* active = static_cast<NMActiveConnection*>(g_ptr_array_index(actives, i));
        const auto state = nm_active_connection_get_state(active);
        const bool lives =
            state == NM_ACTIVE_CONNECTION_STATE_ACTIVATING || state == NM_ACTIVE_CONNECTION_STATE_ACTIVATED;
        if (lives && nm_active_connection_get_connection(active) == connection)
            found.push_back(active);
    }
    return found;
}

NMDevice* deviceOf(NMActiveConnection* active)
{
    const bool isVPN = nm_active_connection_get_vpn(active) != FALSE;
    const GPtrArray* devices = nm_active_connection_get_devices(active);
    return !isVPN && devices && devices->len > 0 ? static_cast<NMDevice*>(g_ptr_array_index(devices, 0))
                                                 : nullptr;
}

Readiness readinessOf(NMDevice* device)
{
    const NMDeviceState state = nm_device_get_state(device);
    // What is about to be free takes what is activated on it when it is.
    if (state == NM_DEVICE_STATE_DISCONNECTED || state == NM_DEVICE_STATE_DEACTIVATING ||
        state == NM_DEVICE_STATE_FAILED)
        return Readiness::free;
    return state > NM_DEVICE_STATE_DISCONNECTED ? Readiness::held : Readiness::unready;
}

NMDevice* deviceOf(NMClient* client, NMRemoteConnection* connection)
{
    if (isOfType(connection, NM_SETTING_VPN_SETTING_NAME))
        return nullptr;
    for (NMActiveConnection* active : activationsOf(client, connection)) {
        if (NMDevice* device = deviceOf(active))
            return device;
    }
    NMConnection* profile = NM_CONNECTION(connection);
    if (const char* bsdName = nm_connection_get_interface_name(profile))
        return nm_client_get_device_by_iface(client, bsdName);

    NMDevice* best = nullptr;
    const GPtrArray* devices = nm_client_get_devices(client);
    for (guint i = 0; i < devices->len; ++i) {
        auto* device = static_cast<NMDevice*>(g_ptr_array_index(devices, i));
        // Also compares the hardware address that the profile may insist on.
        if (nm_device_connection_compatible(device, profile, nullptr) &&
            (!best || readinessOf(device) > readinessOf(best)))
            best = device;
    }
    return best;
}

std::vector<NMDevice*> devicesOf(NMClient* client, NMRemoteConnection* connection)
{
    std::vector<NMDevice*> devices;
    for (NMActiveConnection* active : activationsOf(client, connection)) {
        if (NMDevice* device = deviceOf(active))
            devices.push_back(device);
    }
    NMDevice* const other = devices.empty() ? deviceOf(client, connection) : nullptr;
    if (other && nm_device_is_real(other))
        devices.push_back(other);
    return devices;
}

} // namespace ardeo
