#pragma once

#include "backend/NetworkPreset.h"
#include "platform/UserDefaults.h"

#include <QObject>

namespace ardeo
{

/// The user's saved profiles. The list is read from the preferences once, when the store is made, and stored
/// again as a whole with every change. Main thread only.
class NetworkPresetStore final : public QObject
{
    Q_OBJECT

public:
    explicit NetworkPresetStore(UserDefaults& defaults);

    /// In the order of the stored list, new ones at the end.
    const QList<NetworkPreset>& presets() const { return m_presets; }
    /// Whether there is a stored list that could not be read, so that the one here holds less.
    bool isUnreadable() const { return m_isUnreadable; }
    /// Replaces the whole list. It is stored in any case; observers are told if it differs.
    void setPresets(const QList<NetworkPreset>& presets);
    /// Replaces the first profile with the same id in its place, or adds a new one at the end.
    void upsert(const NetworkPreset& preset);
    /// The same for each of them in turn, stored and told once; for none of them nothing happens.
    void upsertAll(const QList<NetworkPreset>& presets);
    /// Removes every profile with that id. Observers are told also if there is none.
    void remove(const QUuid& id);

Q_SIGNALS:
    void presetsWillChange();
    void presetsDidChange();

private:
    void persist();
    /// Whether what could not be read is kept elsewhere now.
    bool putAside(const QByteArray& unreadable);

    const QString key;
    UserDefaults& m_defaults;
    QList<NetworkPreset> m_presets;
    bool m_isUnreadable = false;
};

} // namespace ardeo
