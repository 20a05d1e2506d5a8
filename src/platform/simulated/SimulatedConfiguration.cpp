#include "platform/simulated/SimulatedConfiguration.h"

#include "platform/AdvisoryLock.h"
#include "platform/ProtocolConfiguration.h"
#include "platform/ServiceChanges.h"
#include "platform/simulated/SimulatedState.h"

#include <QEventLoop>
#include <QFileInfo>
#include <QTimer>

#include <fcntl.h>
#include <utility>

namespace ardeo
{

namespace
{

/// A service as the handle saw it, and what was set for it since.
struct ServiceRecord {
    Json seen;
    ServiceChanges changes = {};
    bool committed = false;
    /// Whether what was committed asks for a lease anew.
    bool freshLease = false;
};

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

class SimulatedInterface final : public NetworkInterface
{
public:
    explicit SimulatedInterface(Json interface) : m_interface(std::move(interface)) {}
    std::optional<QString> bsdName() const override { return textMember(m_interface, "bsdName"); }
    std::optional<QString> hardwareAddressString() const override
    {
        return textMember(m_interface, "macAddress");
    }
    std::optional<QString> localizedDisplayName() const override
    {
        return textMember(m_interface, "hardwareName");
    }

private:
    Json m_interface;
};

class SimulatedProtocol final : public NetworkProtocol
{
public:
    using Pending = std::optional<Dictionary> ServiceChanges::*;
    using Differences = Dictionary (*)(const Dictionary& present, const Dictionary& wanted);
    SimulatedProtocol(std::shared_ptr<ServiceRecord> record, const char* type, Pending pending,
                      Differences differences)
        : m_record(std::move(record))
        , m_type(type)
        , m_pending(pending)
        , m_differences(differences)
    {
    }
    std::optional<QVariant> configuration() const override
    {
        const auto& pending = m_record->changes.*m_pending;
        return pending ? changed(settings()->toMap(), *pending) : settings();
    }
    bool setConfiguration(const Dictionary& configuration) override
    {
        return changeConfiguration(m_differences(settings()->toMap(), configuration));
    }
    bool changeConfiguration(const Dictionary& changes) override
    {
        m_record->changes.*m_pending = changes;
        return true;
    }

private:
    /// As they are in the file; the service has this protocol.
    std::optional<QVariant> settings() const { return valueFromJson(m_record->seen["protocols"][m_type]); }

    std::shared_ptr<ServiceRecord> m_record;
    const char* m_type;
    Pending m_pending;
    Differences m_differences;
};

class SimulatedService final : public NetworkService
{
public:
    explicit SimulatedService(std::shared_ptr<ServiceRecord> record) : m_record(std::move(record)) {}
    std::optional<QString> name() const override { return textMember(m_record->seen, "name"); }
    std::optional<QString> serviceID() const override { return textMember(m_record->seen, "id"); }
    bool isEnabled() const override
    {
        return m_record->changes.enabled.value_or(flagMember(m_record->seen, "enabled", true));
    }
    bool setEnabled(bool enabled) override
    {
        m_record->changes.enabled = enabled;
        return true;
    }
    std::shared_ptr<NetworkInterface> interface() const override
    {
        const Json* interface = member(m_record->seen, "interface");
        return interface ? std::make_shared<SimulatedInterface>(*interface) : nullptr;
    }
    std::shared_ptr<NetworkProtocol> protocol(const QString& type) const override
    {
        const Json* protocols = member(m_record->seen, "protocols");
        const bool hasIPv4 = protocols && member(*protocols, "IPv4");
        if (type == QStringLiteral("IPv4") && hasIPv4)
            return std::make_shared<SimulatedProtocol>(m_record, "IPv4", &ServiceChanges::ipv4,
                                                       &ipv4Differences);
        if (type == QStringLiteral("DNS") && protocols && member(*protocols, "DNS"))
            return std::make_shared<SimulatedProtocol>(m_record, "DNS", &ServiceChanges::dns,
                                                       &dnsDifferences);
        return nullptr;
    }

private:
    std::shared_ptr<ServiceRecord> m_record;
};

class SimulatedSet final : public NetworkSet
{
public:
    explicit SimulatedSet(std::optional<std::vector<std::shared_ptr<NetworkService>>> services)
        : m_services(std::move(services))
    {
    }
    std::optional<std::vector<std::shared_ptr<NetworkService>>> services() const override
    {
        return m_services;
    }

private:
    std::optional<std::vector<std::shared_ptr<NetworkService>>> m_services;
};

class SimulatedPreferences final : public Preferences
{
public:
    SimulatedPreferences(const SimulatedMachine& machine, const Json& snapshot, SystemStatus& status,
                         bool authorized, const WaitingObserver& waiting)
        : m_machine(machine)
        , m_status(status)
        , m_authorized(authorized)
        , m_lock(machine.file() + QStringLiteral(".lock"), O_RDWR | O_CREAT | O_NOFOLLOW, waiting)
    {
        take(snapshot);
    }

