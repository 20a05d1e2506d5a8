#pragma once

#include <QDBusConnection>

#include <optional>

namespace ardeo
{

/// The network interface over which the user works on this computer: that of the SSH connection which the
/// program was started over, or else the one that leads to the host from which the user has logged in, as the
/// login service on that bus says. None where the user sits in front of it. Waits for the login service,
/// half a second at most.
std::optional<QString> remoteInterface(QDBusConnection systemBus);

} // namespace ardeo
