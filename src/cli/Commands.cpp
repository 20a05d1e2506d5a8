#include "cli/Commands.h"

#include "backend/Errors.h"
#include "cli/Output.h"

#include <QFile>

#include <algorithm>

namespace ardeo
{

namespace
{

using Command = Arguments::Command;

/// Thrown to end a command early.
struct Failure {
    Outcome outcome;
};

/// The reason, where there is one, is a line of its own.
[[noreturn]] void fail(const QString& error, const QString& reason = {}, int status = 1)
{
    const QString text = reason.isEmpty() ? printable(error) : printable(error) + u'\n' + printable(reason);
    throw Failure{{.status = status, .output = {}, .error = text, .changed = false, .model = {}}};
}

[[noreturn]] void failUsage(const QString& error)
{
    fail(error, {}, 2);
}

/// One command on its way through the model.
class Run
{
public:
    Run(const Arguments& arguments, Platform& platform, bool colour, std::shared_ptr<MainViewModel> model)
        : m_arguments(arguments)
        , m_platform(platform)
        , m_colour(colour)
        , m_model(std::move(model))
    {
    }

    QByteArray list()
    {
        listServices();
        const auto adapters = m_model->adapters.value();
        return m_arguments.json ? adaptersAsJson(adapters, now())
                                : adaptersAsTable(adapters, now(), m_colour).toUtf8();
    }

    QByteArray show()
    {
        select();
        return shown();
    }

    QByteArray apply()
    {
        const auto preset = namedPreset();
        select();
        if (preset)
            m_model->loadPreset(*preset);
        const auto named = preset ? std::nullopt : std::optional(takeSettings());
        return act(m_model->applyConfiguration(named, m_arguments.confirmWithin));
    }

    QByteArray renew()
    {
        select();
        return act(m_model->renewDHCPLease(m_arguments.confirmWithin));
    }

    QByteArray setEnabled(bool enabled)
    {
        select();
        return act(m_model->setAdapterEnabled(enabled, m_arguments.confirmWithin));
    }

    QByteArray endTrials(bool keep)
    {
        listServices();
        const QList<AdapterInfo> adapters = m_model->adapters.value();
        if (!m_arguments.service.isEmpty())
            named(adapters);
        QByteArray output;
        for (const AdapterInfo& adapter : adapters) {
            const bool isMeant =
                m_arguments.service.isEmpty() || adapter.serviceName == Text(m_arguments.service);
            if (!adapter.confirmBy || !isMeant)
                continue;
            QCoro::waitFor(m_model->selectAdapter(adapter));
            output += act(m_model->endTrial(keep));
        }
        if (output.isEmpty())
            fail(QStringLiteral("No change awaits confirmation."));
        return output;
    }

    QByteArray profiles()
    {
        throwIfUnreadable();
        const auto& presets = m_model->presetStore.presets();
        return m_arguments.json ? encoded() + '\n' : presetsAsTable(presets, m_colour).toUtf8();
    }

    QByteArray exportProfiles()
    {
        throwIfUnreadable();
        const QByteArray bytes = encoded();
        QFile file(m_arguments.file);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
            fail(QStringLiteral("Cannot write %1: %2.").arg(m_arguments.file, file.errorString()));
        return {};
    }

private:
    void throwTrouble() const
    {
        if (const auto trouble = m_platform.trouble())
            fail(trouble->sentence);
    }

    void throwIfUnreadable() const
    {
        if (m_model->presetStore.isUnreadable())
            fail(QStringLiteral("The saved profiles cannot be read."));
    }

    void listServices()
    {
        QCoro::waitFor(m_model->refreshAdapters());
        throwTrouble();
    }

    /// The service that the command line names.
    AdapterInfo named(const QList<AdapterInfo>& adapters) const
    {
        const auto service =
            std::ranges::find(adapters, Text(m_arguments.service), &AdapterInfo::serviceName);
        if (service == adapters.end())
            fail(ConfigError::serviceNotFound(m_arguments.service).errorDescription());
        return *service;
    }

    /// Selects the named service and reads it. What is read here is what an apply leaves as it is, so a read
    /// that failed must not pass for an empty configuration.
    void select()
    {
        listServices();
        QCoro::waitFor(m_model->selectAdapter(named(m_model->adapters.value())));
        throwTrouble();
    }

    std::optional<NetworkPreset> namedPreset() const
    {
        if (!m_arguments.profile)
            return std::nullopt;
        throwIfUnreadable();
        const auto& presets = m_model->presetStore.presets();
        const Text name(*m_arguments.profile);
        const auto count = std::ranges::count(presets, name, &NetworkPreset::name);
        if (count == 0)
            failUsage(QStringLiteral("There is no profile '%1'.").arg(*m_arguments.profile));
        if (count > 1)
            failUsage(QStringLiteral("%1 profiles are named '%2'.").arg(count).arg(*m_arguments.profile));
        return *std::ranges::find(presets, name, &NetworkPreset::name);
    }

