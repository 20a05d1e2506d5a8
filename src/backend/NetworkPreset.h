#pragma once

#include "backend/Modes.h"

#include <QList>
#include <QUuid>

namespace ardeo
{

/// A saved profile: named IPv4 and DNS settings.
struct NetworkPreset {
    /// A new profile gets a random one.
    QUuid id = QUuid::createUuid();
    Text name{};
    /// The service that was selected when the profile was saved.
    Text serviceName{};
    IPv4Mode ipv4Mode = IPv4Mode::dhcp;
    Text ipAddress{};
    Text subnetMask{};
    Text router{};
    DNSMode dnsMode = DNSMode::automatic;
    Text primaryDNS{};
    Text alternateDNS{};
    /// As typed in the form: one text, the domains separated by white space.
    Text searchDomains{};

    bool operator==(const NetworkPreset&) const = default;
};

size_t qHash(const NetworkPreset& preset, size_t seed = 0);

/// The list as compact JSON in UTF-8, as it is stored and exported. None when a text is not valid Unicode.
std::optional<QByteArray> encodePresets(const QList<NetworkPreset>& presets);

/// The list in such a JSON text. None when the text is not an array of complete profiles: one bad element
/// makes the whole list fail. Members that are not known are ignored.
std::optional<QList<NetworkPreset>> decodePresets(const QByteArray& json);

} // namespace ardeo
