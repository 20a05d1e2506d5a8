#include "ui/elements/PushButton.h"

#include "ui/elements/Spinner.h"
#include "ui/elements/Symbol.h"

#include <QEvent>
#include <QPainter>
#include <QtMath>

#include <algorithm>

namespace ardeo
{

namespace
{

constexpr int symbolGap = 5;
constexpr int symbolSize = 16;
constexpr int textPadding = 10;
constexpr double spinnerScale = 0.75;

} // namespace

PushButton::PushButton(const QString& text, const QString& symbol, Kind kind, QWidget* parent)
    : QPushButton(text, parent)
    , m_symbol(symbol)
    , m_kind(kind)
{
    setFont(look::font(TextStyle::body));
    setAttribute(Qt::WA_Hover);
    setAutoDefault(false);
}

void PushButton::setUsable(bool usable)
{
    m_keepsFocus = true;
    setEnabled(usable);
    m_keepsFocus = false;
}

bool PushButton::focusNextPrevChild(bool next)
{
    return m_keepsFocus || QPushButton::focusNextPrevChild(next);
}

void PushButton::changeEvent(QEvent* event)
{
    QPushButton::changeEvent(event);
    // A window that becomes active gives the focus to no button that is out of use, although it keeps it for
    // the button.
    if (event->type() == QEvent::EnabledChange && holdsFocus())
        setFocus(Qt::ActiveWindowFocusReason);
    if (event->type() == QEvent::ActivationChange)
        update();
}

bool PushButton::holdsFocus() const
{
    return isActiveWindow() && window()->focusWidget() == this;
}

void PushButton::setTint(Tint tint)
{
    m_tint = tint;
    update();
}

void PushButton::setControlSize(Size size)
{
    m_size = size;
    updateGeometry();
}

void PushButton::setWidestText(const QString& text)
{
    m_widestText = text;
    updateGeometry();
}

void PushButton::setSymbol(const QString& symbol)
{
    m_symbol = symbol;
    updateGeometry();
    update();
}

void PushButton::setSpinning(bool spinning)
{
    m_isSpinning = spinning;
    if (spinning && !m_spinner) {
        m_spinner = new Spinner(spinnerScale, this);
        m_spinner->setColour(m_kind == Kind::prominent ? Qt::white : QColor());
    }
    if (m_spinner)
        m_spinner->setVisible(spinning);
    updateGeometry();
    placeSpinner();
    update();
}

QSize PushButton::sizeHint() const
{
    const bool large = m_size == Size::large;
    const int glyph = m_symbol.isEmpty() && !m_isSpinning ? 0 : look::scaled(symbolSize);
    const int gap = glyph > 0 && !text().isEmpty() ? look::scaled(symbolGap) : 0;
    const int padding = m_kind == Kind::plain ? 0 : text().isEmpty() ? 7 : large ? 14 : textPadding;
    const int textWidth =
        std::max(fontMetrics().horizontalAdvance(text()), fontMetrics().horizontalAdvance(m_widestText));
    const int width = glyph + gap + textWidth + 2 * padding;
    const int height = m_kind == Kind::plain ? symbolSize : large ? 28 : 26;
    return {width, look::scaled(height)};
}

QSize PushButton::minimumSizeHint() const
{
    return sizeHint();
}

QRectF PushButton::symbolRect() const
{
    const int textWidth =
        text().isEmpty() ? 0 : look::scaled(symbolGap) + fontMetrics().horizontalAdvance(text());
    const int side = look::scaled(symbolSize);
    const double left = (width() - side - textWidth) / 2.0;
    return look::mirrored(this, QRectF(left, (height() - side) / 2.0, side, side));
}

void PushButton::resizeEvent(QResizeEvent*)
{
    placeSpinner();
}

void PushButton::placeSpinner()
{
    if (m_spinner)
        m_spinner->move((symbolRect().center() - QRectF(m_spinner->rect()).center()).toPoint());
}

void PushButton::paintEvent(QPaintEvent*)
{
    const Colours& colours = look::colours(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);

    // What spins is at work, not out of use, whatever the pointer can do with it.
    const bool faint = !isEnabled() && !m_isSpinning;
    const QRectF area = look::deviceAligned(this, rect());
    const double radius = m_kind == Kind::plain ? 4 : 6;
    QColor ink = m_tint ? colours.*m_tint : colours.primary;
    if (m_kind == Kind::prominent) {
        QColor fill = m_tint ? colours.*m_tint : colours.accent;
        if (isDown())
            fill = fill.darker(118);
        else if (underMouse() && isEnabled())
            fill = fill.darker(107);
        painter.fillPath(look::continuousRect(area, radius), faint ? colours.controlPressed : fill);
        ink = Qt::white;
    } else if (m_kind == Kind::bordered) {
        painter.setOpacity(faint ? 0.5 : 1);
        const QColor fill = isDown()                      ? colours.controlPressed
                            : underMouse() && isEnabled() ? colours.controlHovered
                                                          : colours.control;
        painter.fillPath(look::continuousRect(area, radius), fill);
        look::strokeInside(painter, area, radius, colours.separator, 1);
        painter.setOpacity(1);
    }
    if (faint)
        ink = colours.tertiary;
    if (holdsFocus()) {
        const bool isFilled = m_kind == Kind::prominent && !faint;
        const QColor ring = isFilled ? QColor(255, 255, 255, 210) : colours.teal;
        const double inset = isFilled ? 2 : 0;
        look::strokeInside(painter, area.adjusted(inset, inset, -inset, -inset), radius - inset, ring, 2);
    }

    const bool hasGlyph = m_isSpinning || !m_symbol.isEmpty();
    const QRectF glyph = symbolRect();
    if (!m_isSpinning && !m_symbol.isEmpty())
        drawSymbol(painter, glyph, m_symbol, ink);
    painter.setPen(ink);
    painter.setFont(font());
    QRectF label = area;
    if (hasGlyph && isRightToLeft())
        label.setRight(glyph.left() - look::scaled(symbolGap));
    else if (hasGlyph)
        label.setLeft(glyph.right() + look::scaled(symbolGap));
    const int room = hasGlyph ? qFloor(label.width()) : width() - 2 * textPadding;
    const bool isCut = fontMetrics().horizontalAdvance(text()) > room;
    painter.drawText(label, static_cast<int>(hasGlyph ? Qt::AlignVCenter | Qt::AlignLeft : Qt::AlignCenter),
                     isCut ? fontMetrics().elidedText(text(), Qt::ElideMiddle, room) : text());
}

} // namespace ardeo
