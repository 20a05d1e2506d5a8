#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "platform/linux/BootTimeClock.h"
#include "platform/linux/LinuxPlatform.h"
#include "platform/simulated/SimulatedPlatform.h"

#include <QCoreApplication>

#include <cstdio>
#include <cstdlib>
#include <unistd.h>

using namespace ardeo;

namespace
{

/// The console program has no business starting at login; the window program beside it has.
QString windowProgram()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/ardeo-ip-config");
}

/// The trouble as it is told to somebody who let us choose the system.
std::optional<QString> withAdvice(std::optional<QString> trouble)
{
    if (trouble == QStringLiteral("NetworkManager is not running."))
        return QStringLiteral("NetworkManager is not running; --system=simulated works without it.");
    return trouble;
}

Platform platformFor(const Arguments& arguments)
{
    if (arguments.system == Arguments::System::simulated) {
        return simulatedPlatform(arguments.stateFile.value_or(defaultSimulatedMachineFile()),
                                 std::make_unique<BootTimeClock>());
    }
    Platform platform = linuxPlatform(windowProgram());
    if (arguments.system == Arguments::System::automatic) {
        for (auto* question : {&platform.trouble, &platform.probe})
            *question = [ask = *question] { return withAdvice(ask()); };
    }
    return platform;
}

Outcome outcomeOf(const QStringList& commandLine, bool colour)
{
    const auto parsed = parseArguments(commandLine);
    if (const auto* wrong = std::get_if<UsageError>(&parsed))
        return {.status = 2, .output = {}, .error = wrong->message};
    const auto& arguments = std::get<Arguments>(parsed);
    if (arguments.command == Arguments::Command::help)
        return {.status = 0, .output = helpText().toUtf8(), .error = {}};
    Platform platform = platformFor(arguments);
    if (arguments.command == Arguments::Command::version) {
        const QString text =
            QStringLiteral("ardeoctl %1 on %2\n").arg(QStringLiteral(ARDEO_VERSION), platform.description);
        return {.status = 0, .output = text.toUtf8(), .error = {}};
    }
    return runCommand(arguments, platform, colour);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bool colour = isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR");
    const Outcome outcome = outcomeOf(QCoreApplication::arguments(), colour);
    if (!outcome.error.isEmpty())
        std::fprintf(stderr, "%s\n", outcome.error.toUtf8().constData());
    std::fwrite(outcome.output.constData(), 1, static_cast<size_t>(outcome.output.size()), stdout);
    const bool written = std::fflush(stdout) == 0;
    // The model has a look at the network scheduled for three seconds after a change; nobody waits for it
    // here.
    std::_Exit(written ? outcome.status : 1);
}
