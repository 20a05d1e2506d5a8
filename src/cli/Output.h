#pragma once

#include "backend/AdapterInfo.h"
#include "backend/ChangePlan.h"
#include "backend/NetworkAdapterInfo.h"
#include "backend/NetworkPreset.h"

#include <QCoreApplication>

#include <chrono>

namespace ardeo
{

/// Gives the translations of what the console program says their place.
struct Console {
    Q_DECLARE_TR_FUNCTIONS(ardeo::Console)
};

/// The text without characters that would steer the terminal, line breaks among them.
QString printable(QString text);

// What the commands print for people, each ending in a line break. Colour is for terminals.

// Now is the continuous time, which says how long a change on trial can still be confirmed.

QString adaptersAsTable(const QList<AdapterInfo>& adapters, std::chrono::nanoseconds now, bool colour);
QString configurationAsTable(const AdapterInfo& adapter, const NetworkAdapterInfo& configuration,
                             std::chrono::nanoseconds now, bool colour);
QString presetsAsTable(const QList<NetworkPreset>& presets, bool colour);

/// The labels and values of a configuration, in the order in which they are shown.
QList<std::pair<QString, QString>> fieldsOf(const NetworkAdapterInfo& configuration);
/// Connected, disconnected or disabled.
QString stateText(const AdapterInfo& adapter);

/// What a change of the service would change, a line each.
QString planAsText(const ChangePlan& plan, const QString& serviceName);

} // namespace ardeo
