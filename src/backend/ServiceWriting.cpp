#include "backend/ServiceWriting.h"

#include "backend/Errors.h"
#include "platform/ConfigurationKeys.h"

namespace ardeo
{

namespace
{

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

} // namespace

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

std::optional<SettingFault> faultOf(const NetworkAdapterInfo& configuration, std::optional<Settings> named)
{
    const bool hasIPv4 = !named || !ipv4Changes(configuration, *named).isEmpty();
    const bool hasDNS = !named || !dnsChanges(configuration, *named).isEmpty();
    auto fault = hasIPv4 ? checkedIPv4(ipv4Dictionary(configuration)).fault() : std::nullopt;
    if (!fault && hasDNS)
        fault = checkedDNS(dnsDictionary(configuration)).fault();
    return fault;
}

} // namespace ardeo
