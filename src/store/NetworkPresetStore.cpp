#include "store/NetworkPresetStore.h"

#include "platform/Platform.h"

#include <QHash>

namespace ardeo
{

NetworkPresetStore::NetworkPresetStore(UserDefaults& defaults)
    : key(QLatin1String(applicationIdentifier) + QStringLiteral(".presets"))
    , m_defaults(defaults)
{
    const auto stored = m_defaults.data(key);
    auto presets = stored ? decodePresets(*stored) : std::nullopt;
    m_isUnreadable = stored ? !presets : m_defaults.isUnreadable(key);
    if (presets)
        m_presets = std::move(*presets);
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
    upsertAll({preset});
}

void NetworkPresetStore::upsertAll(const QList<NetworkPreset>& presets)
{
    if (presets.isEmpty())
        return;
    Q_EMIT presetsWillChange();
    QHash<QUuid, qsizetype> positions;
    for (qsizetype i = m_presets.size() - 1; i >= 0; --i)
        positions.insert(m_presets.at(i).id, i); // the first of several with one id remains
    for (const NetworkPreset& preset : presets) {
        const auto known = positions.constFind(preset.id);
        if (known != positions.constEnd()) {
            m_presets[*known] = preset;
        } else {
            positions.insert(preset.id, m_presets.size());
            m_presets.append(preset);
        }
    }
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
    if (m_isUnreadable) {
        const auto unreadable = m_defaults.data(key);
        if (unreadable && !putAside(*unreadable))
            return;
        m_isUnreadable = m_defaults.isUnreadable(key); // which is not replaced
    }
    m_defaults.set(*encoded, key);
}

bool NetworkPresetStore::putAside(const QByteArray& unreadable)
{
    QString place = key + QStringLiteral(".unreadable");
    // What was put aside before may be somebody's only copy too.
    for (int number = 2; m_defaults.data(place).value_or(unreadable) != unreadable; ++number)
        place = QStringLiteral("%1.unreadable-%2").arg(key).arg(number);
    if (m_defaults.data(place) != unreadable)
        m_defaults.set(unreadable, place);
    return m_defaults.data(place) == unreadable;
}

} // namespace ardeo
