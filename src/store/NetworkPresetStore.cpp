#include "store/NetworkPresetStore.h"

#include "platform/Platform.h"

#include <algorithm>

namespace ardeo
{

NetworkPresetStore::NetworkPresetStore(UserDefaults& defaults)
    : key(QLatin1String(applicationIdentifier) + QStringLiteral(".presets"))
    , m_defaults(defaults)
{
    const auto stored = m_defaults.data(key);
    if (!stored)
        return;
    if (auto presets = decodePresets(*stored))
        m_presets = std::move(*presets);
    else
        m_unreadable = stored;
}

void NetworkPresetStore::setPresets(const QList<NetworkPreset>& presets)
{
    const bool differs = presets != m_presets;
    if (differs)
        Q_EMIT presetsWillChange();
    m_presets = presets;
    if (differs)
        Q_EMIT presetsDidChange();
    persist();
}

void NetworkPresetStore::upsert(const NetworkPreset& preset)
{
    Q_EMIT presetsWillChange();
    const auto known = std::ranges::find(m_presets, preset.id, &NetworkPreset::id);
    if (known != m_presets.end())
        *known = preset;
    else
        m_presets.append(preset);
    Q_EMIT presetsDidChange();
    persist();
}

void NetworkPresetStore::remove(const QUuid& id)
{
    Q_EMIT presetsWillChange();
    m_presets.removeIf([&id](const NetworkPreset& preset) { return preset.id == id; });
    Q_EMIT presetsDidChange();
    persist();
}

void NetworkPresetStore::persist()
{
    const auto encoded = encodePresets(m_presets);
    if (!encoded)
        return;
    if (m_unreadable) {
        m_defaults.set(*m_unreadable, key + QStringLiteral(".unreadable"));
        m_unreadable.reset();
    }
    m_defaults.set(*encoded, key);
}

} // namespace ardeo
