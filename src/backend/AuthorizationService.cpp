#include "backend/AuthorizationService.h"

#include "backend/Errors.h"

namespace ardeo
{

AuthorizationService::AuthorizationService(Authorization& authorization) : m_authorization(authorization) {}

AuthorizationService::~AuthorizationService()
{
    invalidate();
}

AuthorizationRef AuthorizationService::authorize(const QString& right)
{
    if (!authRef)
        authRef = m_authorization.create();
    if (!authRef)
        throw AuthError::createFailed();
    if (m_rights.contains(right))
        return *authRef;
    if (!m_authorization.copyRights(*authRef, right, interactionAllowed | extendRights | preAuthorize)) {
        invalidate();
        throw AuthError::denied();
    }
    m_rights.append(right);
    return *authRef;
}

void AuthorizationService::invalidate()
{
    if (authRef)
        m_authorization.free(*authRef, authorizationDefaults);
    authRef.reset();
    m_rights.clear();
}

} // namespace ardeo
