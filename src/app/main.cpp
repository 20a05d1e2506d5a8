#include "app/Appearance.h"
#include "app/Ardeo_IPConfigApp.h"
#include "app/DesktopFilePanels.h"
#include "app/MenuBarExtra.h"
#include "platform/linux/DesktopApplication.h"
#include "platform/linux/DesktopWorkspace.h"
#include "platform/linux/SystemChoice.h"
#include "ui/Symbol.h"

#include <QApplication>
#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

using namespace ardeo;
using namespace std::chrono_literals;

namespace
{

constexpr auto settlingTime = 100ms;

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Ardeo IP Config"));
    QApplication::setApplicationVersion(QStringLiteral(ARDEO_VERSION));
    QApplication::setDesktopFileName(QLatin1String(applicationIdentifier));

    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Switches the IPv4 and DNS settings of this computer's network services."));
    parser.addHelpOption();
    const QCommandLineOption version({QStringLiteral("v"), QStringLiteral("version")},
                                     QStringLiteral("Says the version and the system."));
    const QCommandLineOption system(
        QStringLiteral("system"), QStringLiteral("The system to work on: auto, networkmanager or simulated."),
        QStringLiteral("SYSTEM"), QStringLiteral("auto"));
    const QCommandLineOption state(QStringLiteral("state"), QStringLiteral("The simulated machine's file."),
                                   QStringLiteral("FILE"));
    parser.addOptions({version, system, state});
    parser.process(application);

    const auto choice = systemChoiceFromText(parser.value(system));
    if (!choice) {
        std::fputs("--system is auto, networkmanager or simulated.\n", stderr);
        return 2;
    }
    const auto file = parser.isSet(state) ? std::optional(parser.value(state)) : std::nullopt;
    Platform platform = platformFor(*choice, file, QApplication::applicationFilePath());
    if (parser.isSet(version)) {
        std::printf("ardeo-ip-config %s on %s\n", ARDEO_VERSION, platform.description.toUtf8().constData());
        return 0;
    }

    DesktopApplication desktopApplication;
    switch (desktopApplication.claim()) {
    case DesktopApplication::Claim::granted:
        break;
    case DesktopApplication::Claim::handedOver:
        return 0;
    case DesktopApplication::Claim::unanswered:
        std::fputs("Ardeo IP Config is running already, but does not answer.\n", stderr);
        return 1;
    }
    platform.filePanels = std::make_unique<DesktopFilePanels>();
    platform.workspace = std::make_unique<DesktopWorkspace>();

    const Appearance appearance;
    Ardeo_IPConfigApp app(platform);
    QObject::connect(&desktopApplication, &DesktopApplication::activated, &desktopApplication,
                     [&app] { app.appDelegate.showMainWindow(); });
    app.appDelegate.applicationDidFinishLaunching();

    // What the first window does not need waits until that is up.
    std::optional<MenuBarMenuView> menu;
    std::optional<MenuBarExtra> menuBarExtra;
    platform.clock->sleep(settlingTime).then(&application, [&] {
        QApplication::setWindowIcon(applicationIcon());
        menu.emplace(*app.vm, app.appDelegate, app.notifications, platform);
        menuBarExtra.emplace(*menu, app.appDelegate, *platform.clock,
                             QStringLiteral("Ardeo IP Config on %1").arg(platform.description));
        app.appDelegate.hasMenuBarExtra = [&menuBarExtra] { return menuBarExtra->isPresent(); };
    });
    const int status = QApplication::exec();
    // Every change has been saved when it was made, and an operation that still runs must not hold up the
    // end.
    std::fflush(stdout);
    std::_Exit(status);
}