    std::shared_ptr<NetworkSet> currentSet() override
    {
        m_status = SystemStatus::ok;
        if (!m_records)
            return std::make_shared<SimulatedSet>(std::nullopt);
        std::vector<std::shared_ptr<NetworkService>> services;
        for (const auto& record : *m_records)
            services.push_back(std::make_shared<SimulatedService>(record));
        return std::make_shared<SimulatedSet>(std::move(services));
    }

    bool lock(bool wait) override
    {
        if (!m_authorized)
            return end(SystemStatus::accessError);
        if (m_lock.isTaken())
            return end(SystemStatus::locked);
        const SystemStatus status = m_lock.take(wait);
        if (status != SystemStatus::ok)
            return end(status);
        // What the holder before us wrote is what we have to start from.
        if (m_lock.wasWaitedFor())
            take(m_machine.read().value_or(Json()));
        const auto machine = m_machine.read();
        if (!machine || !flagMember(*machine, "administrator", true)) {
            m_lock.release();
            return end(machine ? SystemStatus::accessError : SystemStatus::noStoreServer);
        }
        return end(SystemStatus::ok);
    }

    bool commitChanges() override
    {
        return change([](ServiceRecord& record, Json& service) {
            const ServiceChanges& changes = record.changes;
            if (!changes.any())
                return SystemStatus::ok;
            if (!hasSameSettings(record.seen, service))
                return SystemStatus::stale;
            if (!write(changes.ipv4, "IPv4", service) || !write(changes.dns, "DNS", service))
                return SystemStatus::invalidArgument;
            if (changes.enabled)
                service["enabled"] = *changes.enabled;
            record = {.seen = service, .changes = {}, .committed = true, .freshLease = changes.askForLease()};
            return SystemStatus::ok;
        });
    }

    bool applyChanges() override
    {
        return change([](ServiceRecord& record, Json& service) {
            if (record.committed)
                bringUpToDate(service, record.freshLease);
            return SystemStatus::ok;
        });
    }

    bool unlock() override
    {
        if (!m_lock.isTaken())
            return end(SystemStatus::needLock);
        m_lock.release();
        return end(SystemStatus::ok);
    }

private:
    void take(const Json& snapshot)
    {
        m_records.reset();
        const Json* services = member(snapshot, "services");
        if (!services || !services->is_array())
            return;
        m_records.emplace();
        for (const Json& service : *services) {
            m_records->push_back(std::make_shared<ServiceRecord>());
            m_records->back()->seen = service;
        }
    }

    bool end(SystemStatus status)
    {
        m_status = status;
        return status == SystemStatus::ok;
    }

    /// Writes the changes into the service; false when no system can take what comes of them.
    static bool write(const std::optional<Dictionary>& changes, const char* type, Json& service)
    {
        if (!changes || changes->isEmpty())
            return true;
        Json& settings = service["protocols"][type];
        const Dictionary present = valueFromJson(settings).toMap();
        const Dictionary wanted = changed(present, *changes);
        const bool isDNS = std::string_view(type) == "DNS";
        if (isDNS ? !checkedDNS(wanted) : !checkedIPv4Changes(present, *changes))
            return false;
        settings = normalized(wanted);
        return true;
    }

    /// What the system makes of checked settings: texts that count as absent are not stored.
    static Json normalized(Dictionary dictionary)
    {
        if (const auto ipv4 = checkedIPv4(dictionary); ipv4 && !ipv4->router)
            dictionary.remove(QStringLiteral("Router"));
        const QString servers = QStringLiteral("ServerAddresses");
        if (const auto dns = checkedDNS(dictionary); dns && dictionary.contains(servers)) {
            dictionary[servers] = dns->serverAddresses;
            if (dns->serverAddresses.isEmpty())
                dictionary.remove(servers);
        }
        return jsonFromDictionary(dictionary);
    }

