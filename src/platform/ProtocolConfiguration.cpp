#include "platform/ProtocolConfiguration.h"

#include "platform/ConfigurationKeys.h"

#include <algorithm>
#include <bit>

namespace ardeo
{

namespace
{

bool holdsOnlyDots(const QString& text)
{
    return std::ranges::all_of(text, [](QChar c) { return c == u'.'; });
}

/// Whether a host can have the address: it is not the unspecified one, no loopback, multicast or broadcast
/// address.
bool isHostAddress(IPv4Number number)
{
    return number >> 24 != 0 && number >> 24 != 127 && number >> 28 != 0xE && number != 0xFFFFFFFF;
}

/// Whether some of the four parts are there, but not all.
bool isIncomplete(const QString& text)
{
    const QStringList parts = text.split(u'.');
    const bool plain =
        std::ranges::all_of(text, [](QChar c) { return c == u'.' || (c >= u'0' && c <= u'9'); });
    return plain && parts.size() <= 4 && (parts.size() < 4 || parts.contains(QString()));
}

/// What is wrong with a text that is no IPv4 address, or none that the thing can have.
SettingFault addressFault(SettingFault::Setting setting, const QString& name, const QString& text)
{
    const auto reason = [&] {
        if (holdsOnlyDots(text))
            return SettingFault::tr("%1 is missing.").arg(name);
        if (isIncomplete(text))
            return SettingFault::tr("%1 is not complete.").arg(name);
        if (!ipv4FromText(text))
            return SettingFault::tr("%1 is not an IPv4 address.").arg(text);
        return SettingFault::tr("%1 cannot be the address of a computer.").arg(text);
    };
    return {setting, text, reason()};
}

SettingFault maskFault(const QString& mask)
{
    const SettingFault fault =
        addressFault(SettingFault::Setting::subnetMask, SettingFault::tr("The subnet mask"), mask);
    const bool says = holdsOnlyDots(mask) || isIncomplete(mask);
    return says ? fault
                : SettingFault{fault.setting, mask, SettingFault::tr("%1 is not a subnet mask.").arg(mask)};
}

/// What is wrong with an address in a network of that prefix; none when it is a host's.
std::optional<SettingFault> hostFault(const QString& address, int prefix)
{
    const auto number = ipv4FromText(address);
    if (!number || !isHostAddress(*number))
        return addressFault(SettingFault::Setting::address, SettingFault::tr("The IP address"), address);
    // The two addresses of a network between two computers are theirs, and so is the one of a single
    // computer.
    const IPv4Number hostBits = prefix >= 31 ? 0 : ~IPv4Number(0) >> prefix;
    if (hostBits != 0 && (*number & hostBits) == 0)
        return SettingFault{SettingFault::Setting::address, address,
                            SettingFault::tr("%1 is the address of the network itself.").arg(address)};
    if (hostBits != 0 && (*number & hostBits) == hostBits)
        return SettingFault{SettingFault::Setting::address, address,
                            SettingFault::tr("%1 is the broadcast address of the network.").arg(address)};
    return std::nullopt;
}

/// Absent is an empty list; a value of another kind is none.
std::optional<QStringList> texts(const Dictionary& dictionary, const QString& key)
{
    const QVariant value = dictionary.value(key);
    if (!value.isValid())
        return QStringList();
    if (value.typeId() != QMetaType::QStringList)
        return std::nullopt;
    return value.toStringList();
}

} // namespace

std::optional<IPv4Number> ipv4FromText(const QString& text)
{
    const QStringList parts = text.split(u'.');
    if (parts.size() != 4)
        return std::nullopt;
    IPv4Number number = 0;
    for (const QString& part : parts) {
        const bool digits = std::ranges::all_of(part, [](QChar c) { return c >= u'0' && c <= u'9'; });
        // A leading zero is refused because some readers take what follows for an octal number.
        if (!digits || part.isEmpty() || part.size() > 3 || (part.size() > 1 && part.startsWith(u'0')))
            return std::nullopt;
        const uint octet = part.toUInt();
        if (octet > 255)
            return std::nullopt;
        number = number << 8 | octet;
    }
    return number;
}

QString ipv4ToText(IPv4Number number)
{
    return QStringLiteral("%1.%2.%3.%4")
        .arg(number >> 24)
        .arg(number >> 16 & 255)
        .arg(number >> 8 & 255)
        .arg(number & 255);
}

std::optional<int> prefixFromMask(const QString& mask)
{
    const auto number = ipv4FromText(mask);
    if (!number || *number == 0)
        return std::nullopt;
    const int prefix = std::countl_one(*number);
    return maskFromPrefix(prefix) == mask ? std::optional(prefix) : std::nullopt;
}

QString maskFromPrefix(int prefix)
{
    return ipv4ToText(prefix <= 0 ? 0 : ~IPv4Number(0) << (32 - prefix));
}

Checked<IPv4Configuration> checkedIPv4(const Dictionary& dictionary)
{
    const QVariant method = dictionary.value(configMethodKey);
    if (method == QVariant(methodDHCP))
        return IPv4Configuration{};
    if (method != QVariant(methodManual))
        return SettingFault{SettingFault::Setting::method, method.toString(),
                            SettingFault::tr("The addresses are set neither by DHCP nor by hand.")};
    auto addresses = checkedAddresses(dictionary);
    if (!addresses)
        return *addresses.fault();
    auto router = checkedRouter(dictionary);
    if (!router)
        return *router.fault();
    return IPv4Configuration{.manual = true, .addresses = *addresses, .router = *router};
}

Checked<QList<IPv4Configuration::Address>> checkedAddresses(const Dictionary& dictionary)
{
    const auto addresses = texts(dictionary, addressesKey);
    const auto masks = texts(dictionary, subnetMasksKey);
    if (!addresses || addresses->isEmpty())
        return addressFault(SettingFault::Setting::address, SettingFault::tr("The IP address"), {});
    if (!masks || addresses->size() != masks->size())
        return maskFault({});
    QList<IPv4Configuration::Address> checked;
    for (qsizetype i = 0; i < addresses->size(); ++i) {
        const auto prefix = prefixFromMask(masks->at(i));
        if (auto fault = hostFault(addresses->at(i), prefix.value_or(32)))
            return *fault;
        if (!prefix)
            return maskFault(masks->at(i));
        checked.append({addresses->at(i), *prefix});
    }
    return checked;
}

Checked<std::optional<QString>> checkedRouter(const Dictionary& dictionary)
{
    using Setting = SettingFault::Setting;
    const QVariant given = dictionary.value(routerKey);
    const QString gateway = given.toString();
    const bool isText = !given.isValid() || given.typeId() == QMetaType::QString;
    if (isText && holdsOnlyDots(gateway))
        return std::optional<QString>();
    const auto number = ipv4FromText(gateway);
    if (!isText || !number || !isHostAddress(*number))
        return addressFault(Setting::router, SettingFault::tr("The gateway"), gateway);
    if (dictionary.value(addressesKey).toStringList().contains(gateway))
        return SettingFault{Setting::router, gateway, SettingFault::tr("The gateway is the address itself.")};
    return std::optional(gateway);
}

Checked<DNSConfiguration> checkedDNS(const Dictionary& dictionary)
{
    using Setting = SettingFault::Setting;
    const auto servers = texts(dictionary, serverAddressesKey);
    const auto domains = texts(dictionary, searchDomainsKey);
    if (!servers)
        return addressFault(Setting::dnsServer, SettingFault::tr("The DNS server"), {});
    if (!domains)
        return SettingFault{
            Setting::searchDomain, {}, SettingFault::tr("The search domains are not a list of names.")};
    DNSConfiguration configuration;
    for (const QString& server : *servers) {
        if (holdsOnlyDots(server))
            continue;
        const auto number = ipv4FromText(server);
        // A resolver on this very machine (127.0.0.1) is a server like any other.
        if (!number || *number == 0 || *number >> 28 >= 0xE) {
            const QString which = &server == &servers->first() ? SettingFault::tr("The preferred DNS server")
                                                               : SettingFault::tr("The alternate DNS server");
            return addressFault(Setting::dnsServer,
                                servers->size() == 2 ? which : SettingFault::tr("The DNS server"), server);
        }
        configuration.serverAddresses.append(server);
    }
    for (const QString& domain : *domains) {
        const bool breaksTheResolverFile = std::ranges::any_of(
            domain, [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Control; });
        if (domain.isEmpty() || breaksTheResolverFile)
            return SettingFault{Setting::searchDomain, domain,
                                SettingFault::tr("\"%1\" is not a search domain.").arg(domain.simplified())};
        configuration.searchDomains.append(domain);
    }
    return configuration;
}

std::optional<SettingFault> faultOfServersBeside(const QString& method)
{
    if (method == methodDHCP || method == methodManual)
        return std::nullopt;
    return SettingFault{SettingFault::Setting::dnsServer,
                        {},
                        SettingFault::tr("A service whose IPv4 is \"%1\" takes no DNS servers.").arg(method)};
}

} // namespace ardeo
