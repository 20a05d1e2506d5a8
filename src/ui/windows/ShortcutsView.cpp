#include "ui/windows/ShortcutsView.h"

#include "ui/background/MaterialPanel.h"
#include "ui/elements/Controls.h"
#include "ui/elements/Stack.h"
#include "ui/elements/SystemWords.h"
#include "ui/elements/TextLabel.h"

#include <QPainter>

namespace ardeo
{

namespace
{

constexpr int pageWidth = 520;
constexpr int padding = 24;
constexpr double boxRadius = 10;

QColor teal(const Colours& colours)
{
    return colours.teal;
}

/// A key or a path through the menus, on a ground of its own.
class KeyLabel final : public TextLabel
{
public:
    explicit KeyLabel(const QString& text)
        : TextLabel(text, look::monospacedFont(TextStyle::callout, QFont::Medium), Emphasis::primary)
    {
        setColour(teal);
        setContentsMargins(8, 3, 8, 3);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        {
            QPainter painter(this);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.fillPath(look::continuousRect(look::deviceAligned(this, rect()), 6),
                             look::withOpacity(look::colours(this).teal, 0.12));
        }
        TextLabel::paintEvent(event);
    }
};

QWidget* makeRow(const Shortcut& shortcut)
{
    auto* row = new QWidget;
    auto* line = rowIn(row, -1, {12, 8, 12, 8});
    auto* label = new TextLabel(shortcut.label, look::font(TextStyle::callout), Emphasis::primary);
    label->setWordWrap(true);
    line->addWidget(label, 1);
    line->addWidget(new KeyLabel(shortcut.key));
    return row;
}

QWidget* makeBox(const std::vector<Shortcut>& shortcuts)
{
    auto* box =
        new MaterialPanel(boxRadius, [](const Colours&) { return look::withOpacity(Qt::white, 0.12); });
    auto* rows = columnIn(box, 0);
    for (const Shortcut& shortcut : shortcuts) {
        if (&shortcut != &shortcuts.front()) {
            auto* inset = rowIn(rows, 0);
            inset->setContentsMargins(12, 0, 12, 0);
            inset->addWidget(look::divider(box, 0.4));
        }
        rows->addWidget(makeRow(shortcut));
    }
    return box;
}

void addSection(QVBoxLayout* stack, const ShortcutSection& section)
{
    auto* block = columnIn(stack, 10);
    auto* heading = growing(rowIn(block, 6));
    heading->addWidget(
        new SymbolView(section.icon, 14, [](const Colours& colours) { return colours.secondary; }));
    heading->addWidget(new TextLabel(section.title, look::font(TextStyle::subheadline, QFont::DemiBold),
                                     Emphasis::secondary),
                       1);
    block->addWidget(makeBox(section.shortcuts));
}

void addHeader(QVBoxLayout* stack)
{
    auto* header = growing(rowIn(stack, 12));
    header->setContentsMargins(0, 0, 0, 4);
    header->addWidget(new SymbolView(QStringLiteral("keyboard"), 22, teal));
    header->addWidget(new TextLabel(ShortcutsView::tr("Keyboard Shortcuts"),
                                    look::font(TextStyle::title2, QFont::Bold), Emphasis::primary),
                      1);
}

} // namespace

std::vector<ShortcutSection> shortcutSections()
{
    return {
        {ShortcutsView::tr("Configuration"),
         QStringLiteral("slider.horizontal.3"),
         {{keys::spacedText(keys::apply), ShortcutsView::tr("Apply configuration")},
          {keys::spacedText(keys::refresh), ShortcutsView::tr("Refresh adapter list")}}},
        {ShortcutsView::tr("Profiles"),
         QStringLiteral("list.bullet"),
         {{keys::spacedText(keys::importProfiles), ShortcutsView::tr("Import profiles from file")},
          {keys::spacedText(keys::exportProfiles), ShortcutsView::tr("Export profiles to file")}}},
        {ShortcutsView::tr("Adapter"),
         QStringLiteral("network"),
         {{ShortcutsView::tr("Tools → Renew DHCP"), ShortcutsView::tr("Renew DHCP lease")},
          {ShortcutsView::tr("Tools → Enable Adapter"), ShortcutsView::tr("Enable the selected adapter")},
          {ShortcutsView::tr("Tools → Disable Adapter"), ShortcutsView::tr("Disable the selected adapter")}}},
        {ShortcutsView::tr("Navigation"),
         QStringLiteral("macwindow"),
         {{ShortcutsView::tr("Tools → Network Settings"), ShortcutsView::tr("Open Network Settings")},
          {ShortcutsView::tr("Tools → Activity Monitor"), ShortcutsView::tr("Open Activity Monitor")},
          {keys::spacedText(keys::hide), ShortcutsView::tr("Hide Ardeo IP Config")},
          {keys::spacedText(keys::quit), ShortcutsView::tr("Quit Ardeo IP Config")}}},
    };
}

ShortcutsView::ShortcutsView(const std::vector<ShortcutSection>& sections, Clock& clock, QWidget* parent)
    : BackgroundPage(clock, pageWidth, padding, parent)
{
    auto* content = new QWidget;
    auto* stack = columnIn(content, 16);
    addHeader(stack);
    for (const ShortcutSection& section : sections)
        addSection(stack, section);
    setContent(content);
}

} // namespace ardeo
