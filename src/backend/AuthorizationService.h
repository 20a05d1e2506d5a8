#pragma once

#include "platform/Authorization.h"

namespace ardeo
{

/// Obtains an administrator's consent once and keeps it until it is invalidated. Used from the main thread.
class AuthorizationService
{
public:
    explicit AuthorizationService(Authorization& authorization);
    AuthorizationService(const AuthorizationService&) = delete;
    AuthorizationService& operator=(const AuthorizationService&) = delete;
    ~AuthorizationService();

    /// The reference that is held, or a new one, with the right, for which the user may be asked; the caller
    /// borrows it for one operation. One that is held with the right is returned as it is, even if the
    /// consent has lapsed in the meantime. Throws AuthError.
    AuthorizationRef authorize(const QString& right = QLatin1String(systemNetworkRight));
    /// Gives the held reference up, so that the next action asks again.
    void invalidate();

private:
    Authorization& m_authorization;
    std::optional<AuthorizationRef> authRef;
    QStringList m_rights;
};

} // namespace ardeo
