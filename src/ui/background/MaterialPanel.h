#pragma once

#include "ui/background/NeuralNetworkBackground.h"
#include "ui/elements/Style.h"

#include <functional>

namespace ardeo
{

/// A rounded panel that lets the ground below it shine through, with a thin border inside its edge.
class MaterialPanel : public QWidget
{
    Q_OBJECT

public:
    using Border = std::function<QColor(const Colours&)>;

    /// The radius is in points.
    MaterialPanel(double radius, Border border, QWidget* parent = nullptr);

    /// What shines through; null for none.
    void setBackground(NeuralNetworkBackground* background) { m_background = background; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    double m_radius;
    Border m_border;
    NeuralNetworkBackground* m_background = nullptr;
};

} // namespace ardeo
