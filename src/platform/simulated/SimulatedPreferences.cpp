#include "platform/simulated/SimulatedPreferences.h"

#include "platform/ConfigurationKeys.h"
#include "platform/PendingServices.h"

namespace ardeo
{

namespace
{

/// What a commit must find unchanged; the live state may move on its own.
bool hasSameSettings(const Json& one, const Json& other)
{
    const auto same = [&](const char* key) {
        const Json* a = member(one, key);
        const Json* b = member(other, key);
        return a && b ? *a == *b : a == b;
    };
    return same("enabled") && same("protocols");
}

/// What the system makes of checked settings: texts that count as absent are not stored.
Json normalized(Dictionary dictionary)
{
    if (const auto ipv4 = checkedIPv4(dictionary); ipv4 && !ipv4->router)
        dictionary.remove(routerKey);
    if (const auto dns = checkedDNS(dictionary); dns && dictionary.contains(serverAddressesKey)) {
        dictionary[serverAddressesKey] = dns->serverAddresses;
        if (dns->serverAddresses.isEmpty())
            dictionary.remove(serverAddressesKey);
    }
    return jsonFromDictionary(dictionary);
}

/// Writes the changes into the service; false when no system can take what comes of them.
bool write(const std::optional<Dictionary>& changes, const char* type, Json& service)
{
    if (!changes || changes->isEmpty())
        return true;
    Json& settings = service["protocols"][type];
    const Dictionary present = valueFromJson(settings).toMap();
    const Dictionary wanted = changed(present, *changes);
    const bool isDNS = QLatin1String(type) == dnsType;
    if (isDNS ? !checkedDNS(wanted) : !checkedIPv4Changes(present, *changes))
        return false;
    settings = normalized(wanted);
    return true;
}

Json* find(Json& machine, const Json& seen)
{
    if (!member(machine, "services") || !machine["services"].is_array())
        return nullptr;
    for (Json& service : machine["services"]) {
        if (textMember(service, "id") && textMember(service, "id") == textMember(seen, "id"))
            return &service;
    }
    return nullptr;
}

} // namespace

SimulatedPreferences::SimulatedPreferences(const SimulatedMachine& machine, const Json& snapshot,
                                           const Clock& clock, SimulatedOutcome& outcome, bool authorized,
                                           const WaitingObserver& waiting)
    : m_machine(machine)
    , m_clock(clock)
    , m_outcome(outcome)
    , m_authorized(authorized)
    , m_lock(machine.lock(waiting))
{
    take(snapshot);
}

std::shared_ptr<NetworkSet> SimulatedPreferences::currentSet()
{
    m_outcome = {};
    if (!m_records)
        return std::make_shared<PendingSet>(std::nullopt);
    std::vector<std::shared_ptr<NetworkService>> services;
    for (const auto& record : *m_records)
        services.push_back(serviceOf(record));
    return std::make_shared<PendingSet>(std::move(services));
}

bool SimulatedPreferences::lock(bool wait)
{
    if (!m_authorized)
        return end(SystemStatus::accessError);
    if (m_lock.isTaken())
        return end(SystemStatus::locked);
    const SystemStatus status = m_lock.take(wait);
    if (status != SystemStatus::ok)
        return end(status);
    const auto machine = m_machine.readLocked(m_clock.continuousTime());
    // What the holder before us wrote is what we have to start from.
    if (m_lock.wasWaitedFor())
        take(machine.value_or(Json()));
    if (!machine || !flagMember(*machine, "administrator", true)) {
        m_lock.release();
        return end(machine ? SystemStatus::accessError : SystemStatus::noStoreServer);
    }
    return end(SystemStatus::ok);
}

bool SimulatedPreferences::commitChanges()
{
    return change([this](ServiceRecord& record, Json& service) { return commit(record, service); });
}

SystemStatus SimulatedPreferences::commit(ServiceRecord& record, Json& service)
{
    const ServiceChanges& changes = record.changes;
    if (!changes.any())
        return SystemStatus::ok;
    if (confirmationDeadline(service))
        return SystemStatus::preferencesBusy;
    if (!hasSameSettings(record.seen, service))
        return SystemStatus::stale;
    Json before = service;
    if (!write(changes.ipv4, "IPv4", service) || !write(changes.dns, "DNS", service))
        return SystemStatus::invalidArgument;
    if (changes.enabled)
        service["enabled"] = *changes.enabled;
    if (m_trial)
        putOnTrial(service, std::move(before), m_clock.continuousTime(), *m_trial);
    record = {.seen = service, .changes = {}, .committed = true, .freshLease = changes.askForLease()};
    return SystemStatus::ok;
}

bool SimulatedPreferences::applyChanges()
{
    return change([](ServiceRecord& record, Json& service) {
        if (record.committed)
            bringUpToDate(service, record.freshLease);
        return SystemStatus::ok;
    });
}

bool SimulatedPreferences::endTrial(const QString& serviceID, bool keep)
{
    bool isFound = false;
    const bool done = change([&](const ServiceRecord&, Json& service) {
        if (textMember(service, "id") == serviceID && confirmationDeadline(service)) {
            isFound = true;
            ardeo::endTrial(service, keep);
        }
        return SystemStatus::ok;
    });
    return done && !isFound ? end(SystemStatus::noKey, noTrialReason()) : done;
}

bool SimulatedPreferences::unlock()
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    m_lock.release();
    return end(SystemStatus::ok);
}

void SimulatedPreferences::take(const Json& snapshot)
{
    m_records.reset();
    const Json* services = member(snapshot, "services");
    if (!services || !services->is_array())
        return;
    m_records.emplace();
    for (const Json& service : *services)
        m_records->push_back(std::make_shared<ServiceRecord>(ServiceRecord{.seen = service}));
}

bool SimulatedPreferences::end(SystemStatus status, const QString& reason)
{
    m_outcome = {status,
                 status == SystemStatus::preferencesBusy && m_lock.isTaken() ? trialReason() : reason};
    return status == SystemStatus::ok;
}

/// Lets step change each service in the file, and writes the file when every one went well.
template <typename Step>
bool SimulatedPreferences::change(Step step)
{
    if (!m_lock.isTaken())
        return end(SystemStatus::needLock);
    auto machine = m_machine.read();
    if (!machine)
        return end(SystemStatus::noStoreServer);
    for (const auto& record : m_records.value_or(Records())) {
        Json* service = find(*machine, record->seen);
        if (!service && record->changes.any())
            return end(SystemStatus::noKey);
        const SystemStatus status = service ? step(*record, *service) : SystemStatus::ok;
        if (status != SystemStatus::ok)
            return end(status);
    }
    return end(m_machine.write(*machine) ? SystemStatus::ok : SystemStatus::failed);
}

} // namespace ardeo
