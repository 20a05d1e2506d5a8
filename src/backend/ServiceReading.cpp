#include "backend/ServiceReading.h"

#include "platform/ConfigurationKeys.h"

#include <algorithm>
#include <utility>

namespace ardeo
{

namespace
{

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
    adapter.confirmBy = service.confirmBy();
    if (const auto live = serviceState(state, service.serviceID()))
        adapter.isActive = !textsIn(*live, addressesKey).isEmpty();
    const auto link = interfaceState(state, adapter.bsdName, QStringLiteral("/Link"));
    if (link && booleanIn(*link, QStringLiteral("Active")) == true) {
        adapter.linkSpeedMbps = integerIn(*link, QStringLiteral("Speed"));
        adapter.fullDuplex = booleanIn(*link, QStringLiteral("Duplex"));
    }
    return adapter;
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

} // namespace

std::shared_ptr<NetworkService> serviceNamed(Preferences* preferences, const Text& name)
{
    for (const auto& service : servicesOf(preferences).value_or(Services())) {
        if (asText(service->name()) == name)
            return service;
    }
    return nullptr;
}

QList<AdapterInfo> readAdapters(SystemConfiguration& system)
{
    const auto preferences = system.createPreferences(clientName);
    const auto services = servicesOf(preferences.get());
    if (!services)
        return {};
    const auto state = system.createDynamicStore(clientName);
    QList<AdapterInfo> adapters;
    for (const auto& service : *services) {
        if (auto adapter = makeAdapterInfo(*service, state.get()))
            adapters.append(std::move(*adapter));
    }
    std::ranges::stable_sort(adapters, [](const AdapterInfo& a, const AdapterInfo& b) {
        return a.isActive != b.isActive ? a.isActive : comesBefore(a.serviceName, b.serviceName);
    });
    return adapters;
}

NetworkAdapterInfo readConfiguration(SystemConfiguration& system, const Text& serviceName)
{
    NetworkAdapterInfo configuration;
    const auto state = system.createDynamicStore(clientName);
    if (state)
        configuration.computerName = state->computerName().value_or(QString());
    const auto preferences = system.createPreferences(clientName);
    const auto service = serviceNamed(preferences.get(), serviceName);
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
        if (const auto live = serviceState(state.get(), serviceID))
            readAddresses(configuration, *live);
    }
    if (const auto lease = interfaceState(state.get(), bsdName, QStringLiteral("/DHCP")))
        configuration.dhcpServer = textIn(*lease, QStringLiteral("ServerAddress")).value_or(Text());
    if (const auto dns = configurationOf(*service, dnsType))
        readDNS(configuration, *dns);
    return configuration;
}

} // namespace ardeo
