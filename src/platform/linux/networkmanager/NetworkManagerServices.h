#pragma once

#include "platform/linux/networkmanager/NetworkManagerSession.h"
#include "platform/linux/networkmanager/Profile.h"

namespace ardeo
{

/// The profiles that count as network services, in NetworkManager's order: those that configure IPv4, without
/// loopback, the ports of bridges, bonds and teams, and those that only mirror what others set up
/// (containers, virtual machines).
std::vector<std::shared_ptr<Profile>> listProfiles(NMClient* client);

/// Whether the profile is its user's alone. Profiles that are others' are not told of.
bool isPersonal(NMConnection* profile);
bool hasPersonalProfiles(NMClient* client);

/// Those profiles as the program's services.
std::shared_ptr<NetworkSet> networkSetOf(const std::shared_ptr<NetworkManagerSession>& session,
                                         std::vector<std::shared_ptr<Profile>> profiles);

/// The profile's activations, be they complete or under way. More than one where it may be active on several
/// devices at once.
std::vector<NMActiveConnection*> activationsOf(NMClient* client, NMRemoteConnection* connection);

/// The device that is activated; null for a VPN.
NMDevice* deviceOf(NMActiveConnection* active);

/// How near a device is to carrying another profile.
enum class Readiness { unready, held, free };
Readiness readinessOf(NMDevice* device);

/// The device behind the profile: the one it is active on, else the one it is bound to, else the first on
/// which it could be activated: a free one before one that another profile holds, and that before one that is
/// not ready (its cable is out). Null for a VPN, and where there is none.
NMDevice* deviceOf(NMClient* client, NMRemoteConnection* connection);

/// The devices that a change of the profile affects: all that it is active on, else the one behind it.
std::vector<NMDevice*> devicesOf(NMClient* client, NMRemoteConnection* connection);

} // namespace ardeo
