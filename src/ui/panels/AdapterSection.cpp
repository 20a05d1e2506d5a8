#include "ui/panels/AdapterSection.h"

#include "ui/elements/Binding.h"
#include "ui/elements/Controls.h"
#include "ui/elements/SectionHeader.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

#include <QSignalBlocker>

namespace ardeo
{

namespace
{

/// What the picker shows; the placeholder is shown where nothing of the list is selected.
struct Choices {
    QStringList labels;
    int selected = -1;
    QString placeholder;
    bool operator==(const Choices&) const = default;
};

Choices choicesOf(const MainViewModel& vm)
{
    Choices choices;
    const std::optional<AdapterInfo> selected = vm.selectedAdapter.value();
    if (vm.selectedIsGone.value() && selected)
        choices.placeholder = AdapterSection::tr("%1 (removed)").arg(selected->serviceName);
    for (const AdapterInfo& adapter : vm.adapters.value()) {
        if (choices.selected < 0 && selected && adapter.serviceName == selected->serviceName)
            choices.selected = static_cast<int>(choices.labels.size());
        choices.labels.append(pickerLabel(adapter));
    }
    return choices;
}

QWidget* makePicker(MainViewModel& vm)
{
    auto* frame = new QWidget;
    auto* picker = new PopUpButton;
    picker->setAccessibleDescription(AdapterSection::tr("Select Adapter"));
    columnIn(frame, 0, {8, 0, 8, 0})->addWidget(picker);
    bind(
        picker, [&vm] { return choicesOf(vm); },
        [picker](const Choices& choices) {
            const QSignalBlocker silent(picker);
            // Label by label, since the list may be open.
            while (picker->count() > choices.labels.size())
                picker->removeItem(picker->count() - 1);
            for (int i = 0; i < choices.labels.size(); ++i) {
                const QString& label = choices.labels.at(i);
                if (i == picker->count())
                    picker->addItem(label);
                picker->setItemText(i, label);
                picker->setItemData(i, toolTipText(label), Qt::ToolTipRole);
            }
            picker->setPlaceholderText(choices.placeholder);
            picker->setAccessibleName(choices.placeholder.isEmpty() ? AdapterSection::tr("Select Adapter")
                                                                    : choices.placeholder);
            picker->setCurrentIndex(choices.selected);
            picker->setEnabled(!choices.labels.isEmpty());
        });
    QObject::connect(picker, &QComboBox::activated, picker, [&vm](int index) {
        const QList<AdapterInfo> adapters = vm.adapters.value();
        if (index < 0 || index >= adapters.size())
            return;
        const AdapterInfo& picked = adapters.at(index);
        const auto selected = vm.selectedAdapter.value();
        if (!selected || selected->serviceName != picked.serviceName)
            vm.selectAdapter(picked);
    });
    return frame;
}

/// Shows what read finds in the selected adapter; where it finds nothing, the view is hidden.
template <typename View, typename Read>
void follow(View* view, MainViewModel& vm, Read read)
{
    bind(
        view,
        [&vm, read] {
            const std::optional<AdapterInfo> adapter = vm.selectedAdapter.value();
            return adapter ? read(*adapter) : std::nullopt;
        },
        [view](const std::optional<QString>& text) {
            view->setText(text.value_or(QString()));
            view->setVisible(text.has_value());
        });
}

std::optional<QString> asShown(const std::optional<Text>& text)
{
    return text ? std::optional(text->string()) : std::nullopt;
}

std::optional<QString> duplexText(const AdapterInfo& adapter, bool full)
{
    if (!adapter.linkSpeedMbps || adapter.fullDuplex != full)
        return std::nullopt;
    return full ? AdapterSection::tr("Full-duplex") : AdapterSection::tr("Half-duplex");
}

QWidget* makeSummary(MainViewModel& vm)
{
    auto* summary = new QWidget;
    auto* stack = columnIn(summary, 3, {8, 6, 8, 0});
    const auto addLabel = [](QBoxLayout* place, const QFont& font, Emphasis emphasis, int lines) {
        auto* label = new TextLabel(QString(), font, emphasis);
        label->setLines(lines);
        place->addWidget(label, place->direction() == QBoxLayout::LeftToRight ? 1 : 0);
        return label;
    };
    const auto addBadge = [](QBoxLayout* row, const char* symbol) {
        auto* badge = new Badge(QLatin1String(symbol));
        row->addWidget(badge);
        return badge;
    };
    follow(addLabel(stack, look::font(TextStyle::caption), Emphasis::secondary, 2), vm,
           [](const AdapterInfo& adapter) {
               return adapter.hardwareName.isEmpty() ? std::nullopt
                                                     : std::optional(adapter.hardwareName.string());
           });
    auto* names = rowIn(stack, 8);
    follow(addBadge(names, "rectangle.connected.to.line.below"), vm,
           [](const AdapterInfo& adapter) { return asShown(adapter.bsdName); });
    follow(addLabel(names, look::monospacedFont(TextStyle::caption2), Emphasis::tertiary, 1), vm,
           [](const AdapterInfo& adapter) { return asShown(adapter.macAddress); });
    names->addStretch();
    auto* link = rowIn(stack, 8);
    follow(addBadge(link, "bolt.fill"), vm, [](const AdapterInfo& adapter) {
        return adapter.linkSpeedMbps ? std::optional(speedText(*adapter.linkSpeedMbps)) : std::nullopt;
    });
    follow(addBadge(link, "arrow.left.arrow.right"), vm,
           [](const AdapterInfo& adapter) { return duplexText(adapter, true); });
    follow(addBadge(link, "arrow.right"), vm,
           [](const AdapterInfo& adapter) { return duplexText(adapter, false); });
    link->addStretch();
    return summary;
}

} // namespace

QString pickerLabel(const AdapterInfo& adapter)
{
    QString label = adapter.serviceName;
    if (!adapter.isActive)
        label = (adapter.isEnabled ? AdapterSection::tr("%1 (disconnected)")
                                   : AdapterSection::tr("%1 (disabled)"))
                    .arg(label);
    if (adapter.confirmBy)
        label = AdapterSection::tr("%1 (on trial)").arg(label);
    return label;
}

QString speedText(qint64 mbps)
{
    return mbps >= 1000 ? AdapterSection::tr("%1 Gbps").arg(mbps / 1000)
                        : AdapterSection::tr("%1 Mbps").arg(mbps);
}

AdapterSection::AdapterSection(MainViewModel& vm, QWidget* parent) : QWidget(parent)
{
    auto* stack = columnIn(this, 0, {0, 0, 0, 10});
    stack->addWidget(new SectionHeader(AdapterSection::tr("Select Adapter")));
    stack->addWidget(makePicker(vm));
    QWidget* summary = makeSummary(vm);
    stack->addWidget(summary);
    bind(
        summary, [&vm] { return vm.selectedAdapter.value().has_value(); },
        [summary](bool any) { summary->setVisible(any); });
}

} // namespace ardeo
