#include "ui/elements/IPAddressField.h"

#include "ui/elements/Controls.h"
#include "ui/elements/Stack.h"
#include "ui/elements/TextLabel.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace ardeo
{

namespace
{

constexpr int octetWidth = 36;
constexpr qsizetype octetDigits = 3;

QString octetFrom(const QString& text)
{
    QList<uint> digits;
    for (const uint scalar : text.toUcs4()) {
        if (QChar::isNumber(scalar) && digits.size() < octetDigits)
            digits.append(scalar);
    }
    const QString octet =
        QString::fromUcs4(reinterpret_cast<const char32_t*>(digits.constData()), digits.size());
    bool parsed = false;
    const int number = octet.toInt(&parsed);
    return parsed && number > 255 ? QStringLiteral("255") : octet;
}

} // namespace

IPAddressField::IPAddressField(Observed<Text>& value, const QString& placeholder, const QString& label,
                               QWidget* parent)
    : QWidget(parent)
    , m_value(value)
    , m_placeholder(placeholder)
{
    const QString name = label.endsWith(u':') ? label.chopped(1).trimmed() : label;
    setAccessibleName(name);
    setLayoutDirection(Qt::LeftToRight); // as addresses are written everywhere
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* row = rowIn(this, 0, {8, 5, 8, 5});
    const QFont font = look::monospacedFont(TextStyle::body);
    for (int i = 0; i < 4; ++i) {
        if (i > 0) {
            auto* dot = new TextLabel(QStringLiteral("."), font, Emphasis::tertiary);
            dot->setContentsMargins(1, 0, 1, 0);
            row->addWidget(dot);
        }
        auto* octet = new QLineEdit;
        octet->setFrame(false);
        octet->setFont(font);
        look::followTextSize(octet, [octet] {
            octet->setFixedSize(look::scaled(octetWidth), look::lineHeight(octet->font()));
        });
        octet->setAlignment(Qt::AlignCenter);
        octet->setPlaceholderText(partPlaceholder(i));
        slantPlaceholder(*octet);
        octet->setAccessibleName(tr("%1, part %2 of 4").arg(name).arg(i + 1));
        octet->setInputMethodHints(Qt::ImhDigitsOnly);
        octet->setAttribute(Qt::WA_MacShowFocusRect, false);
        QPalette clear;
        clear.setColor(QPalette::Base, Qt::transparent);
        octet->setPalette(clear);
        octet->installEventFilter(this);
        connect(octet, &QLineEdit::textEdited, this, [this, i](const QString& text) { setPart(i, text); });
        m_octets.at(static_cast<size_t>(i)) = octet;
        row->addWidget(octet);
    }
    syncPartsFromValue(false);
    // What else the assignment fills in that made the field appear is no change of it.
    afterAssignment([this] { syncPartsFromValue(false); });
    // The write-back of a normalised value must not fall into the middle of the assignment that changed it.
    m_valueNotifier =
        m_value.addNotifier([this] { afterAssignment([this] { handleValueChange(m_value.value()); }); });
}

template <typename Action>
void IPAddressField::afterAssignment(Action action)
{
    if (std::exchange(m_changePending, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this, action] {
            m_changePending = false;
            action();
        },
        Qt::QueuedConnection);
}

void IPAddressField::setFault(const std::optional<QString>& reason)
{
    m_isFaulty = reason.has_value();
    for (QLineEdit* octet : m_octets)
        octet->setAccessibleDescription(reason.value_or(QString()));
    update();
}

QString IPAddressField::partPlaceholder(int i) const
{
    return m_placeholder.split(u'.').value(i, QStringLiteral("0"));
}

QString IPAddressField::joined() const
{
    return QStringList(parts.begin(), parts.end()).join(u'.');
}

void IPAddressField::syncPartsFromValue(bool observed)
{
    const QString value = m_value.value();
    const QStringList pieces = value.isEmpty() ? QStringList() : value.split(u'.');
    QList<int> changed;
    for (int i = 0; i < 4; ++i) {
        QString& part = parts.at(static_cast<size_t>(i));
        if (part == pieces.value(i))
            continue;
        part = pieces.value(i);
        octet(i)->setText(part);
        changed.append(i);
    }
    for (const int i : changed) {
        if (observed)
            handlePartChange(i, parts.at(static_cast<size_t>(i)));
    }
}

void IPAddressField::setPart(int i, const QString& text)
{
    QString& part = parts.at(static_cast<size_t>(i));
    if (part == text)
        return;
    part = text;
    handlePartChange(i, text);
}

void IPAddressField::handlePartChange(int i, const QString& text)
{
    const QString octet = octetFrom(text);
    parts.at(static_cast<size_t>(i)) = octet;
    QLineEdit* editor = this->octet(i);
    if (editor->text() != octet) {
        const int cursor = editor->cursorPosition();
        editor->setText(octet);
        editor->setCursorPosition(std::min(cursor, static_cast<int>(octet.size())));
    }
    if (octet.size() == octetDigits && i < 3) {
        this->octet(i + 1)->setFocus(Qt::TabFocusReason);
        this->octet(i + 1)->selectAll();
    }
    if (const QString value = joined(); Text(value) != m_value.value())
        m_value = Text(value);
}

void IPAddressField::handleValueChange(const QString& newValue)
{
    if (joined() != newValue)
        syncPartsFromValue(true);
}

std::optional<int> IPAddressField::focused() const
{
    for (int i = 0; i < 4; ++i) {
        if (octet(i)->hasFocus())
            return i;
    }
    return std::nullopt;
}

bool IPAddressField::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QWidget::eventFilter(watched, event);
}

void IPAddressField::paintEvent(QPaintEvent*)
{
    const Colours& colours = look::colours(this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF area = look::deviceAligned(this, rect());
    painter.fillPath(look::continuousRect(area, 6), colours.textBackground);
    constexpr double ring = 2;
    const bool active = focused().has_value();
    look::strokeInside(painter, area, 6, active ? colours.teal : colours.separator, active ? ring : 0.5);
    if (m_isFaulty) { // inside of the ring that shows the focus
        const double inset = active ? ring : 0;
        look::strokeInside(painter, area.adjusted(inset, inset, -inset, -inset), 6 - inset, colours.red,
                           ring);
    }
}

} // namespace ardeo
