#include "ui/elements/IconLabel.h"

#include "ui/elements/Controls.h"
#include "ui/elements/Stack.h"

namespace ardeo
{

IconLabel::IconLabel(const QString& symbol, const TextLabel::Colour& colour, bool wraps, QWidget* parent)
    : QWidget(parent)
    , m_text(new TextLabel(QString(), look::font(TextStyle::callout), Emphasis::primary))
{
    auto* row = rowIn(this, 4);
    row->addWidget(new SymbolView(symbol, 16, colour), 0, wraps ? Qt::AlignTop : Qt::AlignVCenter);
    m_text->setColour(colour);
    m_text->setWordWrap(wraps);
    look::followTextSize(m_text, [this] { m_text->setMinimumHeight(look::scaled(16)); });
    row->addWidget(m_text, 1);
}

} // namespace ardeo
