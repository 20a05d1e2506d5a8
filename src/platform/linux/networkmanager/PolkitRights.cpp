#include "platform/linux/networkmanager/PolkitRights.h"

#include <polkit/polkit.h>
#include <unistd.h>

namespace ardeo
{

namespace
{

/// polkit's daemon; null when it is not there.
GRef<PolkitAuthority> authorityFrom(GLibLoop& loop, QDeadlineTimer deadline)
{
    if (!loop.systemBus(deadline)) // also keeps a bus that goes away from ending the program
        return nullptr;
    const auto result =
        loop.call(deadline, [](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            polkit_authority_get_async(cancellable, done, data);
        });
    GRef<PolkitAuthority> authority(polkit_authority_get_finish(result.get(), nullptr));
    if (!authority)
        return nullptr;
    const std::unique_ptr<char, decltype(&g_free)> owner(polkit_authority_get_owner(authority.get()),
                                                         &g_free);
    return owner ? std::move(authority) : nullptr;
}

} // namespace

std::optional<PolkitAnswer> askPolkit(GLibLoop& loop, QDeadlineTimer deadline, const char* action,
                                      bool interaction)
{
    const auto authority = authorityFrom(loop, deadline);
    if (!authority)
        return std::nullopt;
    const GRef<PolkitSubject> self(
        polkit_unix_process_new_for_owner(getpid(), 0, static_cast<gint>(getuid())));
    const auto flags = interaction ? POLKIT_CHECK_AUTHORIZATION_FLAGS_ALLOW_USER_INTERACTION
                                   : POLKIT_CHECK_AUTHORIZATION_FLAGS_NONE;
    const auto ended =
        loop.call(deadline, [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            polkit_authority_check_authorization(authority.get(), self.get(), action, nullptr, flags,
                                                 cancellable, done, data);
        });
    const GRef<PolkitAuthorizationResult> result(
        polkit_authority_check_authorization_finish(authority.get(), ended.get(), nullptr));
    if (!result)
        return std::nullopt;
    PolkitAnswer answer;
    answer.authorized = polkit_authorization_result_get_is_authorized(result.get()) != FALSE;
    answer.keepsConsent = polkit_authorization_result_get_retains_authorization(result.get()) != FALSE;
    if (const char* identifier = polkit_authorization_result_get_temporary_authorization_id(result.get()))
        answer.temporaryAuthorization = QString::fromUtf8(identifier);
    return answer;
}

void revokeTemporaryAuthorization(GLibLoop& loop, QDeadlineTimer deadline, const QString& identifier)
{
    const auto authority = authorityFrom(loop, deadline);
    if (!authority)
        return;
    const auto ended =
        loop.call(deadline, [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            polkit_authority_revoke_temporary_authorization_by_id(
                authority.get(), identifier.toUtf8().constData(), cancellable, done, data);
        });
    polkit_authority_revoke_temporary_authorization_by_id_finish(authority.get(), ended.get(), nullptr);
}

bool polkitAnswers(GLibLoop& loop, QDeadlineTimer deadline)
{
    return authorityFrom(loop, deadline) != nullptr;
}

} // namespace ardeo
