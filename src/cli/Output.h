#pragma once

#include "backend/AdapterInfo.h"
#include "backend/NetworkAdapterInfo.h"
#include "backend/NetworkPreset.h"

#include <chrono>

namespace ardeo
{

/// The text without characters that would steer the terminal, line breaks among them.
QString printable(QString text);

// What the commands print, each ending in a line break. Colour is for terminals.

// Now is the continuous time, which says how long a change on trial can still be confirmed.

QString adaptersAsTable(const QList<AdapterInfo>& adapters, std::chrono::nanoseconds now, bool colour);
QString configurationAsTable(const AdapterInfo& adapter, const NetworkAdapterInfo& configuration,
                             std::chrono::nanoseconds now, bool colour);
QString presetsAsTable(const QList<NetworkPreset>& presets, bool colour);

/// An array of objects with the field names of AdapterInfo, but for what only the program needs to know; one
/// with a change on trial says how many seconds are left to confirm it.
QByteArray adaptersAsJson(const QList<AdapterInfo>& adapters, std::chrono::nanoseconds now);
/// An object with the field names of NetworkAdapterInfo.
QByteArray configurationAsJson(const NetworkAdapterInfo& configuration);

} // namespace ardeo
