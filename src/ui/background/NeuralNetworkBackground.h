#pragma once

#include "platform/Clock.h"

#include <QImage>
#include <QRegion>
#include <QWidget>

#include <functional>

namespace ardeo
{

class Visibility;

/// A slowly drifting network behind a view's content. It lets every click through, and moves only while it
/// can be seen and the user does not want less motion.
class NeuralNetworkBackground final : public QWidget
{
    Q_OBJECT

public:
    /// Nodes that are nearer than maxDist, in points, are linked; speed is that of time.
    NeuralNetworkBackground(Clock& clock, QWidget* parent, double maxDist = 220, double speed = 0.25);

    /// Tells which part is covered by what lies above. Painting that anew for each frame would make the
    /// moving window take four times as much of a core (20 % instead of 5), so it follows twice a second
    /// only.
    void setCovered(std::function<QRegion()> covered);
    /// A frame so strongly blurred that it changes slowly: what shows through a card. It is the same for all
    /// that is painted between two updates of what is covered.
    const QImage& backdrop();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void startOrStop();
    /// Frames are drawn when they are looked at, and where: the cards cover most of it, and to draw all the
    /// same would make the moving window take twice as much of a core (11 % instead of 5).
    const QImage& frame(const QRegion& seen);
    void forgetPicture();
    /// The picture, and the backdrop that is made of it.
    void forgetFrame();

    Clock& m_clock;
    double m_maxDist;
    double m_speed;
    Visibility* m_visibility;
    std::function<QRegion()> m_covered = [] { return QRegion(); };
    QImage m_frame;
    QRegion m_drawn;
    QImage m_backdrop;
    double m_time = 0;
    int m_timer = 0;
    int m_ticks = 0;
};

} // namespace ardeo
