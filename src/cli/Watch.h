#pragma once

#include "backend/NetworkConfigService.h"
#include "platform/Platform.h"

#include <functional>

namespace ardeo
{

/// Prints a line whenever something about a service has changed, until print says that nobody reads it.
void watch(NetworkConfigService& service, Platform& platform, bool asJson,
           const std::function<bool(const QByteArray&)>& print);

} // namespace ardeo
