#pragma once

#include "backend/Modes.h"

#include <QList>

namespace ardeo
{

/// The IP configuration of one service: what reading it gives, and what writing it takes. A default one is
/// the empty record that stands for whatever could not be read. It has no equality on purpose.
struct NetworkAdapterInfo {
    IPv4Mode ipv4Mode = IPv4Mode::dhcp;
    Text ipAddress{};
    Text subnetMask{};
    Text router{};
    DNSMode dnsMode = DNSMode::automatic;
    Text primaryDNS{};
    Text alternateDNS{};
    QList<Text> searchDomains{};
    /// Read only.
    Text dhcpServer{};
    /// Read only.
    Text computerName{};
};

} // namespace ardeo
