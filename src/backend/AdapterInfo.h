#pragma once

#include "backend/Text.h"

#include <QHashFunctions>

#include <algorithm>
#include <chrono>
#include <optional>

namespace ardeo
{

/// One network service of the current set, as the adapter picker shows it.
struct AdapterInfo {
    /// The name the user knows the service by; also its identity.
    Text serviceName;
    /// The interface's display name; empty when there is no interface or it has no such name.
    Text hardwareName{};
    std::optional<Text> macAddress{};
    std::optional<Text> bsdName{};
    /// Whether the service holds at least one IPv4 address.
    bool isActive = false;
    bool isEnabled = false;
    /// Whether it belongs to its user alone, who needs a lesser right to change it.
    bool isPersonal = false;
    /// Megabits per second; known only while the link is up.
    std::optional<qint64> linkSpeedMbps{};
    /// Known only while the link is up.
    std::optional<bool> fullDuplex{};
    /// Until when a change of it that is on trial can be confirmed, in continuous time; none where none is.
    std::optional<std::chrono::milliseconds> confirmBy{};

    const Text& id() const { return serviceName; }
    /// How many seconds are left for that at the continuous time of now.
    std::optional<qint64> secondsToConfirm(std::chrono::nanoseconds now) const
    {
        if (!confirmBy)
            return std::nullopt;
        return std::max<qint64>(0, std::chrono::ceil<std::chrono::seconds>(*confirmBy - now).count());
    }
    bool operator==(const AdapterInfo&) const = default;
};

inline size_t qHash(const AdapterInfo& adapter, size_t seed = 0)
{
    return qHashMulti(seed, adapter.serviceName, adapter.hardwareName, adapter.macAddress.has_value(),
                      adapter.macAddress.value_or(Text()), adapter.bsdName.has_value(),
                      adapter.bsdName.value_or(Text()), adapter.isActive, adapter.isEnabled,
                      adapter.isPersonal, adapter.linkSpeedMbps.has_value(),
                      adapter.linkSpeedMbps.value_or(0), adapter.fullDuplex.has_value(),
                      adapter.fullDuplex.value_or(false), adapter.confirmBy.has_value());
}

} // namespace ardeo
