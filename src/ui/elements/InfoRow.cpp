#include "ui/elements/InfoRow.h"

#include "ui/elements/FormRow.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

namespace ardeo
{

InfoRow::InfoRow(const QString& label, const QString& value, bool monospaced, QWidget* parent)
    : QWidget(parent)
{
    auto* row = rowIn(this, 8);
    auto* text = new TextLabel(label, look::font(TextStyle::callout), Emphasis::secondary);
    text->setFixedWidth(labelColumnWidth);
    m_value = new TextLabel(QString(),
                            monospaced ? look::monospacedFont(TextStyle::body) : look::font(TextStyle::body),
                            Emphasis::primary);
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_value->setWordWrap(true);
    text->setBuddy(m_value);
    // Both stand on one baseline.
    text->setContentsMargins(0, QFontMetrics(m_value->font()).ascent() - text->fontMetrics().ascent(), 0, 0);
    row->addWidget(text, 0, Qt::AlignTop);
    row->addWidget(m_value, 1);
    m_value->setAccessibleDescription(label);
    setValue(value);
}

void InfoRow::setValue(const QString& value)
{
    m_value->setText(value.isEmpty() ? QStringLiteral("—") : value);
    m_value->setEmphasis(value.isEmpty() ? Emphasis::tertiary : Emphasis::primary);
}

} // namespace ardeo
