#pragma once

#include "platform/SystemConfiguration.h"
#include "platform/linux/networkmanager/GLibLoop.h"

namespace ardeo
{

/// The status that stands for a call of the daemon that failed; failed where there is no error to tell.
SystemStatus statusOf(const GLibError& error);

/// Whether the daemon refused to activate a profile because nothing is there that could carry it now.
bool isNotAvailable(const GLibError& error);

} // namespace ardeo
