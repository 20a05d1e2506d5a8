#include "platform/linux/PolkitRights.h"

#include "platform/linux/PolkitLibrary.h"

#include <unistd.h>

namespace ardeo
{

namespace
{

/// The daemon behind the library; null when either is not there.
GRef<PolkitAuthority> authorityFrom(const PolkitLibrary* polkit, GLibLoop& loop, QDeadlineTimer deadline)
{
    if (!polkit || !loop.systemBus(deadline)) // also keeps a bus that goes away from ending the program
        return nullptr;
    const auto result =
        loop.call(deadline, [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            polkit->authorityGet(cancellable, done, data);
        });
    GRef<PolkitAuthority> authority(polkit->authorityGetFinish(result.get(), nullptr));
    if (!authority)
        return nullptr;
    const std::unique_ptr<char, decltype(&g_free)> owner(polkit->authorityOwner(authority.get()), &g_free);
    return owner ? std::move(authority) : nullptr;
}

} // namespace

std::optional<PolkitAnswer> askPolkit(GLibLoop& loop, QDeadlineTimer deadline, const char* action,
                                      bool interaction)
{
    const PolkitLibrary* polkit = PolkitLibrary::get();
    const auto authority = authorityFrom(polkit, loop, deadline);
    if (!authority)
        return std::nullopt;
    const GRef<PolkitSubject> self(polkit->processOfOwner(getpid(), 0, static_cast<gint>(getuid())));
    const auto flags = interaction ? POLKIT_CHECK_AUTHORIZATION_FLAGS_ALLOW_USER_INTERACTION
                                   : POLKIT_CHECK_AUTHORIZATION_FLAGS_NONE;
    const auto ended =
        loop.call(deadline, [&](GCancellable* cancellable, GAsyncReadyCallback done, gpointer data) {
            polkit->checkAuthorization(authority.get(), self.get(), action, nullptr, flags, cancellable, done,
                                       data);
        });
    const GRef<PolkitAuthorizationResult> result(
        polkit->checkAuthorizationFinish(authority.get(), ended.get(), nullptr));
    if (!result)
        return std::nullopt;
    PolkitAnswer answer;
    answer.authorized = polkit->isAuthorized(result.get()) != FALSE;
    answer.keepsConsent = polkit->retainsAuthorization(result.get()) != FALSE;
    if (const char* identifier = polkit->temporaryAuthorization(result.get()))
        answer.temporaryAuthorization = QString::fromUtf8(identifier);
    return answer;
}

void revokeTemporaryAuthorization(GLibLoop& loop, QDeadlineTimer deadline, const QString& identifier)
{
    const PolkitLibrary* polkit = PolkitLibrary::get();
    const auto authority = authorityFrom(polkit, loop, deadline);
    if (!authority)
        return;
    const auto ended = loop.call(deadline, [&](GCancellable* cancellable, GAsyncReadyCallback done,
                                               gpointer data) {
        polkit->revokeTemporary(authority.get(), identifier.toUtf8().constData(), cancellable, done, data);
    });
    polkit->revokeTemporaryFinish(authority.get(), ended.get(), nullptr);
}

bool polkitAnswers(GLibLoop& loop, QDeadlineTimer deadline)
{
    return authorityFrom(PolkitLibrary::get(), loop, deadline) != nullptr;
}

} // namespace ardeo
