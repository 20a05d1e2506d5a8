#include "cli/Commands.h"

#include "backend/Errors.h"
#include "cli/Failure.h"
#include "cli/FormSettings.h"
#include "cli/JsonOutput.h"
#include "cli/Watch.h"

#include <QFile>

#include <algorithm>

namespace ardeo
{

namespace
{

using Command = Arguments::Command;

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
        select();
        const auto named = takeSettings(m_arguments, *m_model);
        const auto plan = QCoro::waitFor(m_model->planConfiguration(named));
        throwError();
        if (m_arguments.dryRun || !plan->isNeeded())
            return m_arguments.json ? planAsJson(*plan, m_model->currentConfig.value())
                                    : planAsText(*plan, m_arguments.service).toUtf8();
        const QByteArray shown = act(m_model->applyConfiguration(named, m_arguments.confirmWithin));
        return m_arguments.json ? planAsJson(*plan, m_model->currentConfig.value()) : shown;
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
            fail(Console::tr("No change awaits confirmation."));
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
            fail(Console::tr("Cannot write %1: %2.").arg(m_arguments.file, file.errorString()));
        return {};
    }

    /// Whether a change has been made.
    bool changed() const { return m_changed; }

private:
    void throwTrouble() const
    {
        if (const auto trouble = m_platform.trouble())
            fail(trouble->sentence);
    }

    void throwIfUnreadable() const
    {
        if (m_model->presetStore.isUnreadable())
            fail(Console::tr("The saved profiles cannot be read."));
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

    QByteArray act(QCoro::Task<> action)
    {
        QCoro::waitFor(action);
        throwError();
        throwTrouble();
        m_changed = true;
        return shown();
    }

    void throwError() const
    {
        if (const auto error = m_model->applyError.value()) {
            const auto fault = m_model->applyFault.value();
            fail(*error, fault ? fault->reason : QString());
        }
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
            fail(Console::tr("A profile holds text that is not valid Unicode."));
        return *bytes;
    }

    const Arguments& m_arguments;
    Platform& m_platform;
    bool m_colour;
    std::shared_ptr<MainViewModel> m_model;
    bool m_changed = false;
};

QByteArray outputOf(const Arguments& arguments, Run& run)
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
    case Command::watch:
    case Command::help:
    case Command::version:
        break;
    }
    return {};
}

} // namespace

Outcome runCommand(const Arguments& arguments, Platform& platform, bool colour, const Listeners& listeners)
{
    const auto model = MainViewModel::create(platform);
    const auto waiting = model->waitsFor.subscribe([&] {
        if (const auto holder = model->waitsFor.value())
            listeners.tell(waitingDescription(*holder));
    });
    Outcome outcome;
    outcome.model = model;
    if (arguments.command == Command::watch) {
        watch(model->configService, platform, arguments.json, listeners.print);
        return outcome;
    }
    Run run(arguments, platform, colour, model);
    try {
        outcome.output = outputOf(arguments, run);
        outcome.changed = run.changed();
    } catch (const Failure& failure) {
        outcome.error = failure.error;
        outcome.status = failure.status;
    }
    return outcome;
}

} // namespace ardeo
