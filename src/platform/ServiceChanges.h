#pragma once

#include "platform/SystemConfiguration.h"

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
    /// Whether a service on DHCP is to ask for its lease anew: its IPv4 settings were written for their own
    /// sake, not beside DNS settings that changed.
    bool asksForLease() const;
};

/// The settings with the changes made.
Dictionary changed(Dictionary settings, const Dictionary& changes);

/// What whoever was shown the first address, the first two servers and, beside servers, the search domains of
/// the present settings has changed when they ask for the wanted ones. Wanted settings that no system can
/// take are asked for as they are, to be refused.
Dictionary ipv4Differences(const Dictionary& present, const Dictionary& wanted);
Dictionary dnsDifferences(const Dictionary& present, const Dictionary& wanted);

} // namespace ardeo
