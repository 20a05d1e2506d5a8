#pragma once

#include "backend/AdapterInfo.h"
#include "backend/NetworkAdapterInfo.h"
#include "backend/NetworkPreset.h"

namespace ardeo
{

/// The text without characters that would steer the terminal, line breaks among them.
QString printable(QString text);

// What the commands print, each ending in a line break. Colour is for terminals.

QString adaptersAsTable(const QList<AdapterInfo>& adapters, bool colour);
QString configurationAsTable(const AdapterInfo& adapter, const NetworkAdapterInfo& configuration,
                             bool colour);
QString presetsAsTable(const QList<NetworkPreset>& presets, bool colour);

/// An array of objects with the field names of AdapterInfo, but for what only the program needs to know.
QByteArray adaptersAsJson(const QList<AdapterInfo>& adapters);
/// An object with the field names of NetworkAdapterInfo.
QByteArray configurationAsJson(const NetworkAdapterInfo& configuration);

} // namespace ardeo
