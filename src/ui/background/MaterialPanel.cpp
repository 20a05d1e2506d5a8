#include "ui/background/MaterialPanel.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace ardeo
{

namespace
{

constexpr double borderWidth = 0.5;

} // namespace

MaterialPanel::MaterialPanel(double radius, Border border, QWidget* parent)
    : QWidget(parent)
    , m_radius(radius)
    , m_border(std::move(border))
{
}

void MaterialPanel::paintEvent(QPaintEvent*)
{
    const Colours& colours = look::colours(this);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF area = look::deviceAligned(this, rect());
    const QPainterPath shape = look::continuousRect(area, m_radius);
    if (!m_background) {
        painter.fillPath(shape, colours.material);
        look::strokeInside(painter, area, m_radius, m_border(colours), borderWidth);
        return;
    }

    const QImage ground = m_background->backdrop();
    const QRectF groundArea(m_background->mapTo(window(), QPoint()) - mapTo(window(), QPoint()),
                            m_background->size());
    const auto fill = [&] {
        painter.drawImage(groundArea, ground);
        painter.fillRect(area, colours.material);
    };
    // The shape is needed at the ends alone; between them there are only straight edges.
    const int end = std::min(static_cast<int>(std::ceil(2 * m_radius)), (height() + 1) / 2);
    for (const int top : {0, height() - end}) {
        painter.setClipRect(0, top, width(), end);
        painter.setClipPath(shape, Qt::IntersectClip);
        fill();
        painter.setClipRect(0, top, width(), end);
        look::strokeInside(painter, area, m_radius, m_border(colours), borderWidth);
    }
    const double line = std::max(borderWidth, 1 / devicePixelRatioF());
    const QRectF middle(0, end, width(), height() - 2 * end);
    painter.setClipRect(middle & area);
    fill();
    for (const double left : {area.left(), area.right() - line})
        painter.fillRect(QRectF(left, end, line, middle.height()), m_border(colours));
}

} // namespace ardeo
