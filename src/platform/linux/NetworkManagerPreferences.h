#pragma once

#include "platform/AdvisoryLock.h"
#include "platform/linux/NetworkManagerSession.h"

namespace ardeo
{

/// A connection profile, and what was set for it through the handle but is not committed yet.
struct Profile {
    GRef<NMRemoteConnection> connection;
    std::optional<Dictionary> ipv4;
    std::optional<Dictionary> dns;
    std::optional<bool> enabled;
    /// The profile as it was when it was first changed here: what a commit expects to find.
    GRef<NMConnection> seen;
    /// The profile as it was committed; null before.
    GRef<NMConnection> committed;
    /// Whether the commit switched it from disabled to enabled.
    bool justEnabled = false;
};

/// The preferences as NetworkManager's connection profiles, and the transaction that changes one.
class NetworkManagerPreferences final : public Preferences
{
public:
    /// Failed steps leave their reason in status.
    NetworkManagerPreferences(std::shared_ptr<NetworkManagerSession> session, SystemStatus& status,
                              bool authorized);
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
    SystemStatus commit(Profile& profile);
    SystemStatus apply(const Profile& profile);
    SystemStatus activate(NMRemoteConnection* connection, NMDevice* device, bool dhcp);
    SystemStatus deactivate(NMActiveConnection* borrowed);
    bool reapply(NMDevice* device);

    std::shared_ptr<NetworkManagerSession> m_session;
    SystemStatus& m_status;
    bool m_authorized;
    AdvisoryLock m_lock;
    std::vector<std::shared_ptr<Profile>> m_profiles;
    bool m_profilesListed = false;
};

} // namespace ardeo
