#include "cli/Output.h"

#include "platform/ConfigurationKeys.h"

#include <QHash>

#include <algorithm>
#include <cwchar>

namespace ardeo
{

namespace
{

enum class Tint { none, strong, faint, good };

struct Cell {
    QString text;
    Tint tint = Tint::none;
};
using Row = QList<Cell>;

/// Columns that the text takes on a terminal.
int displayWidth(const QString& text)
{
    int width = 0;
    for (const uint scalar : text.toUcs4()) {
        const int own = wcwidth(static_cast<wchar_t>(scalar));
        width += own < 0 ? 1 : own;
    }
    return width;
}

QString tinted(const QString& text, Tint tint, bool colour)
{
    static constexpr std::array codes{"", "\033[1m", "\033[2m", "\033[32m"};
    if (!colour || tint == Tint::none)
        return text;
    return QLatin1String(codes.at(static_cast<size_t>(tint))) + text + QStringLiteral("\033[0m");
}

QString table(QList<Row> rows, bool colour)
{
    QList<int> widths;
    for (Row& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (qsizetype column = 0; column < row.size(); ++column) {
            row[column].text = printable(row[column].text);
            widths[column] = std::max(widths[column], displayWidth(row[column].text));
        }
    }
    QString text;
    for (const Row& row : rows) {
        for (qsizetype column = 0; column < row.size(); ++column) {
            const Cell& cell = row[column];
            text += tinted(cell.text, cell.tint, colour);
            if (column + 1 < row.size())
                text += QString(widths[column] - displayWidth(cell.text) + 2, u' ');
        }
        text += u'\n';
    }
    return text;
}

QString orDash(const QString& text)
{
    return text.isEmpty() ? QStringLiteral("—") : text;
}

Cell stateOf(const AdapterInfo& adapter, std::chrono::nanoseconds now)
{
    const auto seconds = adapter.secondsToConfirm(now);
    const QString trial = seconds ? QStringLiteral(", %1 s to confirm").arg(*seconds) : QString();
    return {stateText(adapter) + trial, adapter.isActive ? Tint::good : Tint::faint};
}

QString labelOf(const QString& settingKey)
{
    static const QHash<QString, QString> labels{
        {configMethodKey, QStringLiteral("Mode:")},
        {addressesKey, QStringLiteral("IP Address:")},
        {subnetMasksKey, QStringLiteral("Subnet Mask:")},
        {routerKey, QStringLiteral("Gateway:")},
        {serverAddressesKey, QStringLiteral("DNS:")},
        {searchDomainsKey, QStringLiteral("Search Domains:")},
    };
    return labels.value(settingKey);
}

QString linkOf(const AdapterInfo& adapter)
{
    QStringList words;
    if (const auto speed = adapter.linkSpeedMbps)
        words << (*speed % 1000 == 0 ? QStringLiteral("%1 Gb/s").arg(*speed / 1000)
                                     : QStringLiteral("%1 Mb/s").arg(*speed));
    if (adapter.fullDuplex)
        words << (*adapter.fullDuplex ? QStringLiteral("full-duplex") : QStringLiteral("half-duplex"));
    return words.join(u' ');
}

} // namespace

QString printable(QString text)
{
    for (QChar& c : text) {
        if (c.category() == QChar::Other_Control)
            c = u'?';
    }
    return text;
}

QString adaptersAsTable(const QList<AdapterInfo>& adapters, std::chrono::nanoseconds now, bool colour)
{
    if (adapters.isEmpty())
        return QStringLiteral("No network services.\n");
    QList<Row> rows{{
        {QStringLiteral("SERVICE"), Tint::faint},
        {QStringLiteral("STATE"), Tint::faint},
        {QStringLiteral("DEVICE"), Tint::faint},
        {QStringLiteral("HARDWARE ADDRESS"), Tint::faint},
        {QStringLiteral("LINK"), Tint::faint},
        {QStringLiteral("HARDWARE"), Tint::faint},
    }};
    for (const AdapterInfo& adapter : adapters) {
        rows.append({{adapter.serviceName, Tint::strong},
                     stateOf(adapter, now),
                     {orDash(adapter.bsdName.value_or(Text()))},
                     {orDash(adapter.macAddress.value_or(Text()))},
                     {orDash(linkOf(adapter))},
                     {orDash(adapter.hardwareName)}});
    }
    return table(rows, colour);
}

QList<std::pair<QString, QString>> fieldsOf(const NetworkAdapterInfo& configuration)
{
    const bool automatic = configuration.dnsMode == DNSMode::automatic;
    const QStringList domains(configuration.searchDomains.begin(), configuration.searchDomains.end());
    return {
        {QStringLiteral("Mode"), rawValue(configuration.ipv4Mode)},
        {QStringLiteral("IP Address"), orDash(configuration.ipAddress)},
        {QStringLiteral("Subnet Mask"), orDash(configuration.subnetMask)},
        {QStringLiteral("Gateway"), orDash(configuration.router)},
        {QStringLiteral("DNS"), rawValue(configuration.dnsMode)},
        {QStringLiteral("Preferred DNS"), orDash(configuration.primaryDNS)},
        {QStringLiteral("Alternate DNS"), orDash(configuration.alternateDNS)},
        {QStringLiteral("Search Domains"), orDash(automatic ? QString() : domains.join(u' '))},
        {QStringLiteral("DHCP Server"), orDash(configuration.dhcpServer)},
        {QStringLiteral("Computer Name"), orDash(configuration.computerName)},
    };
}

QString stateText(const AdapterInfo& adapter)
{
    if (adapter.isActive)
        return QStringLiteral("connected");
    return adapter.isEnabled ? QStringLiteral("disconnected") : QStringLiteral("disabled");
}

QString configurationAsTable(const AdapterInfo& adapter, const NetworkAdapterInfo& configuration,
                             std::chrono::nanoseconds now, bool colour)
{
    QList<Row> rows{{{QStringLiteral("State:"), Tint::faint}, stateOf(adapter, now)}};
    for (const auto& [label, value] : fieldsOf(configuration))
        rows.append({{label + u':', Tint::faint}, {value}});
    return tinted(printable(adapter.serviceName), Tint::strong, colour) + u'\n' + table(rows, colour);
}

QString planAsText(const ChangePlan& plan, const QString& serviceName)
{
    if (!plan.isNeeded())
        return QStringLiteral("Nothing to do: '%1' has these settings already.\n")
            .arg(printable(serviceName));
    if (!plan.isChange)
        return QStringLiteral("The settings are saved already, and would be brought into force.\n");
    if (plan.changes.isEmpty())
        return QStringLiteral("Only settings that are not shown here would change.\n");
    const auto valueOf = [](const SettingChange& change, const QStringList& value) {
        if (!value.isEmpty())
            return value.join(u' ');
        return change.key == serverAddressesKey ? rawValue(DNSMode::automatic) : QStringLiteral("—");
    };
    QList<Row> rows;
    for (const SettingChange& change : plan.changes)
        rows.append(
            {{labelOf(change.key)},
             {valueOf(change, change.present) + QStringLiteral(" → ") + valueOf(change, change.wanted)}});
    return table(rows, false);
}

QString presetsAsTable(const QList<NetworkPreset>& presets, bool colour)
{
    if (presets.isEmpty())
        return QStringLiteral("No saved profiles.\n");
    QList<Row> rows{{
        {QStringLiteral("PROFILE"), Tint::faint},
        {QStringLiteral("SERVICE"), Tint::faint},
        {QStringLiteral("IPV4"), Tint::faint},
        {QStringLiteral("DNS"), Tint::faint},
    }};
    for (const NetworkPreset& preset : presets) {
        const bool manual = preset.ipv4Mode == IPv4Mode::manual;
        QStringList servers{preset.primaryDNS, preset.alternateDNS};
        servers.removeAll(QString());
        rows.append({{preset.name, Tint::strong},
                     {preset.serviceName},
                     {manual ? preset.ipAddress.string() : rawValue(preset.ipv4Mode)},
                     {preset.dnsMode == DNSMode::manual ? servers.join(u' ') : rawValue(preset.dnsMode)}});
    }
    return table(rows, colour);
}

} // namespace ardeo
