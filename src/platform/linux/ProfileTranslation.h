#pragma once

#include "platform/ProtocolConfiguration.h"
#include "platform/linux/LibNM.h"

namespace ardeo
{

/// The "IPv4" dictionary of a connection profile.
Dictionary ipv4DictionaryOf(NMConnection* profile);
/// The "DNS" dictionary of a connection profile.
Dictionary dnsDictionaryOf(NMConnection* profile);
/// The live "IPv4" entry of a service; none while there is no address.
std::optional<Dictionary> liveDictionaryOf(NMIPConfig* configuration);

/// Replaces the profile's IPv4 method, addresses and gateway; its routes and DHCP options stay.
void setIPv4(NMConnection* profile, const IPv4Configuration& configuration);
/// Replaces the profile's IPv4 servers and search domains. With servers of its own the profile takes none
/// from the network any more, neither by DHCP nor by router advertisement; its own IPv6 servers stay.
void setDNS(NMConnection* profile, const DNSConfiguration& configuration);

} // namespace ardeo
