#pragma once

#include "platform/Workspace.h"

namespace ardeo
{

/// The running desktop's own tools; where it has none installed, the first one of any desktop that is.
class DesktopWorkspace final : public Workspace
{
public:
    bool open(SystemTool tool) override;
};

} // namespace ardeo
