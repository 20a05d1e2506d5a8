#pragma once

#include "platform/FilePanels.h"

namespace ardeo
{

/// The desktop's own file panels: its portal's, or else what the toolkit shows.
class DesktopFilePanels final : public FilePanels
{
public:
    std::optional<QString> askWhereToSave(const QString& proposedName, const QString& message) override;
    std::optional<QString> askWhatToOpen(const QString& message) override;
};

} // namespace ardeo
