#pragma once

#include "ui/NeuralNetworkBackground.h"

#include <QVBoxLayout>

namespace ardeo
{

/// A titled, rounded container that lets the ground below it shine through.
class Card final : public QWidget
{
    Q_OBJECT

public:
    /// trailingView stands at the right end of the header and may be null; content fills the card.
    Card(const QString& title, const QString& systemImage, QWidget* trailingView, QWidget* content,
         QWidget* parent = nullptr);

    /// What shines through; null for none.
    void setBackground(NeuralNetworkBackground* background) { m_background = background; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    NeuralNetworkBackground* m_background = nullptr;
};

} // namespace ardeo
