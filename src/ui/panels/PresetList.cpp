#include "ui/panels/PresetList.h"

#include "ui/elements/Style.h"
#include "ui/elements/Symbol.h"
#include "ui/panels/PresetRowDelegate.h"

#include <QKeyEvent>
#include <QLocale>
#include <QMenu>
#include <QScrollBar>
#include <QVariantAnimation>

#include <algorithm>
#include <numeric>

namespace ardeo
{

namespace
{

constexpr int hoverMilliseconds = 120;

/// What two texts have in common when case does not count.
QString folded(const QString& text)
{
    return QLocale().toLower(text.normalized(QString::NormalizationForm_C));
}

} // namespace

/// The rows as positions in the store's list, which stays the only place that holds the profiles.
class PresetList::Rows final : public QAbstractListModel
{
public:
    Rows(NetworkPresetStore& store, QObject* parent) : QAbstractListModel(parent), m_store(store)
    {
        connect(&store, &NetworkPresetStore::presetsWillChange, this, [this] { beginResetModel(); });
        connect(&store, &NetworkPresetStore::presetsDidChange, this, [this] {
            select();
            endResetModel();
        });
        select();
    }
    void setFilter(const QString& filter)
    {
        if (filter == m_filter)
            return;
        beginResetModel();
        m_filter = filter;
        select();
        endResetModel();
    }
    const NetworkPreset& preset(int row) const { return m_store.presets().at(m_positions.at(row)); }
    /// The row of a profile; an index of nothing where it is not shown.
    QModelIndex indexOf(const QUuid& id) const
    {
        const auto position = std::ranges::find(
            m_positions, id, [this](qsizetype i) -> const QUuid& { return m_store.presets().at(i).id; });
        return position == m_positions.end() ? QModelIndex()
                                             : index(static_cast<int>(position - m_positions.begin()));
    }
    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(m_positions.size());
    }
    QVariant data(const QModelIndex& index, int role) const override
    {
        const NetworkPreset& shown = preset(index.row());
        if (role == Qt::DisplayRole)
            return shown.name.string();
        if (role == Qt::AccessibleTextRole)
            return QString(shown.name.string() + QStringLiteral(", ") + presetSummary(shown));
        return {};
    }

private:
    void select()
    {
        m_positions.resize(m_store.presets().size());
        std::iota(m_positions.begin(), m_positions.end(), 0);
        if (m_filter.isEmpty())
            return;
        const QString wanted = folded(m_filter);
        m_positions.removeIf(
            [&](qsizetype i) { return !folded(m_store.presets().at(i).name).contains(wanted); });
    }

    NetworkPresetStore& m_store;
    QString m_filter;
    QList<qsizetype> m_positions;
};

PresetList::PresetList(NetworkPresetStore& store, Actions actions, QWidget* parent)
    : QListView(parent)
    , m_store(store)
    , m_actions(std::move(actions))
    , m_rows(new Rows(store, this))
{
    setModel(m_rows);
    setItemDelegate(new PresetRowDelegate(
        this, [this](int row) -> const NetworkPreset& { return m_rows->preset(row); }, this));
    setAccessibleName(PresetList::tr("Profiles"));
    setFrameShape(NoFrame);
    setUniformItemSizes(true);
    setSelectionMode(NoSelection);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    setAutoFillBackground(false);
    connect(this, &QListView::clicked, this,
            [this](const QModelIndex& index) { m_actions.load(m_rows->preset(index.row())); });
    connect(&store, &NetworkPresetStore::presetsWillChange, this, &PresetList::rememberPlace);
    connect(&store, &NetworkPresetStore::presetsDidChange, this, &PresetList::returnToPlace);
    // A row that goes away from under the pointer is not hovered any more.
    connect(m_rows, &QAbstractItemModel::modelReset, this, [this] {
        const auto& presets = m_store.presets();
        if (m_hoveredPreset &&
            std::ranges::find(presets, *m_hoveredPreset, &NetworkPreset::id) == presets.end()) {
            m_highlights.remove(*m_hoveredPreset);
            m_hoveredPreset.reset();
        }
    });
}

PresetList::~PresetList() = default;

void PresetList::setFilter(const QString& filter)
{
    const auto current = presetAt(currentIndex());
    m_rows->setFilter(filter);
    if (current)
        setCurrentIndex(m_rows->indexOf(current->id));
}

void PresetList::rememberPlace()
{
    m_place = {.known = {},
               .current = presetAt(currentIndex()),
               .row = currentIndex().row(),
               .scrolled = verticalScrollBar()->value()};
    for (const NetworkPreset& preset : m_store.presets())
        m_place.known.insert(preset.id);
}

