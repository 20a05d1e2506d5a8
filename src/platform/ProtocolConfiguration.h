#pragma once

#include "platform/SystemConfiguration.h"

#include <QCoreApplication>

#include <utility>
#include <variant>

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

/// Why settings cannot be taken.
struct SettingFault {
    /// Of which one it is; none where it is not a value's fault.
    enum class Setting { none, method, address, subnetMask, router, dnsServer, searchDomain };
    Setting setting = Setting::none;
    /// The value's text; empty where it has none.
    QString value;
    /// What is wrong with it, as a sentence for the user.
    QString reason;
    bool operator==(const SettingFault&) const = default;

    Q_DECLARE_TR_FUNCTIONS(ardeo::SettingFault)
};

/// What a check came to: the configuration that is asked for, or the first fault in it.
template <typename Configuration>
class Checked
{
public:
    Checked(Configuration configuration) : m_result(std::move(configuration)) {}
    Checked(SettingFault fault) : m_result(std::move(fault)) {}

    explicit operator bool() const { return std::holds_alternative<Configuration>(m_result); }
    const Configuration& operator*() const { return std::get<Configuration>(m_result); }
    const Configuration* operator->() const { return &std::get<Configuration>(m_result); }
    std::optional<SettingFault> fault() const
    {
        const auto* found = std::get_if<SettingFault>(&m_result);
        return found ? std::optional(*found) : std::nullopt;
    }

private:
    std::variant<Configuration, SettingFault> m_result;
};

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

/// A fault is what no system can take: a malformed address or one that no computer can have, a mask that is
/// not contiguous, a gateway that is the address itself, a method other than "DHCP" and "Manual". A router
/// that holds nothing but dots (an editor that was cleared) counts as absent.
Checked<IPv4Configuration> checkedIPv4(const Dictionary& dictionary);
/// Of a manual configuration the addresses, and the router, alone.
Checked<QList<IPv4Configuration::Address>> checkedAddresses(const Dictionary& dictionary);
Checked<std::optional<QString>> checkedRouter(const Dictionary& dictionary);
/// A fault is a server that is not an IPv4 address, or a search domain that could not stand in a resolver's
/// file. A server that holds nothing but dots counts as absent.
Checked<DNSConfiguration> checkedDNS(const Dictionary& dictionary);
/// What is wrong with DNS servers for a service with that method; nothing where it has addresses of its own.
std::optional<SettingFault> faultOfServersBeside(const QString& method);

} // namespace ardeo
