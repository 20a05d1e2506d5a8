#pragma once

#include "ui/background/MaterialPanel.h"

namespace ardeo
{

/// A titled, rounded container that lets the ground below it shine through.
class Card : public MaterialPanel
{
    Q_OBJECT

public:
    /// trailingView stands at the right end of the header and may be null; content fills the card.
    Card(const QString& title, const QString& systemImage, QWidget* trailingView, QWidget* content,
         QWidget* parent = nullptr);
};

} // namespace ardeo
