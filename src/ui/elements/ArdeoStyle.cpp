#include "ui/elements/ArdeoStyle.h"

#include "ui/elements/Style.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionSlider>

#include <utility>

namespace ardeo
{

ArdeoStyle::ArdeoStyle() : QProxyStyle(QStringLiteral("fusion")) {}

void ArdeoStyle::setReducedMotion(bool reduced)
{
    m_reducedMotion = reduced;
}

void ArdeoStyle::setTextScale(double scale)
{
    const double growth = scale / std::exchange(m_textScale, scale);
    if (growth == 1)
        return;
    for (QWidget* widget : QApplication::allWidgets()) {
        QFont font = widget->font();
        if (!widget->testAttribute(Qt::WA_SetFont) || font.pointSizeF() <= 0)
            continue;
        font.setPointSizeF(font.pointSizeF() * growth);
        widget->setFont(font);
    }
    Q_EMIT textScaleChanged();
}

int ArdeoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* returnData) const
{
    if (hint == SH_Widget_Animation_Duration)
        return m_reducedMotion ? 0 : 200;
    if (hint == SH_BlinkCursorWhenTextSelected)
        return 0;
    return QProxyStyle::styleHint(hint, option, widget, returnData);
}

int ArdeoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_ScrollBarExtent:
        return 10;
    case PM_SplitterWidth:
        return 1;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize ArdeoStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                   const QWidget* widget) const
{
    const QSize usual = QProxyStyle::sizeFromContents(type, option, size, widget);
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || !item)
        return usual;
    const bool isSeparator = item->menuItemType == QStyleOptionMenuItem::Separator;
    return isSeparator ? QSize(usual.width(), 9) : usual + QSize(8, 6);
}

void ArdeoStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const
{
    // Menus are a step lighter than the window, with an edge that shows on dark grounds too.
    if (widget && (element == PE_PanelMenu || element == PE_FrameMenu)) {
        const Colours& colours = look::colours(widget);
        if (element == PE_PanelMenu)
            painter->fillRect(option->rect, colours.control);
        painter->setPen(colours.separator);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ArdeoStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                             const QWidget* widget) const
{
    const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (widget && item && element == CE_MenuItem && item->menuItemType == QStyleOptionMenuItem::Separator) {
        const QRect line(item->rect.left() + 8, item->rect.center().y(), item->rect.width() - 16, 1);
        painter->fillRect(line, look::colours(widget).separator);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    // The usual line below a menu bar has a gap after each title where points are no pixels.
    const bool isOpen = (option->state & State_Sunken) != 0;
    if (widget && !isOpen && (element == CE_MenuBarItem || element == CE_MenuBarEmptyArea)) {
        const QRect line(option->rect.left(), option->rect.bottom(), option->rect.width(), 1);
        const Colours& colours = look::colours(widget);
        painter->fillRect(line.adjusted(0, -1, 0, 0), colours.window);
        painter->fillRect(line, look::withOpacity(colours.separator, colours.separator.alphaF() * 0.6));
    }
}

void ArdeoStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                    QPainter* painter, const QWidget* widget) const
{
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar || !widget) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        return;
    }
    // A scroll indicator: a thin handle on no ground.
    if (bar->minimum == bar->maximum)
        return;
    const QRectF handle = subControlRect(control, option, SC_ScrollBarSlider, widget);
    const double opacity = (option->state & State_MouseOver) != 0 ? 0.5 : 0.28;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(look::withOpacity(look::colours(widget).primary, opacity));
    painter->drawRoundedRect(handle.adjusted(2, 2, -2, -2), 3, 3);
}

} // namespace ardeo
