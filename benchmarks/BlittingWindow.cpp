// What moving pictures cost at the least: a window of the main window's size that shows one ready image of
// that size, anew 30 times a second, and does nothing else.

#include <QApplication>
#include <QPainter>
#include <QTimerEvent>
#include <QWidget>

namespace
{

constexpr QSize windowSize(900, 680);
constexpr int frameMilliseconds = 33;

class BlittingWindow final : public QWidget
{
public:
    BlittingWindow() : m_image(windowSize, QImage::Format_RGB32)
    {
        setAttribute(Qt::WA_OpaquePaintEvent);
        resize(windowSize);
        m_image.fill(Qt::lightGray);
        startTimer(frameMilliseconds, Qt::PreciseTimer);
    }

protected:
    void timerEvent(QTimerEvent*) override { update(); }
    void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, m_image); }

private:
    QImage m_image;
};

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    BlittingWindow window;
    window.show();
    return QApplication::exec();
}
