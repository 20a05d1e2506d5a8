#pragma once

#include "platform/Platform.h"

namespace ardeo
{

/// The real machine: NetworkManager, polkit and the user's XDG folders. Program is what starting at login
/// starts.
Platform linuxPlatform(const QString& program);

} // namespace ardeo
