#include "backend/NetworkConfigService.h"

#include "backend/Errors.h"
#include "backend/ServiceReading.h"

#include <QPromise>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ardeo
{

namespace
{

/// How long the system is held ready for a next operation.
constexpr std::chrono::milliseconds followUpTime(50);
/// How long nothing is told after a change was told: of ten changes a second little more than one is read
/// again, which takes 0.64 % of a core with all that following takes, and each is on screen within a second.
constexpr std::chrono::milliseconds quietTime(600);

/// What the system itself said of its last refusal.
std::optional<SettingFault> refusalOf(const SystemConfiguration& system)
{
    const QString reason = system.errorReason();
    return reason.isEmpty() ? std::nullopt : std::optional(SettingFault{.value = {}, .reason = reason});
}

/// Opens the preferences and locks them; the lock ends with what is returned.
class Transaction
{
public:
    Transaction(SystemConfiguration& system, AuthorizationRef authorization)
        : m_preferences(system.createPreferencesWithAuthorization(clientName, authorization))
    {
        if (!m_preferences)
            throw ConfigError::preferencesUnavailable();
        if (!m_preferences->lock(true))
            throw ConfigError::lockFailed(system.error());
    }
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    ~Transaction() { m_preferences->unlock(); }

    Preferences* operator->() const { return m_preferences.get(); }
    std::shared_ptr<NetworkService> service(const Text& name) const
    {
        auto service = serviceNamed(m_preferences.get(), name);
        if (!service)
            throw ConfigError::serviceNotFound(name);
        return service;
    }

private:
    std::unique_ptr<Preferences> m_preferences;
};

/// Makes a change of one service in a transaction of its own. Where its settings are refused, faultFor says
/// what is wrong with them.
template <typename Change, typename FaultFor>
void changeService(SystemConfiguration& system, const Text& name, AuthorizationRef authorization,
                   NetworkConfigService::Trial trial, Change change, FaultFor faultFor)
{
    const Transaction transaction(system, authorization);
    if (trial)
        transaction->beginTrial(*trial);
    const auto service = transaction.service(name);
    change(*service);
    if (!transaction->commitChanges()) {
        const bool isInvalid = system.error() == static_cast<qint32>(SystemStatus::invalidArgument);
        throw ConfigError::commitFailed(system.error(), isInvalid ? faultFor(*service) : refusalOf(system));
    }
    if (!transaction->applyChanges())
        throw ConfigError::applyFailed(system.error(), refusalOf(system));
}

} // namespace

NetworkConfigService::NetworkConfigService(SystemConfiguration& system) : m_system(system)
{
    m_thread.setMaxThreadCount(1);
    m_thread.setExpiryTimeout(-1);
    m_system.observeWaiting([this](const std::optional<LockHolder>& holder) {
        if (holder)
            Q_EMIT waitingBegan(holder->processID.value_or(0));
        else
            Q_EMIT waitingEnded();
    });
}

NetworkConfigService::~NetworkConfigService()
{
    announce();
    m_thread.waitForDone();
}

template <typename Operation>
auto NetworkConfigService::run(Operation operation)
{
    using Result = std::invoke_result_t<Operation>;
    auto promise = std::make_shared<QPromise<Result>>();
    QFuture<Result> future = promise->future();
    promise->start();
    m_thread.start([this, number = announce(), promise, operation = std::move(operation)] {
        try {
            if constexpr (std::is_void_v<Result>)
                operation();
            else
                promise->addResult(operation());
        } catch (...) {
            promise->setException(std::current_exception());
        }
        promise->finish();
        restUnlessAsked(number);
    });
    return future;
}

void NetworkConfigService::followChanges(bool follow)
{
    {
        const std::scoped_lock lock(m_asking);
        m_follows = follow;
    }
    run([] {}); // after which the thread does so
}

/// Tells the thread that there is something else to do; returns its number.
int NetworkConfigService::announce()
{
    const std::scoped_lock lock(m_asking);
    m_next.notify_all();
    m_system.interrupt();
    return ++m_asked;
}

/// After a listing, for example, a service is read as soon as the list has been taken in. What the system has
/// kept ready then saves reading everything again, which takes 0.2 s with 1,000 services.
void NetworkConfigService::restUnlessAsked(int since)
{
    std::unique_lock lock(m_asking);
    const auto isAsked = [&] { return m_asked != since; };
    while (m_follows && !m_next.wait_until(lock, m_quietUntil, isAsked)) {
        lock.unlock();
        if (m_system.awaitChange()) {
            m_quietUntil = std::chrono::steady_clock::now() + quietTime;
            Q_EMIT changed();
        }
        lock.lock();
    }
    if (m_next.wait_for(lock, followUpTime, isAsked))
        return;
    lock.unlock(); // whoever asks must not wait for the release
    m_system.rest();
}

QFuture<QList<AdapterInfo>> NetworkConfigService::listAdapters()
{
    return run([this] { return readAdapters(m_system); });
}

QFuture<NetworkAdapterInfo> NetworkConfigService::currentConfig(const Text& serviceName)
{
    return run([this, serviceName] { return readConfiguration(m_system, serviceName); });
}

QFuture<ChangePlan> NetworkConfigService::planConfiguration(const Text& serviceName,
                                                            const NetworkAdapterInfo& configuration,
                                                            std::optional<Settings> named)
{
    return run([this, serviceName, configuration, named] {
        return planChange(m_system, serviceName, configuration, named);
    });
}

QFuture<void> NetworkConfigService::writeConfiguration(const Text& serviceName,
                                                       const NetworkAdapterInfo& configuration,
                                                       AuthorizationRef authorization,
                                                       std::optional<Settings> named, Trial trial)
{
    return run([this, serviceName, configuration, authorization, named, trial] {
        changeService(
            m_system, serviceName, authorization, trial,
            [&](const NetworkService& service) { writeTo(service, configuration, named); },
            [&](const NetworkService& service) { return faultFor(service, configuration, named); });
    });
}

QFuture<void> NetworkConfigService::setServiceEnabled(bool enabled, const Text& serviceName,
                                                      AuthorizationRef authorization, Trial trial)
{
    return run([this, enabled, serviceName, authorization, trial] {
        changeService(
            m_system, serviceName, authorization, trial,
            [enabled](NetworkService& service) { service.setEnabled(enabled); },
            [](const NetworkService&) { return std::nullopt; });
    });
}

QFuture<void> NetworkConfigService::endTrial(bool keep, const Text& serviceName,
                                             AuthorizationRef authorization)
{
    return run([this, keep, serviceName, authorization] {
        const Transaction transaction(m_system, authorization);
        const QString serviceID = transaction.service(serviceName)->serviceID().value_or(QString());
        if (transaction->endTrial(serviceID, keep))
            return;
        if (keep)
            throw ConfigError::commitFailed(m_system.error(), refusalOf(m_system));
        throw ConfigError::applyFailed(m_system.error(), refusalOf(m_system));
    });
}

} // namespace ardeo
