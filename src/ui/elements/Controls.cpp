#include "ui/elements/Controls.h"

#include "ui/elements/Symbol.h"
#include "ui/elements/TextLabel.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace ardeo
{

namespace
{

constexpr int indicatorSize = 16;
constexpr int iconSize = 64;
constexpr int symbolSize = 16;
constexpr int badgeSymbolSize = 12;
constexpr int controlHeight = 28;
/// Between a symbol and its text.
constexpr int symbolGap = 4;

} // namespace

RadioButton::RadioButton(const QString& text, QWidget* parent) : QRadioButton(text, parent)
{
    setFont(look::font(TextStyle::body));
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize RadioButton::sizeHint() const
{
    return {look::scaled(indicatorSize) + look::scaled(symbolGap) + fontMetrics().horizontalAdvance(text()) +
                4,
            std::max(look::scaled(20), fontMetrics().height())};
}

bool RadioButton::hitButton(const QPoint& position) const
{
    return rect().contains(position);
}

void RadioButton::paintEvent(QPaintEvent*)
{
    const Colours& colours = look::colours(this);
    const int indicator = look::scaled(indicatorSize);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF circle = look::deviceAligned(
        this, look::mirrored(this, QRectF(0, (height() - indicator) / 2.0, indicator, indicator)));
    if (isChecked()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours.accent);
        painter.drawEllipse(circle);
        painter.setBrush(Qt::white);
        painter.drawEllipse(circle.center(), indicator * 3 / 16.0, indicator * 3 / 16.0);
    } else {
        painter.setPen(QPen(colours.tertiary, 1));
        painter.setBrush(isDown()       ? colours.controlPressed
                         : underMouse() ? colours.controlHovered
                                        : colours.control);
        painter.drawEllipse(circle.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    const QRectF label =
        look::mirrored(this, QRectF(rect()).adjusted(indicator + look::scaled(symbolGap), 0, 0, 0));
    if (hasFocus()) { // a ring in the circle, and a line below the text
        painter.setPen(QPen(colours.teal, 2));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(circle.adjusted(1, 1, -1, -1));
        const QRectF line(indicator + look::scaled(symbolGap), height() - 2, label.width() - 4, 1.5);
        painter.fillRect(look::mirrored(this, line), colours.teal);
    }
    painter.setPen(isEnabled() ? colours.primary : colours.tertiary);
    painter.setFont(font());
    drawLine(painter, this, label, text());
}

PopUpButton::PopUpButton(QWidget* parent) : QComboBox(parent)
{
    setFont(look::font(TextStyle::body));
    setAttribute(Qt::WA_Hover);
    setFocusPolicy(Qt::StrongFocus); // the wheel does nothing here, nor does it bring the focus
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    view()->setTextElideMode(Qt::ElideMiddle);
}

QSize PopUpButton::sizeHint() const
{
    return {160, look::scaled(controlHeight)};
}

QSize PopUpButton::minimumSizeHint() const
{
    return {80, look::scaled(controlHeight)};
}

void PopUpButton::showPopup()
{
    // As other menus. What is below the entries is painted in the one colour, the entries in the other.
    QPalette own;
    for (const auto role : {QPalette::Base, QPalette::Window})
        own.setColor(role, look::colours(this).control);
    view()->setPalette(own);
    QComboBox::showPopup();
}

void PopUpButton::wheelEvent(QWheelEvent* event)
{
    // Scrolling past must not change what is selected.
    event->ignore();
}

void PopUpButton::paintEvent(QPaintEvent*)
{
    const Colours& colours = look::colours(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = look::deviceAligned(this, rect());
    painter.setOpacity(isEnabled() ? 1 : 0.5);
    painter.fillPath(look::continuousRect(area, 6),
                     underMouse() && isEnabled() ? colours.controlHovered : colours.control);
    look::strokeInside(painter, area, 6, hasFocus() ? colours.teal : colours.separator, hasFocus() ? 2 : 1);
    const int side = look::scaled(symbolSize);
    drawSymbol(painter, look::mirrored(this, QRectF(width() - 6 - side, (height() - side) / 2.0, side, side)),
               QStringLiteral("chevron.up.chevron.down"), colours.secondary);
    painter.setPen(colours.primary);
    painter.setFont(font());
    const QRect label = labelRect();
    drawLine(painter, this, label, fontMetrics().elidedText(shownText(), Qt::ElideMiddle, label.width()));
}

QString PopUpButton::shownText() const
{
    return currentIndex() < 0 ? placeholderText() : currentText();
}

QRect PopUpButton::labelRect() const
{
    return look::mirrored(this, rect().adjusted(10, 0, -10 - look::scaled(symbolSize), 0)).toRect();
}

bool PopUpButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip)
        setToolTip(fontMetrics().horizontalAdvance(shownText()) > labelRect().width()
                       ? toolTipText(shownText())
                       : QString());
    return QComboBox::event(event);
}

void slantPlaceholder(QLineEdit& line)
{
    const auto follow = [&line] {
        QFont font = line.font();
        // Scripts that run from right to left have no slanted letters.
        font.setItalic(line.text().isEmpty() && !QGuiApplication::isRightToLeft());
        line.setFont(font);
    };
    QObject::connect(&line, &QLineEdit::textChanged, &line, follow);
    follow();
}

TextField::TextField(QWidget* parent) : QLineEdit(parent)
{
    setFont(look::font(TextStyle::body));
    setFrame(false);
    look::followTextSize(this, [this] { setFixedHeight(look::scaled(controlHeight)); });
    setTextMargins(6, 0, 6, 0);
    slantPlaceholder(*this);
    QPalette own;
    own.setColor(QPalette::Base, Qt::transparent);
    setPalette(own);
}

void TextField::paintEvent(QPaintEvent* event)
{
    const Colours& colours = look::colours(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = look::deviceAligned(this, rect());
    painter.fillPath(look::continuousRect(area, 6), colours.textBackground);
    look::strokeInside(painter, area, 6, hasFocus() ? colours.teal : colours.separator, hasFocus() ? 2 : 1);
    painter.end();
    QLineEdit::paintEvent(event);
}

Badge::Badge(const QString& symbol, QWidget* parent) : QWidget(parent), m_symbol(symbol)
{
    setFont(look::monospacedFont(TextStyle::caption2));
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Badge::setText(const QString& text)
{
    m_text = text;
    setAccessibleName(text);
    updateGeometry();
    update();
}

QSize Badge::sizeHint() const
{
    const int symbol = look::scaled(badgeSymbolSize);
    return {5 + symbol + look::scaled(symbolGap) + fontMetrics().horizontalAdvance(m_text) + 5,
            2 + std::max(symbol, fontMetrics().height()) + 2};
}

void Badge::paintEvent(QPaintEvent*)
{
    const QColor teal = look::colours(this).teal;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(look::continuousRect(look::deviceAligned(this, rect()), 4),
                     look::withOpacity(teal, 0.1));
    const int symbol = look::scaled(badgeSymbolSize);
    drawSymbol(painter, look::mirrored(this, QRectF(5, (height() - symbol) / 2.0, symbol, symbol)), m_symbol,
               teal);
    painter.setPen(teal);
    painter.setFont(font());
    const QRectF label = QRectF(rect()).adjusted(5 + symbol + look::scaled(symbolGap), 0, 0, 0);
    drawLine(painter, this, look::mirrored(this, label), m_text);
}

SymbolView::SymbolView(const QString& symbol, int size, std::function<QColor(const Colours&)> colour,
                       QWidget* parent)
    : QWidget(parent)
    , m_symbol(symbol)
    , m_colour(std::move(colour))
{
    look::followTextSize(this, [this, size] { setFixedSize(look::scaled(size), look::scaled(size)); });
}

void SymbolView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const int side = std::min(width(), height());
    if (isRightToLeft() &&
        (m_symbol == QStringLiteral("list.bullet") || m_symbol.startsWith(QStringLiteral("hand.")))) {
        painter.translate(width(), 0);
        painter.scale(-1, 1); // what points where text goes
    }
    drawSymbol(painter, QRectF((width() - side) / 2.0, (height() - side) / 2.0, side, side), m_symbol,
               m_colour(look::colours(this)));
}

ApplicationIcon::ApplicationIcon(QWidget* parent) : QWidget(parent)
{
    setFixedSize(iconSize, iconSize);
}

void ApplicationIcon::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(look::continuousRect(rect(), 14));
    QApplication::windowIcon().paint(&painter, rect());
}

} // namespace ardeo
