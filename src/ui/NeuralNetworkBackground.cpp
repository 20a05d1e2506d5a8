#include "ui/NeuralNetworkBackground.h"

#include "ui/elements/Style.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

namespace ardeo
{

namespace
{

constexpr int tickMilliseconds = 33;
/// Ticks after which also what lies above is painted anew. Until then the ground that shines through a card
/// has changed by two to five steps of colour of 255 where it changes most.
constexpr int coveredTicks = 18;
/// Pixels that are drawn at once: few enough to stay in the processor's cache until they are on the screen.
constexpr int bandPixels = 48 * 1024;
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
    // Nobody sees it, maybe for days.
    forgetFrame();
    m_renderer.reset();
    m_ticks = 0;
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
        forgetFrame();
        update();
    }
    QWidget::changeEvent(event);
}

void NeuralNetworkBackground::resizeEvent(QResizeEvent*)
{
    forgetFrame();
}

void NeuralNetworkBackground::timerEvent(QTimerEvent*)
{
    m_time = m_clock.referenceTime();
    m_composed = {};
    if (m_ticks++ % coveredTicks != 0)
        return update(QRegion(rect()) - m_covered());
    m_backdrop = {};
    update();
}

void NeuralNetworkBackground::forgetFrame()
{
    m_composed = {};
    m_backdrop = {};
}

bool NeuralNetworkBackground::isPostponed() const
{
    return m_ticks == 0 && look::duration(this, 1) > 0;
}

NeuralNetworkRenderer& NeuralNetworkBackground::frame(const QRegion& part)
{
    if (!m_renderer)
        m_renderer.emplace(m_maxDist, m_speed);
    // The window may have come to a screen of another scale.
    if (!(part - m_composed).isEmpty() || m_composedScale != devicePixelRatioF()) {
        m_composedScale = devicePixelRatioF();
        m_renderer->compose(size(), m_time, m_composedScale, part);
        m_composed = part;
    }
    return *m_renderer;
}

const QImage& NeuralNetworkBackground::backdrop()
{
    if (isPostponed()) {
        m_backdrop = QImage(1, 1, QImage::Format_RGB32);
        m_backdrop.fill(look::colours(this).window);
    } else if (m_backdrop.isNull() && !size().isEmpty()) {
        const QSize small(qMax(1, width() / backdropScale), qMax(1, height() / backdropScale));
        m_backdrop = frame(rect()).reduced(small, look::schemeOf(this), look::colours(this).window);
    }
    return m_backdrop;
}

void NeuralNetworkBackground::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (isPostponed())
        return painter.fillRect(event->rect(), look::colours(this).window);
    const double scale = devicePixelRatioF();
    const QRect all(QPoint(), (QSizeF(size()) * scale).toSize());
    NeuralNetworkRenderer& network = frame(event->region());
    painter.scale(1 / scale, 1 / scale); // to device pixels, so that the bands meet exactly
    for (const QRect& part : event->region()) {
        const QRect pixels =
            QRectF(QPointF(part.topLeft()) * scale, QSizeF(part.size()) * scale).toAlignedRect() & all;
        painter.setClipRect(pixels);
        const int rows = qMax(1, bandPixels / qMax(1, pixels.width()));
        for (int top = pixels.top(); top <= pixels.bottom(); top += rows) {
            const QRect band(pixels.left(), top, pixels.width(), qMin(rows, pixels.bottom() + 1 - top));
            painter.drawImage(band.topLeft(),
                              network.picture(band, look::schemeOf(this), look::colours(this).window));
        }
    }
}

} // namespace ardeo
