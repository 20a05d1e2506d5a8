#pragma once

#include "model/MainViewModel.h"
#include "ui/background/Card.h"

namespace ardeo
{

/// The live state of the selected service, and the button that switches the service on or off.
class AdapterPropertiesCard final : public Card
{
    Q_OBJECT

public:
    /// Switching off only asks for the confirmation.
    AdapterPropertiesCard(MainViewModel& vm, Observed<bool>& showDisableConfirm, QWidget* parent = nullptr);
};

} // namespace ardeo
