#pragma once

// NetworkManager's client library. One of its headers forgets to say that it declares C functions.

#include <gio/gio.h>

extern "C" {
#include <nm-errors.h>
}

#include <NetworkManager.h>
#include <nm-vpn-dbus-interface.h>
