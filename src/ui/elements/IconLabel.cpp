#include "ui/elements/IconLabel.h"

#include "ui/elements/Controls.h"
#include "ui/elements/Stack.h"

namespace ardeo
{

IconLabel::IconLabel(const QString& symbol, const TextLabel::Colour& colour, bool wraps, QWidget* parent)
    : QWidget(parent)
    , m_text(new TextLabel(QString(), look::font(TextStyle::callout), Emphasis::primary))
    , m_detail(new TextLabel(QString(), look::font(TextStyle::caption), Emphasis::secondary))
{
    auto* row = growing(rowIn(this, 4));
    row->addWidget(new SymbolView(symbol, 16, colour), 0, wraps ? Qt::AlignTop : Qt::AlignVCenter);
    auto* texts = columnIn(row, 2, 1);
    m_text->setColour(colour);
    if (wraps)
        m_text->setWrapped();
    look::followTextSize(m_text, [this] { m_text->setMinimumHeight(look::scaled(16)); });
    texts->addWidget(m_text);
    m_detail->setWrapped();
    texts->addWidget(m_detail);
    setDetail({});
}

void IconLabel::setDetail(const QString& detail)
{
    m_detail->setText(detail);
    m_detail->setVisible(!detail.isEmpty());
}

} // namespace ardeo
