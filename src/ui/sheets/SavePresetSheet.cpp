#include "ui/sheets/SavePresetSheet.h"

namespace ardeo
{

SavePresetSheet::SavePresetSheet(Observed<Text>& name, std::function<void(Text)> onSave,
                                 std::function<void()> onCancel, QWidget* parent)
    : ProfileNameSheet(
          name, tr("Save Profile"), tr("Save"), [&name, onSave = std::move(onSave)] { onSave(name.value()); },
          std::move(onCancel), parent)
{
}

} // namespace ardeo
