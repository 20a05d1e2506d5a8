#include "platform/simulated/SimulatedMachine.h"

#include "platform/FileReplacement.h"
#include "platform/ProtocolConfiguration.h"
#include "platform/ServiceChanges.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <utility>

namespace ardeo
{

namespace
{

constexpr auto seedText = R"({
    "computerName": "Simulated Machine",
    "administrator": true,
    "services": [
        {
            "id": "5e0c7a5e-6e1e-4c0f-9b5e-2f1d6a3b7c01", "name": "Wi-Fi", "enabled": true,
            "interface": {"bsdName": "wlan0", "hardwareName": "Simulated Wi-Fi Card", "macAddress": "02:A0:C9:14:C8:29"},
            "link": {"Active": true, "Speed": 866, "Duplex": true},
            "network": {
                "ServerAddress": "192.168.1.1", "Router": "192.168.1.1", "SubnetMask": "255.255.255.0",
                "First": "192.168.1.100", "Last": "192.168.1.199", "Next": "192.168.1.123"
            },
            "protocols": {"IPv4": {"ConfigMethod": "DHCP"}, "DNS": {}}
        },
        {
            "id": "5e0c7a5e-6e1e-4c0f-9b5e-2f1d6a3b7c02", "name": "Ethernet", "enabled": true,
            "interface": {"bsdName": "eth0", "hardwareName": "Simulated Ethernet Adapter", "macAddress": "02:A0:C9:14:C8:2A"},
            "link": {"Active": true, "Speed": 1000, "Duplex": true},
            "network": {
                "ServerAddress": "10.20.0.1", "Router": "10.20.0.1", "SubnetMask": "255.255.252.0",
                "First": "10.20.1.1", "Last": "10.20.1.250", "Next": "10.20.1.42"
            },
            "protocols": {
                "IPv4": {"ConfigMethod": "DHCP"},
                "DNS": {"ServerAddresses": ["10.20.0.53", "10.20.0.54"], "SearchDomains": ["corp.example", "lab.example"]}
            }
        },
        {
            "id": "5e0c7a5e-6e1e-4c0f-9b5e-2f1d6a3b7c03", "name": "Thunderbolt Bridge", "enabled": true,
            "interface": {"bsdName": "bridge0", "hardwareName": "Simulated Thunderbolt Bridge", "macAddress": "02:A0:C9:14:C8:2B"},
            "link": {"Active": false},
            "protocols": {"IPv4": {"ConfigMethod": "DHCP"}, "DNS": {}}
        },
        {
            "id": "5e0c7a5e-6e1e-4c0f-9b5e-2f1d6a3b7c04", "name": "Office VPN", "enabled": true,
            "protocols": {"IPv4": {"ConfigMethod": "DHCP"}, "DNS": {}}
        }
    ]
})";

/// A machine needs far less; what is read is walked by recursion, whose stack is limited.
constexpr int deepestNesting = 32;

QString fromJsonText(const Json& text)
{
    return QString::fromStdString(text.get_ref<const std::string&>());
}

QString key(const char* name)
{
    return QLatin1String(name);
}

/// The next lease of the network as a live state; none when the network has no addresses to give.
std::optional<Json> nextLease(Json& network)
{
    const auto number = [&network](const char* name) {
        return ipv4FromText(textMember(network, name).value_or(QString()));
    };
    const auto first = number("First");
    const auto last = number("Last");
    const auto next = number("Next");
    if (!first || !last || !next)
        return std::nullopt;
    network["Next"] = ipv4ToText(*next >= *last ? *first : *next + 1).toStdString();
    Json live;
    live["Addresses"] = {ipv4ToText(*next).toStdString()};
    live["SubnetMasks"] = {textMember(network, "SubnetMask").value_or(QString()).toStdString()};
    if (const Json* router = member(network, "Router"))
        live["Router"] = *router;
    return std::optional(std::move(live));
}

} // namespace

const Json* member(const Json& object, const char* key)
{
    if (!object.is_object())
        return nullptr;
    const auto found = object.find(key);
    return found == object.end() ? nullptr : &*found;
}

std::optional<QString> textMember(const Json& object, const char* key)
{
    const Json* value = member(object, key);
    return value && value->is_string() ? std::optional(fromJsonText(*value)) : std::nullopt;
}

bool flagMember(const Json& object, const char* key, bool otherwise)
{
    const Json* value = member(object, key);
    return value && value->is_boolean() ? value->get<bool>() : otherwise;
}

QVariant valueFromJson(const Json& json)
{
    switch (json.type()) {
    case Json::value_t::string:
        return fromJsonText(json);
    case Json::value_t::boolean:
        return json.get<bool>();
    case Json::value_t::number_integer:
    case Json::value_t::number_unsigned:
        return QVariant::fromValue<qint64>(json.get<qint64>());
    case Json::value_t::number_float:
        return json.get<double>();
    case Json::value_t::array: {
        if (std::ranges::all_of(json, [](const Json& element) { return element.is_string(); })) {
            QStringList texts;
            for (const Json& element : json)
                texts.append(fromJsonText(element));
            return texts;
        }
        QVariantList values;
        for (const Json& element : json)
            values.append(valueFromJson(element));
        return values;
    }
    case Json::value_t::object: {
        Dictionary dictionary;
        for (const auto& [name, value] : json.items())
            dictionary.insert(QString::fromStdString(name), valueFromJson(value));
        return dictionary;
    }
    default:
        return {};
    }
}

