#include "ui/LeftPanel.h"

#include "ui/Binding.h"
#include "ui/ConfirmationDialog.h"
#include "ui/Controls.h"
#include "ui/PresetList.h"
#include "ui/PushButton.h"
#include "ui/RenamePresetSheet.h"
#include "ui/SavePresetSheet.h"
#include "ui/SectionHeader.h"
#include "ui/TextLabel.h"

#include <QBoxLayout>
#include <QEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStackedLayout>

#include <algorithm>

namespace ardeo
{

namespace
{

QColor tertiary(const Colours& colours)
{
    return colours.tertiary;
}

/// The row that holds the search field, on a ground of its own.
class SearchRow final : public QWidget
{
protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF area = look::deviceAligned(this, rect());
        painter.fillPath(look::continuousRect(area, 8), look::colours(this).tertiaryFill);
        const QWidget* focused = focusWidget();
        if (focused && focused->hasFocus())
            look::strokeInside(painter, area, 8, look::colours(this).teal, 2);
    }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
            update();
        return false;
    }
};

} // namespace

QString pickerLabel(const AdapterInfo& adapter)
{
    if (adapter.isActive)
        return adapter.serviceName;
    return adapter.serviceName +
           (adapter.isEnabled ? QStringLiteral(" (disconnected)") : QStringLiteral(" (disabled)"));
}

QString speedText(qint64 mbps)
{
    return mbps >= 1000 ? QStringLiteral("%1 Gbps").arg(mbps / 1000) : QStringLiteral("%1 Mbps").arg(mbps);
}

LeftPanel::LeftPanel(MainViewModel& model, QWidget* parent) : QWidget(parent), vm(model)
{
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(makeAdapterSection());
    stack->addWidget(look::divider(this, 0.4));
    stack->addWidget(makeProfileSection(), 1);
    followSheets();
    // Connected last, so that the list has followed the store before anything asks how long it is.
    connect(&vm.presetStore, &NetworkPresetStore::presetsDidChange, this,
            [this] { m_presetChanges = m_presetChanges + 1; });
}

void LeftPanel::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), look::colours(this).sidebar);
}

bool LeftPanel::hasPresets()
{
    return m_presetChanges.value() >= 0 && !vm.presetStore.presets().isEmpty();
}

QWidget* LeftPanel::makeAdapterSection()
{
    auto* section = new QWidget;
    auto* stack = new QVBoxLayout(section);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(new SectionHeader(QStringLiteral("Select Adapter")));
    stack->addWidget(makePicker());
    auto* place = new QVBoxLayout;
    stack->addLayout(place);
    bind(
        section, [this] { return vm.selectedAdapter.value(); },
        [this, place](const std::optional<AdapterInfo>& adapter) {
            while (QLayoutItem* old = place->takeAt(0)) {
                delete old->widget();
                delete old;
            }
            if (adapter)
                place->addWidget(makeSummary(*adapter));
            else
                place->addSpacing(10);
        });
    return section;
}

