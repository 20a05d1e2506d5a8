#pragma once

#include "platform/SystemConfiguration.h"

namespace ardeo
{

/// An IPv4 address as a number, in host byte order.
using IPv4Number = quint32;

/// The number behind a dotted quad in its full form; none for any other text.
std::optional<IPv4Number> ipv4FromText(const QString& text);
QString ipv4ToText(IPv4Number number);

/// The number of leading one bits (1 to 32) of a contiguous dotted mask; none for any other text.
std::optional<int> prefixFromMask(const QString& mask);
/// The dotted mask with that many leading one bits, 0 to 32.
QString maskFromPrefix(int prefix);

/// What an "IPv4" dictionary asks for, checked.
struct IPv4Configuration {
    struct Address {
        QString address;
        int prefix;
    };
    bool manual = false;
    QList<Address> addresses;
    std::optional<QString> router;
};

/// What a "DNS" dictionary asks for, checked.
struct DNSConfiguration {
    QStringList serverAddresses;
    QStringList searchDomains;
};

/// None when the dictionary holds something that no system can take: a malformed address, a mask that is not
/// contiguous, a method other than "DHCP" and "Manual". A router that holds nothing but dots (an editor that
/// was cleared) counts as absent.
std::optional<IPv4Configuration> checkedIPv4(const Dictionary& dictionary);
/// None when a server is not an IPv4 address or a search domain could not stand
/// in a resolver's file. A server that holds nothing
/// but dots counts as absent.
std::optional<DNSConfiguration> checkedDNS(const Dictionary& dictionary);

} // namespace ardeo
