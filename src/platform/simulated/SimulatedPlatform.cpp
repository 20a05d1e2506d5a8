#include "platform/simulated/SimulatedPlatform.h"

#include "platform/FileReplacement.h"
#include "platform/FileUserDefaults.h"
#include "platform/simulated/SimulatedConfiguration.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <utility>

namespace ardeo
{

namespace
{

/// Grants or refuses as the machine's file says, and prompts nobody.
class SimulatedAuthorization final : public Authorization
{
public:
    explicit SimulatedAuthorization(SimulatedMachine machine) : m_machine(std::move(machine)) {}
    std::optional<AuthorizationRef> create() override { return AuthorizationRef{++m_lastHandle}; }
    bool copyRights(AuthorizationRef, const QString& right, quint32) override
    {
        const auto machine = m_machine.read();
        const bool isKnown = right == QLatin1String(systemNetworkRight) || right == QLatin1String(trialRight);
        return isKnown && machine && flagMember(*machine, "administrator", true);
    }
    void free(AuthorizationRef, quint32) override {}

private:
    SimulatedMachine m_machine;
    quint64 m_lastHandle = 0;
};

/// Registered is that the file is there.
class SimulatedLoginItem final : public LoginItem
{
public:
    explicit SimulatedLoginItem(QString file) : m_file(std::move(file)) {}
    Status status() const override { return QFile::exists(m_file) ? Status::enabled : Status::notRegistered; }
    std::optional<QString> registerItem() override { return replaceFile(m_file, {}); }
    std::optional<QString> unregisterItem() override
    {
        QFile file(m_file);
        return file.remove() ? std::nullopt : std::optional(file.errorString());
    }

private:
    QString m_file;
};

} // namespace

QString defaultSimulatedMachineFile()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    return QStringLiteral("%1/%2/simulated-machine.json").arg(folder, QLatin1String(applicationIdentifier));
}

Platform simulatedPlatform(const QString& machineFile, std::unique_ptr<Clock> clock)
{
    const SimulatedMachine machine(QFileInfo(machineFile).absoluteFilePath());
    machine.seed();
    auto configuration = std::make_unique<SimulatedConfiguration>(machine, *clock);
    Platform platform;
    platform.trouble = [system = configuration.get(), file = machine.file()]() -> std::optional<Trouble> {
        if (system->isReadable())
            return std::nullopt;
        return Trouble{Trouble::Kind::absent,
                       Trouble::tr("The simulated machine's file %1 cannot be read.").arg(file)};
    };
    platform.systemConfiguration = std::move(configuration);
    platform.authorization = std::make_unique<SimulatedAuthorization>(machine);
    platform.loginItem = std::make_unique<SimulatedLoginItem>(machine.file() + QStringLiteral(".login-item"));
    platform.userDefaults =
        std::make_unique<FileUserDefaults>(QDir(machine.file() + QStringLiteral(".defaults")));
    platform.clock = std::move(clock);
    platform.description = Trouble::tr("simulated machine (%1)").arg(machine.file());
    return platform;
}

} // namespace ardeo
