#include "ui/elements/CardScrollArea.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QScrollBar>

namespace ardeo
{

namespace
{

/// Qt's own accessible scroll area reads past the end of its children when assistive technology asks for one
/// that has just been hidden; the plain accessible widget checks.
QAccessibleInterface* makeAccessible(const QString& className, QObject* object)
{
    if (className != QLatin1String(CardScrollArea::staticMetaObject.className()))
        return nullptr;
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::Pane);
}

} // namespace

CardScrollArea::CardScrollArea(QWidget* content, QWidget* parent) : QScrollArea(parent)
{
    QAccessible::installFactory(makeAccessible);
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // The bar has its place whether it is needed or not, so that nothing moves aside for it.
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setWidget(content);
    for (QWidget* clear : {viewport(), content, static_cast<QWidget*>(this)})
        clear->setAutoFillBackground(false);
}

QSize CardScrollArea::minimumSizeHint() const
{
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(),
            QScrollArea::minimumSizeHint().height()};
}

bool CardScrollArea::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry(); // the content may need more width, or less
    return QScrollArea::eventFilter(watched, event);
}

void CardScrollArea::keyPressEvent(QKeyEvent* event)
{
    QScrollBar* bar = verticalScrollBar();
    const int page = bar->pageStep() - fontMetrics().lineSpacing();
    switch (event->key()) {
    case Qt::Key_Home:
        bar->setValue(bar->minimum());
        break;
    case Qt::Key_End:
        bar->setValue(bar->maximum());
        break;
    case Qt::Key_PageUp:
        bar->setValue(bar->value() - page);
        break;
    case Qt::Key_PageDown:
        bar->setValue(bar->value() + page);
        break;
    default:
        QScrollArea::keyPressEvent(event);
    }
}

} // namespace ardeo
