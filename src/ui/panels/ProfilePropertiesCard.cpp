#include "ui/panels/ProfilePropertiesCard.h"

#include "backend/Errors.h"
#include "ui/elements/Binding.h"
#include "ui/elements/Controls.h"
#include "ui/elements/FormRow.h"
#include "ui/elements/IPAddressField.h"
#include "ui/elements/IconLabel.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"
#include "ui/elements/UnfoldingSection.h"

#include <QButtonGroup>
#include <QGraphicsOpacityEffect>
#include <QVariantAnimation>

#include <array>

namespace ardeo
{

namespace
{

constexpr int fadeMilliseconds = 200;

/// One radio button per mode, bound to the mode.
template <typename Mode>
QWidget* radioGroup(Observed<Mode>& mode, const QString& name, const std::array<QString, 2>& texts)
{
    auto* group = new QWidget;
    group->setAccessibleName(name);
    auto* stack = columnIn(group, 4);
    auto* buttons = new QButtonGroup(group);
    for (const Mode choice : ModeTexts<Mode>::allCases) {
        auto* button = new RadioButton(texts.at(static_cast<size_t>(choice)));
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
        [buttons](Mode chosen) {
            QAbstractButton* checked = buttons->button(static_cast<int>(chosen));
            checked->setChecked(true);
            // The Tab key stops at what is chosen, from where the arrow keys lead to the rest.
            for (QAbstractButton* button : buttons->buttons())
                button->setFocusPolicy(button == checked ? Qt::StrongFocus : Qt::ClickFocus);
        });
    return group;
}

struct AddressRow {
    QString label;
    Observed<Text>& value;
    QString placeholder;
    SettingFault::Setting setting;
};

/// The field is marked for as long as it holds what was refused.
QWidget* makeAddressRow(MainViewModel& vm, const AddressRow& row)
{
    auto* field = new IPAddressField(row.value, row.placeholder, row.label);
    bind(
        field,
        [&vm, row] {
            const auto fault = vm.applyFault.value();
            const bool isHere =
                fault && fault->setting == row.setting && row.value.value() == Text(fault->value);
            return isHere ? std::optional(fault->reason) : std::nullopt;
        },
        [field](const std::optional<QString>& reason) { field->setFault(reason); });
    return new FormRow(row.label, field);
}

/// Rows with an address field each, that unfold below a choice while the condition holds.
template <typename Condition>
QWidget* addressRows(MainViewModel& vm, QWidget* choice, Condition condition, std::vector<AddressRow> rows)
{
    auto* section = new UnfoldingSection(8, 20, [&vm, rows = std::move(rows)] {
        auto* content = new QWidget;
        auto* stack = columnIn(content, 6);
        for (const AddressRow& row : rows)
            stack->addWidget(makeAddressRow(vm, row));
        return content;
    });
    // Queued, for what is chosen may be about to be shown.
    QObject::connect(
        section, &UnfoldingSection::focusLost, choice,
        [choice] {
            for (auto* button : choice->findChildren<RadioButton*>()) {
                if (button->isChecked())
                    button->setFocus();
            }
        },
        Qt::QueuedConnection);
    bind(section, condition, [section](bool shown) { section->setShown(shown); });
    return section;
}

/// Fades the widget in or out, from where a fade that is under way has come to; a hidden widget takes no part
/// in the layout.
void fade(QWidget* widget, bool shown)
{
    const auto* underWay = qobject_cast<QGraphicsOpacityEffect*>(widget->graphicsEffect());
    const double from = underWay ? underWay->opacity() : widget->isVisible() ? 1 : 0;
    const double to = shown ? 1 : 0;
    widget->setGraphicsEffect(nullptr); // which ends that
    const int duration = look::duration(widget, fadeMilliseconds);
    if (!widget->window()->isVisible() || duration == 0 || from == to) {
        widget->setVisible(shown);
        return;
    }
    auto* effect = new QGraphicsOpacityEffect(widget);
    widget->setGraphicsEffect(effect);
    auto* animation = new QVariantAnimation(effect);
    animation->setStartValue(from);
    animation->setEndValue(to);
    animation->setDuration(duration);
    QObject::connect(animation, &QVariantAnimation::valueChanged, effect,
                     [effect](const QVariant& value) { effect->setOpacity(value.toDouble()); });
    QObject::connect(animation, &QVariantAnimation::finished, widget, [widget, shown] {
        widget->setVisible(shown);
        widget->setGraphicsEffect(nullptr);
    });
    effect->setOpacity(from);
    widget->show();
    animation->start();
}

QWidget* makeIPv4Section(MainViewModel& vm)
{
    auto* section = new QWidget;
    auto* stack = columnIn(section, 0);
    QWidget* choice = radioGroup(vm.ipv4Mode, ProfilePropertiesCard::tr("IP Address"),
                                 {ProfilePropertiesCard::tr("Automatically Set IP Address"),
                                  ProfilePropertiesCard::tr("Manually Set IP Address")});
    stack->addWidget(choice);
    stack->addWidget(addressRows(vm, choice, [&vm] { return vm.ipv4Mode.value() == IPv4Mode::manual; },
                                 {{ProfilePropertiesCard::tr("IP Address:"), vm.ipAddress,
                                   QStringLiteral("192.168.1.100"), SettingFault::Setting::address},
                                  {ProfilePropertiesCard::tr("Subnet Mask:"), vm.subnetMask,
                                   QStringLiteral("255.255.255.0"), SettingFault::Setting::subnetMask},
                                  {ProfilePropertiesCard::tr("Gateway:"), vm.router,
                                   QStringLiteral("192.168.1.1"), SettingFault::Setting::router}}));
    return section;
}

QWidget* makeDNSSection(MainViewModel& vm)
{
    auto* section = new QWidget;
    auto* stack = columnIn(section, 0);
    QWidget* choice = radioGroup(vm.dnsMode, ProfilePropertiesCard::tr("DNS"),
                                 {ProfilePropertiesCard::tr("Automatically Set DNS Address"),
                                  ProfilePropertiesCard::tr("Manually Set DNS Address")});
    stack->addWidget(choice);
    stack->addWidget(addressRows(vm, choice, [&vm] { return vm.dnsMode.value() == DNSMode::manual; },
                                 {{ProfilePropertiesCard::tr("Preferred DNS:"), vm.primaryDNS,
                                   QStringLiteral("8.8.8.8"), SettingFault::Setting::dnsServer},
                                  {ProfilePropertiesCard::tr("Alternate DNS:"), vm.alternateDNS,
                                   QStringLiteral("8.8.4.4"), SettingFault::Setting::dnsServer}}));
    return section;
}

/// Counts down what is left to keep a change that is on trial.
QWidget* makeTrialRow(MainViewModel& vm)
{
    auto* trial = new QWidget;
    auto* row = rowIn(trial, 10);
    auto* keep = new PushButton(ProfilePropertiesCard::tr("Keep"), QString(), PushButton::Kind::bordered);
    QObject::connect(keep, &QPushButton::clicked, keep, [&vm] { vm.endTrial(true); });
    bind(
        keep, [&vm] { return !vm.isApplying.value(); }, [keep](bool possible) { keep->setUsable(possible); });
    row->addWidget(keep);
    auto* left = new TextLabel(QString(), look::font(TextStyle::caption), Emphasis::secondary);
    left->setWrapped();
    row->addWidget(left, 1);
    bind(
        trial, [&vm] { return vm.secondsToConfirm.value(); },
        [trial, left](std::optional<qint64> seconds) {
            trial->setVisible(seconds.has_value());
            left->setText(ProfilePropertiesCard::tr("The change is taken back in %n s.", nullptr,
                                                    static_cast<int>(seconds.value_or(0))));
        });
    return trial;
}

QWidget* makeFeedback(MainViewModel& vm)
{
    auto* feedback = new QWidget;
    auto* stack = columnIn(feedback, 6);
    auto* row = rowIn(stack, 10);

    auto* revert = new PushButton(ProfilePropertiesCard::tr("Revert"), QString(), PushButton::Kind::bordered);
    QObject::connect(revert, &QPushButton::clicked, revert, [&vm] { vm.revertForm(); });
    const auto hasChanges = [&vm] { return vm.hasChanges(); };
    bind(revert, hasChanges, [revert](bool changed) { revert->setUsable(changed); });
    row->addWidget(revert);

    auto* renew = new PushButton(ProfilePropertiesCard::tr("Renew DHCP"),
                                 QStringLiteral("arrow.triangle.2.circlepath"), PushButton::Kind::bordered);
    renew->setToolTip(ProfilePropertiesCard::tr("Force a new DHCP lease"));
    QObject::connect(renew, &QPushButton::clicked, renew, [&vm] { vm.renewDHCPLease(); });
    bind(
        renew,
        [&vm] {
            return !vm.isApplying.value() && !vm.isLoading.value() && vm.selectedAdapter.value().has_value();
        },
        [renew](bool possible) { renew->setUsable(possible); });
    bind(
        renew, [&vm] { return vm.currentConfig.value().ipv4Mode == IPv4Mode::dhcp; },
        [renew](bool leased) { renew->setVisible(leased); });
    row->addWidget(renew);

    auto* applied = new IconLabel(
        QStringLiteral("checkmark.circle.fill"), [](const Colours& colours) { return colours.green; }, false,
        feedback);
    applied->setText(ProfilePropertiesCard::tr("Applied"));
    bind(
        applied, [&vm] { return vm.applySuccess.value(); },
        [applied](bool success) { fade(applied, success); });
    row->addWidget(applied);
    row->addStretch(1);

    stack->addWidget(makeTrialRow(vm));

    auto* waiting = new TextLabel(QString(), look::font(TextStyle::caption), Emphasis::secondary, feedback);
    waiting->setWrapped();
    bind(
        waiting, [&vm] { return vm.waitsFor.value(); },
        [waiting](const std::optional<LockHolder>& holder) {
            waiting->setText(holder ? waitingDescription(*holder) : QString());
            waiting->setVisible(holder.has_value());
        });
    stack->addWidget(waiting);

    auto* error = new IconLabel(
        QStringLiteral("exclamationmark.triangle.fill"), [](const Colours& colours) { return colours.red; },
        true, feedback);
    bind(
        error, [&vm] { return vm.applyError.value(); },
        [error](const std::optional<Text>& message) {
            error->setText(message.value_or(Text()));
            error->setVisible(message.has_value());
        });
    bind(
        error, [&vm] { return vm.applyFault.value(); },
        [error](const std::optional<SettingFault>& fault) {
            error->setDetail(fault ? fault->reason : QString());
        });
    stack->addWidget(error);
    return feedback;
}

QWidget* makeForm(MainViewModel& vm)
{
    auto* content = new QWidget;
    auto* stack = columnIn(content, 12);
    stack->addWidget(makeIPv4Section(vm));
    stack->addWidget(look::divider(content));
    stack->addWidget(makeDNSSection(vm));
    stack->addWidget(look::divider(content));
    stack->addWidget(makeFeedback(vm));
    return content;
}

} // namespace

ProfilePropertiesCard::ProfilePropertiesCard(MainViewModel& vm, QWidget* parent)
    : Card(ProfilePropertiesCard::tr("Set Profile Properties"), QStringLiteral("slider.horizontal.3"),
           nullptr, makeForm(vm), parent)
    // A mode may change in the middle of filling the form, whose mask comes later: look at it when that is
    // over.
    , m_maskDefault(vm.ipv4Mode.addNotifier([this, &vm] {
        QMetaObject::invokeMethod(
            this,
            [&vm] {
                if (vm.ipv4Mode.value() == IPv4Mode::manual && vm.subnetMask.value().isEmpty())
                    vm.subnetMask = Text(QStringLiteral("255.255.255.0"));
            },
            Qt::QueuedConnection);
    }))
{
}

} // namespace ardeo
