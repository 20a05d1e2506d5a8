#include "ui/elements/Spinner.h"

#include "ui/elements/Style.h"

#include <QPainter>

namespace ardeo
{

namespace
{

constexpr int spokes = 8;

} // namespace

Spinner::Spinner(double scale, QWidget* parent) : QWidget(parent)
{
    look::followTextSize(this, [this, scale] {
        const int side = qRound(look::scaled(16) * scale);
        setFixedSize(side, side);
    });
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void Spinner::showEvent(QShowEvent*)
{
    if (look::duration(this, 1) > 0)
        m_timer = startTimer(100);
}

void Spinner::hideEvent(QHideEvent*)
{
    killTimer(std::exchange(m_timer, 0));
}

void Spinner::timerEvent(QTimerEvent*)
{
    m_step = (m_step + 1) % spokes;
    update();
}

void Spinner::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QRectF(rect()).center());
    painter.scale(width() / 16.0, width() / 16.0);
    QColor colour = m_colour.isValid() ? m_colour : look::colours(this).secondary;
    for (int spoke = 0; spoke < spokes; ++spoke) {
        colour.setAlphaF(0.25F +
                         0.75F * static_cast<float>((spoke - m_step + spokes) % spokes) / (spokes - 1));
        painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap));
        painter.drawLine(QPointF(0, -4), QPointF(0, -7));
        painter.rotate(360.0 / spokes);
    }
}

} // namespace ardeo
