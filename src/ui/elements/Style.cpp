#include "ui/elements/Style.h"

#include "ui/elements/ArdeoStyle.h"

#include <QApplication>
#include <QFontDatabase>
#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace ardeo
{

namespace
{

const Colours lightColours{
    .primary = QColor(0x1D, 0x1E, 0x22),
    .secondary = QColor(0x4A, 0x4E, 0x57),
    .tertiary = QColor(0x5F, 0x63, 0x6D),
    .teal = QColor(0x06, 0x67, 0x76),
    .tealFill = QColor(0x0B, 0x7F, 0x92),
    .accent = QColor::fromRgbF(0, 0.48F, 0.8F),
    .red = QColor(0xC9, 0x2A, 0x2A),
    .green = QColor(0x1A, 0x7F, 0x37),
    .separator = QColor(0, 0, 0, 58),
    .textBackground = QColor(0xFF, 0xFF, 0xFF),
    .tertiaryFill = QColor(0x76, 0x76, 0x80, 24),
    .window = QColor(0xF4, 0xF6, 0xF9),
    .sidebar = QColor(0xE9, 0xEC, 0xF1),
    .material = QColor(255, 255, 255, 190),
    .control = QColor(0xFF, 0xFF, 0xFF),
    .controlHovered = QColor(0xF3, 0xF5, 0xF8),
    .controlPressed = QColor(0xE4, 0xE7, 0xEC),
    .backdrop = QColor(0, 0, 0, 52),
};

const Colours darkColours{
    .primary = QColor(0xF0, 0xF1, 0xF4),
    .secondary = QColor(0xBC, 0xC1, 0xCB),
    .tertiary = QColor(0xA2, 0xA8, 0xB4),
    .teal = QColor(0x4C, 0xC9, 0xDB),
    .tealFill = QColor(0x0B, 0x7F, 0x92),
    .accent = QColor::fromRgbF(0, 0.48F, 0.8F),
    .red = QColor(0xFF, 0x8C, 0x84),
    .green = QColor(0x4F, 0xC9, 0x6B),
    .separator = QColor(255, 255, 255, 46),
    .textBackground = QColor(0x15, 0x17, 0x1B),
    .tertiaryFill = QColor(0x76, 0x76, 0x80, 62),
    .window = QColor(0x1A, 0x1C, 0x21),
    .sidebar = QColor(0x22, 0x25, 0x2B),
    .material = QColor(0x2C, 0x30, 0x38, 200),
    .control = QColor(0x3A, 0x3E, 0x48),
    .controlHovered = QColor(0x3E, 0x42, 0x4B),
    .controlPressed = QColor(0x45, 0x4A, 0x55),
    .backdrop = QColor(0, 0, 0, 96),
};

/// In points of the layout, which are 96 to the inch.
struct TextSize {
    int points;
    int weight;
};

constexpr std::array<TextSize, 10> textSizes{{
    {22, QFont::Normal},
    {17, QFont::Normal},
    {15, QFont::Normal},
    {13, QFont::DemiBold},
    {13, QFont::Normal},
    {12, QFont::Normal},
    {11, QFont::Normal},
    {10, QFont::Normal},
    {10, QFont::Normal},
    {10, QFont::Normal},
}};

double textScale()
{
    const auto* style = qobject_cast<const ArdeoStyle*>(QApplication::style());
    return style ? style->textScale() : 1;
}

QFont sized(QFont font, TextStyle style, int weight)
{
    const TextSize size = textSizes.at(static_cast<size_t>(style));
    font.setPointSizeF(size.points * 72.0 / 96 * textScale());
    font.setWeight(static_cast<QFont::Weight>(weight < 0 ? size.weight : weight));
    return font;
}

/// A thin line in the separator's colour.
class Divider final : public QWidget
{
public:
    Divider(QWidget* parent, double opacity) : QWidget(parent), m_opacity(opacity) { setFixedHeight(1); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const QColor colour = look::colours(this).separator;
        QRectF line = look::deviceAligned(this, rect());
        line.setHeight(std::floor(devicePixelRatioF()) / devicePixelRatioF());
        QPainter(this).fillRect(line, look::withOpacity(colour, colour.alphaF() * m_opacity));
    }

private:
    double m_opacity;
};

} // namespace

const QColor& Colours::of(Emphasis emphasis) const
{
    switch (emphasis) {
    case Emphasis::primary:
        return primary;
    case Emphasis::secondary:
        return secondary;
    case Emphasis::tertiary:
        break;
    }
    return tertiary;
}

namespace look
{

ColorScheme schemeOf(const QWidget* widget)
{
    return widget->palette().color(QPalette::Window).lightness() < 128 ? ColorScheme::dark
                                                                       : ColorScheme::light;
}

const Colours& colours(ColorScheme scheme)
{
    return scheme == ColorScheme::dark ? darkColours : lightColours;
}

QPalette palette(ColorScheme scheme)
{
    const Colours& c = colours(scheme);
    QPalette palette(c.control, c.window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, c.primary);
    palette.setColor(QPalette::Base, c.textBackground);
    palette.setColor(QPalette::PlaceholderText, c.tertiary);
    palette.setColor(QPalette::Highlight, c.accent);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, c.sidebar);
    palette.setColor(QPalette::ToolTipText, c.primary);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, c.tertiary);
    return palette;
}