QWidget* LeftPanel::makePicker()
{
    auto* frame = new QWidget;
    auto* layout = new QVBoxLayout(frame);
    layout->setContentsMargins(8, 0, 8, 0);
    auto* picker = new PopUpButton;
    picker->setAccessibleName(QStringLiteral("Select Adapter"));
    picker->setAccessibleDescription(QStringLiteral("Select Adapter"));
    layout->addWidget(picker);
    struct Choice {
        QList<AdapterInfo> adapters;
        std::optional<AdapterInfo> selected;
    };
    bind(
        picker,
        [this] {
            return Choice{vm.adapters.value(), vm.selectedAdapter.value()};
        },
        [picker](const Choice& choice) {
            const QSignalBlocker silent(picker);
            picker->clear();
            for (const AdapterInfo& adapter : choice.adapters)
                picker->addItem(pickerLabel(adapter));
            const auto selected = choice.selected
                                      ? std::ranges::find(choice.adapters, choice.selected->serviceName,
                                                          &AdapterInfo::serviceName)
                                      : choice.adapters.end();
            picker->setCurrentIndex(selected == choice.adapters.end()
                                        ? -1
                                        : static_cast<int>(selected - choice.adapters.begin()));
        });
    connect(picker, &QComboBox::activated, this, [this](int index) {
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

QWidget* LeftPanel::makeSummary(const AdapterInfo& adapter)
{
    auto* summary = new QWidget;
    auto* stack = new QVBoxLayout(summary);
    stack->setContentsMargins(8, 6, 8, 10);
    stack->setSpacing(3);
    const auto addRow = [stack] {
        auto* row = new QHBoxLayout;
        row->setSpacing(8);
        stack->addLayout(row);
        return row;
    };
    if (!adapter.hardwareName.isEmpty()) {
        auto* name = new TextLabel(adapter.hardwareName, look::font(TextStyle::caption), Emphasis::secondary);
        name->setElided(2);
        stack->addWidget(name);
    }
    if (adapter.bsdName || adapter.macAddress) {
        QHBoxLayout* row = addRow();
        if (adapter.bsdName)
            row->addWidget(new Badge(*adapter.bsdName, QStringLiteral("rectangle.connected.to.line.below")));
        if (adapter.macAddress) {
            auto* address = new TextLabel(*adapter.macAddress, look::monospacedFont(TextStyle::caption2),
                                          Emphasis::tertiary);
            address->setElided(1);
            row->addWidget(address, 1);
        } else {
            row->addStretch();
        }
    }
    if (adapter.linkSpeedMbps) {
        QHBoxLayout* row = addRow();
        row->addWidget(new Badge(speedText(*adapter.linkSpeedMbps), QStringLiteral("bolt.fill")));
        if (adapter.fullDuplex) {
            row->addWidget(
                *adapter.fullDuplex
                    ? new Badge(QStringLiteral("Full-duplex"), QStringLiteral("arrow.left.arrow.right"))
                    : new Badge(QStringLiteral("Half-duplex"), QStringLiteral("arrow.right")));
        }
        row->addStretch();
    }
    return summary;
}

QWidget* LeftPanel::makeProfileSection()
{
    auto* section = new QWidget;
    auto* stack = new QVBoxLayout(section);
    stack->setContentsMargins(0, 0, 0, 0);
    stack->setSpacing(0);
    stack->addWidget(new SectionHeader(QStringLiteral("Profiles")));
    stack->addWidget(makeSearchRow());
    stack->addWidget(makeListArea(), 1);
    stack->addWidget(look::divider(this, 0.4));
    stack->addWidget(makeBottomBar());
    return section;
}

QWidget* LeftPanel::makeSearchRow()
{
    auto* frame = new QWidget;
    auto* outer = new QVBoxLayout(frame);
    outer->setContentsMargins(8, 0, 8, 4);
    auto* row = new SearchRow;
    outer->addWidget(row);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(8, 6, 8, 6);
    layout->setSpacing(6);
    layout->addWidget(new SymbolView(QStringLiteral("magnifyingglass"), 14, tertiary));

    auto* field = new QLineEdit;
    field->setFrame(false);
    field->setFont(look::font(TextStyle::callout));
    field->setFixedHeight(field->fontMetrics().height());
    field->setPlaceholderText(QStringLiteral("Search profiles"));
    field->setAccessibleName(QStringLiteral("Search profiles"));
    QPalette clear;
    clear.setColor(QPalette::Base, Qt::transparent);
    field->setPalette(clear);
    field->installEventFilter(row);
    connect(field, &QLineEdit::textEdited, this, [this](const QString& text) { presetFilter = Text(text); });
    bind(
        field, [this] { return presetFilter.value(); },
        [field](const Text& filter) {
            if (Text(field->text()) != filter)
                field->setText(filter);
        });
    layout->addWidget(field, 1);

    auto* erase = new PushButton(QString(), QStringLiteral("xmark.circle.fill"), PushButton::Kind::plain);
    erase->setTint(&Colours::tertiary);
    erase->setToolTip(QStringLiteral("Clear search"));
    erase->setAccessibleName(QStringLiteral("Clear search"));
    connect(erase, &QPushButton::clicked, this, [this, field] {
        presetFilter = Text();
        field->setFocus();
    });
    bind(
        erase, [this] { return !presetFilter.value().isEmpty(); },
        [erase](bool filtered) { erase->setVisible(filtered); });
    layout->addWidget(erase);
    return frame;
}

QWidget* LeftPanel::makeListArea()
{
    auto* area = new QWidget;
    auto* layers = new QStackedLayout(area);
    auto* list = new PresetList(vm.presetStore,
                                {.load = [this](const NetworkPreset& preset) { vm.loadPreset(preset); },
                                 .rename =
                                     [this](const NetworkPreset& preset) {
                                         renameText = preset.name;
                                         presetToRename = preset;
                                     },
                                 .remove = [this](const NetworkPreset& preset) { presetToDelete = preset; }});
    layers->addWidget(list);
    auto* nothing = new TextLabel(QString(), look::font(TextStyle::caption), Emphasis::tertiary);
    nothing->setAlignment(Qt::AlignCenter);
    layers->addWidget(nothing);
    struct Shown {
        Text filter;
        bool any;
        int changes;
    };
    bind(
        area,
        [this] {
            return Shown{presetFilter.value(), hasPresets(), m_presetChanges.value()};
        },
        [list, nothing, layers](const Shown& shown) {
            list->setFilter(shown.filter);
            nothing->setText(shown.any ? QStringLiteral("No match.") : QStringLiteral("No saved profiles."));
            layers->setCurrentIndex(list->count() > 0 ? 0 : 1);
        });
    return area;
}

QWidget* LeftPanel::makeBottomBar()
{
    auto* bar = new QWidget;
    auto* row = new QHBoxLayout(bar);
    row->setContentsMargins(10, 8, 10, 8);
    row->setSpacing(8);
    auto* save = new PushButton(QStringLiteral("Save Profile…"), QStringLiteral("plus.circle.fill"),
                                PushButton::Kind::prominent);
    save->setTint(&Colours::accent);
    connect(save, &QPushButton::clicked, this, [this] {
        const auto adapter = vm.selectedAdapter.value();
        newPresetName = adapter ? adapter->serviceName : Text();
        showSaveSheet = true;
    });
    bind(
        save, [this] { return vm.selectedAdapter.value().has_value(); },
        [save](bool any) { save->setEnabled(any); });
    row->addWidget(save);
    row->addStretch();

    const auto addFileButton = [row](const char* symbol, const QString& toolTip) {
        auto* button = new PushButton(QString(), QLatin1String(symbol), PushButton::Kind::bordered);
        button->setToolTip(toolTip);
        button->setAccessibleName(toolTip);
        row->addWidget(button);
        return button;
    };
    auto* importButton = addFileButton("square.and.arrow.down", QStringLiteral("Import profiles from file"));
    connect(importButton, &QPushButton::clicked, this, [this] { vm.importPresets(); });
    auto* exportButton = addFileButton("square.and.arrow.up", QStringLiteral("Export profiles to file"));
    connect(exportButton, &QPushButton::clicked, this, [this] { vm.exportPresets(); });
    bind(
        exportButton, [this] { return hasPresets(); },
        [exportButton](bool any) { exportButton->setEnabled(any); });
    return bar;
}

void LeftPanel::followSheets()
{
    bind(
        this, [this] { return showSaveSheet.value(); },
        [this](bool shown) {
            showSheet(!shown ? nullptr
                             : new SavePresetSheet(
                                   newPresetName,
                                   [this](const Text& name) {
                                       vm.savePreset(name);
                                       showSaveSheet = false;
                                   },
                                   [this] { showSaveSheet = false; }, window()));
        });
    bind(
        this, [this] { return presetToRename.value(); },
        [this](const std::optional<NetworkPreset>& preset) {
            showSheet(!preset ? nullptr
                              : new RenamePresetSheet(
                                    renameText,
                                    [this, renamed = *preset]() mutable {
                                        renamed.name = renameText.value();
                                        vm.presetStore.upsert(renamed);
                                        presetToRename = std::nullopt;
                                    },
                                    [this] { presetToRename = std::nullopt; }, window()));
        });
    bind(
        this, [this] { return presetToDelete.value(); },
        [this](const std::optional<NetworkPreset>& preset) {
            if (!preset)
                return;
            auto* confirmation =
                new ConfirmationDialog(QStringLiteral("Delete Preset"), QString(),
                                       QStringLiteral("Delete \"%1\"").arg(preset->name), window());
            connect(confirmation, &QDialog::finished, this, [this, id = preset->id](int result) {
                presetToDelete = std::nullopt;
                if (result == QDialog::Accepted)
                    vm.presetStore.remove(id);
            });
            confirmation->show();
        });
}

void LeftPanel::showSheet(ProfileNameSheet* sheet)
{
    if (m_sheet) {
        // The sheet's own button may be what asks for this.
        m_sheet->hide();
        m_sheet->deleteLater();
    }
    m_sheet = sheet;
    if (sheet)
        sheet->show();
}

} // namespace ardeo
