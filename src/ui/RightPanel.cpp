#include "ui/RightPanel.h"

#include "ui/Binding.h"
#include "ui/Card.h"
#include "ui/CardScrollArea.h"
#include "ui/ConfirmationDialog.h"
#include "ui/Controls.h"
#include "ui/FormRow.h"
#include "ui/IPAddressField.h"
#include "ui/InfoRow.h"
#include "ui/PushButton.h"
#include "ui/Spinner.h"
#include "ui/TextLabel.h"
#include "ui/UnfoldingSection.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QGraphicsOpacityEffect>
#include <QPainter>
#include <QStackedLayout>
#include <QVariantAnimation>

#include <array>

namespace ardeo
{

namespace
{

constexpr double backgroundMaxDist = 220;
constexpr double backgroundSpeed = 0.25;
constexpr int fadeMilliseconds = 200;

/// A vertical stack without margins of its own.
QVBoxLayout* stackIn(QWidget* widget, int spacing)
{
    auto* stack = new QVBoxLayout(widget);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(spacing);
    return stack;
}

/// A symbol with a text beside it, both in one colour.
class IconLabel final : public QWidget
{
public:
    IconLabel(const QString& symbol, const TextLabel::Colour& colour, bool wraps)
        : m_text(new TextLabel(QString(), look::font(TextStyle::callout), Emphasis::primary))
    {
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(4);
        row->addWidget(new SymbolView(symbol, 16, colour), 0, wraps ? Qt::AlignTop : Qt::AlignVCenter);
        m_text->setColour(colour);
        m_text->setWordWrap(wraps);
        m_text->setMinimumHeight(16);
        row->addWidget(m_text, 1);
    }
    void setText(const QString& text) { m_text->setText(text); }

private:
    TextLabel* m_text;
};

/// The dot that tells at a glance whether the service is connected.
class StatusDot final : public QWidget
{
public:
    StatusDot() { setFixedSize(7, 7); }
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

/// One radio button per mode, bound to the mode.
template <typename Mode>
QWidget* radioGroup(Observed<Mode>& mode, const QString& name, const std::array<const char*, 2>& texts)
{
    auto* group = new QWidget;
    group->setAccessibleName(name);
    auto* stack = stackIn(group, 4);
    auto* buttons = new QButtonGroup(group);
    for (const Mode choice : ModeTexts<Mode>::allCases) {
        auto* button = new RadioButton(QLatin1String(texts.at(static_cast<size_t>(choice))));
        buttons->addButton(button, static_cast<int>(choice));
        stack->addWidget(button);
    }
    // Toggled rather than clicked, which assistive technology does not do.
    QObject::connect(buttons, &QButtonGroup::idToggled, group, [&mode](int id, bool checked) {
        if (checked && mode.value() != static_cast<Mode>(id))
            mode = static_cast<Mode>(id);
    });
    bind(
        group, [&mode] { return mode.value(); },
        [buttons](Mode chosen) { buttons->button(static_cast<int>(chosen))->setChecked(true); });
    return group;
}

struct AddressRow {
    QString label;
    Observed<Text>& value;
    QString placeholder;
};

/// Rows with an address field each, that unfold while the condition holds.
template <typename Condition>
QWidget* addressRows(Condition condition, std::vector<AddressRow> rows)
{
    auto* section = new UnfoldingSection(8, 20, [rows = std::move(rows)] {
        auto* content = new QWidget;
        auto* stack = stackIn(content, 6);
        for (const AddressRow& row : rows)
            stack->addWidget(
                new FormRow(row.label, new IPAddressField(row.value, row.placeholder, row.label)));
        return content;
    });
    bind(section, condition, [section](bool shown) { section->setShown(shown); });
    return section;
}

/// Fades the widget in or out; a hidden widget takes no part in the layout.
void fade(QWidget* widget, bool shown)
{
    const int duration = look::duration(widget, fadeMilliseconds);
    if (!widget->window()->isVisible() || duration == 0) {
        widget->setVisible(shown);
        return;
    }
    if (shown == widget->isVisible())
        return;
    auto* effect = new QGraphicsOpacityEffect(widget);
    widget->setGraphicsEffect(effect);
    auto* animation = new QVariantAnimation(effect);
    animation->setStartValue(shown ? 0.0 : 1.0);
    animation->setEndValue(shown ? 1.0 : 0.0);
    animation->setDuration(duration);
    QObject::connect(animation, &QVariantAnimation::valueChanged, effect,
                     [effect](const QVariant& value) { effect->setOpacity(value.toDouble()); });
    QObject::connect(animation, &QVariantAnimation::finished, widget, [widget, shown] {
        widget->setVisible(shown);
        widget->setGraphicsEffect(nullptr);
    });
    effect->setOpacity(shown ? 0 : 1);
    widget->show();
    animation->start();
}

QString nameOf(const std::optional<AdapterInfo>& adapter, const char* otherwise)
{
    return adapter ? adapter->serviceName.string() : QLatin1String(otherwise);
}

} // namespace

RightPanel::RightPanel(MainViewModel& model, Clock& clock, QWidget* parent)
    : QWidget(parent)
    , vm(model)
    , m_background(new NeuralNetworkBackground(clock, backgroundMaxDist, backgroundSpeed, this))
{
    setMinimumWidth(460);
    auto* layers = new QStackedLayout(this);
    layers->addWidget(makeContent());
    layers->addWidget(makeEmptyState());
    bind(
        this, [this] { return vm.adapters.value().isEmpty() && !vm.isLoading.value(); },
        [layers](bool empty) { layers->setCurrentIndex(empty ? 1 : 0); });
    m_background->lower();
    m_background->setCovered([this] { return covered(); });
    followDisableConfirm();

    // A mode may change in the middle of filling the form, whose mask comes later: look at it when that is
    // over.
    m_maskDefault = vm.ipv4Mode.addNotifier([this] {
        QMetaObject::invokeMethod(
            this,
            [this] {
                if (vm.ipv4Mode.value() == IPv4Mode::manual && vm.subnetMask.value().isEmpty())
                    vm.subnetMask = Text(QStringLiteral("255.255.255.0"));
            },
            Qt::QueuedConnection);
    });
}

void RightPanel::resizeEvent(QResizeEvent*)
{
    m_background->setGeometry(rect());
}

QRegion RightPanel::covered() const
{
    QRegion region;
    for (const QWidget* widget : m_covering) {
        if (widget->isVisible())
            region += QRect(widget->mapTo(this, QPoint()), widget->size()) & rect();
    }
    return region;
}

QWidget* RightPanel::makeEmptyState()
{
    auto* view = new QWidget;
    auto* stack = stackIn(view, 8);
    stack->addStretch();
    stack->addWidget(new SymbolView(QStringLiteral("network.slash"), 48,
                                    [](const Colours& colours) { return colours.secondary; }),
                     0, Qt::AlignHCenter);
    stack->addWidget(new TextLabel(QStringLiteral("No Network Services"),
                                   look::font(TextStyle::title2, QFont::Bold), Emphasis::primary),
                     0, Qt::AlignHCenter);
    stack->addWidget(new TextLabel(QStringLiteral("No network services found on this Mac."),
                                   look::font(TextStyle::subheadline), Emphasis::secondary),
                     0, Qt::AlignHCenter);
    stack->addStretch();
    return view;
}

QWidget* RightPanel::makeContent()
{
    auto* view = new QWidget;
    auto* stack = stackIn(view, 0);
    stack->addWidget(makeHeader());

    auto* cards = new QWidget;
    auto* column = new QVBoxLayout(cards);
    const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    column->setContentsMargins(20, 20, 20 - bar, 20);
    column->setSpacing(16);
    column->addWidget(makeProfileCard());
    column->addWidget(makeAdapterCard());
    column->addStretch();
    stack->addWidget(new CardScrollArea(cards), 1);
    return view;
}

QWidget* RightPanel::makeHeader()
{
    auto* header = new QWidget;
    auto* row = new QHBoxLayout(header);
    row->setContentsMargins(20, 14, 20, 10);
    row->setSpacing(10);
    row->addStretch();

    auto* refresh = new PushButton(QStringLiteral("Refresh"), QStringLiteral("arrow.clockwise"),
                                   PushButton::Kind::bordered);
    refresh->setControlSize(PushButton::Size::large);
    refresh->setToolTip(QStringLiteral("Refresh adapter list — ⌘R"));
    connect(refresh, &QPushButton::clicked, this, [this] { vm.refreshAdapters(); });
    bind(
        refresh, [this] { return vm.isLoading.value(); },
        [refresh](bool loading) { refresh->setDisabled(loading); });

    auto* apply = new PushButton(QString(), QString(), PushButton::Kind::prominent);
    apply->setTint(&Colours::accent);
    apply->setControlSize(PushButton::Size::large);
    apply->setToolTip(QStringLiteral("Apply configuration — ⌘↩"));
    connect(apply, &QPushButton::clicked, this, [this] { vm.applyConfiguration(); });
    bind(
        apply,
        [this] {
            return !vm.isApplying.value() && !vm.isLoading.value() && vm.selectedAdapter.value().has_value();
        },
        [apply](bool possible) { apply->setEnabled(possible); });
    bind(
        apply, [this] { return vm.isApplying.value(); },
        [apply](bool applying) {
            apply->setText(applying ? QStringLiteral("Applying…") : QStringLiteral("Apply"));
            apply->setSymbol(applying ? QString() : QStringLiteral("checkmark.circle.fill"));
            apply->setSpinning(applying, 0.75);
        });
    row->addWidget(refresh);
    row->addWidget(apply);
    m_covering << refresh << apply;
    return header;
}

QWidget* RightPanel::makeProfileCard()
{
    auto* content = new QWidget;
    auto* stack = stackIn(content, 12);
    stack->addWidget(makeIPv4Section());
    stack->addWidget(look::divider(content));
    stack->addWidget(makeDNSSection());
    stack->addWidget(look::divider(content));
    stack->addWidget(makeFeedback());
    auto* card = new Card(QStringLiteral("Set Profile Properties"), QStringLiteral("slider.horizontal.3"),
                          nullptr, content);
    card->setBackground(m_background);
    m_covering << card;
    return card;
}

QWidget* RightPanel::makeIPv4Section()
{
    auto* section = new QWidget;
    auto* stack = stackIn(section, 0);
    stack->addWidget(radioGroup(vm.ipv4Mode, QStringLiteral("IP Address"),
                                {"Automatically Set IP Address", "Manually Set IP Address"}));
    stack->addWidget(
        addressRows([this] { return vm.ipv4Mode.value() == IPv4Mode::manual; },
                    {{QStringLiteral("IP Address:"), vm.ipAddress, QStringLiteral("192.168.1.100")},
                     {QStringLiteral("Subnet Mask:"), vm.subnetMask, QStringLiteral("255.255.255.0")},
                     {QStringLiteral("Gateway:"), vm.router, QStringLiteral("192.168.1.1")}}));
    return section;
}

QWidget* RightPanel::makeDNSSection()
{
    auto* section = new QWidget;
    auto* stack = stackIn(section, 0);
    stack->addWidget(radioGroup(vm.dnsMode, QStringLiteral("DNS"),
                                {"Automatically Set DNS Address", "Manually Set DNS Address"}));
    stack->addWidget(
        addressRows([this] { return vm.dnsMode.value() == DNSMode::manual; },
                    {{QStringLiteral("Preferred DNS:"), vm.primaryDNS, QStringLiteral("8.8.8.8")},
                     {QStringLiteral("Alternate DNS:"), vm.alternateDNS, QStringLiteral("8.8.4.4")}}));
    return section;
}

QWidget* RightPanel::makeFeedback()
{
    auto* feedback = new QWidget;
    auto* stack = stackIn(feedback, 6);
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    stack->addLayout(row);

    auto* revert = new PushButton(QStringLiteral("Revert"), QString(), PushButton::Kind::bordered);
    connect(revert, &QPushButton::clicked, this, [this] { vm.revertForm(); });
    bind(
        revert, [this] { return vm.hasChanges(); }, [revert](bool changed) { revert->setEnabled(changed); });
    row->addWidget(revert);

    auto* renew = new PushButton(QStringLiteral("Renew DHCP"), QStringLiteral("arrow.triangle.2.circlepath"),
                                 PushButton::Kind::bordered);
    renew->setToolTip(QStringLiteral("Force a new DHCP lease"));
    connect(renew, &QPushButton::clicked, this, [this] { vm.renewDHCPLease(); });
    bind(
        renew,
        [this] {
            return !vm.isApplying.value() && !vm.isLoading.value() && vm.selectedAdapter.value().has_value();
        },
        [renew](bool possible) { renew->setEnabled(possible); });
    bind(
        renew, [this] { return vm.currentConfig.value().ipv4Mode == IPv4Mode::dhcp; },
        [renew](bool leased) { renew->setVisible(leased); });
    row->addWidget(renew);

    auto* applied = new IconLabel(
        QStringLiteral("checkmark.circle.fill"), [](const Colours& colours) { return colours.green; }, false);
    applied->setText(QStringLiteral("Applied"));
    applied->setParent(feedback);
    bind(
        applied, [this] { return vm.applySuccess.value(); },
        [applied](bool success) { fade(applied, success); });
    row->addWidget(applied);
    row->addStretch(1);

    auto* error = new IconLabel(
        QStringLiteral("exclamationmark.triangle.fill"), [](const Colours& colours) { return colours.red; },
        true);
    error->setParent(feedback);
    bind(
        error, [this] { return vm.applyError.value(); },
        [error](const std::optional<Text>& message) {
            error->setText(message.value_or(Text()));
            error->setVisible(message.has_value());
        });
    stack->addWidget(error);
    return feedback;
}

QWidget* RightPanel::makeAdapterCard()
{
    auto* content = new QWidget;
    auto* layers = stackIn(content, 0);
    auto* loading = new QWidget(content);
    auto* row = new QHBoxLayout(loading);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    row->addWidget(new Spinner(0.8));
    row->addWidget(
        new TextLabel(QStringLiteral("Loading…"), look::font(TextStyle::body), Emphasis::secondary));
    row->addStretch();
    QWidget* live = makeLiveState();
    layers->addWidget(loading);
    layers->addWidget(live);
    bind(
        content, [this] { return vm.isLoading.value(); },
        [loading, live](bool isLoading) {
            (isLoading ? live : loading)->hide();
            (isLoading ? loading : live)->show();
        });
    auto* card = new Card(QStringLiteral("Current Adapter Properties"), QStringLiteral("info.circle"),
                          makeEnableButton(), content);
    card->setBackground(m_background);
    m_covering << card;
    return card;
}

QWidget* RightPanel::makeStatusRow()
{
    auto* status = new QWidget;
    auto* row = new QHBoxLayout(status);
    row->setContentsMargins(0, 0, 0, 4);
    row->setSpacing(6);
    auto* dot = new StatusDot;
    auto* text = new TextLabel(QString(), look::font(TextStyle::caption), Emphasis::tertiary);
    row->addWidget(dot);
    row->addWidget(text);
    row->addStretch();
    bind(
        status,
        [this] {
            const auto adapter = vm.selectedAdapter.value();
            return adapter && adapter->isActive;
        },
        [dot, text](bool active) {
            dot->setActive(active);
            text->setText(active ? QStringLiteral("Connected") : QStringLiteral("Not connected"));
            text->setEmphasis(active ? Emphasis::secondary : Emphasis::tertiary);
        });
    return status;
}

QWidget* RightPanel::makeLiveState()
{
    auto* live = new QWidget;
    auto* stack = stackIn(live, 4);
    stack->addWidget(makeStatusRow());

    using Read = QString (*)(const NetworkAdapterInfo&);
    struct Line {
        QString label;
        Read value;
        bool monospaced;
        bool shownWhenEmpty;
    };
    const std::array lines{
        Line{QStringLiteral("IP Address:"), [](auto& info) { return info.ipAddress.string(); }, true, true},
        Line{QStringLiteral("Subnet Mask:"), [](auto& info) { return info.subnetMask.string(); }, true, true},
        Line{QStringLiteral("Gateway:"), [](auto& info) { return info.router.string(); }, true, true},
        Line{QStringLiteral("Preferred DNS:"), [](auto& info) { return info.primaryDNS.string(); }, true,
             true},
        Line{QStringLiteral("Alternate DNS:"), [](auto& info) { return info.alternateDNS.string(); }, true,
             true},
        Line{QStringLiteral("DHCP Server:"), [](auto& info) { return info.dhcpServer.string(); }, true,
             false},
        Line{QStringLiteral("Mode:"),
             [](auto& info) {
                 return info.ipv4Mode == IPv4Mode::manual ? QStringLiteral("Manual") : QStringLiteral("DHCP");
             },
             false, true},
        Line{QStringLiteral("Computer Name:"), [](auto& info) { return info.computerName.string(); }, false,
             false},
    };
    for (const Line& line : lines) {
        auto* row = new InfoRow(line.label, QString(), line.monospaced, live);
        stack->addWidget(row);
        bind(
            row, [this, read = line.value] { return read(vm.currentConfig.value()); },
            [row, always = line.shownWhenEmpty](const QString& value) {
                row->setValue(value);
                row->setVisible(always || !value.isEmpty());
            });
    }
    return live;
}

QWidget* RightPanel::makeEnableButton()
{
    auto* button = new PushButton(QString(), QString(), PushButton::Kind::bordered);
    const auto enabled = [this] {
        const auto adapter = vm.selectedAdapter.value();
        return adapter && adapter->isEnabled;
    };
    bind(button, enabled, [button](bool isEnabled) {
        button->setText(isEnabled ? QStringLiteral("Disable Adapter") : QStringLiteral("Enable Adapter"));
        button->setSymbol(isEnabled ? QStringLiteral("network.slash") : QStringLiteral("network"));
        button->setTint(isEnabled ? &Colours::red : &Colours::green);
    });
    bind(
        button, [this] { return !vm.isApplying.value() && vm.selectedAdapter.value().has_value(); },
        [button](bool possible) { button->setEnabled(possible); });
    connect(button, &QPushButton::clicked, this, [this, enabled] {
        if (enabled())
            showDisableConfirm = true;
        else
            vm.setAdapterEnabled(true);
    });
    return button;
}

void RightPanel::followDisableConfirm()
{
    bind(
        this, [this] { return showDisableConfirm.value(); },
        [this](bool shown) {
            if (!shown)
                return;
            const auto adapter = vm.selectedAdapter.value();
            auto* confirmation =
                new ConfirmationDialog(QStringLiteral("Disable %1?").arg(nameOf(adapter, "Adapter")),
                                       QStringLiteral("This will disconnect %1 from the network.")
                                           .arg(nameOf(adapter, "the adapter")),
                                       QStringLiteral("Disable"), window());
            connect(confirmation, &QDialog::finished, this, [this](int result) {
                showDisableConfirm = false;
                if (result == QDialog::Accepted)
                    vm.setAdapterEnabled(false);
            });
            confirmation->show();
        });
}

} // namespace ardeo
