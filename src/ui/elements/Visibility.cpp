#include "ui/elements/Visibility.h"

#include <QEvent>
#include <QWindow>

namespace ardeo
{

Visibility::Visibility(QWidget* widget) : QObject(widget), m_widget(widget)
{
    widget->installEventFilter(this);
}

bool Visibility::isSeen() const
{
    const QWindow* handle = m_widget->window()->windowHandle();
    return m_widget->isVisible() && !m_widget->window()->isMinimized() && handle && handle->isExposed();
}

bool Visibility::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (QWindow* handle = m_widget->window()->windowHandle())
            handle->installEventFilter(this);
        m_widget->window()->installEventFilter(this);
        [[fallthrough]];
    case QEvent::Hide:
    case QEvent::Expose:
    case QEvent::WindowStateChange:
        // What the event is about has happened only when it has been handled.
        QMetaObject::invokeMethod(this, &Visibility::changed, Qt::QueuedConnection);
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace ardeo
