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

QString nameOf(IPv4Mode mode)
{
    return mode == IPv4Mode::manual ? Console::tr("Manual") : Console::tr("DHCP");
}

QString nameOf(DNSMode mode)
{
    return mode == DNSMode::manual ? Console::tr("Manual") : Console::tr("Automatic");
}

QString orDash(const QString& text)
{
    return text.isEmpty() ? QStringLiteral("—") : text;
}

Cell stateOf(const AdapterInfo& adapter, std::chrono::nanoseconds now)
{
    const auto seconds = adapter.secondsToConfirm(now);
    const QString trial =
        seconds ? Console::tr(", %n s to confirm", nullptr, static_cast<int>(*seconds)) : QString();
    return {stateText(adapter) + trial, adapter.isActive ? Tint::good : Tint::faint};
}

QString labelOf(const QString& settingKey)
{
    static const QHash<QString, QString> labels{
        {configMethodKey, Console::tr("Mode:")},       {addressesKey, Console::tr("IP Address:")},
        {subnetMasksKey, Console::tr("Subnet Mask:")}, {routerKey, Console::tr("Gateway:")},
        {serverAddressesKey, Console::tr("DNS:")},     {searchDomainsKey, Console::tr("Search Domains:")},
    };
    return labels.value(settingKey);
}

QString linkOf(const AdapterInfo& adapter)
{
    QStringList words;
    if (const auto speed = adapter.linkSpeedMbps)
        words << (*speed % 1000 == 0 ? Console::tr("%1 Gb/s").arg(*speed / 1000)
                                     : Console::tr("%1 Mb/s").arg(*speed));
    if (adapter.fullDuplex)
        words << (*adapter.fullDuplex ? Console::tr("full-duplex") : Console::tr("half-duplex"));
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
        return Console::tr("No network services.") + u'\n';
    QList<Row> rows{{
        {Console::tr("SERVICE"), Tint::faint},
        {Console::tr("STATE"), Tint::faint},
        {Console::tr("DEVICE"), Tint::faint},
        {Console::tr("HARDWARE ADDRESS"), Tint::faint},
        {Console::tr("LINK"), Tint::faint},
        {Console::tr("HARDWARE"), Tint::faint},
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
        {Console::tr("Mode"), nameOf(configuration.ipv4Mode)},
        {Console::tr("IP Address"), orDash(configuration.ipAddress)},
        {Console::tr("Subnet Mask"), orDash(configuration.subnetMask)},
        {Console::tr("Gateway"), orDash(configuration.router)},
        {Console::tr("DNS"), nameOf(configuration.dnsMode)},
        {Console::tr("Preferred DNS"), orDash(configuration.primaryDNS)},
        {Console::tr("Alternate DNS"), orDash(configuration.alternateDNS)},
        {Console::tr("Search Domains"), orDash(automatic ? QString() : domains.join(u' '))},
        {Console::tr("DHCP Server"), orDash(configuration.dhcpServer)},
        {Console::tr("Computer Name"), orDash(configuration.computerName)},
    };
}

QString stateText(const AdapterInfo& adapter)
{
    if (adapter.isActive)
        return Console::tr("connected");
    return adapter.isEnabled ? Console::tr("disconnected") : Console::tr("disabled");
}

QString configurationAsTable(const AdapterInfo& adapter, const NetworkAdapterInfo& configuration,
                             std::chrono::nanoseconds now, bool colour)
{
    QList<Row> rows{{{Console::tr("State:"), Tint::faint}, stateOf(adapter, now)}};
    for (const auto& [label, value] : fieldsOf(configuration))
        rows.append({{Console::tr("%1:").arg(label), Tint::faint}, {value}});
    return tinted(printable(adapter.serviceName), Tint::strong, colour) + u'\n' + table(rows, colour);
}

QString planAsText(const ChangePlan& plan, const QString& serviceName)
{
    if (!plan.isNeeded())
        return Console::tr("Nothing to do: '%1' has these settings already.").arg(printable(serviceName)) +
               u'\n';
    if (!plan.isChange)
        return Console::tr("The settings are saved already, and would be brought into force.") + u'\n';
    if (plan.changes.isEmpty())
        return Console::tr("Only settings that are not shown here would change.") + u'\n';
    const auto valueOf = [](const SettingChange& change, const QStringList& value) {
        const auto mode = modeFromRawValue<IPv4Mode>(value.value(0));
        if (change.key == configMethodKey && mode)
            return nameOf(*mode);
        if (!value.isEmpty())
            return value.join(u' ');
        return change.key == serverAddressesKey ? nameOf(DNSMode::automatic) : QStringLiteral("—");
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
        return Console::tr("No saved profiles.") + u'\n';
    QList<Row> rows{{
        {Console::tr("PROFILE"), Tint::faint},
        {Console::tr("SERVICE"), Tint::faint},
        {Console::tr("IPV4"), Tint::faint},
        {Console::tr("DNS"), Tint::faint},
    }};
    for (const NetworkPreset& preset : presets) {
        const bool manual = preset.ipv4Mode == IPv4Mode::manual;
        QStringList servers{preset.primaryDNS, preset.alternateDNS};
        servers.removeAll(QString());
        rows.append({{preset.name, Tint::strong},
                     {preset.serviceName},
                     {manual ? preset.ipAddress.string() : nameOf(preset.ipv4Mode)},
                     {preset.dnsMode == DNSMode::manual ? servers.join(u' ') : nameOf(preset.dnsMode)}});
    }
    return table(rows, colour);
}

} // namespace ardeo
