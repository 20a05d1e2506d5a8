#pragma once

#include "model/MainViewModel.h"
#include "ui/background/Card.h"

namespace ardeo
{

/// The form with the settings to apply, and what came of applying them.
class ProfilePropertiesCard final : public Card
{
    Q_OBJECT

public:
    explicit ProfilePropertiesCard(MainViewModel& vm, QWidget* parent = nullptr);

private:
    QPropertyNotifier m_maskDefault;
};

} // namespace ardeo
