#include "platform/linux/networkmanager/ProfileTranslation.h"

#include "platform/ConfigurationKeys.h"

#include <sys/socket.h>

namespace ardeo
{

namespace
{

struct AddressList {
    QStringList addresses;
    QStringList masks;
    void append(NMIPAddress* address)
    {
        addresses.append(QString::fromUtf8(nm_ip_address_get_address(address)));
        masks.append(maskFromPrefix(static_cast<int>(nm_ip_address_get_prefix(address))));
    }
    void writeTo(Dictionary& dictionary) const
    {
        if (addresses.isEmpty())
            return;
        dictionary[addressesKey] = addresses;
        dictionary[subnetMasksKey] = masks;
    }
};

NMSettingIPConfig* ipv4Of(NMConnection* profile)
{
    return nm_connection_get_setting_ip4_config(profile);
}

/// Brings what the changes name of IPv4 into the profile, from the configuration that they lead to; its
/// routes and DHCP options stay, and another method takes all addresses and the gateway along.
void changeIPv4(NMConnection* profile, const IPv4Configuration& configuration, const Dictionary& changes)
{
    NMSettingIPConfig* ipv4 = ipv4Of(profile);
    const char* method =
        configuration.manual ? NM_SETTING_IP4_CONFIG_METHOD_MANUAL : NM_SETTING_IP4_CONFIG_METHOD_AUTO;
    const bool isOther =
        changes.contains(configMethodKey) && QByteArrayView(nm_setting_ip_config_get_method(ipv4)) != method;
    if (isOther || changes.contains(addressesKey) || changes.contains(subnetMasksKey)) {
        nm_setting_ip_config_clear_addresses(ipv4);
        for (const auto& [text, prefix] : configuration.addresses) {
            NMIPAddress* address =
                nm_ip_address_new(AF_INET, text.toUtf8().constData(), static_cast<guint>(prefix), nullptr);
            nm_setting_ip_config_add_address(ipv4, address);
            nm_ip_address_unref(address);
        }
    }
    if (isOther)
        g_object_set(ipv4, NM_SETTING_IP_CONFIG_METHOD, method, nullptr);
    if (isOther || changes.contains(routerKey)) {
        g_object_set(ipv4, NM_SETTING_IP_CONFIG_GATEWAY,
                     configuration.router ? configuration.router->toUtf8().constData() : nullptr, nullptr);
    }
    // It would make NetworkManager drop the gateway that is asked for here, and say nothing.
    if (configuration.router && changes.contains(routerKey))
        g_object_set(ipv4, NM_SETTING_IP_CONFIG_NEVER_DEFAULT, FALSE, nullptr);
}

/// Brings what the changes name of the servers and search domains into the profile, from the configuration
/// that they lead to. With servers of its own the profile takes none from the network any more, neither by
/// DHCP nor by router advertisement; its own IPv6 servers stay.
void changeDNS(NMConnection* profile, const DNSConfiguration& configuration, const Dictionary& changes)
{
    NMSettingIPConfig* ipv4 = ipv4Of(profile);
    if (changes.contains(searchDomainsKey)) {
        nm_setting_ip_config_clear_dns_searches(ipv4);
        for (const QString& domain : configuration.searchDomains)
            nm_setting_ip_config_add_dns_search(ipv4, domain.toUtf8().constData());
    }
    if (!changes.contains(serverAddressesKey))
        return;
    nm_setting_ip_config_clear_dns(ipv4);
    for (const QString& server : configuration.serverAddresses)
        nm_setting_ip_config_add_dns(ipv4, server.toUtf8().constData());

    const gboolean ownServersOnly = configuration.serverAddresses.isEmpty() ? FALSE : TRUE;
    g_object_set(ipv4, NM_SETTING_IP_CONFIG_IGNORE_AUTO_DNS, ownServersOnly, nullptr);
    if (NMSettingIPConfig* ipv6 = nm_connection_get_setting_ip6_config(profile)) {
        const QByteArrayView method(nm_setting_ip_config_get_method(ipv6));
        const bool automatic =
            method == NM_SETTING_IP6_CONFIG_METHOD_AUTO || method == NM_SETTING_IP6_CONFIG_METHOD_DHCP;
        if (automatic || !ownServersOnly)
            g_object_set(ipv6, NM_SETTING_IP_CONFIG_IGNORE_AUTO_DNS, ownServersOnly, nullptr);
    }
}

} // namespace

Dictionary ipv4DictionaryOf(NMConnection* profile)
{
    NMSettingIPConfig* ipv4 = ipv4Of(profile);
    Dictionary dictionary;
    const QString method = QString::fromUtf8(nm_setting_ip_config_get_method(ipv4));
    if (method == QLatin1String(NM_SETTING_IP4_CONFIG_METHOD_AUTO))
        dictionary[configMethodKey] = methodDHCP;
    else if (method == QLatin1String(NM_SETTING_IP4_CONFIG_METHOD_MANUAL))
        dictionary[configMethodKey] = methodManual;
    else
        dictionary[configMethodKey] = method;

    AddressList list;
    for (guint i = 0; i < nm_setting_ip_config_get_num_addresses(ipv4); ++i)
        list.append(nm_setting_ip_config_get_address(ipv4, static_cast<int>(i)));
    list.writeTo(dictionary);
    if (const char* gateway = nm_setting_ip_config_get_gateway(ipv4))
        dictionary[routerKey] = QString::fromUtf8(gateway);
    return dictionary;
}

Dictionary dnsDictionaryOf(NMConnection* profile)
{
    NMSettingIPConfig* ipv4 = ipv4Of(profile);
    QStringList servers;
    for (guint i = 0; i < nm_setting_ip_config_get_num_dns(ipv4); ++i)
        servers.append(QString::fromUtf8(nm_setting_ip_config_get_dns(ipv4, static_cast<int>(i))));
    QStringList domains;
    for (guint i = 0; i < nm_setting_ip_config_get_num_dns_searches(ipv4); ++i)
        domains.append(QString::fromUtf8(nm_setting_ip_config_get_dns_search(ipv4, static_cast<int>(i))));
    Dictionary dictionary;
    if (!servers.isEmpty())
        dictionary[serverAddressesKey] = servers;
    if (!domains.isEmpty())
        dictionary[searchDomainsKey] = domains;
    return dictionary;
}

std::optional<Dictionary> liveDictionaryOf(NMIPConfig* configuration)
{
    AddressList list;
    const GPtrArray* addresses = nm_ip_config_get_addresses(configuration);
    for (guint i = 0; addresses && i < addresses->len; ++i)
        list.append(static_cast<NMIPAddress*>(g_ptr_array_index(addresses, i)));
    if (list.addresses.isEmpty())
        return std::nullopt;
    Dictionary dictionary;
    list.writeTo(dictionary);
    if (const char* gateway = nm_ip_config_get_gateway(configuration))
        dictionary[routerKey] = QString::fromUtf8(gateway);
    return dictionary;
}

bool isEnabled(NMConnection* profile)
{
    return nm_setting_connection_get_autoconnect(nm_connection_get_setting_connection(profile)) != FALSE;
}

bool change(NMConnection* profile, const ServiceChanges& changes)
{
    if (changes.ipv4) {
        const auto checked = checkedIPv4Changes(ipv4DictionaryOf(profile), *changes.ipv4);
        if (!checked)
            return false;
        changeIPv4(profile, *checked, *changes.ipv4);
    }
    if (changes.dns) {
        const auto checked = checkedDNS(*changes.dns);
        if (!checked)
            return false;
        changeDNS(profile, *checked, *changes.dns);
    }
    if (changes.enabled) {
        g_object_set(nm_connection_get_setting_connection(profile), NM_SETTING_CONNECTION_AUTOCONNECT,
                     *changes.enabled ? TRUE : FALSE, nullptr);
    }
    return nm_connection_normalize(profile, nullptr, nullptr, nullptr) != FALSE;
}

} // namespace ardeo
