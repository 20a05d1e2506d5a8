#pragma once

#include "ui/elements/Style.h"

#include <QLabel>

#include <functional>
#include <limits>
#include <optional>

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
    /// With this, a text takes up to so many lines, and what is still too long ends in an ellipsis; a tool
    /// tip tells all of it. A word that is longer than a line is broken.
    void setLines(int most);
    /// With this, a text takes as many lines as it needs, and never asks for more width than it gets.
    void setWrapped() { setLines(std::numeric_limits<int>::max()); }

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
    QStringList shownLines(int width) const;

    Colour m_colour;
    /// None where the toolkit lays the text out.
    std::optional<int> m_lines;
};

/// Draws one line of text, in its own direction, at the side of a part of the widget where lines begin.
void drawLine(QPainter& painter, const QWidget* widget, const QRectF& part, const QString& text);

/// A text as a tool tip shows it: in lines that fit on any screen.
QString toolTipText(const QString& text);

} // namespace ardeo
