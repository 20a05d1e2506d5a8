#include "model/MainViewModel.h"

#include "backend/Errors.h"

#include <QCoroFuture>
#include <QFileInfo>

#include <algorithm>

namespace ardeo
{

namespace
{

using namespace std::chrono_literals;

constexpr auto applyDelay = 1s;
constexpr auto followUpDelay = 3s;
constexpr auto enableDelay = 500ms;

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

QString joinDomains(const QList<Text>& domains)
{
    return QStringList(domains.begin(), domains.end()).join(u' ');
}

} // namespace

std::shared_ptr<MainViewModel> MainViewModel::create(Platform& platform)
{
    return std::make_shared<MainViewModel>(Key(), platform);
}

MainViewModel::MainViewModel(Key, Platform& platform)
    : isLoginItem(platform.loginItem->status() == LoginItem::Status::enabled)
    , m_platform(platform)
    , configService(*platform.systemConfiguration)
    , authService(*platform.authorization)
    , presetStore(*platform.userDefaults)
{
}

bool MainViewModel::hasChanges() const
{
    const NetworkAdapterInfo live = currentConfig.value();
    return ipv4Mode.value() != live.ipv4Mode || ipAddress.value() != live.ipAddress ||
           subnetMask.value() != live.subnetMask || router.value() != live.router ||
           dnsMode.value() != live.dnsMode || primaryDNS.value() != live.primaryDNS ||
           alternateDNS.value() != live.alternateDNS;
}

QCoro::Task<> MainViewModel::loadAdapters()
{
    const auto self = shared_from_this();
    isLoading = true;
    const QList<AdapterInfo> listed = co_await configService.listAdapters();
    adapters = listed;
    if (!selectedAdapter.value() && !listed.isEmpty()) {
        const auto active = std::ranges::find(listed, true, &AdapterInfo::isActive);
        selectedAdapter = active != listed.end() ? *active : listed.first();
    }
    if (const std::optional<AdapterInfo> selected = selectedAdapter.value())
        co_await loadCurrentConfig(*selected);
    isLoading = false;
}

QCoro::Task<> MainViewModel::refreshAdapters()
{
    const auto self = shared_from_this();
    isLoading = true;
    const QList<AdapterInfo> listed = co_await configService.listAdapters();
    adapters = listed;
    if (const std::optional<AdapterInfo> selected = selectedAdapter.value()) {
        const auto fresh = std::ranges::find(listed, selected->serviceName, &AdapterInfo::serviceName);
        if (fresh != listed.end()) {
            selectedAdapter = *fresh;
            co_await loadCurrentConfig(*fresh);
        }
    }
    isLoading = false;
}

QCoro::Task<> MainViewModel::selectAdapter(AdapterInfo adapter)
{
    const auto self = shared_from_this();
    selectedAdapter = adapter;
    applyError = std::nullopt;
    applySuccess = false;
    co_await loadCurrentConfig(adapter);
}

QCoro::Task<> MainViewModel::loadCurrentConfig(AdapterInfo adapter)
{
    const auto self = shared_from_this();
    isLoading = true;
    const NetworkAdapterInfo configuration = co_await configService.currentConfig(adapter.serviceName);
    currentConfig = configuration;
    populateForm(configuration);
    isLoading = false;
}

template <typename Settings>
void MainViewModel::fillForm(const Settings& settings, const Text& domains)
{
    ipv4Mode = settings.ipv4Mode;
    ipAddress = settings.ipAddress;
    subnetMask = settings.subnetMask;
    router = settings.router;
    dnsMode = settings.dnsMode;
    primaryDNS = settings.primaryDNS;
    alternateDNS = settings.alternateDNS;
    searchDomains = domains;
}

void MainViewModel::populateForm(const NetworkAdapterInfo& configuration)
{
    fillForm(configuration, joinDomains(configuration.searchDomains));
}

void MainViewModel::loadPreset(const NetworkPreset& preset)
{
    fillForm(preset, preset.searchDomains);
}

void MainViewModel::revertForm()
{
    populateForm(currentConfig.value());
    applyError = std::nullopt;
    applySuccess = false;
}

void MainViewModel::beginAction()
{
    isApplying = true;
    applyError = std::nullopt;
    applySuccess = false;
}

void MainViewModel::failAction(const QString& description)
{
    applyError = Text(description);
    authService.invalidate();
    isApplying = false;
}

QCoro::Task<> MainViewModel::applyConfiguration()
{
    return write({.ipv4Mode = ipv4Mode.value(),
                  .ipAddress = ipAddress.value(),
                  .subnetMask = subnetMask.value(),
                  .router = router.value(),
                  .dnsMode = dnsMode.value(),
                  .primaryDNS = primaryDNS.value(),
                  .alternateDNS = alternateDNS.value(),
                  .searchDomains = splitDomains(searchDomains.value()),
                  .dhcpServer = {},
                  .computerName = {}},
                 DNSHandling::replace);
}

QCoro::Task<> MainViewModel::renewDHCPLease()
{
    const NetworkAdapterInfo live = currentConfig.value();
    return write({.ipv4Mode = IPv4Mode::dhcp,
                  .ipAddress = {},
                  .subnetMask = {},
                  .router = {},
                  .dnsMode = live.dnsMode,
                  .primaryDNS = live.primaryDNS,
                  .alternateDNS = live.alternateDNS,
                  .searchDomains = live.searchDomains,
                  .dhcpServer = {},
                  .computerName = {}},
                 DNSHandling::keep);
}

QCoro::Task<> MainViewModel::write(NetworkAdapterInfo configuration, DNSHandling dns)
{
    const auto self = shared_from_this();
    const std::optional<AdapterInfo> adapter = selectedAdapter.value();
    if (!adapter)
        co_return;
    beginAction();
    std::optional<QString> failure;
    try {
        const AuthorizationRef authorization = authService.authorize();
        co_await configService.writeConfiguration(adapter->serviceName, configuration, authorization, dns);
    } catch (const DescribedError& error) {
        failure = error.errorDescription();
    }
    if (failure) {
        failAction(*failure);
    } else {
        co_await m_platform.clock->sleep(applyDelay);
        co_await refreshAdapters();
        applySuccess = true;
        isApplying = false;
    }
    // After a failure it is set only if another action has succeeded in between.
    if (applySuccess.value())
        scheduleFollowUpRefresh();
}

QCoro::Task<> MainViewModel::scheduleFollowUpRefresh()
{
    const auto self = shared_from_this();
    co_await m_platform.clock->sleep(followUpDelay);
    co_await refreshAdapters();
}

QCoro::Task<> MainViewModel::setAdapterEnabled(bool enabled)
{
    const auto self = shared_from_this();
    const std::optional<AdapterInfo> adapter = selectedAdapter.value();
    if (!adapter)
        co_return;
    beginAction();
    std::optional<QString> failure;
    try {
        const AuthorizationRef authorization = authService.authorize();
        co_await configService.setServiceEnabled(enabled, adapter->serviceName, authorization);
    } catch (const DescribedError& error) {
        failure = error.errorDescription();
    }
    if (failure) {
        failAction(*failure);
        co_return;
    }
    co_await m_platform.clock->sleep(enableDelay);
    co_await refreshAdapters();
    isApplying = false;
}

void MainViewModel::savePreset(const Text& name)
{
    const std::optional<AdapterInfo> adapter = selectedAdapter.value();
    if (!adapter)
        return;
    presetStore.upsert({
        .id = QUuid::createUuid(),
        .name = name,
        .serviceName = adapter->serviceName,
        .ipv4Mode = ipv4Mode.value(),
        .ipAddress = ipAddress.value(),
        .subnetMask = subnetMask.value(),
        .router = router.value(),
        .dnsMode = dnsMode.value(),
        .primaryDNS = primaryDNS.value(),
        .alternateDNS = alternateDNS.value(),
        .searchDomains = searchDomains.value(),
    });
}

bool MainViewModel::exportPresets() const
{
    const auto place = m_platform.filePanels->askWhereToSave(
        QStringLiteral("Ardeo IP Config.profiles"), QStringLiteral("Export Ardeo IP Config profiles"));
    if (!place)
        return true;
    const auto bytes = encodePresets(presetStore.presets());
    QFile file(*place);
    return bytes && file.open(QIODevice::WriteOnly) && file.write(*bytes) == bytes->size() && file.flush();
}

void MainViewModel::importPresets()
{
    const auto place = m_platform.filePanels->askWhatToOpen(
        QStringLiteral("Select an Ardeo IP Config profiles file (.profiles)"));
    if (!place)
        return;
    QFile file(*place);
    std::optional<QList<NetworkPreset>> presets;
    // Reading from anything but a file could wait for ever.
    if (QFileInfo(*place).isFile() && file.open(QIODevice::ReadOnly))
        presets = decodePresets(file.readAll());
    if (presets)
        presetStore.upsertAll(*presets);
    else
        applyError = Text(QStringLiteral("Could not read profiles file."));
}

void MainViewModel::toggleLoginItem()
{
    LoginItem& item = *m_platform.loginItem;
    const auto failure = isLoginItem.value() ? item.unregisterItem() : item.registerItem();
    if (failure)
        applyError = Text(QStringLiteral("Start at login: ") + *failure);
    isLoginItem = item.status() == LoginItem::Status::enabled;
}

} // namespace ardeo