void PresetList::returnToPlace()
{
    const Place place = std::exchange(m_place, {});
    QList<QUuid> added;
    for (const NetworkPreset& preset : m_store.presets()) {
        if (!place.known.contains(preset.id))
            added.append(preset.id);
    }
    if (!added.isEmpty()) {
        if (!m_rows->indexOf(added.first()).isValid())
            Q_EMIT addedOutOfSight();
        // As many of them as there is room for, the first one in any case.
        scrollTo(m_rows->indexOf(added.last()));
        setCurrentIndex(m_rows->indexOf(added.first()));
        return;
    }
    if (place.current) {
        const QModelIndex same = m_rows->indexOf(place.current->id);
        const int next = std::min(place.row, m_rows->rowCount() - 1);
        setCurrentIndex(same.isValid() ? same : m_rows->index(next));
    }
    verticalScrollBar()->setValue(place.scrolled);
}

qsizetype PresetList::count() const
{
    return m_rows->rowCount();
}

std::optional<NetworkPreset> PresetList::presetAt(const QModelIndex& index) const
{
    return index.isValid() ? std::optional(m_rows->preset(index.row())) : std::nullopt;
}

void PresetList::hover(const std::optional<QUuid>& id)
{
    if (m_hoveredPreset == id)
        return;
    const auto left = std::exchange(m_hoveredPreset, id);
    if (left)
        fade(*left, 0);
    if (id)
        fade(*id, 1);
}

void PresetList::fade(const QUuid& id, double target)
{
    const auto show = [this, id, target](double highlight) {
        // A later change of mind has the say.
        if ((target > 0) != (m_hoveredPreset == id))
            return;
        if (highlight > 0)
            m_highlights[id] = highlight;
        else
            m_highlights.remove(id);
        viewport()->update();
    };
    const int duration = look::duration(this, hoverMilliseconds);
    if (duration == 0) {
        show(target);
        return;
    }
    auto* animation = new QVariantAnimation(this);
    animation->setEasingCurve(QEasingCurve::InOutSine);
    animation->setStartValue(m_highlights.value(id));
    animation->setEndValue(target);
    animation->setDuration(duration);
    connect(animation, &QVariantAnimation::valueChanged, this,
            [show](const QVariant& value) { show(value.toDouble()); });
    animation->start(QAbstractAnimation::DeleteWhenStopped);
}

void PresetList::mouseMoveEvent(QMouseEvent* event)
{
    QListView::mouseMoveEvent(event);
    const auto preset = presetAt(indexAt(event->position().toPoint()));
    hover(preset ? std::optional(preset->id) : std::nullopt);
}

bool PresetList::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Leave)
        hover(std::nullopt);
    return QListView::viewportEvent(event);
}

void PresetList::updateGeometries()
{
    QListView::updateGeometries();
    verticalScrollBar()->setSingleStep(20);
}

void PresetList::keyPressEvent(QKeyEvent* event)
{
    const auto preset = presetAt(currentIndex());
    switch (preset ? event->key() : 0) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        m_actions.load(*preset);
        break;
    case Qt::Key_F2:
        m_actions.rename(*preset);
        break;
    case Qt::Key_Delete:
        m_actions.remove(*preset);
        break;
    default:
        QListView::keyPressEvent(event);
    }
}

void PresetList::contextMenuEvent(QContextMenuEvent* event)
{
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QModelIndex index = byKey ? currentIndex() : indexAt(event->pos());
    openMenu(index, byKey ? viewport()->mapToGlobal(visualRect(index).center()) : event->globalPos());
}

void PresetList::openMenu(const QModelIndex& index, const QPoint& globalPosition)
{
    const auto preset = presetAt(index);
    if (!preset)
        return;
    const Colours& colours = look::colours(this);
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](const QString& text, const char* symbol, const QColor& colour, const auto& action) {
        menu->addAction(symbolIcon(QLatin1String(symbol), colour), text, this,
                        [action, preset] { action(*preset); });
    };
    add(PresetList::tr("Load Profile"), "arrow.down.circle", colours.primary, m_actions.load);
    menu->addSeparator();
    add(PresetList::tr("Rename…"), "pencil", colours.primary, m_actions.rename);
    menu->addSeparator();
    add(PresetList::tr("Delete…"), "trash", colours.red, m_actions.remove);
    menu->popup(globalPosition);
}

} // namespace ardeo
