#pragma once

#include "platform/ProtocolConfiguration.h"
#include "platform/linux/networkmanager/LibNM.h"

namespace ardeo
{

/// The "IPv4" dictionary of a connection profile.
Dictionary ipv4DictionaryOf(NMConnection* profile);
/// The "DNS" dictionary of a connection profile.
Dictionary dnsDictionaryOf(NMConnection* profile);
/// The live "IPv4" entry of a service; none while there is no address.
std::optional<Dictionary> liveDictionaryOf(NMIPConfig* configuration);

/// Brings what the changes name of IPv4 into the profile, from the configuration that they lead to; its
/// routes and DHCP options stay, and another method takes all addresses and the gateway along.
void changeIPv4(NMConnection* profile, const IPv4Configuration& configuration, const Dictionary& changes);
/// Brings what the changes name of the servers and search domains into the profile, from the configuration
/// that they lead to. With servers of its own the profile takes none from the network any more, neither by
/// DHCP nor by router advertisement; its own IPv6 servers stay.
void changeDNS(NMConnection* profile, const DNSConfiguration& configuration, const Dictionary& changes);

} // namespace ardeo