Json jsonFromDictionary(const Dictionary& dictionary)
{
    Json json = Json::object();
    for (auto entry = dictionary.begin(); entry != dictionary.end(); ++entry) {
        Json& value = json[entry.key().toStdString()];
        if (entry->typeId() == QMetaType::QStringList) {
            value = Json::array();
            for (const QString& text : entry->toStringList())
                value.push_back(text.toStdString());
        } else {
            value = entry->toString().toStdString();
        }
    }
    return json;
}

void bringUpToDate(Json& service, bool freshLease)
{
    const Json held = service.value("live", Json());
    service.erase("live");
    const Json* link = member(service, "link");
    const Json* protocols = member(service, "protocols");
    const Json* ipv4 = protocols ? member(*protocols, "IPv4") : nullptr;
    const bool up = flagMember(service, "enabled", true) && link && flagMember(*link, "Active", false);
    if (!up || !ipv4)
        return;
    const auto settings = checkedIPv4(valueFromJson(*ipv4).toMap());
    if (!settings)
        return;
    if (settings->manual) {
        Dictionary live = valueFromJson(*ipv4).toMap();
        live.remove(key("ConfigMethod"));
        if (!settings->router)
            live.remove(key("Router"));
        service["live"] = jsonFromDictionary(live);
    } else if (!held.is_null() && !freshLease) {
        service["live"] = held;
    } else if (service.contains("network")) {
        if (auto lease = nextLease(service["network"]))
            service["live"] = std::move(*lease);
    }
}

void putOnTrial(Json& service, Json before, std::chrono::nanoseconds now, std::chrono::seconds time)
{
    const auto begin = std::chrono::duration_cast<std::chrono::milliseconds>(now);
    service["trial"] = {
        {"began", begin.count()}, {"confirmBy", (begin + time).count()}, {"before", std::move(before)}};
}

std::optional<std::chrono::milliseconds> confirmationDeadline(const Json& service)
{
    const Json* trial = member(service, "trial");
    const Json* deadline = trial ? member(*trial, "confirmBy") : nullptr;
    return deadline && deadline->is_number_integer()
               ? std::optional(std::chrono::milliseconds(deadline->get<qint64>()))
               : std::nullopt;
}

void endTrial(Json& service, bool keep)
{
    const Json* before = member(service["trial"], "before");
    if (keep || !before)
        service.erase("trial");
    else
        service = Json(*before);
}

bool takeBackOverdue(Json& machine, std::chrono::nanoseconds now)
{
    bool any = false;
    if (!member(machine, "services") || !machine["services"].is_array())
        return any;
    for (Json& service : machine["services"]) {
        const auto deadline = confirmationDeadline(service);
        const Json* began = deadline ? member(service["trial"], "began") : nullptr;
        // Time that has gone back has begun anew with the computer.
        const bool isOver =
            deadline && (now >= *deadline + trialReserve || !began || !began->is_number_integer() ||
                         now < std::chrono::milliseconds(began->get<qint64>()));
        if (isOver)
            endTrial(service, false);
        any = any || isOver;
    }
    return any;
}

SimulatedMachine::SimulatedMachine(QString file) : m_file(std::move(file)) {}

void SimulatedMachine::seed() const
{
    if (QFile::exists(m_file))
        return;
    Json machine = Json::parse(seedText);
    for (Json& service : machine["services"])
        bringUpToDate(service, true);
    QDir().mkpath(QFileInfo(m_file).path());
    write(machine);
}

std::optional<Json> SimulatedMachine::read() const
{
    QFile file(m_file);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray text = file.readAll();
    bool tooDeep = false;
    const auto keepIfShallow = [&tooDeep](int depth, Json::parse_event_t, const Json&) {
        tooDeep = tooDeep || depth > deepestNesting;
        return !tooDeep;
    };
    Json machine = Json::parse(text.begin(), text.end(), keepIfShallow, false);
    return machine.is_object() && !tooDeep ? std::optional(std::move(machine)) : std::nullopt;
}

AdvisoryLock SimulatedMachine::lock(const WaitingObserver& waiting) const
{
    return AdvisoryLock(m_file + QStringLiteral(".lock"), O_RDWR | O_CREAT | O_NOFOLLOW, waiting);
}

std::optional<Json> SimulatedMachine::readLocked(std::chrono::nanoseconds now) const
{
    auto machine = read();
    const bool isOverdue = machine && takeBackOverdue(*machine, now);
    return isOverdue && !write(*machine) ? std::nullopt : machine;
}

bool SimulatedMachine::write(const Json& machine) const
{
    const std::string text = machine.dump(4, ' ', false, Json::error_handler_t::replace);
    return !replaceFile(m_file, QByteArray::fromStdString(text));
}

} // namespace ardeo
