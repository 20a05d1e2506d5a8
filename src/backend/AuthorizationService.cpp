#include "backend/AuthorizationService.h"

#include "backend/Errors.h"

namespace ardeo
{

AuthorizationService::AuthorizationService(Authorization& authorization) : m_authorization(authorization) {}

AuthorizationService::~AuthorizationService()
{
    invalidate();
}

AuthorizationRef AuthorizationService::authorize()
{
    if (authRef)
        return *authRef;
    const auto created = m_authorization.create();
    if (!created)
        throw AuthError::createFailed();
    if (!m_authorization.copyRights(*created, QStringLiteral("system.preferences.network"),
                                    interactionAllowed | extendRights | preAuthorize)) {
        m_authorization.free(*created, authorizationDefaults);
        throw AuthError::denied();
    }
    authRef = created;
    return *created;
}

void AuthorizationService::invalidate()
{
    if (authRef)
        m_authorization.free(*authRef, authorizationDefaults);
    authRef.reset();
}

} // namespace ardeo
