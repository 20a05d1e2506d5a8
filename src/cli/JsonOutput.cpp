#include "cli/JsonOutput.h"

#include "platform/ConfigurationKeys.h"

#include <QHash>

#include <nlohmann/json.hpp>

namespace ardeo
{

namespace
{

using Json = nlohmann::ordered_json;

Json textAsJson(const std::optional<Text>& text)
{
    return text ? Json(text->string().toStdString()) : Json();
}

template <typename Value>
Json valueAsJson(const std::optional<Value>& value)
{
    return value ? Json(*value) : Json();
}

Json listAsJson(const QStringList& list)
{
    return list.isEmpty() ? Json() : Json(list.join(u' ').toStdString());
}

Json objectOf(const AdapterInfo& adapter)
{
    return {
        {"serviceName", textAsJson(adapter.serviceName)},
        {"hardwareName", textAsJson(adapter.hardwareName)},
        {"macAddress", textAsJson(adapter.macAddress)},
        {"bsdName", textAsJson(adapter.bsdName)},
        {"isActive", adapter.isActive},
        {"isEnabled", adapter.isEnabled},
        {"linkSpeedMbps", valueAsJson(adapter.linkSpeedMbps)},
        {"fullDuplex", valueAsJson(adapter.fullDuplex)},
    };
}

Json objectOf(const NetworkAdapterInfo& configuration)
{
    Json domains = Json::array();
    for (const Text& domain : configuration.searchDomains)
        domains.push_back(textAsJson(domain));
    return {
        {"ipv4Mode", textAsJson(rawValue(configuration.ipv4Mode))},
        {"ipAddress", textAsJson(configuration.ipAddress)},
        {"subnetMask", textAsJson(configuration.subnetMask)},
        {"router", textAsJson(configuration.router)},
        {"dnsMode", textAsJson(rawValue(configuration.dnsMode))},
        {"primaryDNS", textAsJson(configuration.primaryDNS)},
        {"alternateDNS", textAsJson(configuration.alternateDNS)},
        {"searchDomains", domains},
        {"dhcpServer", textAsJson(configuration.dhcpServer)},
        {"computerName", textAsJson(configuration.computerName)},
    };
}

const char* nameOf(const QString& settingKey)
{
    static const QHash<QString, const char*> names{
        {configMethodKey, "ipv4Mode"},      {addressesKey, "ipAddress"},
        {subnetMasksKey, "subnetMask"},     {routerKey, "router"},
        {serverAddressesKey, "dnsServers"}, {searchDomainsKey, "searchDomains"},
    };
    return names.value(settingKey);
}

QByteArray printed(const Json& json, int indentation = 2)
{
    return QByteArray::fromStdString(json.dump(indentation, ' ', false, Json::error_handler_t::replace)) +
           '\n';
}

} // namespace

QByteArray adaptersAsJson(const QList<AdapterInfo>& adapters, std::chrono::nanoseconds now)
{
    Json array = Json::array();
    for (const AdapterInfo& adapter : adapters) {
        array.push_back(objectOf(adapter));
        if (const auto seconds = adapter.secondsToConfirm(now))
            array.back()["secondsToConfirm"] = *seconds;
    }
    return printed(array);
}

QByteArray configurationAsJson(const NetworkAdapterInfo& configuration)
{
    return printed(objectOf(configuration));
}

QByteArray planAsJson(const ChangePlan& plan, const NetworkAdapterInfo& configuration)
{
    Json changes = Json::array();
    for (const SettingChange& change : plan.changes)
        changes.push_back({{"setting", nameOf(change.key)},
                           {"present", listAsJson(change.present)},
                           {"wanted", listAsJson(change.wanted)}});
    return printed({{"changed", plan.isNeeded()},
                    {"changes", std::move(changes)},
                    {"configuration", objectOf(configuration)}});
}

QByteArray eventAsJson(const QString& time, const char* event, const AdapterInfo& adapter,
                       const std::optional<NetworkAdapterInfo>& configuration)
{
    Json object{{"time", time.toStdString()}, {"event", event}, {"service", objectOf(adapter)}};
    if (configuration)
        object["configuration"] = objectOf(*configuration);
    return printed(object, -1);
}

QByteArray troubleAsJson(const QString& time, const QString& sentence)
{
    return printed({{"time", time.toStdString()},
                    {"event", sentence.isEmpty() ? "available" : "unavailable"},
                    {"reason", sentence.isEmpty() ? Json() : Json(sentence.toStdString())}},
                   -1);
}

} // namespace ardeo
