#include "app/Ardeo_IPConfigApp.h"
#include "app/DesktopFilePanels.h"
#include "platform/linux/SystemChoice.h"

#include <QCommandLineParser>

#include <cstdio>
#include <cstdlib>

using namespace ardeo;

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
    platform.filePanels = std::make_unique<DesktopFilePanels>();
    if (parser.isSet(version)) {
        std::printf("ardeo-ip-config %s on %s\n", ARDEO_VERSION, platform.description.toUtf8().constData());
        return 0;
    }
    Ardeo_IPConfigApp app(platform);
    app.showMainWindow();
    const int status = QApplication::exec();
    // Every change has been saved when it was made, and an operation that still runs must not hold up the
    // end.
    std::fflush(stdout);
    std::_Exit(status);
}
