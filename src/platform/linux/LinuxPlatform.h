#pragma once

#include "platform/Platform.h"

namespace ardeo
{

/// Why NetworkManager cannot be used right now, as a sentence; none when it answers. Waits for its answer for
/// nine seconds at most.
std::optional<QString> networkManagerTrouble();

/// The real machine: NetworkManager, polkit and the user's XDG folders. Program is what starting at login
/// starts.
Platform linuxPlatform(const QString& program);

} // namespace ardeo
