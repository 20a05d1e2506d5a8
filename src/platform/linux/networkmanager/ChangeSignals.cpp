#include "platform/linux/networkmanager/ChangeSignals.h"

#include "platform/linux/networkmanager/LibNM.h"

#include <array>
#include <string_view>

namespace ardeo
{

namespace
{

constexpr auto propertiesInterface = "org.freedesktop.DBus.Properties";
constexpr auto propertiesChanged = "PropertiesChanged";

/// What a signal is recognised by; a null stands for any.
struct Source {
    const char* sender;
    const char* interface;
    const char* signal;
    const char* firstArgument;
};
constexpr std::array sources{
    Source{NM_DBUS_SERVICE, propertiesInterface, propertiesChanged, nullptr},
    Source{NM_DBUS_SERVICE, "org.freedesktop.DBus.ObjectManager", nullptr, nullptr},
    Source{NM_DBUS_SERVICE, NM_DBUS_INTERFACE_SETTINGS_CONNECTION, nullptr, nullptr},
    Source{"org.freedesktop.hostname1", propertiesInterface, propertiesChanged, nullptr},
    Source{"org.freedesktop.DBus", "org.freedesktop.DBus", "NameOwnerChanged", NM_DBUS_SERVICE},
};

/// Wireless networks come, go and change their strength all the time, and counters count; no service shows
/// any of it.
bool concernsServices(GVariant* arguments)
{
    if (g_variant_n_children(arguments) == 0)
        return true;
    const GVariantRef first(g_variant_get_child_value(arguments, 0));
    if (!g_variant_is_of_type(first.get(), G_VARIANT_TYPE_STRING) &&
        !g_variant_is_of_type(first.get(), G_VARIANT_TYPE_OBJECT_PATH))
        return true;
    const std::string_view about = g_variant_get_string(first.get(), nullptr);
    return about.find("AccessPoint") == std::string_view::npos &&
           about != NM_DBUS_INTERFACE_DEVICE_STATISTICS;
}

} // namespace

ChangeSignals::ChangeSignals(GLibLoop& loop, GDBusConnection* bus) : m_bus(newRef(bus))
{
    const GDBusSignalCallback note = [](GDBusConnection*, const char*, const char*, const char*,
                                        const char* signal, GVariant* arguments, gpointer self) {
        if (!concernsServices(arguments))
            return;
        auto* const signals = static_cast<ChangeSignals*>(self);
        signals->m_hasChanged = true;
        signals->m_hasChangedOtherwise |= std::string_view(signal) != propertiesChanged;
    };
    loop.start([&] {
        for (const Source& source : sources)
            m_subscriptions.push_back(g_dbus_connection_signal_subscribe(
                bus, source.sender, source.interface, source.signal, nullptr, source.firstArgument,
                G_DBUS_SIGNAL_FLAGS_NONE, note, this, nullptr));
    });
}

ChangeSignals::~ChangeSignals()
{
    for (const guint subscription : m_subscriptions)
        g_dbus_connection_signal_unsubscribe(m_bus.get(), subscription);
}

} // namespace ardeo
