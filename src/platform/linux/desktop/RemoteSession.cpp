#include "platform/linux/desktop/RemoteSession.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QVariantMap>

#include <cstring>
#include <ifaddrs.h>
#include <memory>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ardeo
{

namespace
{

constexpr int answerMilliseconds = 500;

using Addresses = std::unique_ptr<addrinfo, decltype(&freeaddrinfo)>;

/// Null for a name, which nobody is waited for to look up.
Addresses addressOf(const QString& host)
{
    addrinfo hints{};
    hints.ai_flags = AI_NUMERICHOST | AI_NUMERICSERV;
    hints.ai_socktype = SOCK_DGRAM;
    addrinfo* list = nullptr;
    const int status = getaddrinfo(host.toUtf8().constData(), "22", &hints, &list);
    return {status == 0 ? list : nullptr, freeaddrinfo};
}

bool isSameHost(const sockaddr* one, const sockaddr* other)
{
    if (one->sa_family != other->sa_family)
        return false;
    if (one->sa_family == AF_INET)
        return reinterpret_cast<const sockaddr_in*>(one)->sin_addr.s_addr ==
               reinterpret_cast<const sockaddr_in*>(other)->sin_addr.s_addr;
    return one->sa_family == AF_INET6 &&
           std::memcmp(&reinterpret_cast<const sockaddr_in6*>(one)->sin6_addr,
                       &reinterpret_cast<const sockaddr_in6*>(other)->sin6_addr, sizeof(in6_addr)) == 0;
}

std::optional<QString> interfaceWithAddress(const sockaddr* address)
{
    ifaddrs* all = nullptr;
    if (getifaddrs(&all) != 0)
        return std::nullopt;
    const std::unique_ptr<ifaddrs, decltype(&freeifaddrs)> owner(all, freeifaddrs);
    for (const ifaddrs* entry = all; entry; entry = entry->ifa_next) {
        if (entry->ifa_addr && isSameHost(entry->ifa_addr, address))
            return QString::fromLocal8Bit(entry->ifa_name).section(u':', 0, 0); // without the address' label
    }
    return std::nullopt;
}

/// Nothing is sent: the kernel only says from which address it would.
std::optional<QString> interfaceTowards(const QString& host)
{
    const Addresses other = addressOf(host);
    if (!other)
        return std::nullopt;
    const int way = socket(other->ai_family, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    sockaddr_storage own{};
    socklen_t size = sizeof(own);
    const bool isKnown = connect(way, other->ai_addr, other->ai_addrlen) == 0 &&
                         getsockname(way, reinterpret_cast<sockaddr*>(&own), &size) == 0;
    close(way);
    return isKnown ? interfaceWithAddress(reinterpret_cast<const sockaddr*>(&own)) : std::nullopt;
}

/// Empty where the user has not logged in from another host, or from one that is not known.
QString remoteHost(QDBusConnection& systemBus)
{
    // The session that the program belongs to, or else the one that its user sees.
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.login1"), QStringLiteral("/org/freedesktop/login1/session/auto"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("GetAll"));
    question << QStringLiteral("org.freedesktop.login1.Session");
    const QDBusMessage answer = systemBus.call(question, QDBus::Block, answerMilliseconds);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty())
        return {};
    const auto session = qdbus_cast<QVariantMap>(answer.arguments().first());
    return session.value(QStringLiteral("Remote")).toBool()
               ? session.value(QStringLiteral("RemoteHost")).toString()
               : QString();
}

} // namespace

std::optional<QString> remoteInterface(QDBusConnection systemBus)
{
    // The client's address and port, and those that it has reached us by.
    const QStringList connection = qEnvironmentVariable("SSH_CONNECTION").split(u' ');
    if (connection.size() == 4) {
        if (const Addresses own = addressOf(connection.at(2)))
            return interfaceWithAddress(own->ai_addr);
    }
    const QString host = remoteHost(systemBus);
    return host.isEmpty() ? std::nullopt : interfaceTowards(host);
}

} // namespace ardeo
