#include "ui/sheets/RenamePresetSheet.h"

namespace ardeo
{

RenamePresetSheet::RenamePresetSheet(Observed<Text>& name, std::function<void()> onSave,
                                     std::function<void()> onCancel, QWidget* parent)
    : ProfileNameSheet(name, tr("Rename Profile"), tr("Rename"), std::move(onSave), std::move(onCancel),
                       parent)
{
}

} // namespace ardeo
