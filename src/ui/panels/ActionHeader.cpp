#include "ui/panels/ActionHeader.h"

#include "ui/elements/Binding.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/Stack.h"
#include "ui/elements/SystemWords.h"

namespace ardeo
{

ActionHeader::ActionHeader(MainViewModel& vm, QWidget* parent) : QWidget(parent)
{
    auto* row = rowIn(this, 10, {20, 14, 20, 10});
    row->addStretch();
    const QString separator = QStringLiteral(" — ");

    auto* refresh =
        new PushButton(tr("Refresh"), QStringLiteral("arrow.clockwise"), PushButton::Kind::bordered);
    refresh->setControlSize(PushButton::Size::large);
    refresh->setToolTip(tr("Refresh adapter list") + separator + keys::text(keys::refresh));
    connect(refresh, &QPushButton::clicked, this, [&vm] { vm.refreshAdapters(); });
    bind(
        refresh, [&vm] { return vm.isLoading.value(); },
        [refresh](bool loading) { refresh->setUsable(!loading); });
    row->addWidget(refresh);

    const QString busy = tr("Applying…");
    auto* apply = new PushButton(QString(), QString(), PushButton::Kind::prominent);
    apply->setWidestText(busy);
    apply->setTint(&Colours::accent);
    apply->setControlSize(PushButton::Size::large);
    apply->setToolTip(tr("Apply configuration") + separator + keys::text(keys::apply));
    connect(apply, &QPushButton::clicked, this, [&vm] { vm.applyConfiguration(); });
    bind(
        apply,
        [&vm] {
            return !vm.isApplying.value() && !vm.isLoading.value() && vm.selectedAdapter.value().has_value();
        },
        [apply](bool possible) { apply->setUsable(possible); });
    bind(
        apply, [&vm] { return vm.isApplying.value(); },
        [apply, busy](bool applying) {
            apply->setText(applying ? busy : tr("Apply"));
            apply->setSymbol(applying ? QString() : QStringLiteral("checkmark.circle.fill"));
            apply->setSpinning(applying);
        });
    row->addWidget(apply);
}

} // namespace ardeo
