#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Output.h"
#include "cli/TrialGuard.h"
#include "language/Language.h"
#include "platform/linux/program/SystemChoice.h"

#include <QCoreApplication>

#include <cerrno>
#include <csignal>
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

void printError(const QString& line)
{
    std::fprintf(stderr, "%s\n", line.toUtf8().constData());
}

bool print(const QByteArray& output)
{
    const auto size = static_cast<size_t>(output.size());
    return std::fwrite(output.constData(), 1, size, stdout) == size && std::fflush(stdout) == 0;
}

/// Leaves the platform that the command ran on in platform.
Outcome outcomeOf(const std::variant<Arguments, UsageError>& parsed, bool colour,
                  std::optional<Platform>& platform)
{
    if (const auto* wrong = std::get_if<UsageError>(&parsed))
        return {.status = 2, .output = {}, .error = printable(wrong->message), .changed = false, .model = {}};
    const auto& arguments = std::get<Arguments>(parsed);
    if (arguments.command == Arguments::Command::help)
        return {.status = 0, .output = helpText().toUtf8(), .error = {}, .changed = false, .model = {}};
    platform = platformFor(arguments.system, arguments.stateFile, windowProgram());
    if (arguments.command == Arguments::Command::version) {
        const QString text =
            Console::tr("%1 on %2").arg(QStringLiteral("ardeoctl " ARDEO_VERSION), platform->description) +
            u'\n';
        return {.status = 0, .output = text.toUtf8(), .error = {}, .changed = false, .model = {}};
    }
    return runCommand(arguments, *platform, colour, {printError, print});
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGPIPE, SIG_IGN); // a reader that goes away is told of like a full disk
    QStringList commandLine;
    for (int i = 0; i < argc; ++i)
        commandLine << QString::fromLocal8Bit(argv[i]);
    const QCoreApplication application(argc, argv);
    // Before there are two processes, for both say something. What is for programs is in English.
    std::optional<Language> language;
    if (!commandLine.contains(QStringLiteral("--json")))
        language.emplace();
    const auto parsed = parseArguments(commandLine);
    const auto* arguments = std::get_if<Arguments>(&parsed);
    std::optional<TrialGuard> guard;
    if (arguments && arguments->confirmWithin)
        guard.emplace();
    const bool colour = isatty(STDOUT_FILENO) != 0 && qEnvironmentVariableIsEmpty("NO_COLOR");
    std::optional<Platform> platform;
    const Outcome outcome = outcomeOf(parsed, colour, platform);
    if (!outcome.error.isEmpty())
        printError(outcome.error);
    const bool written = print(outcome.output) && std::ferror(stdout) == 0;
    if (!written)
        printError(Console::tr("Cannot write the output: %1.").arg(qt_error_string(errno)));
    if (guard && outcome.changed)
        guard->watch(outcome.model);
    // The model has a look at the network scheduled for three seconds after a change, and clears away what it
    // has read; nobody waits for either here.
    std::_Exit(written || outcome.changed ? outcome.status : 1);
}
