#include "cli/Arguments.h"

#include "cli/Output.h"

#include <QCommandLineParser>
#include <QHash>

namespace ardeo
{

namespace
{

using Command = Arguments::Command;

struct CommandForm {
    Command command;
    /// What the command takes after its name; empty when nothing, and in brackets when it may be left out.
    QString argument;
    QStringList options;
};

const QString confirmWithinOption = QStringLiteral("confirm-within");

constexpr std::chrono::seconds shortestTrial(5);
constexpr std::chrono::seconds longestTrial(3600);

const QString dryRunOption = QStringLiteral("dry-run");
const QString profilesOption = QStringLiteral("profiles");

const QStringList applyOptions{
    QStringLiteral("dhcp"), QStringLiteral("address"), QStringLiteral("mask"),    QStringLiteral("router"),
    QStringLiteral("dns"),  QStringLiteral("search"),  QStringLiteral("profile"), profilesOption,
    dryRunOption,           QStringLiteral("json"),    confirmWithinOption,
};

const QHash<QString, CommandForm> commandForms{
    {QStringLiteral("list"), {Command::list, {}, {QStringLiteral("json")}}},
    {QStringLiteral("show"), {Command::show, QStringLiteral("SERVICE"), {QStringLiteral("json")}}},
    {QStringLiteral("apply"), {Command::apply, QStringLiteral("SERVICE"), applyOptions}},
    {QStringLiteral("renew"), {Command::renew, QStringLiteral("SERVICE"), {confirmWithinOption}}},
    {QStringLiteral("enable"), {Command::enable, QStringLiteral("SERVICE"), {confirmWithinOption}}},
    {QStringLiteral("disable"), {Command::disable, QStringLiteral("SERVICE"), {confirmWithinOption}}},
    {QStringLiteral("confirm"), {Command::confirm, QStringLiteral("[SERVICE]"), {}}},
    {QStringLiteral("undo"), {Command::undo, QStringLiteral("[SERVICE]"), {}}},
    {QStringLiteral("watch"), {Command::watch, {}, {QStringLiteral("json")}}},
    {QStringLiteral("profiles"), {Command::profiles, {}, {QStringLiteral("json")}}},
    {QStringLiteral("profiles export"), {Command::exportProfiles, QStringLiteral("FILE"), {}}},
};

/// Reads what follows the command's name; the error's text is empty when all is well.
QString takeWords(Arguments& arguments, QString& name, QStringList words)
{
    if (words.isEmpty())
        return Console::tr("A command is missing; see ardeoctl --help.");
    name = words.takeFirst();
    if (name == QStringLiteral("profiles") && words.value(0) == QStringLiteral("export"))
        name += u' ' + words.takeFirst();
    const auto form = commandForms.constFind(name);
    if (form == commandForms.constEnd())
        return Console::tr("There is no command '%1'; see ardeoctl --help.").arg(name);
    arguments.command = form->command;
    const bool isOptional = form->argument.startsWith(u'[');
    if (!form->argument.isEmpty() && !(isOptional && words.isEmpty())) {
        if (words.isEmpty())
            return Console::tr("'%1' needs a %2.").arg(name, form->argument);
        const QString word = words.takeFirst();
        (form->command == Command::exportProfiles ? arguments.file : arguments.service) = word;
    }
    if (!words.isEmpty())
        return Console::tr("'%1' takes no '%2'.").arg(name, words.first());
    return {};
}

QString takeSystem(Arguments& arguments, const QCommandLineParser& parser)
{
    const auto system = systemChoiceFromText(parser.value(QStringLiteral("system")));
    if (!system)
        return Console::tr("--system is auto, networkmanager or simulated.");
    arguments.system = *system;
    if (parser.isSet(QStringLiteral("state"))) {
        arguments.stateFile = parser.value(QStringLiteral("state"));
        if (arguments.system != SystemChoice::simulated)
            return Console::tr("--state goes with --system=simulated.");
        if (arguments.stateFile->isEmpty())
            return Console::tr("--state needs a file.");
    }
    return {};
}

QString takeSettings(Arguments& arguments, const QCommandLineParser& parser)
{
    const auto valueOf = [&parser](const QString& option) {
        return parser.isSet(option) ? std::optional(parser.value(option)) : std::nullopt;
    };
    arguments.dhcp = parser.isSet(QStringLiteral("dhcp"));
    arguments.address = valueOf(QStringLiteral("address"));
    arguments.mask = valueOf(QStringLiteral("mask"));
    arguments.router = valueOf(QStringLiteral("router"));
    arguments.search = valueOf(QStringLiteral("search"));
    arguments.profile = valueOf(QStringLiteral("profile"));
    arguments.profilesFile = valueOf(profilesOption);
    arguments.dryRun = parser.isSet(dryRunOption);
    if (const auto time = valueOf(confirmWithinOption)) {
        bool isNumber = false;
        arguments.confirmWithin = std::chrono::seconds(time->toInt(&isNumber));
        if (!isNumber || *arguments.confirmWithin < shortestTrial || *arguments.confirmWithin > longestTrial)
            return Console::tr("--confirm-within takes 5 to 3600 seconds.");
    }
    if (const auto dns = valueOf(QStringLiteral("dns"))) {
        arguments.automaticDNS = *dns == QStringLiteral("auto");
        if (!arguments.automaticDNS)
            arguments.dns = dns->split(u',');
    }

    const bool addressed = arguments.address || arguments.mask;
    if (arguments.profile && (arguments.dhcp || addressed || arguments.router || arguments.search ||
                              parser.isSet(QStringLiteral("dns"))))
        return Console::tr("--profile brings all settings along and takes no others beside it.");
    if (arguments.profilesFile && !arguments.profile)
        return Console::tr("--profiles needs --profile.");
    if (arguments.dryRun && arguments.confirmWithin)
        return Console::tr("--dry-run changes nothing, and takes no --confirm-within.");
    if (arguments.dhcp && (addressed || arguments.router))
        return Console::tr("--dhcp takes no --address, --mask or --router.");
    if (addressed && !(arguments.address && arguments.mask))
        return Console::tr("A manual address takes both --address and --mask.");
    if (arguments.dns && arguments.dns->size() > 2)
        return Console::tr("--dns takes two servers at most.");
    if (arguments.automaticDNS && arguments.search && !arguments.search->trimmed().isEmpty())
        return Console::tr("--search needs DNS servers of its own: automatic DNS keeps no search domains.");
    return {};
}

/// A part of the help: a heading, and lines of what is typed and what that does.
QString helpSection(const QString& heading, std::initializer_list<std::pair<const char*, QString>> lines)
{
    constexpr int width = 28;
    QStringList text{heading};
    for (const auto& [form, meaning] : lines) {
        if (QLatin1String(form).size() <= width)
            text << QStringLiteral("  %1  ").arg(QLatin1String(form), -width) + meaning;
        else
            text << QStringLiteral("  ") + QLatin1String(form) << QString(width + 4, u' ') + meaning;
    }
    return text.join(u'\n');
}

} // namespace

std::variant<Arguments, UsageError> parseArguments(const QStringList& commandLine)
{
    const QString text = QStringLiteral("TEXT");
    QCommandLineParser parser;
    parser.addOptions({
        {QStringLiteral("system"), {}, text, QStringLiteral("auto")},
        {QStringLiteral("state"), {}, text},
        {QStringLiteral("json"), {}},
        {QStringLiteral("dhcp"), {}},
        {QStringLiteral("address"), {}, text},
        {QStringLiteral("mask"), {}, text},
        {QStringLiteral("router"), {}, text},
        {QStringLiteral("dns"), {}, text},
        {QStringLiteral("search"), {}, text},
        {QStringLiteral("profile"), {}, text},
        {profilesOption, {}, text},
        {dryRunOption, {}},
        {confirmWithinOption, {}, text},
        {{QStringLiteral("h"), QStringLiteral("help")}, {}},
        {{QStringLiteral("v"), QStringLiteral("version")}, {}},
    });
    if (!parser.parse(commandLine))
        return UsageError{parser.errorText()};

    Arguments arguments;
    QString error = takeSystem(arguments, parser);
    if (!error.isEmpty())
        return UsageError{error};
    if (parser.isSet(QStringLiteral("help")))
        return arguments;
    if (parser.isSet(QStringLiteral("version"))) {
        arguments.command = Command::version;
        return arguments;
    }
    QString name;
    error = takeWords(arguments, name, parser.positionalArguments());
    if (!error.isEmpty())
        return UsageError{error};
    const QStringList allowed = commandForms.value(name).options;
    for (const QString& option : applyOptions) {
        if (parser.isSet(option) && !allowed.contains(option))
            return UsageError{Console::tr("'%1' takes no --%2.").arg(name, option)};
    }
    arguments.json = parser.isSet(QStringLiteral("json"));
    error = takeSettings(arguments, parser);
    if (!error.isEmpty())
        return UsageError{error};
    return arguments;
}

QString helpText()
{
    const QString separator = QStringLiteral("\n\n");
    return Console::tr("Usage: ardeoctl [--system=SYSTEM] [--state=FILE] COMMAND") + separator +
           Console::tr("Switches the IPv4 and DNS settings of this computer's network services.") +
           separator +
           helpSection(
               Console::tr("Commands:"),
               {
                   {"list [--json]", Console::tr("the network services, connected ones first")},
                   {"show SERVICE [--json]", Console::tr("the settings and the state of one service")},
                   {"apply SERVICE [SETTINGS]",
                    Console::tr("change a service; what is not named keeps its present value")},
                   {"apply SERVICE --profile=NAME [--profiles=FILE]",
                    Console::tr(
                        "the same with the settings of a saved profile, or of one that was exported")},
                   {"renew SERVICE", Console::tr("put the service on DHCP and take a new lease")},
                   {"enable SERVICE", Console::tr("switch the service on")},
                   {"disable SERVICE", Console::tr("switch the service off, and keep it off")},
                   {"watch [--json]",
                    Console::tr("one line for each change of a service, until it is ended")},
                   {"confirm [SERVICE]",
                    Console::tr("keep what was changed on trial, of one service or of all")},
                   {"undo [SERVICE]", Console::tr("take it back at once")},
                   {"profiles [--json]", Console::tr("the saved profiles")},
                   {"profiles export FILE", Console::tr("write them to a file")},
               }) +
           separator +
           helpSection(Console::tr("Settings:"),
                       {
                           {"--dhcp", Console::tr("take the address from the network")},
                           {"--address=A --mask=M", Console::tr("a manual address with its dotted mask")},
                           {"--router=R", Console::tr("the gateway of a manual address; --router= for none")},
                           {"--dns=auto", Console::tr("take the DNS servers from the network")},
                           {"--dns=A[,B]", Console::tr("DNS servers set by hand")},
                           {"--search=\"D D\"", Console::tr("search domains, with DNS servers set by hand")},
                       }) +
           separator +
           helpSection(
               Console::tr("For scripts (apply):"),
               {
                   {"--dry-run", Console::tr("only say what would change; nobody is asked for a password")},
                   {"--json", Console::tr("whether something has changed, and what")},
               }) +
           separator +
           helpSection(Console::tr("Trial (apply, renew, enable, disable):"),
                       {
                           {"--confirm-within=SECONDS",
                            Console::tr("take the change back by itself unless it is confirmed in time")},
                       }) +
           separator +
           helpSection(Console::tr("Systems:"),
                       {
                           {"--system=auto",
                            Console::tr("NetworkManager, with advice where it is not running (the default)")},
                           {"--system=networkmanager", Console::tr("this computer")},
                           {"--system=simulated", Console::tr("a simulated machine, for trying things out")},
                           {"--state=FILE", Console::tr("the file that the simulated machine lives in")},
                       }) +
           separator +
           Console::tr("Exit status: 0 when done, 1 when it failed (the reason is on standard error), 2 for "
                       "wrong usage.") +
           u'\n';
}

} // namespace ardeo
