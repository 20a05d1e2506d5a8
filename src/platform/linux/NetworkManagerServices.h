#pragma once

#include "platform/linux/NetworkManagerPreferences.h"

namespace ardeo
{

/// The profiles that count as network services, in NetworkManager's order: those that configure IPv4, without
/// loopback, the ports of bridges, bonds and teams, and those that only mirror what others set up
/// (containers, virtual machines).
std::vector<std::shared_ptr<Profile>> listProfiles(NMClient* client);

/// Those profiles as the program's services.
std::shared_ptr<NetworkSet> networkSetOf(const std::shared_ptr<NetworkManagerSession>& session,
                                         std::vector<std::shared_ptr<Profile>> profiles);

/// The profile's activation, be it complete or under way; null when there is none.
NMActiveConnection* activationOf(NMClient* client, NMRemoteConnection* connection);

/// The device behind the profile: the one it is active on, else the one it is bound to, else the first on
/// which it could be activated. Null for a VPN, and where there is none.
NMDevice* deviceOf(NMClient* client, NMRemoteConnection* connection);

} // namespace ardeo
