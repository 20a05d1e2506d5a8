#include "backend/NetworkConfigService.h"

#include "backend/Errors.h"
#include "platform/ProtocolConfiguration.h"

#include <QPromise>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ardeo
{

namespace
{

const QString clientName = QStringLiteral("Ardeo-IPConfig");

const QString ipv4Type = QStringLiteral("IPv4");
const QString dnsType = QStringLiteral("DNS");

const QString configMethodKey = QStringLiteral("ConfigMethod");
const QString methodManual = QStringLiteral("Manual");
const QString methodDHCP = QStringLiteral("DHCP");
const QString addressesKey = QStringLiteral("Addresses");
const QString subnetMasksKey = QStringLiteral("SubnetMasks");
const QString routerKey = QStringLiteral("Router");
const QString serverAddressesKey = QStringLiteral("ServerAddresses");
const QString searchDomainsKey = QStringLiteral("SearchDomains");

/// How long the system is held ready for a next operation.
constexpr std::chrono::milliseconds followUpTime(50);

using Services = std::vector<std::shared_ptr<NetworkService>>;

// Readers of system values: one of another kind counts as missing.

std::optional<Text> textIn(const Dictionary& dictionary, const QString& key)
{
    const QVariant value = dictionary.value(key);
    return value.typeId() == QMetaType::QString ? std::optional<Text>(value.toString()) : std::nullopt;
}

std::optional<bool> booleanIn(const Dictionary& dictionary, const QString& key)
{
    const QVariant value = dictionary.value(key);
    return value.typeId() == QMetaType::Bool ? std::optional(value.toBool()) : std::nullopt;
}

std::optional<qint64> integerIn(const Dictionary& dictionary, const QString& key)
{
    const QVariant value = dictionary.value(key);
    switch (value.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return value.toLongLong();
    default:
        return std::nullopt;
    }
}

/// A list of texts; empty where there is none, or where one element is something else.
QStringList textsIn(const Dictionary& dictionary, const QString& key)
{
    const QVariant value = dictionary.value(key);
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() != QMetaType::QVariantList)
        return {};
    const QVariantList list = value.toList();
    const bool allTexts = std::ranges::all_of(
        list, [](const QVariant& element) { return element.typeId() == QMetaType::QString; });
    return allTexts ? value.toStringList() : QStringList();
}

std::optional<Dictionary> dictionaryFrom(const std::optional<QVariant>& value)
{
    return value && value->typeId() == QMetaType::QVariantMap ? std::optional(value->toMap()) : std::nullopt;
}

std::optional<Dictionary> stateAt(DynamicStore* state, const QString& key)
{
    return state ? dictionaryFrom(state->value(key)) : std::nullopt;
}

std::optional<Dictionary> serviceState(DynamicStore* state, const std::optional<QString>& serviceID)
{
    return serviceID ? stateAt(state, QStringLiteral("State:/Network/Service/") + *serviceID +
                                          QStringLiteral("/IPv4"))
                     : std::nullopt;
}

std::optional<Dictionary> interfaceState(DynamicStore* state, const std::optional<Text>& bsdName,
                                         const QString& entry)
{
    return bsdName ? stateAt(state, QStringLiteral("State:/Network/Interface/") + bsdName->string() + entry)
                   : std::nullopt;
}

std::optional<Dictionary> configurationOf(const NetworkService& service, const QString& type)
{
    const auto protocol = service.protocol(type);
    return protocol ? dictionaryFrom(protocol->configuration()) : std::nullopt;
}

std::optional<Text> asText(const std::optional<QString>& string)
{
    return string ? std::optional<Text>(*string) : std::nullopt;
}

/// None when the handle is missing or does not give the services of its current set.
std::optional<Services> servicesOf(Preferences* preferences)
{
    const auto set = preferences ? preferences->currentSet() : nullptr;
    return set ? set->services() : std::nullopt;
}

/// The first service of that name in the set's order; null when there is none.
std::shared_ptr<NetworkService> serviceNamed(const std::optional<Services>& services, const Text& name)
{
    for (const auto& service : services.value_or(Services())) {
        if (asText(service->name()) == name)
            return service;
    }
    return nullptr;
}

std::shared_ptr<NetworkService> findService(const Text& name, Preferences& preferences)
{
    auto service = serviceNamed(servicesOf(&preferences), name);
    if (!service)
        throw ConfigError::serviceNotFound(name);
    return service;
}

std::optional<AdapterInfo> makeAdapterInfo(const NetworkService& service, DynamicStore* state)
{
    const auto name = service.name();
    if (!name)
        return std::nullopt;
    AdapterInfo adapter{.serviceName = *name};
    if (const auto interface = service.interface()) {
        adapter.hardwareName = interface->localizedDisplayName().value_or(QString());
        adapter.macAddress = asText(interface->hardwareAddressString());
        adapter.bsdName = asText(interface->bsdName());
    }
    adapter.isEnabled = service.isEnabled();
    adapter.isPersonal = service.isPersonal();
    if (const auto live = serviceState(state, service.serviceID()))
        adapter.isActive = !textsIn(*live, addressesKey).isEmpty();
    const auto link = interfaceState(state, adapter.bsdName, QStringLiteral("/Link"));
    if (link && booleanIn(*link, QStringLiteral("Active")) == true) {
        adapter.linkSpeedMbps = integerIn(*link, QStringLiteral("Speed"));
        adapter.fullDuplex = booleanIn(*link, QStringLiteral("Duplex"));
    }
    return adapter;
}

/// What a read has opened. It is released when the result has been handed over already: that takes a system
/// with many services a while, and nobody has to wait for it.
struct Opened {
    std::unique_ptr<Preferences> preferences;
    std::unique_ptr<DynamicStore> state;
};

QList<AdapterInfo> readAdapters(SystemConfiguration& system, Opened& opened)
{
    opened.preferences = system.createPreferences(clientName);
    const auto services = servicesOf(opened.preferences.get());
    if (!services)
        return {};
    opened.state = system.createDynamicStore(clientName);
    QList<AdapterInfo> adapters;
    for (const auto& service : *services) {
        if (auto adapter = makeAdapterInfo(*service, opened.state.get()))
            adapters.append(std::move(*adapter));
    }
    std::ranges::stable_sort(adapters, [](const AdapterInfo& a, const AdapterInfo& b) {
        return a.isActive != b.isActive ? a.isActive : comesBefore(a.serviceName, b.serviceName);
    });
    return adapters;
}

/// Takes over the values that the dictionary has and leaves the others as they are.
void readAddresses(NetworkAdapterInfo& configuration, const Dictionary& dictionary)
{
    if (const QStringList addresses = textsIn(dictionary, addressesKey); !addresses.isEmpty())
        configuration.ipAddress = addresses.first();
    if (const QStringList masks = textsIn(dictionary, subnetMasksKey); !masks.isEmpty())
        configuration.subnetMask = masks.first();
    if (const auto router = textIn(dictionary, routerKey))
        configuration.router = *router;
}

void readDNS(NetworkAdapterInfo& configuration, const Dictionary& dictionary)
{
    const QStringList servers = textsIn(dictionary, serverAddressesKey);
    configuration.dnsMode = servers.isEmpty() ? DNSMode::automatic : DNSMode::manual;
    configuration.primaryDNS = servers.value(0);
    configuration.alternateDNS = servers.value(1);
    for (const QString& domain : textsIn(dictionary, searchDomainsKey))
        configuration.searchDomains.append(domain);
}

NetworkAdapterInfo readConfiguration(SystemConfiguration& system, const Text& serviceName, Opened& opened)
{
    NetworkAdapterInfo configuration;
    opened.state = system.createDynamicStore(clientName);
    DynamicStore* const state = opened.state.get();
    if (state)
        configuration.computerName = state->computerName().value_or(QString());
    opened.preferences = system.createPreferences(clientName);
    const auto service = serviceNamed(servicesOf(opened.preferences.get()), serviceName);
    const auto serviceID = service ? service->serviceID() : std::nullopt;
    if (!serviceID)
        return configuration;
    const auto interface = service->interface();
    const auto bsdName = interface ? asText(interface->bsdName()) : std::nullopt;

    if (const auto ipv4 = configurationOf(*service, ipv4Type)) {
        if (textIn(*ipv4, configMethodKey) == Text(methodManual))
            configuration.ipv4Mode = IPv4Mode::manual;
        readAddresses(configuration, *ipv4);
    }
    if (configuration.ipv4Mode == IPv4Mode::dhcp) {
        if (const auto live = serviceState(state, serviceID))
            readAddresses(configuration, *live);
    }
    if (const auto lease = interfaceState(state, bsdName, QStringLiteral("/DHCP")))
        configuration.dhcpServer = textIn(*lease, QStringLiteral("ServerAddress")).value_or(Text());
    if (const auto dns = configurationOf(*service, dnsType))
        readDNS(configuration, *dns);
    return configuration;
}

Dictionary ipv4Dictionary(const NetworkAdapterInfo& configuration)
{
    if (configuration.ipv4Mode == IPv4Mode::dhcp)
        return {{configMethodKey, methodDHCP}};
    Dictionary dictionary{
        {configMethodKey, methodManual},
        {addressesKey, QStringList(configuration.ipAddress)},
        {subnetMasksKey, QStringList(configuration.subnetMask)},
    };
    if (!configuration.router.isEmpty())
        dictionary[routerKey] = configuration.router.string();
    return dictionary;
}

Dictionary dnsDictionary(const NetworkAdapterInfo& configuration)
{
    if (configuration.dnsMode == DNSMode::automatic)
        return {};
    Dictionary dictionary;
    QStringList servers{configuration.primaryDNS, configuration.alternateDNS};
    servers.removeAll(QString());
    if (!servers.isEmpty())
        dictionary[serverAddressesKey] = servers;
    const QStringList domains(configuration.searchDomains.begin(), configuration.searchDomains.end());
    if (!domains.isEmpty())
        dictionary[searchDomainsKey] = domains;
    return dictionary;
}

/// Of the wanted settings those under the keys, as changes: a key that they lack is to go.
Dictionary picked(const Dictionary& wanted, std::initializer_list<QString> keys, Dictionary others = {})
{
    for (const QString& key : keys)
        others.insert(key, wanted.value(key));
    return others;
}

Dictionary ipv4Changes(const NetworkAdapterInfo& configuration, Settings named)
{
    const Dictionary wanted = ipv4Dictionary(configuration);
    Dictionary changes;
    if (named.testFlag(Setting::ipv4Mode))
        changes = picked(wanted, {configMethodKey}, changes);
    if (named.testFlag(Setting::address))
        changes = picked(wanted, {addressesKey, subnetMasksKey}, changes);
    if (named.testFlag(Setting::router))
        changes = picked(wanted, {routerKey}, changes);
    return changes;
}

Dictionary dnsChanges(const NetworkAdapterInfo& configuration, Settings named)
{
    const Dictionary wanted = dnsDictionary(configuration);
    Dictionary changes;
    if (named.testFlag(Setting::dnsServers))
        changes = picked(wanted, {serverAddressesKey}, changes);
    if (named.testFlag(Setting::searchDomains))
        changes = picked(wanted, {searchDomainsKey}, changes);
    return changes;
}

void writeTo(const NetworkService& service, const NetworkAdapterInfo& configuration,
             std::optional<Settings> named)
{
    const auto ipv4 = service.protocol(ipv4Type);
    if (!ipv4)
        throw ConfigError::protocolUnavailable(ipv4Type);
    if (named)
        ipv4->changeConfiguration(ipv4Changes(configuration, *named));
    else
        ipv4->setConfiguration(ipv4Dictionary(configuration));
    const auto dns = service.protocol(dnsType);
    if (!dns)
        return;
    if (!named)
        dns->setConfiguration(dnsDictionary(configuration));
    else if (const Dictionary changes = dnsChanges(configuration, *named); !changes.isEmpty())
        dns->changeConfiguration(changes);
}

/// Unlocks the preferences on every way out of a transaction.
class HeldLock
{
public:
    explicit HeldLock(Preferences& preferences) : m_preferences(preferences) {}
    HeldLock(const HeldLock&) = delete;
    HeldLock& operator=(const HeldLock&) = delete;
    ~HeldLock() { m_preferences.unlock(); }

private:
    Preferences& m_preferences;
};

/// What no system can take in the part of the configuration that is named, or in all of it.
std::optional<SettingFault> faultOf(const NetworkAdapterInfo& configuration, std::optional<Settings> named)
{
    const bool hasIPv4 = !named || !ipv4Changes(configuration, *named).isEmpty();
    const bool hasDNS = !named || !dnsChanges(configuration, *named).isEmpty();
    auto fault = hasIPv4 ? checkedIPv4(ipv4Dictionary(configuration)).fault() : std::nullopt;
    if (!fault && hasDNS)
        fault = checkedDNS(dnsDictionary(configuration)).fault();
    return fault;
}

/// The authorized, locked transaction around a change of one service. Where its settings are refused, faultIn
/// says what is wrong with them.
template <typename Change, typename FaultIn>
void changeService(SystemConfiguration& system, const Text& name, AuthorizationRef authorization,
                   Change change, FaultIn faultIn)
{
    const auto preferences = system.createPreferencesWithAuthorization(clientName, authorization);
    if (!preferences)
        throw ConfigError::preferencesUnavailable();
    if (!preferences->lock(true))
        throw ConfigError::lockFailed(system.error());
    const HeldLock lock(*preferences);
    change(*findService(name, *preferences));
    if (!preferences->commitChanges()) {
        const bool isInvalid = system.error() == static_cast<qint32>(SystemStatus::invalidArgument);
        throw ConfigError::commitFailed(system.error(), isInvalid ? faultIn() : std::nullopt);
    }
    if (!preferences->applyChanges())
        throw ConfigError::applyFailed(system.error());
}

} // namespace

