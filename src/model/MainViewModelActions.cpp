#include "model/MainViewModel.h"

#include "backend/Errors.h"

#include <QCoroFuture>

#include <algorithm>
#include <utility>

namespace ardeo
{

namespace
{

using namespace std::chrono_literals;

constexpr auto applyDelay = 1s;
constexpr auto followUpDelay = 3s;
constexpr auto enableDelay = 500ms;
constexpr auto waitingDelay = 500ms;
/// How long somebody who changes what they are connected by has to find out whether they still are.
constexpr auto remoteTrial = 30s;
/// How often, and how often at most, it is tried again to take a change back when the system is not there.
constexpr auto retryDelay = 1s;
constexpr int retries = 600;

/// The domains in a text that separates them by blanks, of any kind that does not end a line.
QList<Text> splitDomains(const QString& text)
{
    QList<Text> domains;
    QString domain;
    for (const QChar c : text + u' ') {
        if (c.category() != QChar::Separator_Space && c != u'\t') {
            domain += c;
        } else if (!domain.isEmpty()) {
            domains.append(domain);
            domain.clear();
        }
    }
    return domains;
}

} // namespace

QCoro::Task<> MainViewModel::applyConfiguration(std::optional<Settings> named, Trial trial)
{
    const std::optional<AdapterInfo> adapter = selectedAdapter.value();
    const std::optional<QString> ownWay = m_platform.remoteInterface();
    if (!trial && ownWay && adapter && adapter->bsdName == Text(*ownWay))
        trial = remoteTrial;
    return write(formContent(), named, trial);
}

QCoro::Task<std::optional<ChangePlan>> MainViewModel::planConfiguration(std::optional<Settings> named)
{
    const auto self = shared_from_this();
    const std::optional<AdapterInfo> adapter = selectedAdapter.value();
    if (!adapter)
        co_return std::nullopt;
    clearFeedback();
    try {
        co_return co_await configService.planConfiguration(adapter->serviceName, formContent(), named);
    } catch (const ConfigError& error) {
        tellError(error.errorDescription(), error.fault());
        co_return std::nullopt;
    }
}

NetworkAdapterInfo MainViewModel::formContent() const
{
    return {.ipv4Mode = ipv4Mode.value(),
            .ipAddress = ipAddress.value(),
            .subnetMask = subnetMask.value(),
            .router = router.value(),
            .dnsMode = dnsMode.value(),
            .primaryDNS = primaryDNS.value(),
            .alternateDNS = alternateDNS.value(),
            .searchDomains = splitDomains(searchDomains.value()),
            .dhcpServer = {},
            .computerName = {}};
}

QCoro::Task<> MainViewModel::renewDHCPLease(Trial trial)
{
    NetworkAdapterInfo configuration;
    configuration.ipv4Mode = IPv4Mode::dhcp;
    return write(configuration, Setting::ipv4Mode, trial);
}

QCoro::Task<> MainViewModel::write(NetworkAdapterInfo configuration, std::optional<Settings> named,
                                   Trial trial)
{
    const auto self = shared_from_this();
    const Change change = [this, configuration, named, trial](const Text& serviceName,
                                                              AuthorizationRef authorization) {
        return configService.writeConfiguration(serviceName, configuration, authorization, named, trial);
    };
    const Action action{.change = change, .trial = trial, .settlingTime = applyDelay, .tellsSuccess = true};
    co_await carryOut(action);
    // After a failure it is set only if another action has succeeded in between.
    if (applySuccess.value())
        scheduleFollowUpRefresh();
}

QCoro::Task<> MainViewModel::setAdapterEnabled(bool enabled, Trial trial)
{
    const Change change = [this, enabled, trial](const Text& serviceName, AuthorizationRef authorization) {
        return configService.setServiceEnabled(enabled, serviceName, authorization, trial);
    };
    return carryOut({.change = change, .trial = trial, .settlingTime = enableDelay, .tellsSuccess = false});
}

QCoro::Task<> MainViewModel::endTrial(bool keep)
{
    const Change change = [this, keep](const Text& serviceName, AuthorizationRef authorization) {
        return configService.endTrial(keep, serviceName, authorization);
    };
    const auto settlingTime =
        keep ? std::chrono::milliseconds::zero() : std::chrono::milliseconds(applyDelay);
    return carryOut({.change = change,
                     .trial = std::chrono::seconds::zero(),
                     .settlingTime = settlingTime,
                     .tellsSuccess = keep});
}

void MainViewModel::clearFeedback()
{
    applyError = std::nullopt;
    applyFault = std::nullopt;
    applySuccess = false;
}

void MainViewModel::tellError(const QString& sentence, const std::optional<SettingFault>& fault)
{
    applyFault = fault;
    applyError = Text(sentence);
}

/// Obtains the right, takes the action on the selected service, and refreshes when the network has had time
/// to settle.
QCoro::Task<> MainViewModel::carryOut(Action action)
{
    const auto self = shared_from_this();
    const std::optional<AdapterInfo> adapter = selectedAdapter.value();
    if (!adapter)
        co_return;
    isApplying = true;
    clearFeedback();
    try {
        if (action.trial)
            authService.authorize(QLatin1String(trialRight));
        const QLatin1String right(adapter->isPersonal ? personalNetworkRight : systemNetworkRight);
        const AuthorizationRef authorization = authService.authorize(right);
        co_await action.change(adapter->serviceName, authorization);
        if (action.trial > std::chrono::seconds::zero())
            guardTrial(adapter->serviceName, *action.trial, authorization);
    } catch (const DescribedError& error) {
        const auto* refusal = dynamic_cast<const ConfigError*>(&error);
        tellError(error.errorDescription(), refusal ? refusal->fault() : std::nullopt);
        authService.invalidate();
        isApplying = false;
        co_return;
    }
    co_await m_platform.clock->sleep(action.settlingTime);
    co_await refreshAdapters();
    if (action.tellsSuccess)
        applySuccess = true;
    isApplying = false;
}

/// The system takes back by itself what nobody has confirmed, but not all of it where it was started anew
/// meanwhile, or where the service was not connected before.
QCoro::Task<> MainViewModel::guardTrial(Text serviceName, std::chrono::seconds time,
                                        AuthorizationRef authorization)
{
    const auto self = shared_from_this();
    guardedTrials = guardedTrials.value() + 1;
    // The trial has begun when the change was saved, which can be a while ago.
    const auto now = [this] {
        return std::chrono::duration_cast<std::chrono::milliseconds>(m_platform.clock->continuousTime());
    };
    std::chrono::milliseconds deadline = now() + time;
    const QList<AdapterInfo> atFirst = co_await configService.listAdapters();
    if (const auto service = serviceIn(atFirst, serviceName); service && service->confirmBy)
        deadline = std::min(deadline, *service->confirmBy);
    co_await m_platform.clock->sleep(std::max(std::chrono::milliseconds::zero(), deadline - now()));
    for (int attempt = 1; attempt <= retries; ++attempt) {
        const QList<AdapterInfo> listed = co_await configService.listAdapters();
        const auto service = serviceIn(listed, serviceName);
        const bool isOverdue =
            service && service->confirmBy && *service->confirmBy <= m_platform.clock->continuousTime();
        if (service && !isOverdue)
            break; // somebody has ended it, or begun another one since
        try {
            co_await configService.endTrial(false, serviceName, authorization);
            applySuccess = false;
            tellError(tr("Nobody confirmed the change of '%1', so it was taken back.").arg(serviceName));
            break;
        } catch (const DescribedError& error) { // the system may be there again in a moment
            if (attempt == retries)
                tellError(error.errorDescription());
        }
        co_await m_platform.clock->sleep(retryDelay);
    }
    guardedTrials = guardedTrials.value() - 1;
    noteChange();
}

QCoro::Task<> MainViewModel::countDown()
{
    const auto self = shared_from_this();
    const auto secondsLeft = [this] {
        const std::optional<AdapterInfo> selected = selectedAdapter.value();
        return selected ? selected->secondsToConfirm(m_platform.clock->continuousTime()) : std::nullopt;
    };
    secondsToConfirm = secondsLeft();
    if (std::exchange(m_isCountingDown, true))
        co_return;
    while (secondsToConfirm.value() && !m_viewers.isEmpty()) {
        co_await m_platform.clock->sleep(1s);
        secondsToConfirm = secondsLeft();
    }
    m_isCountingDown = false;
}

QCoro::Task<> MainViewModel::scheduleFollowUpRefresh()
{
    const auto self = shared_from_this();
    co_await m_platform.clock->sleep(followUpDelay);
    co_await refreshAdapters();
}

/// Most changes are made in less time than anybody needs to read who makes them.
QCoro::Task<> MainViewModel::noteWaiting(std::optional<LockHolder> holder)
{
    const auto self = shared_from_this();
    const int number = ++m_waits;
    if (holder)
        co_await m_platform.clock->sleep(waitingDelay);
    if (number == m_waits)
        waitsFor = holder;
}

} // namespace ardeo
