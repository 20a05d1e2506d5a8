#pragma once

#include "ui/sheets/ProfileNameSheet.h"

namespace ardeo
{

/// Asks for another name of a profile.
class RenamePresetSheet final : public ProfileNameSheet
{
    Q_OBJECT

public:
    /// Whoever gets onSave reads the name itself.
    RenamePresetSheet(Observed<Text>& name, std::function<void()> onSave, std::function<void()> onCancel,
                      QWidget* parent);
};

} // namespace ardeo
