#include "ui/panels/LeftPanel.h"

#include "ui/elements/Binding.h"
#include "ui/elements/Controls.h"
#include "ui/elements/PushButton.h"
#include "ui/elements/SectionHeader.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"
#include "ui/panels/AdapterSection.h"
#include "ui/panels/PresetList.h"
#include "ui/sheets/ConfirmationDialog.h"
#include "ui/sheets/RenamePresetSheet.h"
#include "ui/sheets/SavePresetSheet.h"

#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedLayout>
#include <QWheelEvent>

namespace ardeo
{

namespace
{

/// The symbol is smaller, but as large as this a place can be hit.
constexpr int eraseSize = 24;

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

LeftPanel::LeftPanel(MainViewModel& model, QWidget* parent) : QWidget(parent), vm(model)
{
    auto* stack = columnIn(this, 0);
    stack->addWidget(new AdapterSection(vm));
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

void LeftPanel::wheelEvent(QWheelEvent* event)
{
    // Wherever in the panel it is turned, it moves what can be moved.
    QCoreApplication::sendEvent(m_list->verticalScrollBar(), event);
}

const QList<NetworkPreset>& LeftPanel::presets()
{
    m_presetChanges.value(); // read, so that a binding that asks for the list follows it
    return vm.presetStore.presets();
}

QWidget* LeftPanel::makeProfileSection()
{
    auto* section = new QWidget;
    auto* stack = columnIn(section, 0);
    stack->addWidget(new SectionHeader(tr("Profiles")));
    stack->addWidget(makeSearchRow());
    stack->addWidget(makeListArea(), 1);
    stack->addWidget(look::divider(this, 0.4));
    stack->addWidget(makeBottomBar());
    return section;
}

QWidget* LeftPanel::makeSearchRow()
{
    auto* frame = new QWidget;
    auto* row = new SearchRow;
    columnIn(frame, 0, {8, 0, 8, 4})->addWidget(row);
    auto* layout = rowIn(row, 2, {8, 0, 4, 0});
    layout->addWidget(new SymbolView(QStringLiteral("magnifyingglass"), 14, tertiary));

    auto* field = new QLineEdit;
    field->setFrame(false);
    field->setFont(look::font(TextStyle::callout));
    look::followTextSize(row, [field, row] {
        field->setFixedHeight(field->fontMetrics().height());
        field->setTextMargins(look::mirrored({look::scaled(4), 0, 0, 0}));
        row->setFixedHeight(6 + field->height() + 6);
    });
    slantPlaceholder(*field);
    field->setPlaceholderText(tr("Search profiles"));
    field->setAccessibleName(tr("Search profiles"));
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
    new QShortcut(
        Qt::Key_Escape, field, field,
        [this] {
            if (presetFilter.value().isEmpty())
                leaveSearch();
            else
                presetFilter = Text();
        },
        Qt::WidgetShortcut);
    layout->addWidget(field, 1);

    auto* erase = new PushButton(QString(), QStringLiteral("xmark.circle.fill"), PushButton::Kind::plain);
    erase->setTint(&Colours::tertiary);
    look::followTextSize(erase,
                         [erase] { erase->setFixedSize(look::scaled(eraseSize), look::scaled(eraseSize)); });
    erase->setToolTip(tr("Clear search"));
    erase->setAccessibleName(tr("Clear search"));
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

void LeftPanel::leaveSearch()
{
    if (m_list->isVisible())
        m_list->setFocus();
    else
        m_list->parentWidget()->setFocus(); // it does nothing with keys, and the Tab key goes on from there
}

QWidget* LeftPanel::makeListArea()
{
    auto* area = new QWidget;
    auto* layers = new QStackedLayout(area);
    m_list = new PresetList(vm.presetStore,
                            {.load = [this](const NetworkPreset& preset) { vm.loadPreset(preset); },
                             .rename =
                                 [this](const NetworkPreset& preset) {
                                     renameText = preset.name;
                                     presetToRename = preset;
                                 },
                             .remove = [this](const NetworkPreset& preset) { presetToDelete = preset; }});
    connect(m_list, &PresetList::addedOutOfSight, this, [this] { presetFilter = Text(); });
    layers->addWidget(m_list);
    auto* nothing = new TextLabel(QString(), look::font(TextStyle::caption), Emphasis::tertiary);
    nothing->setAlignment(Qt::AlignCenter);
    layers->addWidget(nothing);
    struct Shown {
        Text filter;
        bool any;
        int changes;
    };
    const auto read = [this]() -> Shown {
        return {presetFilter.value(), !presets().isEmpty(), m_presetChanges.value()};
    };
    bind(area, read, [this, nothing, layers](const Shown& shown) {
        m_list->setFilter(shown.filter);
        nothing->setText(shown.any ? tr("No match.") : tr("No saved profiles."));
        layers->setCurrentIndex(m_list->count() > 0 ? 0 : 1);
    });
    return area;
}

QWidget* LeftPanel::makeBottomBar()
{
    auto* bar = new QWidget;
    auto* row = rowIn(bar, 8, {10, 8, 10, 8});
    auto* save =
        new PushButton(tr("Save Profile…"), QStringLiteral("plus.circle.fill"), PushButton::Kind::prominent);
    save->setTint(&Colours::accent);
    connect(save, &QPushButton::clicked, this, [this] {
        const auto adapter = vm.selectedAdapter.value();
        newPresetName = adapter ? adapter->serviceName : Text();
        showSaveSheet = true;
    });
    bind(
        save, [this] { return vm.selectedAdapter.value().has_value(); },
        [save](bool any) { save->setUsable(any); });
    row->addWidget(save);
    row->addStretch();

    const auto addFileButton = [row](const char* symbol, const QString& toolTip) {
        auto* button = new PushButton(QString(), QLatin1String(symbol), PushButton::Kind::bordered);
        button->setToolTip(toolTip);
        button->setAccessibleName(toolTip);
        row->addWidget(button);
        return button;
    };
    auto* importButton = addFileButton("square.and.arrow.down", tr("Import profiles from file"));
    connect(importButton, &QPushButton::clicked, this, [this] { vm.importPresets(); });
    auto* exportButton = addFileButton("square.and.arrow.up", tr("Export profiles to file"));
    connect(exportButton, &QPushButton::clicked, this, [this] { vm.exportPresets(); });
    bind(
        exportButton, [this] { return !presets().isEmpty(); },
        [exportButton](bool any) { exportButton->setUsable(any); });
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
            auto* confirmation = new ConfirmationDialog(tr("Delete Preset"), QString(),
                                                        tr("Delete \"%1\"").arg(preset->name), window());
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
