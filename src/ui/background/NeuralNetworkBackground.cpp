#include "ui/background/NeuralNetworkBackground.h"

#include "ui/background/NeuralNetworkDrawing.h"
#include "ui/elements/Style.h"
#include "ui/elements/Visibility.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>

namespace ardeo
{

namespace
{

constexpr int tickMilliseconds = 33;
/// Ticks after which also what lies above is painted anew. Until then the ground that shines through a card
/// has changed by two to five steps of colour of 255 where it changes most.
constexpr int coveredTicks = 18;
/// Points whose average the backdrop keeps, each way.
constexpr int backdropCell = 24;
/// How often it is doubled in size again. Drawn at once, its cells would show.
constexpr int backdropDoublings = 2;

} // namespace

NeuralNetworkBackground::NeuralNetworkBackground(Clock& clock, QWidget* parent, double maxDist, double speed)
    : QWidget(parent)
    , m_clock(clock)
    , m_maxDist(maxDist)
    , m_speed(speed)
    , m_visibility(new Visibility(this))
{
    connect(m_visibility, &Visibility::changed, this, &NeuralNetworkBackground::startOrStop);
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
    const bool moves = m_visibility->isSeen() && look::duration(this, 1) > 0;
    if (moves && m_timer == 0)
        m_timer = startTimer(tickMilliseconds, Qt::PreciseTimer);
    if (!moves)
        killTimer(std::exchange(m_timer, 0));
}

void NeuralNetworkBackground::hideEvent(QHideEvent*)
{
    // Nobody sees it, maybe for days.
    forgetFrame();
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
    forgetPicture();
    if (m_ticks++ % coveredTicks != 0)
        return update(QRegion(rect()) - m_covered());
    m_backdrop = {};
    update();
}

void NeuralNetworkBackground::forgetPicture()
{
    m_frame = {};
    m_drawn = {};
}

void NeuralNetworkBackground::forgetFrame()
{
    forgetPicture();
    m_backdrop = {};
}

const QImage& NeuralNetworkBackground::frame(const QRegion& seen)
{
    if (m_frame.isNull() || !(seen - m_drawn).isEmpty()) {
        m_drawn += seen;
        m_frame = drawNetwork(size(), m_drawn, m_time, m_maxDist, m_speed, look::schemeOf(this),
                              look::colours(this).window);
    }
    return m_frame;
}

const QImage& NeuralNetworkBackground::backdrop()
{
    if (m_backdrop.isNull() && !size().isEmpty()) {
        const auto scaledTo = [](const QImage& image, QSize size) {
            return image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        };
        m_backdrop = scaledTo(frame(rect()), (size() / backdropCell).expandedTo({1, 1}));
        for (int i = 0; i < backdropDoublings; ++i)
            m_backdrop = scaledTo(m_backdrop, m_backdrop.size() * 2);
    }
    return m_backdrop;
}

void NeuralNetworkBackground::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    painter.setClipRegion(event->region());
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.scale(networkCell, networkCell);
    painter.drawImage(0, 0, frame(event->region()));
}

} // namespace ardeo
