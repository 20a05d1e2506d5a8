#include "backend/ServiceWriting.h"

#include "backend/Errors.h"
#include "platform/ConfigurationKeys.h"
#include "platform/ServiceChanges.h"

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
    const auto dns = service.protocol(dnsType);
    if (!named) {
        ipv4->setConfiguration(ipv4Dictionary(configuration));
        if (dns)
            dns->setConfiguration(dnsDictionary(configuration));
        return;
    }
    if (const Dictionary changes = ipv4Changes(configuration, *named); !changes.isEmpty())
        ipv4->changeConfiguration(changes);
    if (const Dictionary changes = dnsChanges(configuration, *named); dns && !changes.isEmpty())
        dns->changeConfiguration(changes);
}

std::optional<SettingFault> faultFor(const NetworkService& service, const NetworkAdapterInfo& configuration,
                                     std::optional<Settings> named)
{
    const auto ipv4 = service.protocol(ipv4Type);
    const Dictionary present = ipv4 ? ipv4->configuration().value_or(QVariant()).toMap() : Dictionary();
    auto fault = named ? checkedIPv4Changes(present, ipv4Changes(configuration, *named)).fault()
                       : checkedIPv4(ipv4Dictionary(configuration)).fault();
    const Dictionary dns = named ? dnsChanges(configuration, *named) : dnsDictionary(configuration);
    if (!fault)
        fault = checkedDNS(dns).fault();
    if (!fault && dns.value(serverAddressesKey).isValid())
        fault = faultOfServersBeside(present.value(configMethodKey).toString());
    return fault;
}

} // namespace ardeo
