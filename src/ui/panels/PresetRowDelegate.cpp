#include "ui/panels/PresetRowDelegate.h"

#include "ui/elements/Style.h"
#include "ui/elements/TextLabel.h"
#include "ui/panels/PresetList.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

namespace ardeo
{

namespace
{

constexpr int rowPadding = 10;
constexpr int lineGap = 2;
constexpr int highlightInset = 3;

QFont loadFont()
{
    return look::font(TextStyle::caption, QFont::Medium);
}

QFont nameFont()
{
    return look::font(TextStyle::body, QFont::Medium);
}

QFont summaryFont()
{
    return look::font(TextStyle::caption);
}

int loadWidth()
{
    return QFontMetrics(loadFont()).horizontalAdvance(PresetList::tr("Load"));
}

/// The text as one line at the top of the rectangle.
void drawText(QPainter& painter, const QWidget* list, const QRect& rect, const QFont& font,
              const QColor& colour, const QString& text)
{
    painter.setFont(font);
    painter.setPen(colour);
    const QString line = painter.fontMetrics().elidedText(text.simplified(), Qt::ElideRight, rect.width());
    drawLine(painter, list, QRect(rect.topLeft(), QSize(rect.width(), painter.fontMetrics().height())), line);
}

} // namespace

QString presetSummary(const NetworkPreset& preset)
{
    const QString mode =
        preset.ipv4Mode == IPv4Mode::manual ? PresetList::tr("Manual") : PresetList::tr("DHCP");
    return mode + QStringLiteral(" · ") + preset.serviceName;
}

PresetRowDelegate::PresetRowDelegate(const PresetList* list, ReadPreset preset, QObject* parent)
    : QStyledItemDelegate(parent)
    , m_list(list)
    , m_preset(std::move(preset))
{
}

QSize PresetRowDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    const int lines = QFontMetrics(nameFont()).height() + lineGap + QFontMetrics(summaryFont()).height();
    return {0, rowPadding + lines + rowPadding + 1}; // and the divider
}

void PresetRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const
{
    const NetworkPreset& preset = m_preset(index.row());
    const Colours& colours = look::colours(m_list);
    const double highlight = m_list->highlight(preset.id);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const QRect row = option.rect.adjusted(0, 0, 0, -1);
    const QRectF ground = QRectF(row).adjusted(highlightInset, 0, -highlightInset, 0);
    if (highlight > 0)
        painter->fillPath(look::continuousRect(ground, 6), look::withOpacity(colours.teal, 0.1 * highlight));
    if (m_list->hasFocus() && m_list->currentIndex() == index)
        look::strokeInside(*painter, ground, 6, colours.teal, 2);

    // Laid out from left to right, and mirrored where the language runs the other way.
    const auto placed = [this, row](const QRect& part) {
        return QStyle::visualRect(m_list->layoutDirection(), row, part);
    };
    QRect content = row.adjusted(rowPadding, rowPadding, -rowPadding, -rowPadding);
    if (highlight > 0) {
        const QString load = PresetList::tr("Load");
        painter->setFont(loadFont());
        const int width = loadWidth();
        painter->setPen(look::withOpacity(colours.teal, highlight));
        painter->drawText(placed(content.translated(static_cast<int>((1 - highlight) * width), 0)),
                          Qt::AlignRight | Qt::AlignVCenter, load);
        content.setRight(content.right() - width - 4);
    }
    drawText(*painter, m_list, placed(content), nameFont(), colours.primary, preset.name);
    content.setTop(content.top() + QFontMetrics(nameFont()).height() + lineGap);
    drawText(*painter, m_list, placed(content), summaryFont(), colours.secondary, presetSummary(preset));
    if (index.row() + 1 < index.model()->rowCount()) {
        const QRect line(option.rect.left() + 10, option.rect.bottom(), option.rect.width() - 10, 1);
        painter->fillRect(placed(line),
                          look::withOpacity(colours.separator, colours.separator.alphaF() * 0.4));
    }
    painter->restore();
}

bool PresetRowDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view,
                                  const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const NetworkPreset& preset = m_preset(index.row());
    const QString summary = presetSummary(preset);
    // The row below the pointer also says "Load".
    const int room = option.rect.width() - 2 * rowPadding - loadWidth() - 4;
    const bool isCut = QFontMetrics(nameFont()).horizontalAdvance(preset.name.string().simplified()) > room ||
                       QFontMetrics(summaryFont()).horizontalAdvance(summary.simplified()) > room;
    QToolTip::showText(event->globalPos(),
                       isCut ? toolTipText(preset.name + QStringLiteral("\n") + summary) : QString(), view);
    return true;
}

} // namespace ardeo
