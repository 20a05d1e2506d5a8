#include "ui/windows/HelpView.h"

#include "ui/background/MaterialPanel.h"
#include "ui/elements/Controls.h"
#include "ui/elements/Stack.h"
#include "ui/elements/SystemWords.h"
#include "ui/elements/TextLabel.h"

#include <QList>

namespace ardeo
{

namespace
{

constexpr int pageWidth = 620;
constexpr int padding = 28;
constexpr double radius = 14;
constexpr int lineSpacing = 4;

QString about()
{
    return HelpView::tr(
        "Ardeo IP Config is a native {system} utility for quickly switching network adapter configurations. "
        "Switch between DHCP and static IP in seconds — ideal for IT professionals, developers, and power "
        "users "
        "who work across multiple network environments such as office, home, VPN, or lab setups.\n\n"
        "Settings are applied instantly through {configuration}. No restarts required.");
}

struct Entry {
    QString title;
    QString detail;
};

QList<Entry> features()
{
    return {
        {HelpView::tr("Select any adapter"), HelpView::tr("Wi-Fi, Ethernet, Thunderbolt, VPN")},
        {HelpView::tr("DHCP / Static IP"), HelpView::tr("Switch modes with one click")},
        {HelpView::tr("DNS control"), HelpView::tr("Automatic or manually configured DNS servers")},
        {HelpView::tr("Network profiles"), HelpView::tr("Save, load, rename, delete named presets")},
        {HelpView::tr("Import & Export"), HelpView::tr("Share profiles as JSON files across machines")},
        {HelpView::tr("Current properties"),
         HelpView::tr("Live view of IP, subnet, gateway, DHCP server, computer name")},
        {HelpView::tr("Enable / Disable adapter"),
         HelpView::tr("Toggle any adapter on or off without {settings}")},
        {HelpView::tr("Renew DHCP lease"), HelpView::tr("Force a fresh lease from the DHCP server")},
        {HelpView::tr("{IconPlace} access"),
         HelpView::tr("Quick access from the {iconPlace} icon at all times")},
        {HelpView::tr("Start at Login"), HelpView::tr("Launch automatically when you log in")},
    };
}

QList<Entry> steps()
{
    return {
        {HelpView::tr("Select an Adapter"),
         HelpView::tr(
             "Use the dropdown at the top of the left panel to choose a network interface. The hardware "
             "name and MAC address appear below the picker.")},
        {HelpView::tr("Configure Settings"),
         HelpView::tr(
             "Choose \"Automatically Set IP Address\" for DHCP, or \"Manually Set IP Address\" to enter a "
             "static IP, subnet mask, and gateway. Set DNS in the same way below.")},
        {HelpView::tr("Apply"),
         HelpView::tr(
             "Click the Apply button (top-right) or press {apply}. The interface briefly reconfigures; "
             "the Current Adapter Properties card refreshes automatically after ~4 seconds.")},
        {HelpView::tr("Save a Profile"),
         HelpView::tr("Click \"Save Profile…\" at the bottom of the left panel. Give the preset a name — it "
                      "appears in the profiles list immediately.")},
        {HelpView::tr("Load a Profile"),
         HelpView::tr(
             "Click any profile row to populate the form fields. Then click Apply to activate it on the "
             "selected adapter.")},
        {HelpView::tr("Manage Profiles"),
         HelpView::tr(
             "Right-click any profile to Rename or Delete it. Use the ↓ / ↑ icon buttons to Import or "
             "Export the entire profile list as a JSON file.")},
        {HelpView::tr("Enable / Disable Adapter"),
         HelpView::tr(
             "In the Current Adapter Properties card, use the \"Enable Adapter\" or \"Disable Adapter\" "
             "button. Green = re-enable, Red = disable.")},
        {HelpView::tr("Renew DHCP"),
         HelpView::tr(
             "Visible in the Set Profile Properties card when the adapter is in DHCP mode. Forces a fresh "
             "IP lease from the router.")},
    };
}

QColor teal(const Colours& colours)
{
    return colours.teal;
}

void addHeader(QVBoxLayout* stack)
{
    auto* header = rowIn(stack, 16);
    header->addWidget(new ApplicationIcon);
    auto* texts = columnIn(header, 4, 1);
    texts->addStretch();
    texts->addWidget(new TextLabel(QStringLiteral("Ardeo IP Config"),
                                   look::font(TextStyle::title, QFont::Bold), Emphasis::primary));
    texts->addWidget(new TextLabel(HelpView::tr("Network configuration made fast."),
                                   look::font(TextStyle::subheadline), Emphasis::secondary));
    texts->addStretch();
}

/// A card with a heading; its content goes below that, with that spacing.
QVBoxLayout* addCard(QVBoxLayout* stack, const QString& title, const char* symbol, int spacing)
{
    auto* card = new MaterialPanel(radius, [](const Colours&) { return look::withOpacity(Qt::white, 0.15); });
    card->setAccessibleName(title);
    stack->addWidget(card);
    auto* column = columnIn(card, 12, {16, 16, 16, 16});
    auto* heading = growing(rowIn(column, 6));
    heading->addWidget(
        new SymbolView(QLatin1String(symbol), 16, [](const Colours& colours) { return colours.primary; }));
    heading->addWidget(new TextLabel(title, look::font(TextStyle::headline), Emphasis::primary), 1);
    return columnIn(column, spacing);
}

QLabel* makeAbout()
{
    const QFont font = look::font(TextStyle::callout);
    auto* text = new TextLabel(QString(), font, Emphasis::primary);
    const int height = QFontMetrics(font).height();
    text->setTextFormat(Qt::RichText); // the only kind whose lines can stand further apart
    text->setText(QStringLiteral("<div style='line-height:%1%'>%2</div>")
                      .arg(100 * (height + lineSpacing) / height)
                      .arg(inSystemWords(about()).toHtmlEscaped().replace(u'\n', QStringLiteral("<br/>"))));
    text->setWordWrap(true);
    return text;
}

/// A row of a card: what stands before it, and its title over its detail.
void addRow(QVBoxLayout* rows, QWidget* leading, int spacing, const Entry& entry, int titleWeight, int lines)
{
    auto* row = growing(rowIn(rows, spacing));
    row->addWidget(leading, 0, Qt::AlignTop);
    auto* texts = columnIn(row, lines, 1);
    texts->addWidget(new TextLabel(inSystemWords(entry.title), look::font(TextStyle::callout, titleWeight),
                                   Emphasis::primary));
    auto* detail =
        new TextLabel(inSystemWords(entry.detail), look::font(TextStyle::caption), Emphasis::secondary);
    detail->setWordWrap(true);
    texts->addWidget(detail);
}

} // namespace

HelpView::HelpView(Clock& clock, QWidget* parent) : BackgroundPage(clock, pageWidth, padding, parent)
{
    auto* content = new QWidget;
    auto* stack = columnIn(content, 24);
    addHeader(stack);
    addCard(stack, tr("About"), "info.circle", 0)->addWidget(makeAbout());

    QVBoxLayout* featureRows = addCard(stack, tr("Features"), "star.circle", 6);
    for (const Entry& feature : features()) {
        auto* tick = new SymbolView(QStringLiteral("checkmark.circle.fill"), 14, teal);
        look::followTextSize(tick, [tick] { tick->setFixedWidth(look::scaled(18)); });
        addRow(featureRows, tick, 8, feature, QFont::Medium, 1);
    }

    QVBoxLayout* stepRows = addCard(stack, tr("How to Use"), "hand.point.right.fill", 10);
    int count = 0;
    for (const Entry& step : steps()) {
        auto* number = new TextLabel(QString::number(++count), look::font(TextStyle::callout, QFont::Bold),
                                     Emphasis::primary);
        number->setColour(teal);
        number->setContentsMargins(0, 1, 0, 0);
        look::followTextSize(number, [number] { number->setFixedWidth(look::scaled(20)); });
        addRow(stepRows, number, 12, step, QFont::DemiBold, 2);
    }
    setContent(content);
}

} // namespace ardeo
