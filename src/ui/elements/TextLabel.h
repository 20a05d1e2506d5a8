#pragma once

#include "ui/elements/Style.h"

#include <QLabel>

#include <functional>

namespace ardeo
{

/// A text in one of the styles, in a colour that follows the scheme.
class TextLabel : public QLabel
{
    Q_OBJECT

public:
    using Colour = std::function<QColor(const Colours&)>;

    TextLabel(const QString& text, const QFont& font, Emphasis emphasis, QWidget* parent = nullptr);

    void setEmphasis(Emphasis emphasis);
    void setColour(Colour colour);
    /// With this, a text that does not fit its width ends in an ellipsis, on that line; a tool tip tells all
    /// of it.
    void setElided(int lines);

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;
    int heightForWidth(int width) const override;
    bool hasHeightForWidth() const override;

protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void takeColour();
    QStringList elidedLines(int width) const;

    Colour m_colour;
    int m_elidedLines = 0;
};

} // namespace ardeo
