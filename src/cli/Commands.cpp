#include "cli/Commands.h"

#include "backend/Errors.h"
#include "cli/Output.h"
#include "model/MainViewModel.h"

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

[[noreturn]] void fail(const QString& error)
{
    throw Failure{{.status = 1, .output = {}, .error = error, .remains = {}}};
}

[[noreturn]] void failUsage(const QString& error)
{
    throw Failure{{.status = 2, .output = {}, .error = error, .remains = {}}};
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
        return m_arguments.json ? adaptersAsJson(adapters) : adaptersAsTable(adapters, m_colour).toUtf8();
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
        else
            fillForm();
        return act(m_model->applyConfiguration());
    }

    QByteArray renew()
    {
        select();
        return act(m_model->renewDHCPLease());
    }

    QByteArray setEnabled(bool enabled)
    {
        select();
        return act(m_model->setAdapterEnabled(enabled));
    }

    QByteArray profiles()
    {
        throwAbsence();
        const auto& presets = m_model->presetStore.presets();
        return m_arguments.json ? encoded() + '\n' : presetsAsTable(presets, m_colour).toUtf8();
    }

    QByteArray exportProfiles()
    {
        throwAbsence();
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
            fail(*trouble);
    }

    /// For commands that do not ask the system for anything else.
    void throwAbsence() const
    {
        if (const auto trouble = m_platform.probe())
            fail(*trouble);
    }

    void listServices()
    {
        QCoro::waitFor(m_model->refreshAdapters());
        throwTrouble();
    }

    /// Selects the named service and reads it. What is read here is what an apply leaves as it is, so a read
    /// that failed must not pass for an empty configuration.
    void select()
    {
        listServices();
        const auto adapters = m_model->adapters.value();
        const auto named = std::ranges::find(adapters, Text(m_arguments.service), &AdapterInfo::serviceName);
        if (named == adapters.end())
            fail(ConfigError::serviceNotFound(m_arguments.service).errorDescription());
        QCoro::waitFor(m_model->selectAdapter(*named));
        throwTrouble();
    }

    std::optional<NetworkPreset> namedPreset() const
    {
        if (!m_arguments.profile)
            return std::nullopt;
        const auto& presets = m_model->presetStore.presets();
        const Text name(*m_arguments.profile);
        const auto count = std::ranges::count(presets, name, &NetworkPreset::name);
        if (count == 0)
            failUsage(QStringLiteral("There is no profile '%1'.").arg(*m_arguments.profile));
        if (count > 1)
            failUsage(QStringLiteral("%1 profiles are named '%2'.").arg(count).arg(*m_arguments.profile));
        return *std::ranges::find(presets, name, &NetworkPreset::name);
    }

    /// Takes what the command line names over the present values that the form holds.
    void fillForm()
    {
        if (m_arguments.dhcp)
            m_model->ipv4Mode = IPv4Mode::dhcp;
        if (m_arguments.address) {
            m_model->ipv4Mode = IPv4Mode::manual;
            m_model->ipAddress = *m_arguments.address;
            m_model->subnetMask = m_arguments.mask.value_or(QString());
            if (m_arguments.router)
                m_model->router = *m_arguments.router;
        }
        if (m_arguments.automaticDNS)
            m_model->dnsMode = DNSMode::automatic;
        if (m_arguments.dns) {
            m_model->dnsMode = DNSMode::manual;
            m_model->primaryDNS = m_arguments.dns->value(0);
            m_model->alternateDNS = m_arguments.dns->value(1);
        }
        if (m_arguments.search) {
            if (m_model->dnsMode.value() == DNSMode::automatic && !m_arguments.search->trimmed().isEmpty())
                failUsage(QStringLiteral("--search needs --dns: automatic DNS keeps no search domains."));
            m_model->searchDomains = *m_arguments.search;
        }
    }

    QByteArray act(QCoro::Task<> action)
    {
        QCoro::waitFor(action);
        if (const auto error = m_model->applyError.value())
            fail(*error);
        throwTrouble();
        return shown();
    }

    QByteArray shown() const
    {
        const auto configuration = m_model->currentConfig.value();
        const auto adapter = m_model->selectedAdapter.value().value_or(AdapterInfo());
        return m_arguments.json ? configurationAsJson(configuration)
                                : configurationAsTable(adapter, configuration, m_colour).toUtf8();
    }

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

Outcome runCommand(const Arguments& arguments, Platform& platform, bool colour)
{
    const auto model = MainViewModel::create(platform);
    Outcome outcome;
    try {
        outcome.output = outputOf(arguments, Run(arguments, platform, colour, model));
    } catch (const Failure& failure) {
        outcome = failure.outcome;
    }
    outcome.remains = model;
    return outcome;
}

} // namespace ardeo