    /// Takes what the command line names into the form, and returns what that is.
    Settings takeSettings()
    {
        Settings named = takeAddress();
        if (m_arguments.automaticDNS) {
            m_model->dnsMode = DNSMode::automatic;
            named |= Settings(Setting::dnsServers) | Setting::searchDomains;
        }
        if (m_arguments.dns) {
            m_model->dnsMode = DNSMode::manual;
            m_model->primaryDNS = m_arguments.dns->value(0);
            m_model->alternateDNS = m_arguments.dns->value(1);
            named |= Setting::dnsServers;
        }
        if (m_arguments.search) {
            if (m_model->dnsMode.value() == DNSMode::automatic && !m_arguments.search->trimmed().isEmpty())
                failUsage(QStringLiteral("--search needs --dns: automatic DNS keeps no search domains."));
            m_model->searchDomains = *m_arguments.search;
            named |= Setting::searchDomains;
        }
        return named;
    }

    Settings takeAddress()
    {
        const bool wasManual = m_model->ipv4Mode.value() == IPv4Mode::manual;
        Settings named;
        if (m_arguments.dhcp) {
            m_model->ipv4Mode = IPv4Mode::dhcp;
            named |= Setting::ipv4Mode;
        }
        if (m_arguments.address) {
            m_model->ipv4Mode = IPv4Mode::manual;
            m_model->ipAddress = *m_arguments.address;
            m_model->subnetMask = m_arguments.mask.value_or(QString());
            // Beside a manual address the gateway that the network gave is kept as one of the service's own.
            named |= Settings(Setting::ipv4Mode) | Setting::address;
            named.setFlag(Setting::router, !wasManual);
        }
        if (m_arguments.router) {
            if (m_model->ipv4Mode.value() == IPv4Mode::dhcp)
                failUsage(QStringLiteral("--router needs --address and --mask."));
            m_model->router = *m_arguments.router;
            named |= Setting::router;
        }
        return named;
    }

    QByteArray act(QCoro::Task<> action)
    {
        QCoro::waitFor(action);
        if (const auto error = m_model->applyError.value()) {
            const auto fault = m_model->applyFault.value();
            fail(*error, fault ? fault->reason : QString());
        }
        throwTrouble();
        return shown();
    }

    QByteArray shown() const
    {
        const auto configuration = m_model->currentConfig.value();
        const auto adapter = m_model->selectedAdapter.value().value_or(AdapterInfo());
        return m_arguments.json ? configurationAsJson(configuration)
                                : configurationAsTable(adapter, configuration, now(), m_colour).toUtf8();
    }

    std::chrono::nanoseconds now() const { return m_platform.clock->continuousTime(); }

    QByteArray encoded() const
    {
        const auto bytes = encodePresets(m_model->presetStore.presets());
        if (!bytes)
            fail(QStringLiteral("A profile holds text that is not valid Unicode."));
        return *bytes;
    }

    const Arguments& m_arguments;
    Platform& m_platform;
    bool m_colour;
    std::shared_ptr<MainViewModel> m_model;
};

bool isChange(Command command)
{
    return command == Command::apply || command == Command::renew || command == Command::enable ||
           command == Command::disable || command == Command::confirm || command == Command::undo;
}

QByteArray outputOf(const Arguments& arguments, Run run)
{
    switch (arguments.command) {
    case Command::list:
        return run.list();
    case Command::show:
        return run.show();
    case Command::apply:
        return run.apply();
    case Command::renew:
        return run.renew();
    case Command::enable:
        return run.setEnabled(true);
    case Command::disable:
        return run.setEnabled(false);
    case Command::confirm:
        return run.endTrials(true);
    case Command::undo:
        return run.endTrials(false);
    case Command::profiles:
        return run.profiles();
    case Command::exportProfiles:
        return run.exportProfiles();
    case Command::help:
    case Command::version:
        break;
    }
    return {};
}

} // namespace

Outcome runCommand(const Arguments& arguments, Platform& platform, bool colour,
                   const std::function<void(const QString&)>& tell)
{
    const auto model = MainViewModel::create(platform);
    const auto waiting = model->waitsFor.subscribe([&] {
        if (const auto holder = model->waitsFor.value())
            tell(waitingDescription(*holder));
    });
    Outcome outcome;
    try {
        outcome.output = outputOf(arguments, Run(arguments, platform, colour, model));
        outcome.changed = isChange(arguments.command);
    } catch (const Failure& failure) {
        outcome = failure.outcome;
    }
    outcome.model = model;
    return outcome;
}

} // namespace ardeo
