#include "app/Appearance.h"
#include "app/Ardeo_IPConfigApp.h"
#include "app/DesktopFilePanels.h"
#include "app/MenuBarExtra.h"
#include "language/Language.h"
#include "platform/linux/desktop/DesktopApplication.h"
#include "platform/linux/desktop/DesktopWorkspace.h"
#include "platform/linux/desktop/RemoteSession.h"
#include "platform/linux/program/SystemChoice.h"
#include "ui/elements/Symbol.h"

#include <QApplication>
#include <QCommandLineParser>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>

using namespace ardeo;

namespace
{

/// Gives the translations of what is said before there is a window their place.
struct Program {
    Q_DECLARE_TR_FUNCTIONS(ardeo::Program)
};

/// Says it to whoever started the program.
void say(std::FILE* stream, const QString& line)
{
    std::fprintf(stream, "%s\n", line.toUtf8().constData());
}

/// Whether an argument asks for the help or the version, which need no display.
bool asksForText(int argc, char** argv)
{
    static constexpr std::array options{"-h", "--help", "--help-all", "-v", "--version"};
    return std::any_of(argv + 1, argv + argc, [](const char* argument) {
        return std::ranges::find(options, std::string_view(argument)) != options.end();
    });
}

/// Ends when the session does. The toolkit's own way to quit asks the windows, of which the main one refuses.
class Application final : public QApplication
{
public:
    using QApplication::QApplication;

protected:
    bool event(QEvent* event) override
    {
        if (event->type() != QEvent::Quit)
            return QApplication::event(event);
        ardeo::quit();
        return true;
    }
};

} // namespace

int main(int argc, char** argv)
{
    DesktopApplication desktopApplication;
    std::unique_ptr<QCoreApplication> application;
    const bool isText = argc > 1 && asksForText(argc, argv);
    if (isText)
        application = std::make_unique<QCoreApplication>(argc, argv);
    else
        application = std::make_unique<Application>(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Ardeo IP Config"));
    QCoreApplication::setApplicationVersion(QStringLiteral(ARDEO_VERSION));
    QGuiApplication::setDesktopFileName(QLatin1String(applicationIdentifier));

    const Language language;
    if (!isText)
        QGuiApplication::setLayoutDirection(language.locale().textDirection());

    QCommandLineParser parser;
    parser.setApplicationDescription(
        Program::tr("Switches the IPv4 and DNS settings of this computer's network services."));
    parser.addHelpOption();
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     Program::tr("Says the version and the system."));
    const QCommandLineOption system(QStringLiteral("system"),
                                    Program::tr("The system to work on: auto, networkmanager or simulated."),
                                    QStringLiteral("SYSTEM"), QStringLiteral("auto"));
    const QCommandLineOption state(QStringLiteral("state"), Program::tr("The simulated machine's file."),
                                   QStringLiteral("FILE"));
    parser.addOptions({version, system, state});
    parser.process(*application);

    const auto choice = systemChoiceFromText(parser.value(system));
    if (!choice) {
        say(stderr, Program::tr("--system is auto, networkmanager or simulated."));
        return 2;
    }
    const auto file = parser.isSet(state) ? std::optional(parser.value(state)) : std::nullopt;
    Platform platform = platformFor(*choice, file, QCoreApplication::applicationFilePath());
    if (parser.isSet(version)) {
        say(stdout, Program::tr("%1 on %2")
                        .arg(QStringLiteral("ardeo-ip-config " ARDEO_VERSION), platform.description));
        return 0;
    }
    if (isText) {
        say(stderr, Program::tr("An option's value that is an option's name is written with =."));
        return 2;
    }

    switch (desktopApplication.claim()) {
    case DesktopApplication::Claim::granted:
        break;
    case DesktopApplication::Claim::handedOver:
        return 0;
    case DesktopApplication::Claim::unanswered:
        say(stderr, Program::tr("Ardeo IP Config is running already, but does not answer."));
        return 1;
    }
    platform.filePanels = std::make_unique<DesktopFilePanels>();
    platform.workspace = std::make_unique<DesktopWorkspace>();
    if (*choice != SystemChoice::simulated)
        platform.remoteInterface = [] { return remoteInterface(QDBusConnection::systemBus()); };

    const Appearance appearance;
    Ardeo_IPConfigApp app(platform);
    QObject::connect(&desktopApplication, &DesktopApplication::activated, &desktopApplication,
                     [&app] { app.appDelegate.showMainWindow(); });
    app.appDelegate.applicationDidFinishLaunching();

    QApplication::setWindowIcon(applicationIcon());
    MenuBarMenuView menu(*app.vm, app.appDelegate, app.notifications, platform);
    const MenuBarExtra menuBarExtra(menu, app.appDelegate,
                                    Program::tr("Ardeo IP Config on %1").arg(platform.description));
    app.appDelegate.hasMenuBarExtra = [&menuBarExtra] { return menuBarExtra.isPresent(); };
    const int status = QApplication::exec();
    // Every change has been saved when it was made, and an operation that still runs must not hold up the
    // end.
    std::fflush(stdout);
    std::_Exit(status);
}
