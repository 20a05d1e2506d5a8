#include "ui/FormRow.h"

#include "ui/TextLabel.h"

#include <QHBoxLayout>

namespace ardeo
{

FormRow::FormRow(const QString& label, QWidget* content, QWidget* parent) : QWidget(parent)
{
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(8);
    auto* text = new TextLabel(label, look::font(TextStyle::callout), Emphasis::secondary);
    text->setFixedWidth(labelColumnWidth);
    row->addWidget(text);
    row->addWidget(content);
    row->addStretch();
}

} // namespace ardeo
