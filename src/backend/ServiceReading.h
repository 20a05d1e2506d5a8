#pragma once

#include "backend/AdapterInfo.h"
#include "backend/NetworkAdapterInfo.h"
#include "platform/SystemConfiguration.h"

#include <memory>

namespace ardeo
{

/// The name by which the program opens the system's preferences.
inline const QString clientName = QStringLiteral("Ardeo-IPConfig");

/// The services of the current set, active ones first, then by name. Empty when they cannot be read.
QList<AdapterInfo> readAdapters(SystemConfiguration& system);
/// The configuration of the service of that name with its live state. What cannot be read is as in the empty
/// record.
NetworkAdapterInfo readConfiguration(SystemConfiguration& system, const Text& serviceName);

/// The first service of that name in the set's order; null when there is none.
std::shared_ptr<NetworkService> serviceNamed(Preferences* preferences, const Text& name);

} // namespace ardeo
