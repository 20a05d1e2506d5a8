#pragma once

#include "platform/ServiceChanges.h"
#include "platform/linux/networkmanager/LibNM.h"

namespace ardeo
{

/// The "IPv4" dictionary of a connection profile.
Dictionary ipv4DictionaryOf(NMConnection* profile);
/// The "DNS" dictionary of a connection profile.
Dictionary dnsDictionaryOf(NMConnection* profile);
/// The live "IPv4" entry of a service; none while there is no address.
std::optional<Dictionary> liveDictionaryOf(NMIPConfig* configuration);

/// Whether the daemon connects it by itself: what a service is when it is enabled.
bool isEnabled(NMConnection* profile);

/// Makes the changes in the profile: what they do not name stays, but for the addresses and the gateway when
/// the method becomes another one, and for the network's own DNS servers, which are left aside while there
/// are others. False when the profile cannot be so.
bool change(NMConnection* profile, const ServiceChanges& changes);

} // namespace ardeo
