#pragma once

#include "platform/SystemConfiguration.h"

namespace ardeo
{

/// The right to change the services of everybody, and the one to change those that are the user's alone.
inline constexpr auto systemNetworkRight = "system.preferences.network";
inline constexpr auto personalNetworkRight = "user.preferences.network";
/// The right to have a change taken back by itself, and to end its trial.
inline constexpr auto trialRight = "system.preferences.network.trial";

/// How a right is asked for; flags to be combined.
enum AuthorizationFlags : quint32 {
    authorizationDefaults = 0,
    interactionAllowed = 1,
    extendRights = 2,
    preAuthorize = 16,
};

/// The system's authorization service. Used from the main thread, which waits while a prompt is shown.
class Authorization
{
public:
    virtual ~Authorization() = default;
    /// A new handle without any right; none when the service is not there.
    virtual std::optional<AuthorizationRef> create() = 0;
    /// Obtains the right for the handle, asking the user where that is needed and allowed; false when it is
    /// refused or the user cancels.
    virtual bool copyRights(AuthorizationRef authorization, const QString& right, quint32 flags) = 0;
    /// Gives the handle up, and the consent that was obtained through it.
    virtual void free(AuthorizationRef authorization, quint32 flags) = 0;
};

} // namespace ardeo
