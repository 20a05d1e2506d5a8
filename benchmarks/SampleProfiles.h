#pragma once

#include "backend/NetworkPreset.h"

namespace ardeo
{

/// As many profiles as asked for, as people have them: half of them manual, all with different names.
inline QList<NetworkPreset> sampleProfiles(qsizetype count)
{
    QList<NetworkPreset> profiles;
    profiles.reserve(count);
    for (qsizetype i = 0; i < count; ++i) {
        const bool manual = i % 2 == 0;
        profiles.append({
            .name = QStringLiteral("Customer %1, %2").arg(i).arg(manual ? u"cabinet" : u"büro"),
            .serviceName = QStringLiteral("Wired connection %1").arg(i % 7),
            .ipv4Mode = manual ? IPv4Mode::manual : IPv4Mode::dhcp,
            .ipAddress = QStringLiteral("10.%1.%2.7").arg(i / 250 % 250).arg(i % 250),
            .subnetMask = QStringLiteral("255.255.255.0"),
            .router = QStringLiteral("10.%1.%2.1").arg(i / 250 % 250).arg(i % 250),
            .dnsMode = manual ? DNSMode::manual : DNSMode::automatic,
            .primaryDNS = manual ? QStringLiteral("9.9.9.9") : QString(),
            .searchDomains = QStringLiteral("customer%1.example corp.example").arg(i),
        });
    }
    return profiles;
}

} // namespace ardeo
