#pragma once

#include "backend/NetworkAdapterInfo.h"
#include "platform/ProtocolConfiguration.h"

#include <QFlags>

#include <optional>

namespace ardeo
{

/// A part of a service's configuration that can be written alone.
enum class Setting : quint8 {
    ipv4Mode = 1,
    /// The address with its subnet mask.
    address = 2,
    router = 4,
    dnsServers = 8,
    searchDomains = 16,
};
Q_DECLARE_FLAGS(Settings, Setting)

/// Sets the configuration, or of it what is named, for the service. Throws ConfigError where the service has
/// no IPv4.
void writeTo(const NetworkService& service, const NetworkAdapterInfo& configuration,
             std::optional<Settings> named);

/// What the service cannot take of the configuration, or of the part of it that is named.
std::optional<SettingFault> faultFor(const NetworkService& service, const NetworkAdapterInfo& configuration,
                                     std::optional<Settings> named);

} // namespace ardeo
