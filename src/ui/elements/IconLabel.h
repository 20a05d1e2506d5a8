#pragma once

#include "ui/elements/TextLabel.h"

namespace ardeo
{

/// A symbol with a text beside it, both in one colour.
class IconLabel final : public QWidget
{
    Q_OBJECT

public:
    /// A text that wraps may take several lines; the symbol then stands at the first.
    IconLabel(const QString& symbol, const TextLabel::Colour& colour, bool wraps, QWidget* parent = nullptr);
    void setText(const QString& text) { m_text->setText(text); }
    /// What there is to say besides, below the text; may be empty.
    void setDetail(const QString& detail);

private:
    TextLabel* m_text;
    TextLabel* m_detail;
};

} // namespace ardeo
