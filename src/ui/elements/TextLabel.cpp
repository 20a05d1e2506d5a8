#include "ui/elements/TextLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace ardeo
{

TextLabel::TextLabel(const QString& text, const QFont& font, Emphasis emphasis, QWidget* parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setFont(font);
    setEmphasis(emphasis);
}

void TextLabel::setEmphasis(Emphasis emphasis)
{
    setColour([emphasis](const Colours& colours) { return colours.of(emphasis); });
}

void TextLabel::setColour(Colour colour)
{
    m_colour = std::move(colour);
    takeColour();
}

void TextLabel::takeColour()
{
    const QColor colour = m_colour(look::colours(this));
    if (palette().color(foregroundRole()) == colour)
        return;
    QPalette own;
    own.setColor(QPalette::WindowText, colour);
    own.setColor(QPalette::Text, colour);
    setPalette(own);
}

bool TextLabel::event(QEvent* event)
{
    // What the lines lack is made up for by the ellipsis.
    const bool isCut = m_elidedLines > 0 && event->type() == QEvent::ToolTip &&
                       elidedLines(width()).join(QString()) != text();
    if (!isCut)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
    return true;
}

void TextLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
        takeColour();
}

void TextLabel::setElided(int lines)
{
    m_elidedLines = lines;
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize TextLabel::minimumSizeHint() const
{
    return m_elidedLines > 0 ? QSize(0, fontMetrics().height()) : QLabel::minimumSizeHint();
}

QSize TextLabel::sizeHint() const
{
    return m_elidedLines > 0 ? QSize(fontMetrics().horizontalAdvance(text()), fontMetrics().height())
                             : QLabel::sizeHint();
}

bool TextLabel::hasHeightForWidth() const
{
    return m_elidedLines > 1 || QLabel::hasHeightForWidth();
}

int TextLabel::heightForWidth(int width) const
{
    if (m_elidedLines == 0)
        return QLabel::heightForWidth(width);
    return static_cast<int>(std::max<qsizetype>(1, elidedLines(width).size())) * fontMetrics().height();
}

QStringList TextLabel::elidedLines(int width) const
{
    QStringList lines;
    QTextLayout layout(text(), font());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const QString rest = text().mid(line.textStart());
        if (lines.size() + 1 == m_elidedLines) {
            lines << fontMetrics().elidedText(rest, Qt::ElideRight, width);
            break;
        }
        lines << rest.left(line.textLength());
    }
    layout.endLayout();
    return lines;
}

void TextLabel::paintEvent(QPaintEvent* event)
{
    if (m_elidedLines == 0) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QStringList lines = elidedLines(width());
    int top = (height() - static_cast<int>(lines.size()) * fontMetrics().height()) / 2;
    for (const QString& line : lines) {
        const Qt::Alignment side = line.isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
        painter.drawText(QRect(0, top, width(), fontMetrics().height()),
                         static_cast<int>(side | Qt::AlignVCenter), line);
        top += fontMetrics().height();
    }
}

} // namespace ardeo
