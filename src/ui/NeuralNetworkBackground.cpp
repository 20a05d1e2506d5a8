#include "ui/NeuralNetworkBackground.h"

#include "ui/Style.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

namespace ardeo
{

namespace
{

constexpr int tickMilliseconds = 33;
/// Ticks after which also what lies above is painted anew.
constexpr int coveredTicks = 8;
/// By how much the backdrop is smaller than the view.
constexpr int backdropScale = 24;

} // namespace

NeuralNetworkBackground::NeuralNetworkBackground(Clock& clock, double maxDist, double speed, QWidget* parent)
    : QWidget(parent)
    , m_clock(clock)
    , m_maxDist(maxDist)
    , m_speed(speed)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
    m_time = m_clock.referenceTime();
}

void NeuralNetworkBackground::setCovered(std::function<QRegion()> covered)
{
    m_covered = std::move(covered);
}

void NeuralNetworkBackground::startOrStop()
{
    const QWindow* handle = window()->windowHandle();
    const bool seen = isVisible() && !window()->isMinimized() && handle && handle->isExposed();
    const bool moves = seen && look::duration(this, 1) > 0;
    if (moves && m_timer == 0)
        m_timer = startTimer(tickMilliseconds, Qt::PreciseTimer);
    if (!moves)
        killTimer(std::exchange(m_timer, 0));
}

void NeuralNetworkBackground::showEvent(QShowEvent*)
{
    if (QWindow* handle = window()->windowHandle())
        handle->installEventFilter(this);
    window()->installEventFilter(this);
    startOrStop();
}

void NeuralNetworkBackground::hideEvent(QHideEvent*)
{
    startOrStop();
}

bool NeuralNetworkBackground::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Expose || event->type() == QEvent::WindowStateChange) {
        // What the event is about has happened only when it has been handled.
        QMetaObject::invokeMethod(
            this, [this] { startOrStop(); }, Qt::QueuedConnection);
    }
    return QWidget::eventFilter(watched, event);
}

void NeuralNetworkBackground::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::StyleChange) {
        startOrStop();
        draw();
        update();
    }
    QWidget::changeEvent(event);
}

void NeuralNetworkBackground::resizeEvent(QResizeEvent*)
{
    draw();
}

void NeuralNetworkBackground::timerEvent(QTimerEvent*)
{
    m_time = m_clock.referenceTime();
    draw();
    ++m_ticks;
    update(m_ticks % coveredTicks == 0 ? QRegion(rect()) : QRegion(rect()) - m_covered());
}

void NeuralNetworkBackground::draw()
{
    m_frame =
        m_renderer.render(size(), m_time, look::schemeOf(this), m_maxDist, m_speed, devicePixelRatioF());
    m_backdrop = {};
}

const QImage& NeuralNetworkBackground::backdrop()
{
    if (m_backdrop.isNull() && !m_frame.isNull()) {
        m_backdrop = m_frame.scaled(qMax(1, width() / backdropScale), qMax(1, height() / backdropScale),
                                    Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_backdrop.setDevicePixelRatio(1);
    }
    return m_backdrop;
}

void NeuralNetworkBackground::paintEvent(QPaintEvent* event)
{
    if (m_frame.devicePixelRatio() != devicePixelRatioF())
        draw();
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.fillRect(event->rect(), look::colours(this).window);
    painter.drawImage(QPointF(), m_frame);
}

} // namespace ardeo