NetworkConfigService::NetworkConfigService(SystemConfiguration& system) : m_system(system)
{
    m_thread.setMaxThreadCount(1);
    m_thread.setExpiryTimeout(-1);
}

NetworkConfigService::~NetworkConfigService()
{
    announce();
    m_thread.waitForDone();
}

template <typename Operation>
auto NetworkConfigService::run(Operation operation)
{
    using Result = std::invoke_result_t<Operation, Opened&>;
    auto promise = std::make_shared<QPromise<Result>>();
    QFuture<Result> future = promise->future();
    promise->start();
    m_thread.start([this, number = announce(), promise, operation = std::move(operation)] {
        {
            Opened opened;
            try {
                if constexpr (std::is_void_v<Result>)
                    operation(opened);
                else
                    promise->addResult(operation(opened));
            } catch (...) {
                promise->setException(std::current_exception());
            }
            promise->finish();
        }
        restUnlessAsked(number);
    });
    return future;
}

/// Tells the thread that there is something else to do; returns its number.
int NetworkConfigService::announce()
{
    const std::scoped_lock lock(m_asking);
    m_next.notify_all();
    return ++m_asked;
}

/// After a listing, for example, a service is read as soon as the list has been taken in.
void NetworkConfigService::restUnlessAsked(int since)
{
    std::unique_lock lock(m_asking);
    if (m_next.wait_for(lock, followUpTime, [&] { return m_asked != since; }))
        return;
    lock.unlock(); // whoever asks must not wait for the release
    m_system.rest();
}

