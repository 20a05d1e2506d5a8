#include "app/WindowHider.h"

#include <QEvent>

namespace ardeo
{

namespace
{

constexpr QSize smallestSize(720, 560);

/// Turns a request to close the window into hiding it, and keeps the window as large as its content needs.
class WindowCloseDelegate final : public QObject
{
public:
    explicit WindowCloseDelegate(AppDelegate& delegate) : m_delegate(delegate) {}

    /// Whether the window may close; it never may.
    bool windowShouldClose()
    {
        m_delegate.hideMainWindow();
        return false;
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LayoutRequest) {
            auto* window = static_cast<QWidget*>(watched);
            window->setMinimumSize(smallestSize.expandedTo(window->minimumSizeHint()));
        }
        if (event->type() != QEvent::Close || windowShouldClose())
            return false;
        event->ignore();
        return true;
    }

private:
    AppDelegate& m_delegate;
};

class WindowHiderView final : public QWidget
{
public:
    explicit WindowHiderView(AppDelegate& delegate) : windowDelegate(delegate), m_delegate(delegate)
    {
        setFixedSize(0, 0);
        setFocusPolicy(Qt::NoFocus);
    }

protected:
    bool event(QEvent* event) override
    {
        const bool result = QWidget::event(event);
        if (event->type() == QEvent::ParentChange)
            viewDidMoveToWindow();
        return result;
    }

private:
    void viewDidMoveToWindow()
    {
        if (m_delegate.mainWindow)
            m_delegate.mainWindow->removeEventFilter(&windowDelegate);
        QWidget* place = parentWidget() ? parentWidget()->window() : nullptr;
        if (place) {
            place->installEventFilter(&windowDelegate);
            place->setMinimumSize(smallestSize);
        }
        m_delegate.mainWindow = place;
    }

    WindowCloseDelegate windowDelegate;
    AppDelegate& m_delegate;
};

} // namespace

QWidget* WindowHider::makeView(AppDelegate& delegate)
{
    return new WindowHiderView(delegate);
}

} // namespace ardeo
