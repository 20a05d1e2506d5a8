#pragma once

#include "platform/ProtocolConfiguration.h"

#include <chrono>

namespace ardeo
{

/// What a transaction has been asked to change of one service, until it is committed.
struct ServiceChanges {
    /// Keys of the "IPv4" and the "DNS" dictionary with their new values, an invalid one where the key goes;
    /// none where nothing was written.
    std::optional<Dictionary> ipv4;
    std::optional<Dictionary> dns;
    std::optional<bool> enabled;

    bool any() const { return ipv4 || dns || enabled; }
    /// Whether a setting is to be another one.
    bool changeSettings() const { return (ipv4 && !ipv4->isEmpty()) || (dns && !dns->isEmpty()); }
    /// Whether a service on DHCP is to ask for its lease anew: it was put on DHCP, or all of its settings
    /// were written although they are so already.
    bool askForLease() const;
};

/// How much longer a system waits before it takes a trial back than whoever began it, and does so as well.
inline constexpr std::chrono::seconds trialReserve(5);

/// Why a change of a service is refused while one of it awaits confirmation, and why none can be ended.
QString trialReason();
QString noTrialReason();

/// The settings with the changes made.
Dictionary changed(Dictionary settings, const Dictionary& changes);

/// What the changes of "IPv4" settings lead to. What they do not name is not checked: it is there, so the
/// system takes it.
Checked<IPv4Configuration> checkedIPv4Changes(const Dictionary& present, const Dictionary& changes);

/// What whoever was shown the first address, the first two servers and, beside servers, the search domains of
/// the present settings has changed when they ask for the wanted ones. Wanted settings that no system can
/// take are asked for as they are, to be refused.
Dictionary ipv4Differences(const Dictionary& present, const Dictionary& wanted);
Dictionary dnsDifferences(const Dictionary& present, const Dictionary& wanted);

} // namespace ardeo