QFuture<QList<AdapterInfo>> NetworkConfigService::listAdapters()
{
    return run([this](Opened& opened) { return readAdapters(m_system, opened); });
}

QFuture<NetworkAdapterInfo> NetworkConfigService::currentConfig(const Text& serviceName)
{
    return run(
        [this, serviceName](Opened& opened) { return readConfiguration(m_system, serviceName, opened); });
}

QFuture<void> NetworkConfigService::writeConfiguration(const Text& serviceName,
                                                       const NetworkAdapterInfo& configuration,
                                                       AuthorizationRef authorization,
                                                       std::optional<Settings> named)
{
    return run([this, serviceName, configuration, authorization, named](Opened&) {
        changeService(
            m_system, serviceName, authorization,
            [&](const NetworkService& service) { writeTo(service, configuration, named); },
            [&] { return faultOf(configuration, named); });
    });
}

QFuture<void> NetworkConfigService::setServiceEnabled(bool enabled, const Text& serviceName,
                                                      AuthorizationRef authorization)
{
    return run([this, enabled, serviceName, authorization](Opened&) {
        changeService(
            m_system, serviceName, authorization,
            [enabled](NetworkService& service) { service.setEnabled(enabled); }, [] { return std::nullopt; });
    });
}

} // namespace ardeo
