#include "ui/elements/FormRow.h"

#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

namespace ardeo
{

FormRow::FormRow(const QString& label, QWidget* content, QWidget* parent) : QWidget(parent)
{
    auto* row = rowIn(this, 8);
    auto* text = new TextLabel(label, look::font(TextStyle::callout), Emphasis::secondary);
    text->setWordWrap(true); // where a language needs more words
    look::followTextSize(text, [text] { text->setFixedWidth(look::scaled(labelColumnWidth)); });
    row->addWidget(text);
    row->addWidget(content);
    row->addStretch();
}

} // namespace ardeo
