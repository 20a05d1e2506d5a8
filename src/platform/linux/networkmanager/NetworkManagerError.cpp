#include "platform/linux/networkmanager/NetworkManagerError.h"

#include "platform/linux/networkmanager/LibNM.h"

namespace ardeo
{

namespace
{

bool is(const GLibError& error, GQuark domain, int code)
{
    return g_error_matches(error.get(), domain, code) != FALSE;
}

} // namespace

SystemStatus statusOf(const GLibError& error)
{
    if (!error)
        return SystemStatus::failed;
    if (is(error, G_IO_ERROR, G_IO_ERROR_CANCELLED) || is(error, G_IO_ERROR, G_IO_ERROR_CLOSED) ||
        is(error, G_DBUS_ERROR, G_DBUS_ERROR_SERVICE_UNKNOWN) ||
        is(error, G_DBUS_ERROR, G_DBUS_ERROR_NAME_HAS_NO_OWNER) ||
        is(error, G_DBUS_ERROR, G_DBUS_ERROR_NO_REPLY) || is(error, G_DBUS_ERROR, G_DBUS_ERROR_DISCONNECTED))
        return SystemStatus::noStoreServer;
    if (is(error, NM_SETTINGS_ERROR, NM_SETTINGS_ERROR_PERMISSION_DENIED) ||
        is(error, NM_MANAGER_ERROR, NM_MANAGER_ERROR_PERMISSION_DENIED) ||
        is(error, G_DBUS_ERROR, G_DBUS_ERROR_ACCESS_DENIED))
        return SystemStatus::accessError;
    if (error.get()->domain == NM_CONNECTION_ERROR ||
        is(error, NM_SETTINGS_ERROR, NM_SETTINGS_ERROR_INVALID_CONNECTION))
        return SystemStatus::invalidArgument;
    if (is(error, G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_OBJECT) ||
        is(error, G_DBUS_ERROR, G_DBUS_ERROR_UNKNOWN_METHOD))
        return SystemStatus::noKey; // the profile was deleted
    return SystemStatus::failed;
}

bool isNotAvailable(const GLibError& error)
{
    return is(error, NM_MANAGER_ERROR, NM_MANAGER_ERROR_CONNECTION_NOT_AVAILABLE) ||
           is(error, NM_MANAGER_ERROR, NM_MANAGER_ERROR_UNKNOWN_DEVICE) ||
           is(error, NM_MANAGER_ERROR, NM_MANAGER_ERROR_DEPENDENCY_FAILED);
}

} // namespace ardeo
