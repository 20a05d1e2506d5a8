#include "cli/FormSettings.h"

#include "cli/Failure.h"

#include <QFile>

#include <algorithm>

namespace ardeo
{

namespace
{

QList<NetworkPreset> presetsOf(const Arguments& arguments, const MainViewModel& model)
{
    if (!arguments.profilesFile) {
        if (model.presetStore.isUnreadable())
            fail(Console::tr("The saved profiles cannot be read."));
        return model.presetStore.presets();
    }
    QFile file(*arguments.profilesFile);
    if (!file.open(QIODevice::ReadOnly))
        fail(Console::tr("Cannot read %1: %2.").arg(file.fileName(), file.errorString()));
    const auto presets = decodePresets(file.readAll());
    if (!presets)
        fail(Console::tr("%1 is no list of profiles.").arg(file.fileName()));
    return *presets;
}

NetworkPreset namedPreset(const Arguments& arguments, const MainViewModel& model)
{
    const QList<NetworkPreset> presets = presetsOf(arguments, model);
    const Text name(*arguments.profile);
    const auto count = std::ranges::count(presets, name, &NetworkPreset::name);
    if (count == 0)
        failUsage(Console::tr("There is no profile '%1'.").arg(*arguments.profile));
    if (count > 1)
        failUsage(Console::tr("%1 profiles are named '%2'.").arg(count).arg(*arguments.profile));
    return *std::ranges::find(presets, name, &NetworkPreset::name);
}

Settings takeAddress(const Arguments& arguments, MainViewModel& model)
{
    const bool wasManual = model.ipv4Mode.value() == IPv4Mode::manual;
    Settings named;
    if (arguments.dhcp) {
        model.ipv4Mode = IPv4Mode::dhcp;
        named |= Setting::ipv4Mode;
    }
    if (arguments.address) {
        model.ipv4Mode = IPv4Mode::manual;
        model.ipAddress = *arguments.address;
        model.subnetMask = arguments.mask.value_or(QString());
        // Beside a manual address the gateway that the network gave is kept as one of the service's own.
        named |= Settings(Setting::ipv4Mode) | Setting::address;
        named.setFlag(Setting::router, !wasManual);
    }
    if (arguments.router) {
        if (model.ipv4Mode.value() == IPv4Mode::dhcp)
            failUsage(Console::tr("--router needs --address and --mask."));
        model.router = *arguments.router;
        named |= Setting::router;
    }
    return named;
}

} // namespace

std::optional<Settings> takeSettings(const Arguments& arguments, MainViewModel& model)
{
    if (arguments.profile) {
        model.loadPreset(namedPreset(arguments, model));
        return std::nullopt;
    }
    Settings named = takeAddress(arguments, model);
    if (arguments.automaticDNS) {
        model.dnsMode = DNSMode::automatic;
        named |= Settings(Setting::dnsServers) | Setting::searchDomains;
    }
    if (arguments.dns) {
        model.dnsMode = DNSMode::manual;
        model.primaryDNS = arguments.dns->value(0);
        model.alternateDNS = arguments.dns->value(1);
        named |= Setting::dnsServers;
    }
    if (arguments.search) {
        if (model.dnsMode.value() == DNSMode::automatic && !arguments.search->trimmed().isEmpty())
            failUsage(Console::tr("--search needs --dns: automatic DNS keeps no search domains."));
        model.searchDomains = *arguments.search;
        named |= Setting::searchDomains;
    }
    return named;
}

} // namespace ardeo
