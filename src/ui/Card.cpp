#include "ui/Card.h"

#include "ui/Controls.h"
#include "ui/Style.h"
#include "ui/TextLabel.h"

#include <QHBoxLayout>
#include <QPainter>

namespace ardeo
{

namespace
{

constexpr double radius = 14;

} // namespace

Card::Card(const QString& title, const QString& systemImage, QWidget* trailingView, QWidget* content,
           QWidget* parent)
    : QWidget(parent)
{
    setAccessibleName(title);
    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(16, 16, 16, 16);
    stack->setSpacing(12);

    auto* header = new QHBoxLayout;
    header->setSpacing(4);
    header->addWidget(
        new SymbolView(systemImage, 16, [](const Colours& colours) { return colours.primary; }));
    header->addWidget(new TextLabel(title, look::font(TextStyle::headline), Emphasis::primary));
    header->addStretch();
    if (trailingView)
        header->addWidget(trailingView);
    stack->addLayout(header);
    stack->addWidget(content);
}

void Card::paintEvent(QPaintEvent*)
{
    const Colours& colours = look::colours(this);
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF area = look::deviceAligned(this, rect());
    const QPainterPath shape = look::continuousRect(area, radius);
    if (m_background) {
        painter.setClipPath(shape);
        painter.fillRect(rect(), colours.window);
        const QPoint offset = m_background->mapFromGlobal(mapToGlobal(QPoint()));
        painter.drawImage(QRectF(-offset, m_background->size()), m_background->backdrop());
        painter.setClipping(false);
    }
    painter.fillPath(shape, colours.material);
    look::strokeInside(painter, area, radius, look::withOpacity(colours.primary, 0.1), 0.5);
}

} // namespace ardeo
