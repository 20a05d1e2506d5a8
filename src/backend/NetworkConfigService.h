#pragma once

#include "backend/AdapterInfo.h"
#include "backend/ChangePlan.h"
#include "backend/ServiceWriting.h"
#include "platform/SystemConfiguration.h"

#include <QFuture>
#include <QObject>
#include <QThreadPool>

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace ardeo
{

/// The only part that touches the system's network configuration. Its operations run one after the other on a
/// thread of its own, so that their blocking calls never hold up the caller; the futures finish there. Each
/// operation opens what it needs of the system and keeps nothing of it; what the system keeps ready for the
/// next one, it brings up to date first. When no other one follows at once, the system may rest, or tell of
/// changes.
class NetworkConfigService final : public QObject
{
    Q_OBJECT

public:
    explicit NetworkConfigService(SystemConfiguration& system);
    NetworkConfigService(const NetworkConfigService&) = delete;
    NetworkConfigService& operator=(const NetworkConfigService&) = delete;
    /// Waits for the operation that is running.
    ~NetworkConfigService() override;

    /// The services of the current set, active ones first, then by name. Empty when they cannot be read.
    QFuture<QList<AdapterInfo>> listAdapters();
    /// The service's configuration with its live state. What cannot be read is as in the empty record.
    QFuture<NetworkAdapterInfo> currentConfig(const Text& serviceName);
    /// What writing the record, or of it what is named, would change. Fails with ConfigError.
    QFuture<ChangePlan> planConfiguration(const Text& serviceName, const NetworkAdapterInfo& configuration,
                                          std::optional<Settings> named = {});
    /// How long a change can be confirmed before the system takes it back; none for one that needs no
    /// confirmation.
    using Trial = std::optional<std::chrono::seconds>;

    /// Saves the record as the service's configuration, or of it what is named, and makes the system use it
    /// at once. The record's texts are handed on as they are. Fails with ConfigError.
    QFuture<void> writeConfiguration(const Text& serviceName, const NetworkAdapterInfo& configuration,
                                     AuthorizationRef authorization, std::optional<Settings> named = {},
                                     Trial trial = {});
    /// Switches the service on or off, also when it is so already. Fails with ConfigError.
    QFuture<void> setServiceEnabled(bool enabled, const Text& serviceName, AuthorizationRef authorization,
                                    Trial trial = {});
    /// Confirms the change of the service that is on trial, or takes it back at once. Fails with ConfigError.
    QFuture<void> endTrial(bool keep, const Text& serviceName, AuthorizationRef authorization);

    /// Whether changed is emitted from now on. While it is, the system is not left to rest.
    void followChanges(bool follow);

Q_SIGNALS:
    /// What others have changed may read differently now. Emitted on the service's thread, at most every
    /// half a second.
    void changed();
    /// An operation waits for another program, by its process number, or 0 where that cannot be told. Both
    /// are emitted on the service's thread.
    void waitingBegan(qint64 processID);
    void waitingEnded();

private:
    template <typename Operation>
    auto run(Operation operation);
    int announce();
    void restUnlessAsked(int since);

    SystemConfiguration& m_system;
    /// How many operations have been asked for, and the destruction.
    int m_asked = 0;
    bool m_follows = false;
    std::chrono::steady_clock::time_point m_quietUntil;
    std::mutex m_asking;
    std::condition_variable m_next;
    QThreadPool m_thread;
};

} // namespace ardeo