    /// Lets step change each service in the file, and writes the file when every one went well.
    template <typename Step>
    bool change(Step step)
    {
        if (!m_lock.isTaken())
            return end(SystemStatus::needLock);
        auto machine = m_machine.read();
        if (!machine)
            return end(SystemStatus::noStoreServer);
        for (const auto& record : m_records.value_or(std::vector<std::shared_ptr<ServiceRecord>>())) {
            Json* service = find(*machine, record->seen);
            if (!service && record->changes.any())
                return end(SystemStatus::noKey);
            const SystemStatus status = service ? step(*record, *service) : SystemStatus::ok;
            if (status != SystemStatus::ok)
                return end(status);
        }
        return end(m_machine.write(*machine) ? SystemStatus::ok : SystemStatus::failed);
    }

    static Json* find(Json& machine, const Json& seen)
    {
        if (!member(machine, "services") || !machine["services"].is_array())
            return nullptr;
        for (Json& service : machine["services"]) {
            if (textMember(service, "id") && textMember(service, "id") == textMember(seen, "id"))
                return &service;
        }
        return nullptr;
    }

    const SimulatedMachine& m_machine;
    SystemStatus& m_status;
    bool m_authorized;
    AdvisoryLock m_lock;
    std::optional<std::vector<std::shared_ptr<ServiceRecord>>> m_records;
};

} // namespace

SimulatedConfiguration::SimulatedConfiguration(SimulatedMachine machine) : m_machine(std::move(machine)) {}

std::optional<Json> SimulatedConfiguration::read()
{
    auto machine = m_machine.read();
    m_readable = machine.has_value();
    m_status = machine ? SystemStatus::ok : SystemStatus::noStoreServer;
    return machine;
}

void SimulatedConfiguration::watch()
{
    // The file is replaced as a whole, which its folder tells; an editor may also write into it.
    const QString file = m_machine.file();
    m_watcher = std::make_unique<QFileSystemWatcher>(QStringList{file, QFileInfo(file).path()});
    const auto note = [this, file] {
        m_hasChanged = true;
        m_watcher->addPath(file); // as long as it is the old one, it is watched already
    };
    QObject::connect(m_watcher.get(), &QFileSystemWatcher::fileChanged, note);
    QObject::connect(m_watcher.get(), &QFileSystemWatcher::directoryChanged, [this, file, note] {
        if (!m_watcher->files().contains(file))
            note();
    });
}

bool SimulatedConfiguration::awaitChange()
{
    if (!m_watcher) {
        watch();
        return true;
    }
    QEventLoop loop;
    const auto setWaiting = [this](QEventLoop* waiting) {
        const std::scoped_lock lock(m_waitingAccess);
        m_waiting = waiting;
    };
    const auto waitUntil = [&](auto condition) {
        while (!m_isInterrupted && !condition())
            loop.processEvents(QEventLoop::WaitForMoreEvents);
    };
    setWaiting(&loop);
    waitUntil([this] { return m_hasChanged; });
    QTimer interval;
    interval.setSingleShot(true);
    interval.start(changeInterval);
    waitUntil([&interval] { return !interval.isActive(); });
    setWaiting(nullptr);
    if (m_isInterrupted.exchange(false))
        return false;
    m_hasChanged = false;
    return true;
}

void SimulatedConfiguration::interrupt()
{
    m_isInterrupted = true;
    const std::scoped_lock lock(m_waitingAccess);
    if (m_waiting)
        m_waiting->wakeUp();
}

std::unique_ptr<Preferences> SimulatedConfiguration::open(bool authorized)
{
    const auto machine = read();
    if (!machine)
        return nullptr;
    return std::make_unique<SimulatedPreferences>(m_machine, *machine, m_status, authorized,
                                                  waitingObserver());
}

std::unique_ptr<Preferences> SimulatedConfiguration::createPreferences(const QString& /*name*/)
{
    return open(false);
}

std::unique_ptr<Preferences>
SimulatedConfiguration::createPreferencesWithAuthorization(const QString& /*name*/,
                                                           AuthorizationRef authorization)
{
    return open(authorization.handle != 0);
}

std::unique_ptr<DynamicStore> SimulatedConfiguration::createDynamicStore(const QString& /*name*/)
{
    auto machine = read();
    return machine ? std::make_unique<SimulatedState>(std::move(*machine)) : nullptr;
}

} // namespace ardeo