QFont font(TextStyle style, int weight)
{
    return sized(QApplication::font(), style, weight);
}

QFont monospacedFont(TextStyle style, int weight)
{
    return sized(QFontDatabase::systemFont(QFontDatabase::FixedFont), style, weight);
}

int scaled(int points)
{
    return qRound(points * textScale());
}

void followTextSize(QWidget* widget, const std::function<void()>& action)
{
    action();
    if (const auto* style = qobject_cast<const ArdeoStyle*>(QApplication::style()))
        QObject::connect(style, &ArdeoStyle::textScaleChanged, widget, action);
}

int lineHeight(const QFont& font)
{
    return std::min(QFontMetrics(font).height(), QFontInfo(font).pixelSize() * 5 / 4);
}

QColor withOpacity(QColor colour, double opacity)
{
    colour.setAlphaF(static_cast<float>(opacity));
    return colour;
}

QRectF deviceAligned(const QWidget* widget, const QRectF& rect)
{
    const double scale = widget->devicePixelRatioF();
    const QPointF origin = widget->mapTo(widget->window(), QPointF());
    const QRectF placed = rect.translated(origin);
    const QPointF topLeft =
        QPointF(std::round(placed.left() * scale), std::round(placed.top() * scale)) / scale;
    const QPointF bottomRight =
        QPointF(std::round(placed.right() * scale), std::round(placed.bottom() * scale)) / scale;
    return QRectF(topLeft, bottomRight).translated(-origin) & rect;
}

QRectF mirrored(const QWidget* widget, const QRectF& part)
{
    return widget->isRightToLeft()
               ? QRectF(widget->width() - part.right(), part.top(), part.width(), part.height())
               : part;
}

QMargins mirrored(const QMargins& margins)
{
    return QGuiApplication::isRightToLeft()
               ? QMargins(margins.right(), margins.top(), margins.left(), margins.bottom())
               : margins;
}

QPainterPath continuousRect(const QRectF& rect, double radius)
{
    // Each corner takes a little more of its sides than a circle's quarter would, and bends most in its
    // middle.
    const double reach = std::min(radius * 1.28, std::min(rect.width(), rect.height()) / 2);
    const double bend = reach * 0.33;
    const auto [left, top, right, bottom] = std::array{rect.left(), rect.top(), rect.right(), rect.bottom()};
    QPainterPath path(QPointF(left + reach, top));
    path.lineTo(right - reach, top);
    path.cubicTo(right - bend, top, right, top + bend, right, top + reach);
    path.lineTo(right, bottom - reach);
    path.cubicTo(right, bottom - bend, right - bend, bottom, right - reach, bottom);
    path.lineTo(left + reach, bottom);
    path.cubicTo(left + bend, bottom, left, bottom - bend, left, bottom - reach);
    path.lineTo(left, top + reach);
    path.cubicTo(left, top + bend, left + bend, top, left + reach, top);
    return path;
}

void strokeInside(QPainter& painter, const QRectF& rect, double radius, const QColor& colour, double width)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    // Thinner than a device pixel it would only be pale.
    width = std::max(width, 1 / painter.device()->devicePixelRatioF());
    painter.setPen(QPen(colour, width));
    painter.setBrush(Qt::NoBrush);
    const double inset = width / 2;
    painter.drawPath(continuousRect(rect.adjusted(inset, inset, -inset, -inset), radius - inset));
    painter.restore();
}

int duration(const QWidget* widget, int milliseconds)
{
    const bool moves = widget->style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, widget) != 0;
    return moves ? milliseconds : 0;
}

QWidget* divider(QWidget* parent, double opacity)
{
    return new Divider(parent, opacity);
}

} // namespace look

} // namespace ardeo
