#include "platform/ServiceChanges.h"

#include "platform/ProtocolConfiguration.h"

namespace ardeo
{

namespace
{

const QString methodKey = QStringLiteral("ConfigMethod");
const QString addressesKey = QStringLiteral("Addresses");
const QString masksKey = QStringLiteral("SubnetMasks");
const QString routerKey = QStringLiteral("Router");
const QString serversKey = QStringLiteral("ServerAddresses");
const QString domainsKey = QStringLiteral("SearchDomains");

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

bool ServiceChanges::asksForLease() const
{
    return ipv4 && (ipv4->contains(methodKey) || !dns || dns->isEmpty());
}

Dictionary changed(Dictionary settings, const Dictionary& changes)
{
    if (changes.contains(methodKey) && changes.value(methodKey) != settings.value(methodKey))
        settings.clear();
    for (auto change = changes.begin(); change != changes.end(); ++change) {
        if (change->isValid())
            settings.insert(change.key(), change.value());
        else
            settings.remove(change.key());
    }
    return settings;
}

Dictionary ipv4Differences(const Dictionary& present, const Dictionary& wanted)
{
    const auto checked = checkedIPv4(wanted);
    if (!checked)
        return replacing(present, wanted);
    const bool isManual = present.value(methodKey) == QVariant(QStringLiteral("Manual"));
    if (checked->manual != isManual)
        return wanted;
    Dictionary changes;
    if (!isManual)
        return changes;
    const auto first = [](const Dictionary& settings, const QString& key) {
        return settings.value(key).toStringList().value(0);
    };
    if (first(present, addressesKey) != first(wanted, addressesKey) ||
        first(present, masksKey) != first(wanted, masksKey)) {
        changes[addressesKey] = wanted[addressesKey];
        changes[masksKey] = wanted[masksKey];
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
    const QStringList servers = present.value(serversKey).toStringList();
    Dictionary changes;
    if (servers.mid(0, 2) != checked->serverAddresses)
        changes[serversKey] = listOrGone(checked->serverAddresses);
    const bool domainsAreShown =
        !servers.isEmpty() || !checked->searchDomains.isEmpty() || !changes.isEmpty();
    if (domainsAreShown && present.value(domainsKey).toStringList() != checked->searchDomains)
        changes[domainsKey] = listOrGone(checked->searchDomains);
    return changes;
}

} // namespace ardeo
