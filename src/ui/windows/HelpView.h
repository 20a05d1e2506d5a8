#pragma once

#include "ui/background/BackgroundPage.h"

namespace ardeo
{

/// What the program is, what it can do, and how it is used.
class HelpView final : public BackgroundPage
{
    Q_OBJECT

public:
    explicit HelpView(Clock& clock, QWidget* parent = nullptr);
};

} // namespace ardeo
