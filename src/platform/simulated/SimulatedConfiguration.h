#pragma once

#include "platform/simulated/SimulatedPreferences.h"

#include <QFileSystemWatcher>

#include <atomic>
#include <memory>
#include <mutex>

class QEventLoop;

namespace ardeo
{

/// The network configuration of the simulated machine.
class SimulatedConfiguration final : public SystemConfiguration
{
public:
    /// The clock outlives it.
    SimulatedConfiguration(SimulatedMachine machine, const Clock& clock);
    std::unique_ptr<Preferences> createPreferences(const QString& name) override;
    std::unique_ptr<Preferences> createPreferencesWithAuthorization(const QString& name,
                                                                    AuthorizationRef authorization) override;
    std::unique_ptr<DynamicStore> createDynamicStore(const QString& name) override;
    void rest() override { m_watcher.reset(); }
    bool awaitChange() override;
    void interrupt() override;
    qint32 error() const override { return static_cast<qint32>(m_outcome.status); }
    QString errorReason() const override { return m_outcome.reason; }

    /// Whether the machine's file could be read the last time. May be called from any thread.
    bool isReadable() const { return m_readable; }

private:
    void watch();
    std::optional<Json> read();
    std::unique_ptr<Preferences> open(bool authorized);

    SimulatedMachine m_machine;
    const Clock& m_clock;
    std::atomic<bool> m_readable = true;
    SimulatedOutcome m_outcome;
    /// Belongs to the thread of the operations.
    std::unique_ptr<QFileSystemWatcher> m_watcher;
    bool m_hasChanged = false;
    std::atomic<bool> m_isInterrupted = false;
    /// The loop in which a change is waited for; null while none is.
    QEventLoop* m_waiting = nullptr;
    std::mutex m_waitingAccess;
};

} // namespace ardeo
