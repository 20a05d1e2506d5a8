#pragma once

#include "backend/ServiceWriting.h"
#include "platform/SystemConfiguration.h"

#include <QStringList>

namespace ardeo
{

/// One setting of a service, as it is and as a change would make it.
struct SettingChange {
    /// The setting's key in the system's dictionaries.
    QString key;
    /// Empty where there is none; where the network gives the address, what it has given.
    QStringList present;
    QStringList wanted;
};

/// What writing a configuration would change.
struct ChangePlan {
    /// What would be another one, in the order in which settings are shown.
    QList<SettingChange> changes;
    /// Whether something would be another one, be it that it is not shown.
    bool isChange = false;
    /// Whether what is saved is in force as far as it can be: it is not where the service could be connected
    /// and is not, or has another address.
    bool isInForce = true;

    /// Whether writing it has an effect.
    bool isNeeded() const { return isChange || !isInForce; }
};

/// What writing the configuration, or of it what is named, would change of the service. Locks and changes
/// nothing. Throws ConfigError where the service is not there, or cannot take it.
ChangePlan planChange(SystemConfiguration& system, const Text& serviceName,
                      const NetworkAdapterInfo& configuration, std::optional<Settings> named);

} // namespace ardeo
