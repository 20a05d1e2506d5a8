#pragma once

#include "platform/AdvisoryLock.h"
#include "platform/Clock.h"
#include "platform/simulated/SimulatedServices.h"

namespace ardeo
{

/// How the last call ended.
struct SimulatedOutcome {
    SystemStatus status = SystemStatus::ok;
    /// For the user; empty where the status says all.
    QString reason = {};
};

/// The preferences in the simulated machine's file, and the transaction that changes them.
class SimulatedPreferences final : public Preferences
{
public:
    /// Each step leaves in outcome how it ended.
    SimulatedPreferences(const SimulatedMachine& machine, const Json& snapshot, const Clock& clock,
                         SimulatedOutcome& outcome, bool authorized, const WaitingObserver& waiting);
    std::shared_ptr<NetworkSet> currentSet() override;
    bool lock(bool wait) override;
    bool commitChanges() override;
    bool applyChanges() override;
    void beginTrial(std::chrono::seconds time) override { m_trial = time; }
    bool endTrial(const QString& serviceID, bool keep) override;
    bool unlock() override;

private:
    using Records = std::vector<std::shared_ptr<ServiceRecord>>;

    void take(const Json& snapshot);
    bool end(SystemStatus status, const QString& reason = {});
    SystemStatus commit(ServiceRecord& record, Json& service);
    template <typename Step>
    bool change(Step step);

    const SimulatedMachine& m_machine;
    const Clock& m_clock;
    SimulatedOutcome& m_outcome;
    bool m_authorized;
    AdvisoryLock m_lock;
    std::optional<std::chrono::seconds> m_trial;
    std::optional<Records> m_records;
};

} // namespace ardeo
