#include "ui/elements/InfoRow.h"

#include "ui/elements/FormRow.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>

namespace ardeo
{

/// The value of a row. What is copied is the selection, or else all of it.
class ValueLabel final : public TextLabel
{
public:
    using TextLabel::TextLabel;
    void setValue(const QString& value)
    {
        m_value = value;
        setAccessibleName(value);
        measure();
    }
    // The toolkit asks the lines as they are drawn, and lays them out, and draws them, anew.
    QSize sizeHint() const override { return m_size; }
    QSize minimumSizeHint() const override
    {
        // Addresses are never cut.
        const int longest = fontMetrics().horizontalAdvance(QStringLiteral("255.255.255.255"));
        return {std::min(sizeForWidth(0).width(), longest), m_size.height()};
    }
    int heightForWidth(int width) const override
    {
        return isCutIn(width) ? m_size.height() : sizeForWidth(width).height();
    }

protected:
    void resizeEvent(QResizeEvent* event) override
    {
        TextLabel::resizeEvent(event);
        fit();
    }
    void changeEvent(QEvent* event) override
    {
        TextLabel::changeEvent(event);
        if (event->type() == QEvent::FontChange)
            measure();
    }
    void focusInEvent(QFocusEvent* event) override
    {
        TextLabel::focusInEvent(event);
        if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason)
            selectAll();
    }
    void mouseDoubleClickEvent(QMouseEvent*) override { selectAll(); }
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->matches(QKeySequence::Copy))
            copy();
        else
            TextLabel::keyPressEvent(event);
    }
    void contextMenuEvent(QContextMenuEvent* event) override
    {
        auto* menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        menu->addAction(InfoRow::tr("Copy"), QKeySequence::Copy, this, &ValueLabel::copy);
        const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
        menu->popup(byKey ? mapToGlobal(rect().bottomLeft()) : event->globalPos());
    }

private:
    void measure()
    {
        m_size = linesIn(QWIDGETSIZE_MAX);
        updateGeometry();
        fit();
    }
    QSize sizeForWidth(int width) const { return width < m_size.width() ? linesIn(width) : m_size; }
    QSize linesIn(int width) const
    {
        const QRect page(0, 0, width, QWIDGETSIZE_MAX);
        return fontMetrics().boundingRect(page, Qt::TextWordWrap, m_value).size();
    }
    bool isCutIn(int width) const { return sizeForWidth(width).width() > width; }
    /// Elides a value that lacks a place to break.
    void fit()
    {
        const bool isCut = isCutIn(width());
        setText(isCut ? fontMetrics().elidedText(m_value, Qt::ElideMiddle, width()) : m_value);
        setToolTip(isCut ? toolTipText(m_value) : QString());
    }
    void selectAll() { setSelection(0, static_cast<int>(text().size())); }
    void copy() const
    {
        const bool isPart = hasSelectedText() && selectedText() != text();
        QGuiApplication::clipboard()->setText(isPart ? selectedText() : m_value);
    }

    /// All of it, of which the text shows what there is room for.
    QString m_value;
    /// What that takes unbroken. Kept, because the layouts ask a dozen times for each new value.
    QSize m_size;
};

InfoRow::InfoRow(const QString& label, const QString& value, bool monospaced, QWidget* parent)
    : QWidget(parent)
{
    auto* row = rowIn(this, 8);
    auto* text = new TextLabel(label, look::font(TextStyle::callout), Emphasis::secondary);
    text->setWordWrap(true); // where a language needs more words
    look::followTextSize(text, [text] { text->setFixedWidth(look::scaled(labelColumnWidth)); });
    m_value = new ValueLabel(QString(),
                             monospaced ? look::monospacedFont(TextStyle::body) : look::font(TextStyle::body),
                             Emphasis::primary);
    m_value->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_value->setWordWrap(true);
    text->setBuddy(m_value);
    // Both stand on one baseline.
    look::followTextSize(text, [this, text] {
        text->setContentsMargins(0, m_value->fontMetrics().ascent() - text->fontMetrics().ascent(), 0, 0);
    });
    row->addWidget(text, 0, Qt::AlignTop);
    row->addWidget(m_value, 1);
    m_value->setAccessibleDescription(label);
    setValue(value);
}

void InfoRow::setValue(const QString& value)
{
    m_value->setValue(value.isEmpty() ? QStringLiteral("—") : value);
    // The Tab key stops only at what is worth copying.
    m_value->setFocusPolicy(value.isEmpty() ? Qt::ClickFocus : Qt::StrongFocus);
    m_value->setEmphasis(value.isEmpty() ? Emphasis::tertiary : Emphasis::primary);
}

} // namespace ardeo
