#include "platform/linux/program/LinuxPlatform.h"

#include "platform/FileUserDefaults.h"
#include "platform/linux/networkmanager/NetworkManagerConfiguration.h"
#include "platform/linux/networkmanager/PolkitAuthorization.h"
#include "platform/linux/program/BootTimeClock.h"
#include "platform/linux/program/XdgLoginItem.h"

#include <QStandardPaths>

namespace ardeo
{

namespace
{

std::optional<Trouble> troubleOf(DaemonPresence presence)
{
    switch (presence) {
    case DaemonPresence::answers:
        return std::nullopt;
    case DaemonPresence::absent:
        return Trouble{Trouble::Kind::absent, Trouble::tr("NetworkManager is not running.")};
    case DaemonPresence::silent:
        return Trouble{Trouble::Kind::silent, Trouble::tr("NetworkManager does not answer.")};
    }
    return std::nullopt;
}

} // namespace

Platform linuxPlatform(const QString& program)
{
    const QDir configuration(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation));
    auto networkManager = std::make_unique<NetworkManagerConfiguration>();
    Platform platform;
    platform.trouble = [system = networkManager.get()] { return troubleOf(system->presence()); };
    platform.systemConfiguration = std::move(networkManager);
    platform.authorization = std::make_unique<PolkitAuthorization>();
    platform.loginItem =
        std::make_unique<XdgLoginItem>(QDir(configuration.filePath(QStringLiteral("autostart"))), program);
    platform.userDefaults = std::make_unique<FileUserDefaults>(
        QDir(configuration.filePath(QLatin1String(applicationIdentifier))));
    platform.clock = std::make_unique<BootTimeClock>();
    platform.description = QStringLiteral("NetworkManager");
    return platform;
}

} // namespace ardeo
