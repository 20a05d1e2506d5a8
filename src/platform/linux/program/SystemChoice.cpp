#include "platform/linux/program/SystemChoice.h"

#include "platform/linux/program/BootTimeClock.h"
#include "platform/linux/program/LinuxPlatform.h"
#include "platform/simulated/SimulatedPlatform.h"

namespace ardeo
{

namespace
{

/// The trouble as it is told to somebody who let us choose the system.
std::optional<Trouble> withAdvice(std::optional<Trouble> trouble)
{
    if (trouble && trouble->kind == Trouble::Kind::absent)
        trouble->sentence =
            Trouble::tr("NetworkManager is not running; --system=simulated works without it.");
    return trouble;
}

} // namespace

std::optional<SystemChoice> systemChoiceFromText(const QString& text)
{
    if (text == QStringLiteral("auto"))
        return SystemChoice::automatic;
    if (text == QStringLiteral("networkmanager"))
        return SystemChoice::networkManager;
    return text == QStringLiteral("simulated") ? std::optional(SystemChoice::simulated) : std::nullopt;
}

Platform platformFor(SystemChoice choice, const std::optional<QString>& simulatedMachineFile,
                     const QString& program)
{
    if (choice == SystemChoice::simulated) {
        return simulatedPlatform(simulatedMachineFile.value_or(defaultSimulatedMachineFile()),
                                 std::make_unique<BootTimeClock>());
    }
    Platform platform = linuxPlatform(program);
    if (choice == SystemChoice::automatic)
        platform.trouble = [ask = platform.trouble] { return withAdvice(ask()); };
    return platform;
}

} // namespace ardeo
