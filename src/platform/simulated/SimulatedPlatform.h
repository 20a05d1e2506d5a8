#pragma once

#include "platform/Platform.h"

namespace ardeo
{

/// Where the simulated machine is kept unless somebody says otherwise.
QString defaultSimulatedMachineFile();

/// A machine that lives in one file, seeded when the file is not there yet. The user's preferences and the
/// login item of that machine are kept in a file and a folder beside it, so that nothing of the real user is
/// touched. Clock is the real machine's.
Platform simulatedPlatform(const QString& machineFile, std::unique_ptr<Clock> clock);

} // namespace ardeo
