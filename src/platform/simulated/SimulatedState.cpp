#include "platform/simulated/SimulatedState.h"

namespace ardeo
{

namespace
{

std::optional<QVariant> entry(const Json& service, const char* key)
{
    const Json* value = member(service, key);
    return value ? std::optional(valueFromJson(*value)) : std::nullopt;
}

std::optional<QVariant> lease(const Json& service)
{
    const Json* protocols = member(service, "protocols");
    const Json* ipv4 = protocols ? member(*protocols, "IPv4") : nullptr;
    const Json* network = member(service, "network");
    const Json* server = network ? member(*network, "ServerAddress") : nullptr;
    const bool leased =
        ipv4 && textMember(*ipv4, "ConfigMethod") == QStringLiteral("DHCP") && member(service, "live");
    if (!leased || !server)
        return std::nullopt;
    return Dictionary{{QStringLiteral("ServerAddress"), valueFromJson(*server)}};
}

} // namespace

std::optional<QVariant> SimulatedState::value(const QString& key)
{
    const Json* services = member(m_machine, "services");
    if (!services || !services->is_array())
        return std::nullopt;
    for (const Json& service : *services) {
        if (key == QStringLiteral("State:/Network/Service/%1/IPv4")
                       .arg(textMember(service, "id").value_or(QString())))
            return entry(service, "live");
        const Json* interface = member(service, "interface");
        if (!interface)
            continue;
        const QString prefix = QStringLiteral("State:/Network/Interface/%1/")
                                   .arg(textMember(*interface, "bsdName").value_or(QString()));
        if (key == prefix + QStringLiteral("Link"))
            return entry(service, "link");
        if (key == prefix + QStringLiteral("DHCP"))
            return lease(service);
    }
    return std::nullopt;
}

} // namespace ardeo
