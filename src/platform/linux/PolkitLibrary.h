#pragma once

#include <polkit/polkit.h>

namespace ardeo
{

/// What is used of polkit's own library. It is loaded when it is first asked for, because only a change needs
/// it, and with all that it brings along it would make each start of the console program a millisecond
/// longer.
struct PolkitLibrary {
    decltype(&polkit_authority_get_async) authorityGet = nullptr;
    decltype(&polkit_authority_get_finish) authorityGetFinish = nullptr;
    decltype(&polkit_authority_get_owner) authorityOwner = nullptr;
    decltype(&polkit_unix_process_new_for_owner) processOfOwner = nullptr;
    decltype(&polkit_authority_check_authorization) checkAuthorization = nullptr;
    decltype(&polkit_authority_check_authorization_finish) checkAuthorizationFinish = nullptr;
    decltype(&polkit_authorization_result_get_is_authorized) isAuthorized = nullptr;
    decltype(&polkit_authorization_result_get_retains_authorization) retainsAuthorization = nullptr;
    decltype(&polkit_authorization_result_get_temporary_authorization_id) temporaryAuthorization = nullptr;
    decltype(&polkit_authority_revoke_temporary_authorization_by_id) revokeTemporary = nullptr;
    decltype(&polkit_authority_revoke_temporary_authorization_by_id_finish) revokeTemporaryFinish = nullptr;

    /// The loaded library; null when it is not installed or lacks one of the functions. For any thread.
    static const PolkitLibrary* get();
};

} // namespace ardeo
