#include "ui/NeuralNetworkBackground.h"

#include "ui/Style.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWindow>

#include <array>

namespace ardeo
{

namespace
{

constexpr int tickMilliseconds = 33;
/// Ticks after which also what lies above is painted anew. Until then the ground that shines through a card
/// has changed by two to four steps of colour of 255 where it changes most.
constexpr int coveredTicks = 16;
/// Rows that Qt fills without spreading them over a pool of threads; waking these takes longer than the
/// filling.
constexpr int bandRows = 64;
/// By how much the backdrop is smaller than the view.
constexpr int backdropScale = 24;

/// The image in a small size, each pixel the average of what it stands for. Qt's own smooth scaling spreads
/// over a pool of threads, and waking them takes longer than this.
QImage averaged(const QImage& image, QSize size)
{
    QImage small(size, QImage::Format_ARGB32_Premultiplied);
    for (int row = 0; row < size.height(); ++row) {
        const int top = row * image.height() / size.height();
        const int bottom = (row + 1) * image.height() / size.height();
        for (int column = 0; column < size.width(); ++column) {
            const int left = column * image.width() / size.width();
            const int right = (column + 1) * image.width() / size.width();
            std::array<quint32, 4> sums{};
            for (int y = top; y < bottom; ++y) {
                const auto* const line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
                for (int x = left; x < right; ++x) {
                    sums[0] += line[x] & 0xFF;
                    sums[1] += line[x] >> 8 & 0xFF;
                    sums[2] += line[x] >> 16 & 0xFF;
                    sums[3] += line[x] >> 24;
                }
            }
            const auto count = static_cast<quint32>(qMax(1, (bottom - top) * (right - left)));
            for (quint32& sum : sums)
                sum = (sum + count / 2) / count;
            small.setPixel(column, row, sums[3] << 24 | sums[2] << 16 | sums[1] << 8 | sums[0]);
        }
    }
    return small;
}

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
    m_drawn = {};
    if (++m_ticks % coveredTicks != 0)
        return update(QRegion(rect()) - m_covered());
    m_backdrop = {};
    update();
}

void NeuralNetworkBackground::forgetFrame()
{
    m_frame = {};
    m_drawn = {};
    m_backdrop = {};
}

const QImage& NeuralNetworkBackground::frame(const QRegion& part)
{
    if (!(part - m_drawn).isEmpty() || m_frame.devicePixelRatio() != devicePixelRatioF()) {
        if (!m_renderer)
            m_renderer.emplace();
        m_frame = m_renderer->render(size(), m_time, look::schemeOf(this), m_maxDist, m_speed,
                                     devicePixelRatioF(), part);
        m_drawn = part;
    }
    return m_frame;
}

const QImage& NeuralNetworkBackground::backdrop()
{
    if (m_backdrop.isNull() && !size().isEmpty())
        m_backdrop =
            averaged(frame(rect()), {qMax(1, width() / backdropScale), qMax(1, height() / backdropScale)});
    return m_backdrop;
}

void NeuralNetworkBackground::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const QImage& image = frame(event->region());
    for (const QRect& part : event->region()) {
        for (int top = part.top(); top <= part.bottom(); top += bandRows) {
            const QRect band(part.left(), top, part.width(), qMin(bandRows, part.bottom() + 1 - top));
            painter.setClipRect(band);
            painter.fillRect(band, look::colours(this).window);
            painter.drawImage(QPointF(), image);
        }
    }
}

} // namespace ardeo
