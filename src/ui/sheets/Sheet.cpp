#include "ui/sheets/Sheet.h"

#include "ui/elements/Stack.h"
#include "ui/elements/SystemWords.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <QPainter>

namespace ardeo
{

namespace
{

constexpr double radius = 14;
constexpr int padding = 24;
constexpr int shadowReach = 16;
constexpr int shadowDrop = 4;

QColor outline(const Colours& colours)
{
    return colours.separator;
}

} // namespace

Sheet::Sheet(const QString& title, int width, QWidget* window)
    : QDialog(window, Qt::SubWindow) // within which the Tab key goes round
    , m_panel(new MaterialPanel(radius, &outline, this))
{
    for (auto* other : window->findChildren<Sheet*>()) {
        if (other != this && other->isVisible())
            other->reject();
    }
    m_focusBefore = window->focusWidget();
    setAccessibleName(title);
    setAttribute(Qt::WA_NoMousePropagation);
    look::followTextSize(m_panel, [this, width] { m_panel->setFixedWidth(look::scaled(width)); });
    columnIn(this, 0)->addWidget(m_panel, 0, Qt::AlignCenter);
    setGeometry(window->rect());
    window->installEventFilter(this);
    // A field below may take the focus when its value changes, and assistive technology may give it away.
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        if (isVisible() && now && now->window() == this->window() && !isAncestorOf(now) && focusWidget())
            focusWidget()->setFocus();
    });
}

QVBoxLayout* Sheet::makeColumn(int spacing)
{
    return columnIn(m_panel, spacing, {padding, padding, padding, padding});
}

bool Sheet::event(QEvent* event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return QDialog::event(event);
    // What is accepted here comes as a key that is pressed in the sheet, and sets off nothing in the window.
    event->setAccepted(static_cast<QKeyEvent*>(event)->keyCombination() != keys::quit);
    return true;
}

bool Sheet::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return false;
}

void Sheet::keyPressEvent(QKeyEvent* event)
{
    const QKeyCombination pressed = event->keyCombination();
    const bool isReturn = pressed == QKeyCombination(Qt::Key_Return) ||
                          pressed == QKeyCombination(Qt::KeypadModifier, Qt::Key_Enter);
    auto* button = qobject_cast<QAbstractButton*>(focusWidget());
    if (isReturn && button)
        button->click(); // rather than the default one
    else
        QDialog::keyPressEvent(event);
}

void Sheet::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    if (focusWidget())
        focusWidget()->setFocus();
}

void Sheet::hideEvent(QHideEvent* event)
{
    QDialog::hideEvent(event);
    if (!isHidden())
        return; // the window is, with all that is in it
    QWidget* place = m_focusBefore ? m_focusBefore.get() : parentWidget();
    (place->isEnabled() ? place : place->parentWidget())->setFocus();
}

void Sheet::paintEvent(QPaintEvent*)
{
    const Colours& colours = look::colours(this);
    QPainter painter(this);
    painter.fillRect(rect(), colours.backdrop);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF ground = look::deviceAligned(m_panel, m_panel->rect()).translated(m_panel->pos());
    for (int reach = shadowReach; reach > 0; reach -= 2) {
        painter.fillPath(
            look::continuousRect(ground.adjusted(-reach, shadowDrop - reach, reach, shadowDrop + reach),
                                 radius + reach),
            QColor(0, 0, 0, 6));
    }
    painter.fillPath(look::continuousRect(ground, radius), colours.window);
}

} // namespace ardeo
