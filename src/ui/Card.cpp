#include "ui/Card.h"

#include "ui/Controls.h"
#include "ui/TextLabel.h"

#include <QBoxLayout>

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
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(16, 16, 16, 16);
    stack->setSpacing(12);

    auto* header = new QHBoxLayout;
    header->setSpacing(4);
    header->addWidget(
        new SymbolView(systemImage, 16, [](const Colours& colours) { return colours.primary; }));
    header->addWidget(new TextLabel(title, look::font(TextStyle::headline), Emphasis::primary));
    header->addStretch();
    if (trailingView)
        header->addWidget(trailingView);
    stack->addLayout(header);
    stack->addWidget(content);
}

} // namespace ardeo
