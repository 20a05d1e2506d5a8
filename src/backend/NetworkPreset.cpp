#include "backend/NetworkPreset.h"

#include <QRegularExpression>
#include <QStringConverter>

#include <nlohmann/json.hpp>

namespace ardeo
{

namespace
{

using Json = nlohmann::ordered_json;

/// Thrown within this file where a text cannot be encoded or a value is not what it should be.
struct CodingFailure {
};

std::string utf8(const QString& string)
{
    if (!string.isValidUtf16())
        throw CodingFailure();
    return string.toStdString();
}

QString textAt(const Json& object, const char* key)
{
    const auto value = object.find(key);
    if (value == object.end() || !value->is_string())
        throw CodingFailure();
    // Reading a whole file would drop a byte order mark at its start; here it is a character of the text.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(value->get_ref<const std::string&>()));
}

template <typename Mode>
Mode modeAt(const Json& object, const char* key)
{
    const auto mode = modeFromRawValue<Mode>(textAt(object, key));
    if (!mode)
        throw CodingFailure();
    return *mode;
}

QUuid uuidAt(const Json& object, const char* key)
{
    // Qt reads more forms of a UUID than the canonical one.
    static const QRegularExpression canonical(QRegularExpression::anchoredPattern(
        QStringLiteral("[0-9A-Fa-f]{8}(-[0-9A-Fa-f]{4}){3}-[0-9A-Fa-f]{12}")));
    const QString text = textAt(object, key);
    if (!canonical.match(text).hasMatch())
        throw CodingFailure();
    return QUuid::fromString(text);
}

Json encoded(const NetworkPreset& preset)
{
    return {
        {"id", utf8(preset.id.toString(QUuid::WithoutBraces).toUpper())},
        {"name", utf8(preset.name)},
        {"serviceName", utf8(preset.serviceName)},
        {"ipv4Mode", utf8(rawValue(preset.ipv4Mode))},
        {"ipAddress", utf8(preset.ipAddress)},
        {"subnetMask", utf8(preset.subnetMask)},
        {"router", utf8(preset.router)},
        {"dnsMode", utf8(rawValue(preset.dnsMode))},
        {"primaryDNS", utf8(preset.primaryDNS)},
        {"alternateDNS", utf8(preset.alternateDNS)},
        {"searchDomains", utf8(preset.searchDomains)},
    };
}

NetworkPreset decoded(const Json& object)
{
    if (!object.is_object())
        throw CodingFailure();
    return {
        .id = uuidAt(object, "id"),
        .name = textAt(object, "name"),
        .serviceName = textAt(object, "serviceName"),
        .ipv4Mode = modeAt<IPv4Mode>(object, "ipv4Mode"),
        .ipAddress = textAt(object, "ipAddress"),
        .subnetMask = textAt(object, "subnetMask"),
        .router = textAt(object, "router"),
        .dnsMode = modeAt<DNSMode>(object, "dnsMode"),
        .primaryDNS = textAt(object, "primaryDNS"),
        .alternateDNS = textAt(object, "alternateDNS"),
        .searchDomains = textAt(object, "searchDomains"),
    };
}

} // namespace

size_t qHash(const NetworkPreset& preset, size_t seed)
{
    return qHashMulti(seed, preset.id, preset.name, preset.serviceName, preset.ipv4Mode, preset.ipAddress,
                      preset.subnetMask, preset.router, preset.dnsMode, preset.primaryDNS,
                      preset.alternateDNS, preset.searchDomains);
}

std::optional<QByteArray> encodePresets(const QList<NetworkPreset>& presets)
{
    try {
        Json array = Json::array();
        for (const NetworkPreset& preset : presets)
            array.push_back(encoded(preset));
        // A slash occurs in texts only, so it can be escaped in the finished text.
        return QByteArray::fromStdString(array.dump()).replace('/', "\\/");
    } catch (const CodingFailure&) {
        return std::nullopt;
    }
}

std::optional<QList<NetworkPreset>> decodePresets(const QByteArray& json)
{
    const Json array = Json::parse(json.begin(), json.end(), nullptr, false);
    if (!array.is_array())
        return std::nullopt;
    try {
        QList<NetworkPreset> presets;
        presets.reserve(static_cast<qsizetype>(array.size()));
        for (const Json& element : array)
            presets.append(decoded(element));
        return presets;
    } catch (const CodingFailure&) {
        return std::nullopt;
    }
}

} // namespace ardeo
