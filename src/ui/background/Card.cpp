#include "ui/background/Card.h"

#include "ui/elements/Controls.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

namespace ardeo
{

namespace
{

constexpr double radius = 14;

} // namespace

Card::Card(const QString& title, const QString& systemImage, QWidget* trailingView, QWidget* content,
           QWidget* parent)
    : MaterialPanel(
          radius, [](const Colours& colours) { return look::withOpacity(colours.primary, 0.1); }, parent)
{
    setAccessibleName(title);
    auto* stack = columnIn(this, 12, {16, 16, 16, 16});
    auto* header = growing(rowIn(stack, 4));
    header->addWidget(
        new SymbolView(systemImage, 16, [](const Colours& colours) { return colours.primary; }));
    auto* name = new TextLabel(title, look::font(TextStyle::headline), Emphasis::primary);
    name->setWordWrap(true); // where text is large
    header->addWidget(name, 1);
    if (trailingView) {
        header->addSpacing(4);
        header->addWidget(trailingView);
    }
    stack->addWidget(content);
}

} // namespace ardeo
