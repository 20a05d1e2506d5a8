#pragma once

#include "platform/SystemConfiguration.h"
#include "platform/linux/networkmanager/NetworkManagerSession.h"

namespace ardeo
{

/// Takes a profile up and down on the daemon, within the operation's time. Each function says what it waits
/// for, and returns success or the reason why that has not come.
class NetworkManagerActivation
{
public:
    /// The profile with its settings as they were saved; both outlive this.
    NetworkManagerActivation(NetworkManagerSession& session, NMRemoteConnection* profile, NMConnection* saved)
        : m_session(session)
        , m_profile(profile)
        , m_saved(saved)
    {
    }

    /// Brings the profile's saved settings into force where it is active, on a device or as a VPN; with a
    /// fresh lease, DHCP asks for one anew, which interrupts the connection.
    SystemStatus renew(NMActiveConnection* active, NMDevice* device, bool freshLease);

    /// Waits until an activation that goes on already has brought the saved settings into force.
    SystemStatus awaitIPv4(NMActiveConnection* active, NMDevice* device);

    /// Activates the profile on the device; without one, the daemon makes or finds it. What cannot be had now
    /// (a VLAN's parent, a cable) is no failure where the daemon connects the profile by itself later.
    SystemStatus takeUp(NMDevice* device);

    /// Begins to activate the profile on a device that does not reach its network now; the daemon goes on by
    /// itself.
    SystemStatus beginToTakeUp(NMDevice* device);

    /// Takes an activation of the profile down. Once enabled again, the daemon may connect it by itself.
    SystemStatus takeDown(NMActiveConnection* active);

private:
    /// Leaves the activation's path in path.
    SystemStatus begin(NMDevice* device, QByteArray& path);
    SystemStatus restart(NMActiveConnection* vpn);
    SystemStatus waitForIPv4(const char* path, NMDevice* device);
    SystemStatus deactivate(const char* path);
    bool isOnDHCP() const;
    bool daemonTriesAgain() const;
    bool hasLostItsCable(NMDevice* device);
    bool reapply(NMDevice* device, NMConnection* settings);
    GRef<NMConnection> withoutIPv4() const;
    bool replaceByStandIn(NMActiveConnection* active);

    NetworkManagerSession& m_session;
    NMRemoteConnection* m_profile;
    NMConnection* m_saved;
};

} // namespace ardeo
