#pragma once

#include <QString>

namespace ardeo
{

// The keys and values of the system's configuration dictionaries.
inline const QString ipv4Type = QStringLiteral("IPv4");
inline const QString dnsType = QStringLiteral("DNS");

inline const QString configMethodKey = QStringLiteral("ConfigMethod");
inline const QString methodManual = QStringLiteral("Manual");
inline const QString methodDHCP = QStringLiteral("DHCP");
inline const QString addressesKey = QStringLiteral("Addresses");
inline const QString subnetMasksKey = QStringLiteral("SubnetMasks");
inline const QString routerKey = QStringLiteral("Router");
inline const QString serverAddressesKey = QStringLiteral("ServerAddresses");
inline const QString searchDomainsKey = QStringLiteral("SearchDomains");

} // namespace ardeo
