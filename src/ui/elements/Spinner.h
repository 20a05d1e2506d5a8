#pragma once

#include <QColor>
#include <QWidget>

namespace ardeo
{

/// A sign that something is going on, 16 points wide at scale 1. It turns only while it can be seen.
class Spinner final : public QWidget
{
    Q_OBJECT

public:
    explicit Spinner(double scale, QWidget* parent = nullptr);
    /// An invalid colour stands for the secondary one.
    void setColour(const QColor& colour) { m_colour = colour; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QColor m_colour;
    int m_timer = 0;
    int m_step = 0;
};

} // namespace ardeo
