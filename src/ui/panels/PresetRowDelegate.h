#pragma once

#include "backend/NetworkPreset.h"

#include <QStyledItemDelegate>

#include <functional>

namespace ardeo
{

class PresetList;

/// Draws the rows of the list of profiles: a profile's name over its summary, and "Load" where it is hovered.
/// A tool tip tells what does not fit.
class PresetRowDelegate final : public QStyledItemDelegate
{
public:
    /// Gives the profile that stands in a row.
    using ReadPreset = std::function<const NetworkPreset&(int)>;

    PresetRowDelegate(const PresetList* list, ReadPreset preset, QObject* parent);
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;

private:
    const PresetList* m_list;
    ReadPreset m_preset;
};

/// The mode and the service of a profile, as its row says them.
QString presetSummary(const NetworkPreset& preset);

} // namespace ardeo
