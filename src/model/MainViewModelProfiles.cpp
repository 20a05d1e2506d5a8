#include "model/MainViewModel.h"

#include <QFile>
#include <QFileInfo>

namespace ardeo
{

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
    const auto place = m_platform.filePanels->askWhereToSave(QStringLiteral("Ardeo IP Config.profiles"),
                                                             tr("Export Ardeo IP Config profiles"));
    if (!place)
        return true;
    if (presetStore.isUnreadable())
        return false;
    const auto bytes = encodePresets(presetStore.presets());
    QFile file(*place);
    return bytes && file.open(QIODevice::WriteOnly) && file.write(*bytes) == bytes->size() && file.flush();
}

void MainViewModel::importPresets()
{
    const auto place =
        m_platform.filePanels->askWhatToOpen(tr("Select an Ardeo IP Config profiles file (.profiles)"));
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
        tellError(tr("Could not read profiles file."));
}

void MainViewModel::toggleLoginItem()
{
    LoginItem& item = *m_platform.loginItem;
    const auto failure = isLoginItem.value() ? item.unregisterItem() : item.registerItem();
    if (failure)
        tellError(tr("Start at login: %1").arg(*failure));
    isLoginItem = item.status() == LoginItem::Status::enabled;
}

} // namespace ardeo
