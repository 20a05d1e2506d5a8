#include "platform/linux/networkmanager/NetworkManagerState.h"

#include "platform/linux/networkmanager/ProfileTranslation.h"

#include <QFile>
#include <QSysInfo>

#include <utility>

namespace ardeo
{

namespace
{

/// What stands in key between a prefix and a suffix; none when it has another form.
std::optional<QString> between(const QString& key, const QString& prefix, const QString& suffix)
{
    if (!key.startsWith(prefix) || !key.endsWith(suffix))
        return std::nullopt;
    return key.mid(prefix.size(), key.size() - prefix.size() - suffix.size());
}

/// Megabits per second; none when unknown.
std::optional<qint64> speedOf(NMDevice* device)
{
    qint64 speed = 0;
    if (NM_IS_DEVICE_ETHERNET(device))
        speed = nm_device_ethernet_get_speed(NM_DEVICE_ETHERNET(device));
    else if (NM_IS_DEVICE_WIFI(device))
        speed = nm_device_wifi_get_bitrate(NM_DEVICE_WIFI(device)) / 1000;
    return speed > 0 ? std::optional(speed) : std::nullopt;
}

/// NetworkManager does not know the duplex mode, the kernel does; none when the device has no such thing.
std::optional<bool> fullDuplexOf(const QString& bsdName)
{
    QFile file(QStringLiteral("/sys/class/net/%1/duplex").arg(bsdName));
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray mode = file.readAll().trimmed();
    if (mode == "full")
        return true;
    return mode == "half" ? std::optional(false) : std::nullopt;
}

} // namespace

NetworkManagerState::NetworkManagerState(std::shared_ptr<NetworkManagerSession> session)
    : m_session(std::move(session))
{
}

std::optional<QVariant> NetworkManagerState::value(const QString& key)
{
    NMClient* client = m_session->client();
    if (!client)
        return std::nullopt;
    if (const auto serviceID =
            between(key, QStringLiteral("State:/Network/Service/"), QStringLiteral("/IPv4")))
        return serviceState(*serviceID);
    const QString interfaces = QStringLiteral("State:/Network/Interface/");
    if (const auto bsdName = between(key, interfaces, QStringLiteral("/Link"))) {
        NMDevice* device = nm_client_get_device_by_iface(client, bsdName->toUtf8().constData());
        return device ? linkState(device) : std::nullopt;
    }
    if (const auto bsdName = between(key, interfaces, QStringLiteral("/DHCP"))) {
        NMDevice* device = nm_client_get_device_by_iface(client, bsdName->toUtf8().constData());
        return device ? leaseState(device) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<QVariant> NetworkManagerState::serviceState(const QString& serviceID)
{
    const QByteArray uuid = serviceID.toUtf8();
    const GPtrArray* actives = nm_client_get_active_connections(m_session->client());
    for (guint i = 0; i < actives->len; ++i) {
        auto* active = static_cast<NMActiveConnection*>(g_ptr_array_index(actives, i));
        if (uuid != nm_active_connection_get_uuid(active))
            continue;
        NMIPConfig* configuration = nm_active_connection_get_ip4_config(active);
        const auto live = configuration ? liveDictionaryOf(configuration) : std::nullopt;
        if (live)
            return *live;
    }
    return std::nullopt;
}

std::optional<QVariant> NetworkManagerState::linkState(NMDevice* device)
{
    Dictionary link;
    link[QStringLiteral("Active")] =
        (nm_device_get_interface_flags(device) & NM_DEVICE_INTERFACE_FLAG_CARRIER) != 0;
    if (const auto speed = speedOf(device))
        link[QStringLiteral("Speed")] = *speed;
    if (const auto fullDuplex = fullDuplexOf(QString::fromUtf8(nm_device_get_iface(device))))
        link[QStringLiteral("Duplex")] = *fullDuplex;
    return link;
}

std::optional<QVariant> NetworkManagerState::leaseState(NMDevice* device)
{
    NMDhcpConfig* lease = nm_device_get_dhcp4_config(device);
    const char* server = lease ? nm_dhcp_config_get_one_option(lease, "dhcp_server_identifier") : nullptr;
    if (!server)
        return std::nullopt;
    return Dictionary{{QStringLiteral("ServerAddress"), QString::fromUtf8(server)}};
}

std::optional<QString> NetworkManagerState::computerName()
{
    QFile file(QStringLiteral("/etc/machine-info"));
    if (file.open(QIODevice::ReadOnly)) {
        while (!file.atEnd()) {
            const QByteArray line = file.readLine().trimmed();
            const QByteArray key = "PRETTY_HOSTNAME=";
            if (!line.startsWith(key))
                continue;
            const std::unique_ptr<char, decltype(&g_free)> name(
                g_shell_unquote(line.mid(key.size()).constData(), nullptr), &g_free);
            if (name && *name)
                return QString::fromUtf8(name.get());
        }
    }
    const QString hostName = QSysInfo::machineHostName();
    return hostName.isEmpty() ? std::nullopt : std::optional(hostName);
}

} // namespace ardeo
