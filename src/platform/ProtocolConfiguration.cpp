#include "platform/ProtocolConfiguration.h"

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

/// An address that a host can have: not the unspecified one, no loopback, multicast or broadcast address.
bool isHostAddress(const QString& text)
{
    const auto number = ipv4FromText(text);
    return number && *number >> 24 != 0 && *number >> 24 != 127 && *number >> 28 != 0xE &&
           *number != 0xFFFFFFFF;
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

std::optional<IPv4Configuration> checkedIPv4(const Dictionary& dictionary)
{
    const QVariant method = dictionary.value(QStringLiteral("ConfigMethod"));
    if (method == QVariant(QStringLiteral("DHCP")))
        return IPv4Configuration{};
    if (method != QVariant(QStringLiteral("Manual")))
        return std::nullopt;

    const auto addresses = texts(dictionary, QStringLiteral("Addresses"));
    const auto masks = texts(dictionary, QStringLiteral("SubnetMasks"));
    if (!addresses || !masks || addresses->isEmpty() || addresses->size() != masks->size())
        return std::nullopt;
    IPv4Configuration configuration{.manual = true, .addresses = {}, .router = {}};
    for (qsizetype i = 0; i < addresses->size(); ++i) {
        const auto prefix = prefixFromMask(masks->at(i));
        if (!isHostAddress(addresses->at(i)) || !prefix)
            return std::nullopt;
        configuration.addresses.append({addresses->at(i), *prefix});
    }

    const QVariant router = dictionary.value(QStringLiteral("Router"));
    if (router.isValid() && router.typeId() != QMetaType::QString)
        return std::nullopt;
    if (!holdsOnlyDots(router.toString())) {
        if (!isHostAddress(router.toString()))
            return std::nullopt;
        configuration.router = router.toString();
    }
    return configuration;
}

std::optional<DNSConfiguration> checkedDNS(const Dictionary& dictionary)
{
    const auto servers = texts(dictionary, QStringLiteral("ServerAddresses"));
    const auto domains = texts(dictionary, QStringLiteral("SearchDomains"));
    if (!servers || !domains)
        return std::nullopt;
    DNSConfiguration configuration;
    for (const QString& server : *servers) {
        if (holdsOnlyDots(server))
            continue;
        const auto number = ipv4FromText(server);
        // A resolver on this very machine (127.0.0.1) is a server like any other.
        if (!number || *number == 0 || *number >> 28 >= 0xE)
            return std::nullopt;
        configuration.serverAddresses.append(server);
    }
    for (const QString& domain : *domains) {
        const bool breaksTheResolverFile = std::ranges::any_of(
            domain, [](QChar c) { return c.isSpace() || c.category() == QChar::Other_Control; });
        if (domain.isEmpty() || breaksTheResolverFile)
            return std::nullopt;
        configuration.searchDomains.append(domain);
    }
    return configuration;
}

} // namespace ardeo
