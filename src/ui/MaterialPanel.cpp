#include "ui/MaterialPanel.h"

#include <QPainter>

namespace ardeo
{

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
    if (m_background) {
        painter.setClipPath(shape);
        painter.fillRect(rect(), colours.window);
        const QPoint offset = m_background->mapFromGlobal(mapToGlobal(QPoint()));
        painter.drawImage(QRectF(-offset, m_background->size()), m_background->backdrop());
        painter.setClipping(false);
    }
    painter.fillPath(shape, colours.material);
    look::strokeInside(painter, area, m_radius, m_border(colours), 0.5);
}

} // namespace ardeo
