#pragma once

#include "platform/AdvisoryLock.h"
#include "platform/linux/networkmanager/NetworkManagerSession.h"
#include "platform/linux/networkmanager/Profile.h"

namespace ardeo
{

/// The preferences as NetworkManager's connection profiles, and the transaction that changes one.
class NetworkManagerPreferences final : public Preferences
{
public:
    /// Failed steps leave their reason in status.
    NetworkManagerPreferences(std::shared_ptr<NetworkManagerSession> session, SystemStatus& status,
                              bool authorized, const WaitingObserver& waiting);
    NetworkManagerPreferences(const NetworkManagerPreferences&) = delete;
    NetworkManagerPreferences& operator=(const NetworkManagerPreferences&) = delete;

    std::shared_ptr<NetworkSet> currentSet() override;
    bool lock(bool wait) override;
    bool commitChanges() override;
    bool applyChanges() override;
    bool unlock() override;

private:
    bool end(SystemStatus status);
    SystemStatus takeFileLock(bool wait);
    SystemStatus checkRights();
    SystemStatus checkRight(const char* action);
    SystemStatus commit(Profile& profile);
    SystemStatus apply(const Profile& profile);
    SystemStatus applyToActive(const Profile& profile, NMActiveConnection* active);
    SystemStatus applyToInactive(const Profile& profile);

    std::shared_ptr<NetworkManagerSession> m_session;
    SystemStatus& m_status;
    bool m_authorized;
    AdvisoryLock m_lock;
    /// Whether it depends on the profile which right its change takes.
    bool m_hasPersonalProfiles = false;
    std::vector<std::shared_ptr<Profile>> m_profiles;
    bool m_profilesListed = false;
};

} // namespace ardeo
