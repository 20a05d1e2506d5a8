#pragma once

#include "platform/Platform.h"

namespace ardeo
{

/// Which system the program works on.
enum class SystemChoice { automatic, networkManager, simulated };

/// The choice behind "auto", "networkmanager" or "simulated"; none for any other text.
std::optional<SystemChoice> systemChoiceFromText(const QString& text);

/// The chosen platform. The file is the simulated machine's, none for its usual place; the program is what
/// starting at login starts. Automatic is NetworkManager, with advice where that is not running.
Platform platformFor(SystemChoice choice, const std::optional<QString>& simulatedMachineFile,
                     const QString& program);

} // namespace ardeo
