#include "platform/ServiceChanges.h"

#include "platform/ConfigurationKeys.h"
#include "platform/ProtocolConfiguration.h"

namespace ardeo
{

namespace
{

QVariant textOrGone(const std::optional<QString>& text)
{
    return text ? QVariant(*text) : QVariant();
}

QVariant listOrGone(const QStringList& list)
{
    return list.isEmpty() ? QVariant() : QVariant(list);
}

/// The changes that leave nothing of the present settings.
Dictionary replacing(const Dictionary& present, const Dictionary& wanted)
{
    Dictionary changes = wanted;
    for (auto entry = present.begin(); entry != present.end(); ++entry) {
        if (!wanted.contains(entry.key()))
            changes.insert(entry.key(), QVariant());
    }
    return changes;
}

} // namespace

bool ServiceChanges::askForLease() const
{
    return ipv4 && (ipv4->contains(configMethodKey) || !changeSettings());
}

QString trialReason()
{
    return SettingFault::tr("An earlier change of it awaits confirmation; confirm it or take it back first.");
}

QString noTrialReason()
{
    return SettingFault::tr("No change of it awaits confirmation.");
}

Dictionary changed(Dictionary settings, const Dictionary& changes)
{
    if (changes.contains(configMethodKey) &&
        changes.value(configMethodKey) != settings.value(configMethodKey))
        settings.clear();
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change->isValid())
            settings.insert(change.key(), change.value());
        else
            settings.remove(change.key());
    }
    return settings;
}

Checked<IPv4Configuration> checkedIPv4Changes(const Dictionary& present, const Dictionary& changes)
{
    const Dictionary wanted = changed(present, changes);
    const bool nameAddresses = changes.contains(addressesKey) || changes.contains(subnetMasksKey);
    if (nameAddresses || wanted.value(configMethodKey) != present.value(configMethodKey))
        return checkedIPv4(wanted);
    IPv4Configuration configuration;
    configuration.manual = wanted.value(configMethodKey) == QVariant(methodManual);
    if (changes.contains(routerKey)) {
        const auto router = checkedRouter(wanted);
        if (!router)
            return *router.fault();
        configuration.router = *router;
    }
    return configuration;
}

Dictionary ipv4Differences(const Dictionary& present, const Dictionary& wanted)
{
    const auto checked = checkedIPv4(wanted);
    if (!checked)
        return replacing(present, wanted);
    const bool isManual = present.value(configMethodKey) == QVariant(methodManual);
    if (checked->manual != isManual)
        return wanted;
    Dictionary changes;
    if (!isManual)
        return changes;
    const auto first = [](const Dictionary& settings, const QString& key) {
        return settings.value(key).toStringList().value(0);
    };
    if (first(present, addressesKey) != first(wanted, addressesKey) ||
        first(present, subnetMasksKey) != first(wanted, subnetMasksKey)) {
        changes[addressesKey] = wanted[addressesKey];
        changes[subnetMasksKey] = wanted[subnetMasksKey];
    }
    if (present.value(routerKey).toString() != checked->router.value_or(QString()))
        changes[routerKey] = textOrGone(checked->router);
    return changes;
}

Dictionary dnsDifferences(const Dictionary& present, const Dictionary& wanted)
{
    const auto checked = checkedDNS(wanted);
    if (!checked)
        return replacing(present, wanted);
    const QStringList servers = present.value(serverAddressesKey).toStringList();
    Dictionary changes;
    if (servers.mid(0, 2) != checked->serverAddresses)
        changes[serverAddressesKey] = listOrGone(checked->serverAddresses);
    const bool domainsAreShown =
        !servers.isEmpty() || !checked->searchDomains.isEmpty() || !changes.isEmpty();
    if (domainsAreShown && present.value(searchDomainsKey).toStringList() != checked->searchDomains)
        changes[searchDomainsKey] = listOrGone(checked->searchDomains);
    return changes;
}

} // namespace ardeo
