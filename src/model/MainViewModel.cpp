#include "model/MainViewModel.h"

#include <QCoroFuture>

#include <algorithm>
#include <utility>

namespace ardeo
{

namespace
{

QString joinDomains(const QList<Text>& domains)
{
    return QStringList(domains.begin(), domains.end()).join(u' ');
}

/// What is selected when the user has not chosen yet.
std::optional<AdapterInfo> firstChoice(const QList<AdapterInfo>& listed)
{
    const auto active = std::ranges::find(listed, true, &AdapterInfo::isActive);
    if (active != listed.end())
        return *active;
    return listed.isEmpty() ? std::nullopt : std::optional(listed.first());
}

/// Whether a field shows something else than what was read; one that was cleared keeps its dots.
bool isOther(const Text& shown, const Text& read)
{
    return shown != read && !(read.isEmpty() && shown.string().count(u'.') == shown.string().size());
}

} // namespace

std::shared_ptr<MainViewModel> MainViewModel::create(Platform& platform)
{
    return std::make_shared<MainViewModel>(Key(), platform);
}

MainViewModel::MainViewModel(Key, Platform& platform)
    : isLoginItem(platform.loginItem->status() == LoginItem::Status::enabled)
    , configService(*platform.systemConfiguration)
    , authService(*platform.authorization)
    , presetStore(*platform.userDefaults)
    , m_platform(platform)
{
    const auto connect = [this](auto signal, auto slot) {
        QObject::connect(&configService, signal, &configService, slot, Qt::QueuedConnection);
    };
    connect(&NetworkConfigService::waitingBegan, [this](qint64 processID) {
        noteWaiting(LockHolder{processID == 0 ? std::nullopt : std::optional(processID)});
    });
    connect(&NetworkConfigService::waitingEnded, [this] { noteWaiting(std::nullopt); });
    connect(&NetworkConfigService::changed, [this] { noteChange(); });
    const auto noteAgain = [this] {
        if (m_hasChanged && !isBusy())
            noteChange();
    };
    m_selectionChanges = selectedAdapter.addNotifier([this] { countDown(); });
    m_loadingEnds = isLoading.addNotifier(noteAgain);
    m_applyingEnds = isApplying.addNotifier(noteAgain);
}

std::optional<AdapterInfo> MainViewModel::serviceIn(const QList<AdapterInfo>& listed, const Text& name)
{
    const auto found = std::ranges::find(listed, name, &AdapterInfo::serviceName);
    return found != listed.end() ? std::optional(*found) : std::nullopt;
}

bool MainViewModel::hasChanges() const
{
    const NetworkAdapterInfo live = currentConfig.value();
    return ipv4Mode.value() != live.ipv4Mode || ipAddress.value() != live.ipAddress ||
           subnetMask.value() != live.subnetMask || router.value() != live.router ||
           dnsMode.value() != live.dnsMode || primaryDNS.value() != live.primaryDNS ||
           alternateDNS.value() != live.alternateDNS;
}

void MainViewModel::takeListed(const QList<AdapterInfo>& listed)
{
    const std::optional<Trouble> reason = m_platform.trouble();
    trouble = reason ? std::optional(Text(reason->sentence)) : std::nullopt;
    adapters = listed;
    const std::optional<AdapterInfo> selected = selectedAdapter.value();
    selectedIsGone = selected && !reason && !serviceIn(listed, selected->serviceName);
}

QCoro::Task<> MainViewModel::loadAdapters()
{
    const auto self = shared_from_this();
    isLoading = true;
    const QList<AdapterInfo> listed = co_await configService.listAdapters();
    takeListed(listed);
    if (!selectedAdapter.value())
        selectedAdapter = firstChoice(listed);
    if (const std::optional<AdapterInfo> selected = selectedAdapter.value())
        co_await loadCurrentConfig(*selected);
    isLoading = false;
}

QCoro::Task<> MainViewModel::refreshAdapters()
{
    const auto self = shared_from_this();
    isLoading = true;
    const QList<AdapterInfo> listed = co_await configService.listAdapters();
    takeListed(listed);
    if (const std::optional<AdapterInfo> selected = selectedAdapter.value()) {
        if (const auto fresh = serviceIn(listed, selected->serviceName)) {
            selectedAdapter = fresh;
            co_await loadCurrentConfig(*fresh);
        }
    }
    isLoading = false;
}

QCoro::Task<> MainViewModel::selectAdapter(AdapterInfo adapter)
{
    const auto self = shared_from_this();
    selectedAdapter = adapter;
    selectedIsGone = false;
    clearFeedback();
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

void MainViewModel::follow(const QObject* viewer, bool isShown)
{
    const bool wasFollowed = !m_viewers.isEmpty();
    if (isShown)
        m_viewers.insert(viewer);
    else
        m_viewers.remove(viewer);
    if (wasFollowed != !m_viewers.isEmpty())
        configService.followChanges(!wasFollowed);
    countDown();
}

/// Reads again at once, or when what is being read or changed has come to its end.
QCoro::Task<> MainViewModel::noteChange()
{
    const auto self = shared_from_this();
    m_hasChanged = true;
    if (std::exchange(m_isReadingAgain, true))
        co_return;
    while (m_hasChanged && !isBusy()) {
        m_hasChanged = false;
        co_await readAgain();
    }
    m_isReadingAgain = false;
}

/// Lists and reads as a refresh does, but for nobody to notice: edits stay, and what was asked for meanwhile
/// has the say.
QCoro::Task<> MainViewModel::readAgain()
{
    const auto self = shared_from_this();
    const std::optional<AdapterInfo> selected = selectedAdapter.value();
    const QList<AdapterInfo> listed = co_await configService.listAdapters();
    // Who does not answer may do so later; until then nothing is known to have changed.
    const auto isSilent = [this] {
        const std::optional<Trouble> reason = m_platform.trouble();
        return reason && reason->kind == Trouble::Kind::silent;
    };
    if (isSilent())
        co_return;
    const auto fresh = selected ? serviceIn(listed, selected->serviceName) : firstChoice(listed);
    std::optional<AdapterInfo> read = fresh ? fresh : selected;
    if (!fresh && read)
        read->isActive = false;
    NetworkAdapterInfo configuration;
    if (read)
        configuration = co_await configService.currentConfig(read->serviceName);
    const std::optional<AdapterInfo> selectedNow = selectedAdapter.value();
    const bool isSame = selectedNow.has_value() == selected.has_value() &&
                        (!selected || selectedNow->serviceName == selected->serviceName);
    if (isBusy() || !isSame) {
        m_hasChanged = true;
        co_return;
    }
    if (isSilent())
        co_return;
    takeListed(listed);
    if (trouble.value() || !read)
        co_return;
    const bool keepsForm = isEdited();
    selectedAdapter = read;
    currentConfig = configuration;
    if (!keepsForm)
        populateForm(configuration);
}

bool MainViewModel::isEdited() const
{
    const NetworkAdapterInfo live = currentConfig.value();
    return ipv4Mode.value() != live.ipv4Mode || isOther(ipAddress.value(), live.ipAddress) ||
           isOther(subnetMask.value(), live.subnetMask) || isOther(router.value(), live.router) ||
           dnsMode.value() != live.dnsMode || isOther(primaryDNS.value(), live.primaryDNS) ||
           isOther(alternateDNS.value(), live.alternateDNS) ||
           searchDomains.value() != Text(joinDomains(live.searchDomains));
}

template <typename Source>
void MainViewModel::fillForm(const Source& settings, const Text& domains)
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
    clearFeedback();
}

} // namespace ardeo
