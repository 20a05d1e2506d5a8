#pragma once

#include "backend/AdapterInfo.h"
#include "backend/ChangePlan.h"
#include "backend/NetworkAdapterInfo.h"

#include <chrono>

namespace ardeo
{

// What the commands print for other programs, each ending in a line break. No text in it is ever translated.

/// An array of objects with the field names of AdapterInfo, but for what only the program needs to know; one
/// with a change on trial says how many seconds are left to confirm it. Now is the continuous time.
QByteArray adaptersAsJson(const QList<AdapterInfo>& adapters, std::chrono::nanoseconds now);
/// An object with the field names of NetworkAdapterInfo.
QByteArray configurationAsJson(const NetworkAdapterInfo& configuration);
/// An object with "changed", whether the plan has an effect, "changes" and the "configuration" as it is.
QByteArray planAsJson(const ChangePlan& plan, const NetworkAdapterInfo& configuration);

/// One line for what became of a service: "added", "changed" or "removed"; the last without a configuration.
QByteArray eventAsJson(const QString& time, const char* event, const AdapterInfo& adapter,
                       const std::optional<NetworkAdapterInfo>& configuration);
/// One line for why the system cannot be reached, or with an empty sentence for that it can be again.
QByteArray troubleAsJson(const QString& time, const QString& sentence);

} // namespace ardeo
