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
    void beginTrial(std::chrono::seconds time) override { m_trial = time; }
    bool endTrial(const QString& serviceID, bool keep) override;
    bool unlock() override;

private:
    bool end(SystemStatus status);
    SystemStatus takeFileLock(bool wait);
    SystemStatus checkRights();
    SystemStatus checkRight(const char* action);
    SystemStatus checkRightToChange(const Profile& profile);
    SystemStatus commit(Profile& profile);
    SystemStatus update(const Profile& profile, NMConnection* settings, guint32 flags);
    SystemStatus putOnTrial(const Profile& profile, NMConnection* changed, NMConnection* before);
    SystemStatus endTrial(Profile& profile, bool keep);
    SystemStatus takeBack(Profile& profile, bool wasSaved);
    void awaitLease(const Profile& profile);
    SystemStatus apply(const Profile& profile);
    SystemStatus applyToActive(const Profile& profile, NMActiveConnection* active);
    SystemStatus applyToInactive(const Profile& profile);

    std::shared_ptr<NetworkManagerSession> m_session;
    SystemStatus& m_status;
    bool m_authorized;
    AdvisoryLock m_lock;
    /// Whether it depends on the profile which right its change takes.
    bool m_hasPersonalProfiles = false;
    std::optional<std::chrono::seconds> m_trial;
    std::vector<std::shared_ptr<Profile>> m_profiles;
    bool m_profilesListed = false;
};

} // namespace ardeo
