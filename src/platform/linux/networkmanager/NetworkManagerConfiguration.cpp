#include "platform/linux/networkmanager/NetworkManagerConfiguration.h"

#include "platform/linux/networkmanager/NetworkManagerPreferences.h"
#include "platform/linux/networkmanager/NetworkManagerState.h"

namespace ardeo
{

namespace
{

/// A list and a service are read within that time of a notice. To ask the daemon twice for each of them
/// whether it has told everything took as much of the processor as all the rest of following, where addresses
/// change all the time.
constexpr int toldMilliseconds = 50;

} // namespace

std::shared_ptr<NetworkManagerSession> NetworkManagerConfiguration::session()
{
    auto session = m_session.lock();
    if (!session) {
        session = std::make_shared<NetworkManagerSession>(m_view);
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
    m_view.toldUntil = {}; // it will be different
    auto current = session();
    m_status = current->client() ? SystemStatus::ok : SystemStatus::noStoreServer;
    if (m_status != SystemStatus::ok)
        return nullptr;
    return std::make_unique<NetworkManagerPreferences>(std::move(current), m_status, true, waitingObserver());
}

void NetworkManagerConfiguration::rest()
{
    m_view.signals.reset();
    m_view.dropClient();
}

bool NetworkManagerConfiguration::awaitChange()
{
    std::unique_ptr<ChangeSignals>& signals = m_view.signals;
    if (!signals || signals->isOver()) {
        signals.reset();
        const QDeadlineTimer deadline(NetworkManagerSession::operationMilliseconds);
        if (GDBusConnection* bus = m_view.bus.connection(m_view.loop, deadline)) {
            signals = std::make_unique<ChangeSignals>(m_view.loop, bus);
            return true;
        }
    }
    const auto isInterrupted = [this] { return m_isInterrupted.load(); };
    m_view.loop.runUntil(QDeadlineTimer(QDeadlineTimer::Forever),
                         [&] { return isInterrupted() || (signals && signals->hasChanged()); });
    m_view.loop.runUntil(QDeadlineTimer(changeInterval), isInterrupted);
    if (m_isInterrupted.exchange(false))
        return false;
    if (signals->onlyValuesHaveChanged())
        m_view.toldUntil.setRemainingTime(toldMilliseconds);
    signals->clear();
    return true;
}

void NetworkManagerConfiguration::interrupt()
{
    m_isInterrupted = true;
    m_view.loop.wake();
}

std::unique_ptr<DynamicStore> NetworkManagerConfiguration::createDynamicStore(const QString& /*name*/)
{
    // The computer's name can be told without the daemon, so there is always a handle.
    m_status = SystemStatus::ok;
    return std::make_unique<NetworkManagerState>(session());
}

} // namespace ardeo
