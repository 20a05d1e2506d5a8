#pragma once

#include "ui/background/NeuralNetworkBackground.h"

namespace ardeo
{

/// A page of fixed width that scrolls over the drifting network, which shines through its panels.
class BackgroundPage : public QWidget
{
    Q_OBJECT

protected:
    /// Width and padding in points.
    BackgroundPage(Clock& clock, int width, int padding, QWidget* parent);

    /// Puts the content into the page.
    void setContent(QWidget* content);

    void resizeEvent(QResizeEvent* event) override;

private:
    QRegion covered() const;

    int m_padding;
    NeuralNetworkBackground* m_background;
};

} // namespace ardeo
