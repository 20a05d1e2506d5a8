#pragma once

namespace ardeo
{

/// The system's own programs that ours leads to.
enum class SystemTool { networkSettings, activityMonitor };

/// Opens what belongs to the system. Main thread.
class Workspace
{
public:
    virtual ~Workspace() = default;
    /// Starts the tool, or brings it to the front; false where the system has none that could be started.
    virtual bool open(SystemTool tool) = 0;
};

} // namespace ardeo
