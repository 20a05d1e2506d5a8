#pragma once

#include "ui/sheets/ProfileNameSheet.h"

namespace ardeo
{

/// Asks for the name of a new profile.
class SavePresetSheet final : public ProfileNameSheet
{
    Q_OBJECT

public:
    /// onSave gets the name exactly as it was typed.
    SavePresetSheet(Observed<Text>& name, std::function<void(Text)> onSave, std::function<void()> onCancel,
                    QWidget* parent);
};

} // namespace ardeo
