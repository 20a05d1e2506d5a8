#include "platform/linux/PolkitLibrary.h"

#include <QLibrary>

#include <optional>
#include <type_traits>

namespace ardeo
{

namespace
{

std::optional<PolkitLibrary> load()
{
    QLibrary library(QStringLiteral("polkit-gobject-1"), 0);
    // The types that it registers with GLib live as long as the process, and so must their code.
    library.setLoadHints(QLibrary::PreventUnloadHint);
    PolkitLibrary polkit;
    const auto find = [&library](const char* name, auto& function) {
        function = reinterpret_cast<std::remove_reference_t<decltype(function)>>(library.resolve(name));
        return function != nullptr;
    };
    const bool complete =
        find("polkit_authority_get_async", polkit.authorityGet) &&
        find("polkit_authority_get_finish", polkit.authorityGetFinish) &&
        find("polkit_authority_get_owner", polkit.authorityOwner) &&
        find("polkit_unix_process_new_for_owner", polkit.processOfOwner) &&
        find("polkit_authority_check_authorization", polkit.checkAuthorization) &&
        find("polkit_authority_check_authorization_finish", polkit.checkAuthorizationFinish) &&
        find("polkit_authorization_result_get_is_authorized", polkit.isAuthorized) &&
        find("polkit_authorization_result_get_retains_authorization", polkit.retainsAuthorization) &&
        find("polkit_authorization_result_get_temporary_authorization_id", polkit.temporaryAuthorization) &&
        find("polkit_authority_revoke_temporary_authorization_by_id", polkit.revokeTemporary) &&
        find("polkit_authority_revoke_temporary_authorization_by_id_finish", polkit.revokeTemporaryFinish);
    return complete ? std::optional(polkit) : std::nullopt;
}

} // namespace

const PolkitLibrary* PolkitLibrary::get()
{
    static const std::optional<PolkitLibrary> library = load();
    return library ? &*library : nullptr;
}

} // namespace ardeo
