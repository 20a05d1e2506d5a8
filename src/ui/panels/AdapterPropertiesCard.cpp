#include "ui/panels/AdapterPropertiesCard.h"

#include "ui/elements/Binding.h"
#include "ui/elements/InfoRow.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Spinner.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

#include <QPainter>
#include <QStackedLayout>

#include <algorithm>
#include <array>

namespace ardeo
{

namespace
{

/// The dot that tells at a glance whether the service is connected.
class StatusDot final : public QWidget
{
public:
    StatusDot()
    {
        look::followTextSize(this, [this] { setFixedSize(look::scaled(7), look::scaled(7)); });
    }
    void setActive(bool active)
    {
        m_active = active;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Colours& colours = look::colours(this);
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(m_active ? colours.green : colours.tertiary);
        painter.drawEllipse(rect());
    }

private:
    bool m_active = false;
};

QWidget* makeStatusRow(MainViewModel& vm)
{
    auto* status = new QWidget;
    auto* row = growing(rowIn(status, 6, {0, 0, 0, 4}));
    auto* dot = new StatusDot;
    auto* text = new TextLabel(QString(), look::font(TextStyle::caption), Emphasis::tertiary);
    row->addWidget(dot);
    row->addWidget(text);
    row->addStretch();
    bind(
        status,
        [&vm] {
            const auto adapter = vm.selectedAdapter.value();
            return adapter && adapter->isActive;
        },
        [dot, text](bool active) {
            dot->setActive(active);
            text->setText(active ? AdapterPropertiesCard::tr("Connected")
                                 : AdapterPropertiesCard::tr("Not connected"));
            text->setEmphasis(active ? Emphasis::secondary : Emphasis::tertiary);
        });
    return status;
}

QWidget* makeLiveState(MainViewModel& vm)
{
    auto* live = new QWidget;
    auto* stack = columnIn(live, 0);
    look::followTextSize(live, [stack] {
        // Room that the font keeps above its letters counts as a part of the gap.
        const QFont font = look::monospacedFont(TextStyle::body);
        const int spare = QFontMetrics(font).height() - look::lineHeight(font);
        stack->setSpacing(std::max(0, 4 - spare));
    });
    stack->addWidget(makeStatusRow(vm));

    using Read = QString (*)(const NetworkAdapterInfo&);
    struct Line {
        QString label;
        Read value;
        bool monospaced;
        bool shownWhenEmpty;
    };
    const std::array lines{
        Line{AdapterPropertiesCard::tr("IP Address:"), [](auto& info) { return info.ipAddress.string(); },
             true, true},
        Line{AdapterPropertiesCard::tr("Subnet Mask:"), [](auto& info) { return info.subnetMask.string(); },
             true, true},
        Line{AdapterPropertiesCard::tr("Gateway:"), [](auto& info) { return info.router.string(); }, true,
             true},
        Line{AdapterPropertiesCard::tr("Preferred DNS:"), [](auto& info) { return info.primaryDNS.string(); },
             true, true},
        Line{AdapterPropertiesCard::tr("Alternate DNS:"),
             [](auto& info) { return info.alternateDNS.string(); }, true, true},
        Line{AdapterPropertiesCard::tr("DHCP Server:"), [](auto& info) { return info.dhcpServer.string(); },
             true, false},
        Line{AdapterPropertiesCard::tr("Mode:"),
             [](auto& info) {
                 return info.ipv4Mode == IPv4Mode::manual ? AdapterPropertiesCard::tr("Manual")
                                                          : AdapterPropertiesCard::tr("DHCP");
             },
             false, true},
        Line{AdapterPropertiesCard::tr("Computer Name:"),
             [](auto& info) { return info.computerName.string(); }, false, false},
    };
    for (const Line& line : lines) {
        auto* row = new InfoRow(line.label, QString(), line.monospaced, live);
        stack->addWidget(row);
        bind(
            row, [&vm, read = line.value] { return read(vm.currentConfig.value()); },
            [row, always = line.shownWhenEmpty](const QString& value) {
                row->setValue(value);
                row->setVisible(always || !value.isEmpty());
            });
    }
    return live;
}

QWidget* makeContent(MainViewModel& vm)
{
    auto* content = new QWidget;
    auto* layers = new QStackedLayout(content); // as high as the live state, whichever is shown
    auto* loading = new QWidget;
    auto* column = columnIn(loading, 0);
    auto* row = growing(rowIn(column, 8));
    row->addWidget(new Spinner(0.8));
    row->addWidget(new TextLabel(AdapterPropertiesCard::tr("Loading…"), look::font(TextStyle::body),
                                 Emphasis::secondary));
    row->addStretch();
    column->addStretch();
    QWidget* live = makeLiveState(vm);
    layers->addWidget(loading);
    layers->addWidget(live);
    bind(
        content, [&vm] { return vm.isLoading.value(); },
        [layers, loading, live](bool isLoading) { layers->setCurrentWidget(isLoading ? loading : live); });
    return content;
}

QWidget* makeEnableButton(MainViewModel& vm, Observed<bool>& showDisableConfirm)
{
    auto* button = new PushButton(QString(), QString(), PushButton::Kind::bordered);
    const auto enabled = [&vm] {
        const auto adapter = vm.selectedAdapter.value();
        return adapter && adapter->isEnabled;
    };
    bind(button, enabled, [button](bool isEnabled) {
        button->setText(isEnabled ? AdapterPropertiesCard::tr("Disable Adapter")
                                  : AdapterPropertiesCard::tr("Enable Adapter"));
        button->setSymbol(isEnabled ? QStringLiteral("network.slash") : QStringLiteral("network"));
        button->setTint(isEnabled ? &Colours::red : &Colours::green);
    });
    bind(
        button, [&vm] { return !vm.isApplying.value() && vm.selectedAdapter.value().has_value(); },
        [button](bool possible) { button->setUsable(possible); });
    QObject::connect(button, &QPushButton::clicked, button, [&vm, &showDisableConfirm, enabled] {
        if (enabled())
            showDisableConfirm = true;
        else
            vm.setAdapterEnabled(true);
    });
    return button;
}

} // namespace

AdapterPropertiesCard::AdapterPropertiesCard(MainViewModel& vm, Observed<bool>& showDisableConfirm,
                                             QWidget* parent)
    : Card(AdapterPropertiesCard::tr("Current Adapter Properties"), QStringLiteral("info.circle"),
           makeEnableButton(vm, showDisableConfirm), makeContent(vm), parent)
{
}

} // namespace ardeo
