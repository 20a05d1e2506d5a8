#include "ui/elements/TextLabel.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>
#include <QToolTip>

#include <algorithm>

namespace ardeo
{

namespace
{

/// In points at the usual text size.
constexpr int toolTipWidth = 400;

/// The lines of that width in points that a text takes; only a word that is longer than a line is broken.
QStringList linesOf(const QString& text, const QFont& font, int width)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QStringList lines;
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout layout(paragraph, font);
        layout.setTextOption(option);
        layout.beginLayout();
        for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
            line.setLineWidth(width);
            lines << paragraph.mid(line.textStart(), line.textLength());
        }
        layout.endLayout();
    }
    return lines;
}

} // namespace

QString toolTipText(const QString& text)
{
    return linesOf(text, QToolTip::font(), look::scaled(toolTipWidth)).join(u'\n');
}

void drawLine(QPainter& painter, const QWidget* widget, const QRectF& part, const QString& text)
{
    painter.setLayoutDirection(text.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    const auto side = widget->isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft;
    painter.drawText(part, static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter | Qt::TextSingleLine),
                     text);
}

TextLabel::TextLabel(const QString& text, const QFont& font, Emphasis emphasis, QWidget* parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    if (isRightToLeft()) // whatever the direction of the text itself
        setAlignment(Qt::AlignRight | Qt::AlignAbsolute | Qt::AlignVCenter);
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
    const bool isCut =
        m_lines && event->type() == QEvent::ToolTip && linesOf(text(), font(), width()).size() > *m_lines;
    if (!isCut)
        return QLabel::event(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTipText(text()), this);
    return true;
}

void TextLabel::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ParentChange)
        takeColour();
}

void TextLabel::setLines(int most)
{
    m_lines = most;
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

QSize TextLabel::minimumSizeHint() const
{
    return m_lines ? QSize(0, fontMetrics().height()) : QLabel::minimumSizeHint();
}

QSize TextLabel::sizeHint() const
{
    // The text's width is no whole number, and is not always rounded up.
    return m_lines ? QSize(fontMetrics().horizontalAdvance(text()) + 1, fontMetrics().height())
                   : QLabel::sizeHint();
}

bool TextLabel::hasHeightForWidth() const
{
    return m_lines ? *m_lines > 1 : QLabel::hasHeightForWidth();
}

int TextLabel::heightForWidth(int width) const
{
    if (!m_lines)
        return QLabel::heightForWidth(width);
    return static_cast<int>(std::max<qsizetype>(1, shownLines(width).size())) * fontMetrics().height();
}

QStringList TextLabel::shownLines(int width) const
{
    QStringList lines = linesOf(text(), font(), width);
    if (m_lines && lines.size() > *m_lines) {
        const QString rest = lines.mid(*m_lines - 1).join(QString());
        lines = lines.first(*m_lines - 1);
        lines << fontMetrics().elidedText(rest, Qt::ElideRight, width);
    }
    return lines;
}

void TextLabel::paintEvent(QPaintEvent* event)
{
    if (!m_lines) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    const QStringList lines = shownLines(width());
    const bool isCentred = alignment().testFlag(Qt::AlignHCenter);
    painter.setLayoutDirection(text().isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    int top = (height() - static_cast<int>(lines.size()) * fontMetrics().height()) / 2;
    for (const QString& line : lines) {
        const Qt::Alignment side = isCentred                                 ? Qt::AlignHCenter
                                   : isRightToLeft() || line.isRightToLeft() ? Qt::AlignRight
                                                                             : Qt::AlignLeft;
        painter.drawText(QRect(0, top, width(), fontMetrics().height()),
                         static_cast<int>(side | Qt::AlignAbsolute | Qt::AlignVCenter),
                         isCentred ? line.trimmed() : line);
        top += fontMetrics().height();
    }
}

} // namespace ardeo
