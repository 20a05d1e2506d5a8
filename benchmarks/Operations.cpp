// Works on this computer's NetworkManager as the programs do, without their windows: does what each line of
// standard input says, its words separated by tabs, and answers with how long that took in milliseconds and
// with what came of it.
//   list                                  the number of services
//   dhcp    SERVICE                       "done", or why not; so does
//   static  SERVICE ADDRESS MASK ROUTER

#include "backend/AuthorizationService.h"
#include "backend/Errors.h"
#include "backend/NetworkConfigService.h"
#include "platform/linux/program/LinuxPlatform.h"

#include <QCoreApplication>
#include <QElapsedTimer>

#include <cstdio>
#include <iostream>

using namespace ardeo;

namespace
{

QString perform(NetworkConfigService& service, AuthorizationService& authorization, const QStringList& words)
{
    if (words.at(0) == QStringLiteral("list"))
        return QString::number(service.listAdapters().result().size());
    NetworkAdapterInfo wanted;
    if (words.at(0) == QStringLiteral("static")) {
        wanted.ipv4Mode = IPv4Mode::manual;
        wanted.ipAddress = words.at(2);
        wanted.subnetMask = words.at(3);
        wanted.router = words.at(4);
    }
    try {
        service.writeConfiguration(words.at(1), wanted, authorization.authorize()).waitForFinished();
    } catch (const DescribedError& error) {
        return error.errorDescription();
    }
    return QStringLiteral("done");
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    Platform platform = linuxPlatform(QCoreApplication::applicationFilePath());
    NetworkConfigService service(*platform.systemConfiguration);
    AuthorizationService authorization(*platform.authorization);
    for (std::string line; std::getline(std::cin, line);) {
        const QStringList words = QString::fromStdString(line).split(u'\t');
        QElapsedTimer timer;
        timer.start();
        const QString outcome = perform(service, authorization, words);
        std::printf("%.3f %s\n", static_cast<double>(timer.nsecsElapsed()) / 1e6, qPrintable(outcome));
        std::fflush(stdout);
    }
    std::fflush(stdout);
    std::_Exit(0);
}
