#include "backend/ChangePlan.h"

#include "backend/Errors.h"
#include "backend/ServiceReading.h"
#include "platform/ConfigurationKeys.h"

#include <algorithm>

namespace ardeo
{

namespace
{

Dictionary settingsOf(const NetworkService& service, const QString& type)
{
    const auto protocol = service.protocol(type);
    return protocol ? protocol->configuration().value_or(QVariant()).toMap() : Dictionary();
}

Dictionary liveStateOf(DynamicStore* state, const NetworkService& service)
{
    const QString entry =
        QStringLiteral("State:/Network/Service/%1/IPv4").arg(service.serviceID().value_or(QString()));
    return state ? state->value(entry).value_or(QVariant()).toMap() : Dictionary();
}

/// Both are of one type in the dictionaries: a text, or a list of them.
QStringList textsIn(const Dictionary& settings, const QString& key)
{
    return settings.value(key).toStringList();
}

void compare(QList<SettingChange>& changes, const Dictionary& present, const Dictionary& wanted,
             std::initializer_list<QString> keys)
{
    for (const QString& key : keys) {
        const SettingChange change{key, textsIn(present, key), textsIn(wanted, key)};
        if (change.present != change.wanted)
            changes.append(change);
    }
}

/// Whether another service has the device that this one is for.
bool isDisplaced(DynamicStore* state, Preferences& preferences, const NetworkService& service,
                 const QString& device)
{
    const auto set = preferences.currentSet();
    const auto services = set ? set->services() : std::nullopt;
    return services && std::ranges::any_of(*services, [&](const auto& other) {
               const auto interface = other->interface();
               return interface && other->serviceID() != service.serviceID() &&
                      interface->bsdName() == device && !liveStateOf(state, *other).isEmpty();
           });
}

bool isInForce(DynamicStore* state, Preferences& preferences, const NetworkService& service,
               const Dictionary& saved, const Dictionary& live)
{
    if (!service.isEnabled())
        return true;
    const bool isManual = saved.value(configMethodKey) == QVariant(methodManual);
    if (!live.isEmpty())
        return !isManual || (textsIn(live, addressesKey).contains(textsIn(saved, addressesKey).value(0)) &&
                             textsIn(live, routerKey) == textsIn(saved, routerKey));
    const auto interface = service.interface();
    const QString device = interface ? interface->bsdName().value_or(QString()) : QString();
    const auto link =
        state ? state->value(QStringLiteral("State:/Network/Interface/%1/Link").arg(device)) : std::nullopt;
    const bool isReady = link && link->toMap().value(QStringLiteral("Active")).toBool();
    return !isReady || isDisplaced(state, preferences, service, device);
}

} // namespace

ChangePlan planChange(SystemConfiguration& system, const Text& serviceName,
                      const NetworkAdapterInfo& configuration, std::optional<Settings> named)
{
    const auto state = system.createDynamicStore(clientName);
    const auto preferences = system.createPreferences(clientName);
    const auto service = serviceNamed(preferences.get(), serviceName);
    if (!service)
        throw ConfigError::serviceNotFound(serviceName);
    const Dictionary present = settingsOf(*service, ipv4Type);
    const Dictionary presentDNS = settingsOf(*service, dnsType);
    const Dictionary live = liveStateOf(state.get(), *service);
    ChangePlan plan;
    plan.isInForce = isInForce(state.get(), *preferences, *service, present, live);

    writeTo(*service, configuration, named);
    if (const auto fault = faultFor(*service, configuration, named))
        throw ConfigError::commitFailed(static_cast<qint32>(SystemStatus::invalidArgument), fault);
    const Dictionary wanted = settingsOf(*service, ipv4Type);
    const bool isAutomatic = wanted.value(configMethodKey) == QVariant(methodDHCP);
    if (isAutomatic || present.value(configMethodKey) != QVariant(methodDHCP)) {
        compare(plan.changes, present, wanted, {configMethodKey, addressesKey, subnetMasksKey, routerKey});
    } else {
        Dictionary given = live;
        given.insert(configMethodKey, methodDHCP);
        compare(plan.changes, given, wanted, {configMethodKey, addressesKey, subnetMasksKey, routerKey});
    }
    compare(plan.changes, presentDNS, settingsOf(*service, dnsType), {serverAddressesKey, searchDomainsKey});
    plan.isChange = service->hasChanges();
    return plan;
}

} // namespace ardeo
