#pragma once

#include "platform/Workspace.h"

namespace ardeo
{

/// Opens the system's network settings; that none could be opened goes unreported.
inline void openNetworkSettings(Workspace& workspace)
{
    workspace.open(SystemTool::networkSettings);
}

/// Opens the system's view of what is running; that none could be opened goes unreported.
inline void openActivityMonitor(Workspace& workspace)
{
    workspace.open(SystemTool::activityMonitor);
}

} // namespace ardeo
