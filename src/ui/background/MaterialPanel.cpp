#include "ui/background/MaterialPanel.h"

#include <QPainter>

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
    painter.setClipPath(look::continuousRect(area, m_radius));
    if (m_background) {
        const QRectF ground(m_background->mapTo(window(), QPoint()) - mapTo(window(), QPoint()),
                            m_background->size());
        painter.drawImage(ground, m_background->backdrop());
    }
    painter.fillRect(area, colours.material);
    painter.setClipping(false);
    look::strokeInside(painter, area, m_radius, m_border(colours), borderWidth);
}

} // namespace ardeo
