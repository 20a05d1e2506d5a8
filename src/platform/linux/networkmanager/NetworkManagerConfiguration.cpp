#include "platform/linux/networkmanager/NetworkManagerConfiguration.h"

#include "platform/linux/networkmanager/NetworkManagerPreferences.h"
#include "platform/linux/networkmanager/NetworkManagerState.h"

namespace ardeo
{

std::shared_ptr<NetworkManagerSession> NetworkManagerConfiguration::session()
{
    auto session = m_session.lock();
    if (!session) {
        session = std::make_shared<NetworkManagerSession>(m_bus, m_kept, m_presence);
        m_session = session;
    }
    return session;
}

std::unique_ptr<Preferences> NetworkManagerConfiguration::createPreferences(const QString& /*name*/)
{
    auto current = session();
    m_status = current->client() ? SystemStatus::ok : SystemStatus::noStoreServer;
    if (m_status != SystemStatus::ok)
        return nullptr;
    return std::make_unique<NetworkManagerPreferences>(std::move(current), m_status, false,
                                                       waitingObserver());
}

std::unique_ptr<Preferences>
NetworkManagerConfiguration::createPreferencesWithAuthorization(const QString& /*name*/,
                                                                AuthorizationRef /*authorization*/)
{
    auto current = session();
    m_status = current->client() ? SystemStatus::ok : SystemStatus::noStoreServer;
    if (m_status != SystemStatus::ok)
        return nullptr;
    return std::make_unique<NetworkManagerPreferences>(std::move(current), m_status, true, waitingObserver());
}

std::unique_ptr<DynamicStore> NetworkManagerConfiguration::createDynamicStore(const QString& /*name*/)
{
    // The computer's name can be told without the daemon, so there is always a handle.
    m_status = SystemStatus::ok;
    return std::make_unique<NetworkManagerState>(session());
}

} // namespace ardeo
