#pragma once

#include "store/NetworkPresetStore.h"

#include <QHash>
#include <QListView>
#include <QSet>

#include <functional>
#include <optional>

namespace ardeo
{

/// The saved profiles as a list: rows are made when they come into view, so its length does not matter. A row
/// can be hovered, clicked, and operated by keys (Return loads, F2 renames, Delete deletes, the menu key
/// opens the menu). Whatever happens to the profiles, the place in the list stays, but for new profiles,
/// which are scrolled to.
class PresetList final : public QListView
{
    Q_OBJECT

public:
    /// What can be done with a profile.
    struct Actions {
        std::function<void(const NetworkPreset&)> load;
        std::function<void(const NetworkPreset&)> rename;
        std::function<void(const NetworkPreset&)> remove;
    };

    PresetList(NetworkPresetStore& store, Actions actions, QWidget* parent = nullptr);
    ~PresetList() override;

Q_SIGNALS:
    /// A profile has been added that the filter hides.
    void addedOutOfSight();

public:
    /// Shows only profiles whose name contains the text, by the user's locale, whatever their case.
    void setFilter(const QString& filter);
    /// The number of profiles shown.
    qsizetype count() const;
    /// The profile under the pointer.
    const std::optional<QUuid>& hoveredPreset() const { return m_hoveredPreset; }
    /// How much of its highlight a row shows, 0 to 1.
    double highlight(const QUuid& id) const { return m_highlights.value(id); }

protected:
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void updateGeometries() override;

private:
    class Rows;

    /// Where the user is in the list, while the profiles change.
    struct Place {
        QSet<QUuid> known;
        std::optional<NetworkPreset> current;
        int row = -1;
        int scrolled = 0;
    };

    void rememberPlace();
    void returnToPlace();
    std::optional<NetworkPreset> presetAt(const QModelIndex& index) const;
    void hover(const std::optional<QUuid>& id);
    void fade(const QUuid& id, double target);
    void openMenu(const QModelIndex& index, const QPoint& globalPosition);

    NetworkPresetStore& m_store;
    Actions m_actions;
    Rows* m_rows;
    Place m_place;
    std::optional<QUuid> m_hoveredPreset;
    QHash<QUuid, double> m_highlights;
};

} // namespace ardeo
